#pragma once

#include "platform/simulada/dispositivos/OpcionesDispositivo.h"

namespace ovanta {

/// The pairing of a simulated device with this Mac: identities made for it, and the record of them.
/// Throws `std::runtime_error` where OpenSSL cannot make them.
class EmparejamientoSimulado
{
public:
    explicit EmparejamientoSimulado(const OpcionesDispositivo &opciones);

    const std::string &hostId() const { return m_hostId; }
    const std::string &buid() const { return m_buid; }
    /// What the device shows, and whom it lets in.
    const IdentidadDelServidor &identidad() const { return m_identidad; }
    /// The record as the multiplexer keeps it: the bytes of a property list.
    const std::string &registro() const { return m_registro; }

private:
    std::string m_hostId;
    std::string m_buid;
    IdentidadDelServidor m_identidad;
    std::string m_registro;
};

} // namespace ovanta
