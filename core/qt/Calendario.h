#pragma once

#include "core/Fecha.h"

namespace ovanta {

/// The whole days of the local calendar from one moment to another: so often does the clock come round
/// to the same time of day. Negative where `hasta` is earlier, cut towards zero.
long diasDeCalendario(Fecha desde, Fecha hasta);

} // namespace ovanta
