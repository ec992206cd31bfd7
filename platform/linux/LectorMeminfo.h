#pragma once

#include "platform/linux/LecturaRepetida.h"
#include "platform/linux/Meminfo.h"

#include <vector>

namespace ovanta {

/// What the memory is taken by, from the kernel's table and its stores of compressed pages: every figure
/// of memory that is shown comes from here.
class LectorMeminfo
{
public:
    struct Datos
    {
        Meminfo meminfo;
        std::uint64_t comprimida = 0; ///< bytes that zswap and every zram device take
    };

    /// `raiz` is the folder that holds "proc" and "sys". Devices of compressed memory are looked for
    /// once.
    explicit LectorMeminfo(const std::string &raiz);

    std::optional<Datos> leer();

private:
    LecturaRepetida m_meminfo;
    std::vector<LecturaRepetida> m_zram;
    std::string m_lugar; ///< kept from reading to reading
};

} // namespace ovanta
