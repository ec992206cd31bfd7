#pragma once

#include "core/Fecha.h"

namespace ovanta {

/// How many whole days lie between two moments in the user's calendar and time zone: a day is over when
/// the clock on the wall shows the same time again. 0 where `hasta` is the earlier one.
int diasEntre(Fecha desde, Fecha hasta);

} // namespace ovanta
