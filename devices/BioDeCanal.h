#pragma once

#include "platform/Conexiones.h"

#include <cstdint>
#include <openssl/bio.h>
#include <optional>

namespace ovanta {

// What the Mac's cipher library (SecureTransport.h) calls the ends of a step.
constexpr std::int32_t estadoSilencio = -9803; ///< errSSLWouldBlock
constexpr std::int32_t estadoCerrado = -9805;  ///< errSSLClosedGraceful
constexpr std::int32_t estadoAbortado = -9806; ///< errSSLClosedAbort

/// What OpenSSL reads from and writes to: a channel, and how the first step on it ended that failed.
struct EnlaceDeCanal
{
    Canal *canal;
    std::optional<std::int32_t> estado;
    bool vencido = false; ///< the `Plazo` of the channel is over

    /// What fails later is only OpenSSL's try to send an alert about it.
    void recordar(std::int32_t nuevo, bool fin)
    {
        if (estado) return;
        estado = nuevo;
        vencido = fin;
    }
    void olvidar()
    {
        estado.reset();
        vencido = false;
    }
};

/// A BIO over `enlace`, which must outlive it; null where there is no memory. Nothing that comes in time is a
/// reason to try again, all other faults are final.
BIO *nuevoBioDeCanal(EnlaceDeCanal *enlace);

} // namespace ovanta
