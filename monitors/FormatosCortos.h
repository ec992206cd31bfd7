#pragma once

#include <cstdint>
#include <string>

namespace ovanta {

/// A size for the bar, in units of 10^9 bytes with a decimal point: whole ones from 10 GB on, below
/// that with one decimal. The unrounded value decides, so just below ten is "10.0 GB".
std::string formatearBytesCorto(std::uint64_t bytes);

/// A speed in bytes per second for the bar: "0K" to "999K" cut to whole thousands, "1.0M" to "9.9M",
/// then "10M" and so on.
std::string formatearVelocidadCorta(double bytesPorSegundo);

} // namespace ovanta
