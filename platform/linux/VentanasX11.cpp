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

bool VentanasX11::conConexion(std::function<void(ConexionX11 &)> trabajo)
{
    if (!m_estado->pantalla) return false;
    const auto hecho = std::make_shared<bool>(false);
    const bool aTiempo = m_hilo.correr(
        [estado = m_estado, hecho, trabajo = std::move(trabajo)] {
            if (!estado->conexion || estado->conexion->rota())
                estado->conexion = std::make_unique<ConexionX11>(*estado->pantalla);
            trabajo(*estado->conexion);
            *hecho = !estado->conexion->rota();
        },
        limite);
    return aTiempo && *hecho;
}

std::vector<VentanaVista> VentanasX11::listar()
{
    const auto vistas = std::make_shared<std::vector<VentanaVista>>();
    const bool bien = conConexion([vistas](ConexionX11 &conexion) { *vistas = conexion.ventanas(); });
    return bien ? std::move(*vistas) : std::vector<VentanaVista>{};
}

bool VentanasX11::pedirCierre(std::vector<std::uint32_t> ventanas)
{
    if (ventanas.empty()) return false;
    return conConexion(
        [ventanas = std::move(ventanas)](ConexionX11 &conexion) { conexion.pedirCierre(ventanas); });
}

} // namespace ovanta
