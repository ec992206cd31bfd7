#pragma once

#include "monitors/RankingProcesos.h"
#include "platform/AplicacionesEnMarcha.h"
#include "platform/Procesos.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ovanta {

/// What came of asking applications to quit.
struct ResultadoCierre
{
    std::vector<std::string> cerradas;             ///< names of those that quit
    std::map<std::int32_t, std::string> sinCerrar; ///< those still open, by pid

    bool operator==(const ResultadoCierre &) const = default;
};

/// Which process a pid meant when the user was shown it: pid to the moment it began. A pid alone may
/// since have gone to another process.
using IdentidadesProcesos = std::map<std::int32_t, std::uint64_t>;

/// The identities of the wanted pids, as far as they are known.
IdentidadesProcesos identidadesDe(const std::set<std::int32_t> &pids, const IdentidadesProcesos &conocidas);

/// What has been published by now: the rows of this ranking, and of the earlier ones what still runs.
IdentidadesProcesos publicadasHasta(const IdentidadesProcesos &antes,
                                    const std::vector<MuestraProceso> &muestras,
                                    const std::vector<Proceso> &ranking);

/// Of the applications that run now, those that were meant and that may be ended at all.
std::vector<AplicacionEnMarcha> appsCerrables(const std::vector<AplicacionEnMarcha> &apps,
                                              const IdentidadesProcesos &pedidas,
                                              const std::optional<std::string> &identificadorPropio);

/// What the result of a closing calls an application.
std::string nombreAlCerrar(const AplicacionEnMarcha &app);

/// What the result of a forced end calls it: its identifier is not told here.
std::string nombreAlForzar(const AplicacionEnMarcha &app);

/// Where to look for processes that outlive the application; nothing for one of the system itself.
std::optional<std::string> rutaDeRestos(const AplicacionEnMarcha &app);

} // namespace ovanta
