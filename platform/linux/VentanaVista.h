#pragma once

#include <cstdint>
#include <string>

namespace ovanta {

/// One window of the display that the window manager keeps, and whose it is.
struct VentanaVista
{
    std::uint32_t id = 0;
    std::int32_t pid = 0;
    std::string instancia;      ///< first text of WM_CLASS, any bytes
    std::string clase;          ///< second text of WM_CLASS
    bool delEscritorio = false; ///< the desktop's background or a panel

    bool operator==(const VentanaVista &) const = default;
};

} // namespace ovanta
