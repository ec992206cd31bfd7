#pragma once

#include "platform/linux/OrigenProceso.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovanta {

/// Kills a whole unit at once through "cgroup.kill", where it is the unit of one application in the own
/// session and holds no process but `pids`. Whether it did; if not, nothing happened. `raiz` is where
/// the unified hierarchy is mounted.
/// Source: https://docs.kernel.org/admin-guide/cgroup-v2.html
bool matarUnidad(const std::string &raiz, const OrigenProceso &origen, std::uint32_t uid,
                 const std::vector<std::int32_t> &pids);

} // namespace ovanta
