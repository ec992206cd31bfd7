#pragma once

#include "platform/MemoriaSistema.h"
#include "platform/linux/LectorMeminfo.h"

#include <atomic>

namespace ovanta {

/// The memory as /proc tells it. Swap that only compresses in memory (zram) is compressed memory here,
/// not swap: nothing of it is ever written to a disk. The level follows the kernel's measure of
/// pressure, asked at each reading, and the memory that is still available.
class MemoriaLinux final : public MemoriaSistema
{
public:
    /// `raiz` is the folder that holds "proc" and "sys".
    explicit MemoriaLinux(std::string raiz = "/");

    std::uint64_t fisica() override { return m_fisica; }
    Lectura leer() override;

private:
    void leerCategorias(Lectura &lectura);
    void leerSwap(Lectura &lectura);

    std::string m_raiz;
    LectorMeminfo m_meminfo;
    LecturaRepetida m_vmstat;
    LecturaRepetida m_swaps;
    LecturaRepetida m_presion;
    std::uint64_t m_bytesPorPagina;
    std::atomic<std::uint64_t> m_fisica = 0;
    Nivel m_nivel = Nivel::normal;
    std::string m_lugar; ///< kept from reading to reading
};

} // namespace ovanta
