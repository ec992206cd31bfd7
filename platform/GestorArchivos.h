#pragma once

#include <string>

namespace ovanta {

/// The desktop's file manager. Main thread; never blocks; what can't be shown is ignored.
class GestorArchivos
{
public:
    virtual ~GestorArchivos() = default;

    /// Opens the folder of `ruta` with the item selected, or the nearest folder above it that exists.
    virtual void mostrar(const std::string &ruta) = 0;

    /// Opens the user's Trash.
    virtual void abrirPapelera() = 0;
};

} // namespace ovanta
