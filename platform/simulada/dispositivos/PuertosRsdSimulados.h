#pragma once

#include "platform/simulada/dispositivos/DispositivoSimulado.h"
#include "platform/simulada/dispositivos/ServidorSimulado.h"
#include "platform/simulada/dispositivos/XpcSimulado.h"

#include <memory>
#include <optional>
#include <vector>

namespace ovanta {

/// The first and the last port on which a device may offer its discovery service.
inline constexpr std::uint16_t primerPuertoRsd = 58'783;
inline constexpr std::uint16_t ultimoPuertoRsd = 59'283;

/// What stands behind one port of a tunnel.
struct OpcionesRsd
{
    enum class Clase {
        verdadero,        ///< the discovery service
        silencioso,       ///< accepts and never says a word
        cierra,           ///< accepts and closes
        basura,           ///< says what is no HTTP/2
        despedida,        ///< says GOAWAY where the services should come
        sinFin,           ///< says more than 200 frames, and none with services
        longitudImposible ///< announces a wrapper as long as numbers go
    };

    Clase clase = Clase::verdadero;
    std::optional<std::uint16_t> puerto; ///< else the lowest free one of the discovery range
    std::uint32_t flujoDeServicios = 1;  ///< stream of the message with the services: 1 or 3
    std::size_t fragmento = 0;           ///< bytes of a wrapper in one DATA frame; 0 for all
    bool entrelazado = false;            ///< a message on the other stream comes piece by piece in between
    bool conAcuse = false;               ///< sends a SETTINGS with ACK, which wants no answer
    bool conVacias = false;              ///< sends wrappers without a body, and with eight bytes of it
    bool conPalabraDesconocida = false;  ///< first sends services with a type word nobody knows
    std::vector<EntradaXpc> otrosServicios;
    FallosSimulados fallos; ///< of the bytes
};

/// The end of a tunnel to one device, on an address as `escucharEnBucle` takes it: ports that are what their
/// options say, and the diagnostics relay that the discovery service tells of. Ports without options are
/// closed. Destroying it ends all.
class PuertosRsdSimulados
{
public:
    /// Throws `std::system_error` where a port is taken, or none is free.
    PuertosRsdSimulados(std::shared_ptr<DispositivoSimulado> dispositivo, std::vector<OpcionesRsd> puertos,
                        std::string direccion = "::1");

    const std::shared_ptr<DispositivoSimulado> &dispositivo() const { return m_dispositivo; }
    const std::string &direccion() const { return m_direccion; }
    /// In the order of the options.
    const std::vector<std::uint16_t> &puertos() const { return m_puertos; }
    std::uint16_t puertoRele() const { return m_puertoRele; }
    /// Each frame that came to a discovery service: type, flags and stream in decimal, payload in
    /// hexadecimal, with a space between them.
    const DiarioSimulado &diario() const { return m_diario; }

private:
    void abrir(const OpcionesRsd &opciones);

    std::shared_ptr<DispositivoSimulado> m_dispositivo;
    std::string m_direccion;
    DiarioSimulado m_diario;
    std::vector<std::uint16_t> m_puertos;
    std::uint16_t m_puertoRele = 0;
    std::vector<std::unique_ptr<ServidorSimulado>> m_servidores;
};

} // namespace ovanta
