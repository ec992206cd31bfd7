#include "platform/linux/VentanasX11.h"

#include "platform/linux/ConexionX11.h"

#include <cstdlib>

namespace ovanta {

namespace {

constexpr std::chrono::milliseconds limite{3000};

} // namespace

/// Of the thread alone.
struct VentanasX11::Estado
{
    std::optional<std::string> pantalla;
    std::unique_ptr<ConexionX11> conexion;
};

std::optional<std::string> VentanasX11::pantallaDelEntorno()
{
    const char *pantalla = std::getenv("DISPLAY");
    const char *wayland = std::getenv("WAYLAND_DISPLAY");
    if (!pantalla || !*pantalla || (wayland && *wayland)) return std::nullopt;
    return pantalla;
}

VentanasX11::VentanasX11(std::optional<std::string> pantalla) : m_estado(std::make_shared<Estado>())
{
    m_estado->pantalla = std::move(pantalla);
}

VentanasX11::~VentanasX11() = default;

VentanasX11::Suerte VentanasX11::conConexion(std::function<void(ConexionX11 &)> trabajo)
{
    if (!m_estado->pantalla) return Suerte::noHay;
    const auto suerte = std::make_shared<Suerte>(Suerte::noContesta);
    const bool aTiempo = m_hilo.correr(
        [estado = m_estado, suerte, trabajo = std::move(trabajo)] {
            if (!estado->conexion || estado->conexion->rota())
                estado->conexion = std::make_unique<ConexionX11>(*estado->pantalla);
            trabajo(*estado->conexion);
            if (estado->conexion->agotada()) return;
            *suerte = estado->conexion->rota() ? Suerte::noHay : Suerte::bien;
        },
        limite);
    return aTiempo ? *suerte : Suerte::noContesta;
}

std::optional<std::vector<VentanaVista>> VentanasX11::listar()
{
    const auto vistas = std::make_shared<std::vector<VentanaVista>>();
    switch (conConexion([vistas](ConexionX11 &conexion) { *vistas = conexion.ventanas(); })) {
    case Suerte::bien:
        return std::move(*vistas);
    case Suerte::noHay:
        return std::vector<VentanaVista>{};
    case Suerte::noContesta:
        break;
    }
    return std::nullopt;
}

void VentanasX11::pedirCierre(std::vector<std::uint32_t> ventanas)
{
    conConexion([ventanas = std::move(ventanas)](ConexionX11 &conexion) { conexion.pedirCierre(ventanas); });
}

} // namespace ovanta
