#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace ovanta {

/// Sums and products of sizes in bytes. An overflow would show a wrong size or free-space figure,
/// so it ends the process with a message instead.
[[noreturn]] inline void desbordamientoDeTamano()
{
    std::fputs("ovanta: size arithmetic overflowed\n", stderr);
    std::abort();
}

inline std::uint64_t sumar(std::uint64_t a, std::uint64_t b)
{
    std::uint64_t r = 0;
    if (__builtin_add_overflow(a, b, &r)) desbordamientoDeTamano();
    return r;
}

/// The sum of figures that an outside tool told, which may be nonsense: the largest one there is
/// where it does not fit.
inline std::uint64_t sumarConTope(std::uint64_t a, std::uint64_t b)
{
    std::uint64_t r = 0;
    return __builtin_add_overflow(a, b, &r) ? UINT64_MAX : r;
}

/// The same for a product.
inline std::uint64_t multiplicarConTope(std::uint64_t a, std::uint64_t b)
{
    std::uint64_t r = 0;
    return __builtin_mul_overflow(a, b, &r) ? UINT64_MAX : r;
}

/// What is left of `a`, and 0 where `b` is more: figures that were not read at one moment.
inline std::uint64_t restarHastaCero(std::uint64_t a, std::uint64_t b)
{
    return a > b ? a - b : 0;
}

inline std::uint64_t multiplicar(std::uint64_t a, std::uint64_t b)
{
    std::uint64_t r = 0;
    if (__builtin_mul_overflow(a, b, &r)) desbordamientoDeTamano();
    return r;
}

} // namespace ovanta
