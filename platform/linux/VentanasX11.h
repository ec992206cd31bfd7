#pragma once

#include "platform/linux/HiloConLimite.h"
#include "platform/linux/VentanaVista.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

class ConexionX11;

/// The windows of an X11 session. Where there is no display, no server, or in a Wayland session there are
/// none. No call waits longer than a few seconds, and it connects anew when the server is back. Any thread.
class VentanasX11
{
public:
    /// The display of this process's environment; none in a Wayland session, where the X server shows
    /// only some of the windows and would be started for the question alone.
    static std::optional<std::string> pantallaDelEntorno();

    explicit VentanasX11(std::optional<std::string> pantalla);
    ~VentanasX11();

    /// Nothing where the server is there but does not answer: who has windows is not known then.
    std::optional<std::vector<VentanaVista>> listar();

    /// Asks the window manager to close them, if it answers.
    void pedirCierre(std::vector<std::uint32_t> ventanas);

private:
    struct Estado;

    enum class Suerte { bien, noHay, noContesta };

    Suerte conConexion(std::function<void(ConexionX11 &)> trabajo);

    std::shared_ptr<Estado> m_estado;
    HiloConLimite m_hilo;
};

} // namespace ovanta
