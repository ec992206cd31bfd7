#include "platform/linux/Compositor.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace ovanta {

namespace {

/// Who composites the first screen owns this selection:
/// https://specifications.freedesktop.org/wm-spec/latest/ar01s08.html
constexpr std::string_view seleccion = "_NET_WM_CM_S0";

template <typename T>
std::unique_ptr<T, decltype(&std::free)> respuesta(T *datos)
{
    return {datos, &std::free};
}

bool tieneDueno(xcb_connection_t *conexion, std::string_view nombre)
{
    const auto peticion =
        xcb_intern_atom(conexion, true, static_cast<std::uint16_t>(nombre.size()), nombre.data());
    const auto atomo = respuesta(xcb_intern_atom_reply(conexion, peticion, nullptr));
    if (!atomo || atomo->atom == XCB_ATOM_NONE) return false;
    const auto dueno = respuesta(
        xcb_get_selection_owner_reply(conexion, xcb_get_selection_owner(conexion, atomo->atom), nullptr));
    return dueno && dueno->owner != XCB_WINDOW_NONE;
}

} // namespace

bool hayCompositor()
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return true;
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 && tieneDueno(x11->connection(), seleccion);
}

} // namespace ovanta
