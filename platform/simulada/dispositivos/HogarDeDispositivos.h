#pragma once

#include "platform/Conexiones.h"
#include "platform/simulada/dispositivos/DevicectlSimulado.h"
#include "platform/simulada/dispositivos/UsbmuxdSimulado.h"

#include <mutex>

namespace ovanta {

/// The iPhones and iPads of a household, as the simulated Mac reaches them: two by cable that are trusted,
/// one of them with a tunnel; one by Wi-Fi; one that never trusted this Mac; one that does not tell the
/// health of its battery. Nothing listens before it is first asked for. Any thread.
class HogarDeDispositivos
{
public:
    HogarDeDispositivos();

    /// The socket of the multiplexer; a path where nobody listens if the machine has no sockets left.
    std::string rutaUsbmuxd();
    DevicectlSimulado &devicectl() { return m_devicectl; }

private:
    UsbmuxdSimulado::Dispositivos m_dispositivos;
    DevicectlSimulado m_devicectl;
    std::once_flag m_iniciado;
    std::unique_ptr<UsbmuxdSimulado> m_usbmuxd;
};

/// Real sockets, among which the multiplexer is that of the household.
class ConexionesSimuladas final : public Conexiones
{
public:
    /// Both outlive this object.
    ConexionesSimuladas(Conexiones &reales, HogarDeDispositivos &hogar) : m_reales(reales), m_hogar(hogar) {}

    std::string rutaUsbmuxd() const override { return m_hogar.rutaUsbmuxd(); }
    Resultado abrirUnix(const std::string &ruta, const Plazo &plazo) override
    {
        return m_reales.abrirUnix(ruta, plazo);
    }
    Resultado abrirTcp6(const std::string &host, std::uint16_t puerto, std::chrono::milliseconds espera,
                        const Plazo &plazo) override
    {
        return m_reales.abrirTcp6(host, puerto, espera, plazo);
    }

private:
    Conexiones &m_reales;
    HogarDeDispositivos &m_hogar;
};

} // namespace ovanta
