#pragma once

#include "core/plist/ValorPlist.h"
#include "platform/simulada/dispositivos/EnchufeSimulado.h"
#include "platform/simulada/dispositivos/PeticionPlist.h"

#include <functional>

namespace ovanta {

/// Longest request that a simulated service reads.
inline constexpr std::uint32_t limiteDePeticion = 1U << 20U;

/// Reads one request of lockdown and its services: a big-endian length of four bytes and an XML property
/// list. Anything else ends the conversation (`FinDeConversacion`).
PeticionPlist leerMarco(CanalSimulado &canal);

/// The answers of one conversation, with the faults that are asked of it.
class Contestador
{
public:
    /// Makes the header of a frame, given the length of its property list.
    using Cabecera = std::function<std::string(std::uint32_t)>;

    /// Both outlive this object; the faults of the bytes hold for the socket from now on.
    Contestador(EnchufeSimulado &enchufe, const FallosSimulados &fallos);

    void contestar(CanalSimulado &canal, const DiccionarioPlist &respuesta, const Cabecera &cabecera);
    /// With the header of lockdown and its services.
    void contestar(CanalSimulado &canal, const DiccionarioPlist &respuesta);

private:
    EnchufeSimulado &m_enchufe;
    const FallosSimulados &m_fallos;
    int m_paso = 0;
};

} // namespace ovanta
