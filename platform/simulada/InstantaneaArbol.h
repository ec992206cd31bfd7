#pragma once

#include "core/Identidad.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What one entry of a tree looked like. The times and sizes of folders are not kept: they follow
/// from their entries.
struct FichaArbol
{
    Identidad identidad;
    std::uint32_t permisos = 0;
    std::uint64_t bytes = 0;
    std::int64_t modificado = 0; ///< nanoseconds since 1970

    bool operator==(const FichaArbol &) const = default;
};

/// What lies at `ruta` now, of a link itself; nothing where there is nothing.
std::optional<FichaArbol> fichar(const std::string &ruta);

/// Every entry below a folder, by path relative to it.
using InstantaneaArbol = std::map<std::string, FichaArbol>;

/// Takes the picture of a whole tree without following links. Folders that cannot be entered count
/// without their contents. Throws `std::system_error` where `raiz` cannot be read.
InstantaneaArbol fotografiarArbol(const std::string &raiz);

/// What happened to a tree between two pictures, as relative paths in order.
struct CambiosArbol
{
    std::vector<std::string> desaparecidas;
    std::vector<std::string> aparecidas;
    std::vector<std::string> cambiadas;

    bool operator==(const CambiosArbol &) const = default;
};

CambiosArbol comparar(const InstantaneaArbol &antes, const InstantaneaArbol &despues);

/// The changes that lie neither at nor under any of `permitidas` (relative paths).
CambiosArbol fueraDe(const CambiosArbol &cambios, const std::vector<std::string> &permitidas);

} // namespace ovanta
