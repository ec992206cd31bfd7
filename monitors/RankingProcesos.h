#pragma once

#include "monitors/CargaProcesos.h"
#include "platform/AplicacionesEnMarcha.h"
#include "platform/Procesos.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// One row of the ranking: an application with all its processes, or a process that stands alone.
struct Proceso
{
    std::int32_t id = 0;      ///< pid of the application, or of the largest process
    std::uint64_t inicio = 0; ///< when that process began: with `id` it names it for ever
    std::string nombre;
    std::uint64_t rss = 0; ///< bytes: the sum of the footprints of all its processes
    double cpu = 0;        ///< per cent of the whole machine
    std::size_t procesos = 0;
    bool sePuedeCerrar = false;
    std::string icono; ///< as in `AplicacionEnMarcha`; empty for what is no application

    bool operator==(const Proceso &) const = default;
};

/// How many rows the ranking keeps.
inline constexpr std::size_t filasDelRanking = 20;

/// Whether an application may be ended at all: neither this program nor one that the desktop stands on.
/// Two missing identifiers count as equal.
bool esCerrable(const AplicacionEnMarcha &app, const std::optional<std::string> &identificadorPropio);

/// Whether the user is offered to close it: it may be ended, and it is one that the user sees.
bool sePuedeCerrar(const AplicacionEnMarcha &app, const std::optional<std::string> &identificadorPropio);

/// The processes by application, those that take the most memory first, at most `filasDelRanking`.
std::vector<Proceso> rankingProcesos(const std::vector<MuestraProceso> &muestras, const FigurasCPU &figuras,
                                     const std::vector<AplicacionEnMarcha> &apps,
                                     const std::optional<std::string> &identificadorPropio);

} // namespace ovanta
