#pragma once

#include "platform/AplicacionesEnMarcha.h"
#include "platform/linux/FotografoProcesos.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace ovanta {

/// The processes of one application in one look.
struct GrupoApp
{
    PertenenciaRef pertenencia;        ///< of the main process
    std::vector<std::size_t> miembros; ///< places in `FotoProcesos::procesos`, the oldest first
    std::vector<std::uint32_t> ventanas;
    std::size_t principal = 0; ///< place of the oldest with a window, else of the oldest
    bool intocable = false;    ///< this program, what started it, or not the session's to end

    bool operator==(const GrupoApp &) const = default;
};

/// This program's pid and those of the processes that it descends from, up to the first of all.
std::set<std::int32_t> propioYAncestros(const EntornoProcesos &entorno);

/// Every application, container and machine, by key.
std::vector<GrupoApp> agrupar(const FotoProcesos &foto, const std::set<std::int32_t> &propios);

AplicacionEnMarcha aplicacionDe(const GrupoApp &grupo, const FotoProcesos &foto);

} // namespace ovanta
