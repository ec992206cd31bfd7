#include "platform/linux/EstadoNetWm.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace ovanta {

namespace {

struct Liberar
{
    void operator()(void *respuesta) const { std::free(respuesta); }
};

struct Atomos
{
    xcb_atom_t estado = XCB_ATOM_NONE;
    std::array<xcb_atom_t, 2> omitir{};
};

xcb_atom_t atomo(xcb_connection_t *conexion, std::string_view nombre)
{
    const auto pedido =
        xcb_intern_atom(conexion, 0, static_cast<std::uint16_t>(nombre.size()), nombre.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Liberar> respuesta{
        xcb_intern_atom_reply(conexion, pedido, nullptr)};
    return respuesta ? respuesta->atom : XCB_ATOM_NONE;
}

Atomos atomosDe(xcb_connection_t *conexion)
{
    return {atomo(conexion, "_NET_WM_STATE"),
            {atomo(conexion, "_NET_WM_STATE_SKIP_TASKBAR"), atomo(conexion, "_NET_WM_STATE_SKIP_PAGER")}};
}

std::vector<xcb_atom_t> leerEstado(xcb_connection_t *conexion, xcb_window_t ventana, xcb_atom_t estado)
{
    constexpr std::uint32_t limite = 1024;
    const auto pedido = xcb_get_property(conexion, 0, ventana, estado, XCB_ATOM_ATOM, 0, limite);
    const std::unique_ptr<xcb_get_property_reply_t, Liberar> respuesta{
        xcb_get_property_reply(conexion, pedido, nullptr)};
    if (!respuesta || respuesta->format != 32) return {};
    const auto *primero = static_cast<const xcb_atom_t *>(xcb_get_property_value(respuesta.get()));
    return {primero, primero + respuesta->value_len};
}

/// For a window that the window manager does not know yet.
void escribirEstado(xcb_connection_t *conexion, xcb_window_t ventana, const Atomos &atomos, bool omitir)
{
    std::vector<xcb_atom_t> estado = leerEstado(conexion, ventana, atomos.estado);
    for (const xcb_atom_t uno : atomos.omitir) {
        std::erase(estado, uno);
        if (omitir) estado.push_back(uno);
    }
    xcb_change_property(conexion, XCB_PROP_MODE_REPLACE, ventana, atomos.estado, XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(estado.size()), estado.data());
}

/// For a window that the window manager looks after.
void pedirEstado(xcb_connection_t *conexion, xcb_window_t ventana, const Atomos &atomos, bool omitir)
{
    const xcb_window_t raiz = xcb_setup_roots_iterator(xcb_get_setup(conexion)).data->root;
    xcb_client_message_event_t mensaje{};
    mensaje.response_type = XCB_CLIENT_MESSAGE;
    mensaje.format = 32;
    mensaje.window = ventana;
    mensaje.type = atomos.estado;
    constexpr std::uint32_t deUnPrograma = 1;
    const std::array<std::uint32_t, 4> datos{omitir ? 1U : 0U, atomos.omitir[0], atomos.omitir[1],
                                             deUnPrograma};
    std::ranges::copy(datos, mensaje.data.data32);
    xcb_send_event(conexion, 0, raiz,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&mensaje));
}

} // namespace

void omitirEnBarraDeTareas(const QWindow &ventana, bool omitir, bool yaVisible)
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !ventana.handle()) return;
    xcb_connection_t *conexion = x11->connection();
    const auto numero = static_cast<xcb_window_t>(ventana.winId());
    (yaVisible ? pedirEstado : escribirEstado)(conexion, numero, atomosDe(conexion), omitir);
    xcb_flush(conexion);
}

} // namespace ovanta
