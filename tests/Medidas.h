#pragma once

#include "core/Fecha.h"

#include <cstdint>

namespace ovanta::pruebas {

inline constexpr std::uint64_t gib = 1ULL << 30;

/// A moment like any other, of 2026.
inline constexpr Fecha algunaFecha{std::chrono::seconds{1'795'238'316}};

} // namespace ovanta::pruebas
