#pragma once

#include <cstdint>
#include <limits>
#include <sys/stat.h>

namespace ovanta {

/// The modification time in nanoseconds since 1970. A file system may hold any nonsense: what does
/// not fit becomes the first or last moment that does (years 1677 and 2262).
inline std::int64_t nanosegundosDe(const struct stat &atributos)
{
    const timespec &momento = atributos.st_mtim;
    std::int64_t todos = 0;
    if (__builtin_mul_overflow(momento.tv_sec, std::int64_t{1'000'000'000}, &todos) ||
        __builtin_add_overflow(todos, momento.tv_nsec, &todos))
        return momento.tv_sec < 0 ? std::numeric_limits<std::int64_t>::min()
                                  : std::numeric_limits<std::int64_t>::max();
    return todos;
}

} // namespace ovanta
