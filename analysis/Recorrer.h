#pragma once

#include "analysis/BanderaCancelacion.h"
#include "analysis/ListaArchivos.h"
#include "analysis/NombresIgnorados.h"
#include "platform/AccesoArchivos.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ovanta {

/// Where a walk goes and what it leaves out.
struct Recorrido
{
    std::vector<std::string> raices; ///< absolute; one that is itself a link is followed
    std::uint64_t minimo = 0;        ///< bytes; a smaller file is none
    NombresIgnorados ignorados;
    /// Whether a path must stay out; asked once for every entry that the names did not leave out.
    /// May be empty.
    std::function<bool(const std::string &ruta)> estaProtegida;
};

/// Lists the regular files under the roots, each folder once however often it is mounted or named.
/// Links are never followed, hidden entries never visited, what cannot be listed is passed by.
/// `alAvanzar`, where set, gets the number of entries seen, every 2000 and once at the end.
/// Empty where it was stopped. Blocking; any thread.
ListaArchivos recorrer(const Recorrido &recorrido, AccesoArchivos &acceso,
                       const BanderaCancelacion *cancelacion,
                       const std::function<void(std::uint64_t)> &alAvanzar = {});

} // namespace ovanta
