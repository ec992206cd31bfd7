#pragma once

#include "platform/Volumen.h"

#include <cstdint>

namespace ovanta {

/// The data volume of a Mac with 494 GB. What is free there is told, not measured. Main thread.
class VolumenSimulado final : public Volumen
{
public:
    std::string nombre() const override { return "/System/Volumes/Data"; }
    void leer(std::function<void(std::optional<Espacio>)> listo) override;

    /// `bytes` are rounded down to whole blocks.
    void fijarLibre(std::uint64_t bytes) { m_libre = bytes / bloque; }
    /// Readings fail from now on, or work again.
    void fijarLegible(bool legible) { m_legible = legible; }

    static constexpr std::uint64_t bloque = 4096;
    static constexpr std::uint64_t bytesTotales = 494'384'795'648;

private:
    std::uint64_t m_libre = 87'300'000'000 / bloque;
    bool m_legible = true;
};

} // namespace ovanta
