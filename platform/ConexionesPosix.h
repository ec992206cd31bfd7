#pragma once

#include "platform/Conexiones.h"

namespace ovanta {

/// The sockets of this machine; the real platform and the simulated one use them alike.
class ConexionesPosix final : public Conexiones
{
public:
    /// The socket of usbmuxd, see usbmuxd(8).
    static constexpr const char *usbmuxdDelSistema = "/var/run/usbmuxd";

    explicit ConexionesPosix(std::string rutaUsbmuxd = usbmuxdDelSistema);

    std::string rutaUsbmuxd() const override { return m_rutaUsbmuxd; }
    Resultado abrirUnix(const std::string &ruta, const Plazo &plazo) override;
    Resultado abrirTcp6(const std::string &host, std::uint16_t puerto, std::chrono::milliseconds espera,
                        const Plazo &plazo) override;

private:
    std::string m_rutaUsbmuxd;
};

} // namespace ovanta
