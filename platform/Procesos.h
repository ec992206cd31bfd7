#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// One process in one sampling.
struct MuestraProceso
{
    std::int32_t pid = 0;
    std::string nombre; ///< file name of the program; "pid 123" where nothing better is known
    /// What it belongs to: the application's `AplicacionEnMarcha::ruta`. Absent for a process that
    /// stands alone.
    std::optional<std::string> rutaApp;
    std::uint64_t huella = 0;    ///< bytes of RAM and swap that would be free without it
    std::uint64_t tiempoCPU = 0; ///< nanoseconds of processor time since it began
    /// When it began, in the machine's own units: tells apart two processes that had the same pid.
    std::uint64_t inicio = 0;

    bool operator==(const MuestraProceso &) const = default;
};

/// The running processes.
class Procesos
{
public:
    virtual ~Procesos() = default;

    /// Cores that can run them, at least 1.
    virtual unsigned nucleos() const = 0;

    /// Every process that can be measured and takes memory; empty where nothing can be read. Blocking;
    /// one call at a time, any thread.
    virtual std::vector<MuestraProceso> muestrear() = 0;
};

} // namespace ovanta
