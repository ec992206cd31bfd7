#pragma once

#include "platform/linux/VentanaVista.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace ovanta {

/// One connection to an X server. For one thread; every call waits for the server for a limited time,
/// and after it the connection counts as broken. Only the connecting may hang.
/// Source: https://specifications.freedesktop.org/wm-spec/latest/
class ConexionX11
{
public:
    static constexpr std::size_t cuantosAtomos = 7;
    using Atomos = std::array<std::uint32_t, cuantosAtomos>;

    /// `pantalla` as in DISPLAY.
    explicit ConexionX11(const std::string &pantalla);
    ~ConexionX11();
    ConexionX11(const ConexionX11 &) = delete;
    ConexionX11 &operator=(const ConexionX11 &) = delete;

    /// Whether there is nothing behind it any more.
    bool rota() const;
    /// Whether the server is there but did not answer in time.
    bool agotada() const { return m_agotada; }

    /// The windows that the window manager keeps, of programs on this machine; none without a manager.
    std::vector<VentanaVista> ventanas();

    /// Asks the window manager to close them as if the user had.
    void pedirCierre(const std::vector<std::uint32_t> &ventanas);

private:
    xcb_connection_t *m_conexion;
    std::uint32_t m_raiz = 0;
    Atomos m_atomos{};
    bool m_agotada = false;
};

} // namespace ovanta
