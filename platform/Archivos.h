#pragma once

#include "core/Fecha.h"

#include <optional>
#include <string>

namespace ovanta {

/// What a file system tells of its items beyond POSIX. Blocking; any thread.
class Archivos
{
public:
    virtual ~Archivos() = default;

    /// When the item at `ruta`, or a link itself, was made. Nothing where there is no such item or the
    /// file system does not keep that moment.
    virtual std::optional<Fecha> creado(const std::string &ruta) = 0;
};

} // namespace ovanta
