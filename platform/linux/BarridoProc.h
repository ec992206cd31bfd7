#pragma once

#include "core/Descriptor.h"
#include "platform/linux/LecturaRepetida.h"
#include "platform/linux/LineasProc.h"
#include "platform/linux/ListaDePids.h"
#include "platform/linux/ProcesoVisto.h"

#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// Sweeps over the running processes. What seldom changes while a process runs is remembered from one
/// sweep to the next and read anew in its second one, when the size of its code, its parent or its
/// folder changes, and else once in a few minutes of sweeps. No file of a process stays open.
class BarridoProc
{
public:
    /// Sweeps after which a process is looked at as if it were new.
    static constexpr std::uint32_t barridosPorRenovacion = 32;

    /// `raiz` is the folder of the processes.
    explicit BarridoProc(std::string raiz = "/proc");

    /// Every process that takes memory, by pid: no thread of the kernel, none that has ended, none that
    /// may not be read. Empty where the folder cannot be read. Blocking, some microseconds a process;
    /// one call at a time, any thread.
    std::vector<ProcesoVisto> barrer();

private:
    /// A process as the sweep before saw it.
    struct Conocido
    {
        EntradaDePid entrada;
        ProcesoVisto proceso; ///< without what each sweep measures
        bool delNucleo = false;
        bool confirmado = false;            ///< seen twice: no longer between its birth and its program
        LineaStatm statm;                   ///< when `vmSwap` was read
        std::uint64_t vmSwap = 0;           ///< bytes
        std::optional<std::uint64_t> reloj; ///< processor time in nanoseconds right before `statm` was read
        std::uint64_t ticks = 0;            ///< processor time when "stat" was read
    };

    bool abrir();
    void mirarIntercambio();
    /// Whether what is known still holds without a look at "stat".
    bool vale(const Conocido &conocido) const;
    bool vive(std::int32_t pid) const;
    /// Looks at a process as a whole. False where it is gone, has ended or may not be read.
    bool conocer(const EntradaDePid &entrada, const Conocido *antes, Conocido &conocido) const;
    /// Measures its memory. False where it runs another program than the one that is known.
    bool medir(Conocido &conocido, bool reciente);
    std::uint64_t tiempo(const Conocido &conocido) const;
    void ver(const EntradaDePid &entrada, Conocido *antes, std::vector<ProcesoVisto> &vistos);

    std::string m_raiz;
    Descriptor m_proc;
    bool m_relojes = false; ///< whether the clocks of processes can be asked by their pid
    LecturaRepetida m_meminfo;
    std::uint64_t m_bytesPorPagina;
    std::uint64_t m_nanosPorTick;
    std::uint32_t m_barridos = 0;
    bool m_hayIntercambio = false;
    std::vector<EntradaDePid> m_entradas;
    std::vector<Conocido> m_conocidos; ///< of the sweep before, by pid
    std::vector<Conocido> m_siguientes;
    std::string m_lugar; ///< kept from sweep to sweep
};

} // namespace ovanta
