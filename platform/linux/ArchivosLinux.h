#pragma once

#include "platform/Archivos.h"

namespace ovanta {

/// The birth time that statx(2) tells; ext4, btrfs, xfs and tmpfs keep one.
class ArchivosLinux final : public Archivos
{
public:
    std::optional<Fecha> creado(const std::string &ruta) override;
};

} // namespace ovanta
