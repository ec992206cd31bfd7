#pragma once

#include "platform/linux/LecturaRepetida.h"
#include "platform/linux/ZonaTermica.h"

#include <cstdint>
#include <vector>

namespace ovanta {

/// The hottest of the kernel's thermal zones that have trip points, and the processors' own counters
/// of how often they had to slow down. Without a zone that can be read the state is unknown.
class TermicoLinux final : public Termico
{
public:
    /// `raiz` is the folder that holds "sys". Zones and counters are looked for once.
    explicit TermicoLinux(const std::string &raiz = "/");

    EstadoTermico estado() override;

private:
    struct Zona
    {
        PuntosTermicos puntos;
        LecturaRepetida temperatura;
    };

    void buscarZonas(const std::string &carpeta);
    void buscarFrenos(const std::string &carpeta);
    std::uint64_t frenadas();

    std::vector<Zona> m_zonas;
    std::vector<LecturaRepetida> m_frenos;
    std::uint64_t m_frenadas = 0;
};

} // namespace ovanta
