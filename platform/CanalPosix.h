#pragma once

#include "core/Descriptor.h"
#include "platform/Conexiones.h"

#include <optional>

namespace ovanta {

/// Why a wait ended without what it waited for.
enum class EsperaFallida { silencio, vencido, sistema };

/// Waits until `descriptor` is ready for `sucesos` of poll(2), in slices, so that the giving up of `plazo`
/// shows soon.
std::optional<EsperaFallida> esperarDescriptor(int descriptor, short sucesos,
                                               std::chrono::milliseconds espera, const Plazo &plazo);

/// A connected socket of this machine. Each call waits with poll(2) and moves what goes at once: the
/// descriptor is non-blocking, so that neither time-out nor `Plazo` can be overrun.
class CanalPosix final : public Canal
{
public:
    CanalPosix(Descriptor descriptor, Plazo plazo) : m_descriptor(std::move(descriptor)), m_plazo(plazo) {}

    std::expected<std::size_t, Fallo> enviar(std::string_view bytes) override;
    std::expected<std::size_t, Fallo> recibir(std::span<char> lugar) override;
    void ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar) override;

private:
    Descriptor m_descriptor;
    Plazo m_plazo;
    std::chrono::milliseconds m_recibir = std::chrono::seconds{10};
    std::chrono::milliseconds m_enviar = std::chrono::seconds{10};
};

} // namespace ovanta
