#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// A moment in civil time. Every clock reading comes from the platform (`Reloj::ahora`), so that
/// a test can move it; only its text forms are decided here.
using Fecha = std::chrono::sys_time<std::chrono::microseconds>;

/// ISO 8601 in UTC with whole seconds, for example "2026-11-21T05:18:36Z". A fraction of a second
/// is cut off, also before 1970.
std::string textoISO8601(Fecha fecha);

/// Reads what `textoISO8601` writes, and also a fraction of a second and an offset "+hh:mm".
/// Anything else gives nothing.
std::optional<Fecha> leerISO8601(std::string_view texto);

} // namespace ovanta
