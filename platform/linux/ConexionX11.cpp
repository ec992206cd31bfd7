#include "platform/linux/ConexionX11.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <string_view>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

namespace ovanta {

namespace {

constexpr std::chrono::milliseconds espera{1500};
constexpr std::uint32_t largoPropiedad = 1024; ///< in words of four bytes
constexpr std::uint32_t largoLista = 4096;
constexpr std::uint32_t origenUsuario = 2; ///< "source indication" of a pager

using Plazo = std::chrono::steady_clock::time_point;

struct Liberar
{
    void operator()(void *puntero) const { std::free(puntero); }
};

template <typename T>
using Respuesta = std::unique_ptr<T, Liberar>;

/// The answer to a request, waited for until `plazo`; null on an error too. `agotada` is set when
/// the time is up, and nothing is waited for after that.
template <typename T>
Respuesta<T> esperar(xcb_connection_t *conexion, unsigned int pedido, Plazo plazo, bool &agotada)
{
    void *respuesta = nullptr;
    xcb_generic_error_t *error = nullptr;
    while (!agotada && xcb_poll_for_reply(conexion, pedido, &respuesta, &error) == 0) {
        const auto resto =
            std::chrono::duration_cast<std::chrono::milliseconds>(plazo - std::chrono::steady_clock::now());
        pollfd lectura{xcb_get_file_descriptor(conexion), POLLIN, 0};
        agotada = resto.count() <= 0 || ::poll(&lectura, 1, static_cast<int>(resto.count())) == 0;
    }
    std::free(error);
    return Respuesta<T>{static_cast<T *>(respuesta)};
}

std::string esteEquipo()
{
    std::array<char, 256> nombre{};
    return ::gethostname(nombre.data(), nombre.size() - 1) == 0 ? nombre.data() : std::string{};
}

bool esDeAqui(std::string_view equipo, std::string_view aqui)
{
    return equipo.empty() || equipo == aqui || equipo == "localhost" ||
           equipo.substr(0, equipo.find('.')) == aqui.substr(0, aqui.find('.'));
}

/// The atoms that are asked for by name, as `nombresAtomos` has them.
enum Atomo { lista, deProceso, equipo, cerrar, tipo, tipoFondo, tipoPanel };

constexpr std::array<std::string_view, ConexionX11::cuantosAtomos> nombresAtomos = {
    "_NET_CLIENT_LIST",         "_NET_WM_PID",         "WM_CLIENT_MACHINE",
    "_NET_CLOSE_WINDOW",        "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DOCK",
};

/// Asks for properties of windows and waits for the answers later, so that many cost one journey.
class Propiedades
{
public:
    Propiedades(xcb_connection_t *conexion, Plazo plazo, bool &agotada)
        : m_conexion(conexion), m_plazo(plazo), m_agotada(agotada)
    {
    }

    unsigned int pedir(xcb_window_t ventana, xcb_atom_t atomo, std::uint32_t largo = largoPropiedad)
    {
        return xcb_get_property(m_conexion, 0, ventana, atomo, XCB_GET_PROPERTY_TYPE_ANY, 0, largo).sequence;
    }

    std::string texto(unsigned int pedido)
    {
        const auto respuesta = esperar<xcb_get_property_reply_t>(m_conexion, pedido, m_plazo, m_agotada);
        if (!respuesta || respuesta->format != 8) return {};
        return {static_cast<const char *>(xcb_get_property_value(respuesta.get())),
                static_cast<std::size_t>(xcb_get_property_value_length(respuesta.get()))};
    }

    std::vector<std::uint32_t> numeros(unsigned int pedido)
    {
        const auto respuesta = esperar<xcb_get_property_reply_t>(m_conexion, pedido, m_plazo, m_agotada);
        if (!respuesta || respuesta->format != 32) return {};
        std::vector<std::uint32_t> valores(
            static_cast<std::size_t>(xcb_get_property_value_length(respuesta.get())) / 4);
        if (!valores.empty())
            std::memcpy(valores.data(), xcb_get_property_value(respuesta.get()), valores.size() * 4);
        return valores;
    }

private:
    xcb_connection_t *m_conexion;
    Plazo m_plazo;
    bool &m_agotada;
};

/// The questions about one window that are under way.
struct Preguntas
{
    xcb_window_t ventana;
    unsigned int pid, equipo, clase, tipo, principal;
};

std::uint32_t primero(const std::vector<std::uint32_t> &numeros)
{
    return numeros.empty() ? 0 : numeros.front();
}

struct VentanaLeida
{
    VentanaVista vista;
    std::string equipo;
    xcb_window_t principal; ///< the window that a dialogue stands before
};

VentanaLeida leerVentana(Propiedades &propiedades, const Preguntas &pregunta,
                         const ConexionX11::Atomos &atomo)
{
    VentanaVista vista;
    vista.id = pregunta.ventana;
    vista.pid = static_cast<std::int32_t>(primero(propiedades.numeros(pregunta.pid)));
    std::string donde = propiedades.texto(pregunta.equipo);
    const std::string clase = propiedades.texto(pregunta.clase);
    const std::size_t corte = std::min(clase.find('\0'), clase.size());
    vista.instancia = clase.substr(0, corte);
    if (corte < clase.size()) vista.clase = clase.substr(corte + 1, clase.find('\0', corte + 1) - corte - 1);
    vista.delEscritorio = std::ranges::any_of(propiedades.numeros(pregunta.tipo), [&](std::uint32_t cual) {
        return cual == atomo[tipoFondo] || cual == atomo[tipoPanel];
    });
    return {std::move(vista), std::move(donde), primero(propiedades.numeros(pregunta.principal))};
}

/// A dialogue that names no process is of the window that it stands before. What is still nobody's goes.
std::vector<VentanaVista> conDuenos(std::vector<VentanaLeida> leidas)
{
    std::vector<VentanaVista> vistas;
    for (VentanaLeida &leida : leidas) {
        const auto madre = std::ranges::find(leidas, leida.principal,
                                             [](const VentanaLeida &otra) { return otra.vista.id; });
        if (leida.vista.pid <= 0 && madre != leidas.end()) leida.vista.pid = madre->vista.pid;
    }
    for (VentanaLeida &leida : leidas)
        if (leida.vista.pid > 0) vistas.push_back(std::move(leida.vista));
    return vistas;
}

} // namespace

ConexionX11::ConexionX11(const std::string &pantalla) : m_conexion(xcb_connect(pantalla.c_str(), nullptr))
{
    if (rota()) return;
    m_raiz = xcb_setup_roots_iterator(xcb_get_setup(m_conexion)).data->root;
    std::array<unsigned int, cuantosAtomos> pedidos{};
    for (std::size_t i = 0; i < pedidos.size(); ++i)
        pedidos[i] = xcb_intern_atom(m_conexion, 0, static_cast<std::uint16_t>(nombresAtomos[i].size()),
                                     nombresAtomos[i].data())
                         .sequence;
    xcb_flush(m_conexion);
    const Plazo plazo = std::chrono::steady_clock::now() + espera;
    for (std::size_t i = 0; i < pedidos.size(); ++i)
        if (const auto respuesta = esperar<xcb_intern_atom_reply_t>(m_conexion, pedidos[i], plazo, m_agotada))
            m_atomos[i] = respuesta->atom;
}

ConexionX11::~ConexionX11()
{
    xcb_disconnect(m_conexion);
}

bool ConexionX11::rota() const
{
    return m_agotada || xcb_connection_has_error(m_conexion) != 0;
}

std::vector<VentanaVista> ConexionX11::ventanas()
{
    if (rota()) return {};
    // Nobody asked for events, yet the server sends some to everybody; kept, they would pile up.
    while (auto *suceso = xcb_poll_for_event(m_conexion))
        std::free(suceso);
    Propiedades propiedades{m_conexion, std::chrono::steady_clock::now() + espera, m_agotada};
    const unsigned int pedida = propiedades.pedir(m_raiz, m_atomos[lista], largoLista);
    xcb_flush(m_conexion);
    std::vector<Preguntas> preguntas;
    for (const xcb_window_t ventana : propiedades.numeros(pedida))
        preguntas.push_back({ventana, propiedades.pedir(ventana, m_atomos[deProceso]),
                             propiedades.pedir(ventana, m_atomos[equipo]),
                             propiedades.pedir(ventana, XCB_ATOM_WM_CLASS),
                             propiedades.pedir(ventana, m_atomos[tipo]),
                             propiedades.pedir(ventana, XCB_ATOM_WM_TRANSIENT_FOR)});
    xcb_flush(m_conexion);
    const std::string aqui = esteEquipo();
    std::vector<VentanaLeida> leidas;
    for (const Preguntas &pregunta : preguntas)
        if (auto leida = leerVentana(propiedades, pregunta, m_atomos); esDeAqui(leida.equipo, aqui))
            leidas.push_back(std::move(leida));
    if (rota()) return {};
    return conDuenos(std::move(leidas));
}

void ConexionX11::pedirCierre(const std::vector<std::uint32_t> &ventanas)
{
    if (rota()) return;
    for (const std::uint32_t ventana : ventanas) {
        xcb_client_message_event_t mensaje{};
        mensaje.response_type = XCB_CLIENT_MESSAGE;
        mensaje.format = 32;
        mensaje.window = ventana;
        mensaje.type = m_atomos[cerrar];
        mensaje.data.data32[0] = XCB_CURRENT_TIME;
        mensaje.data.data32[1] = origenUsuario;
        xcb_send_event(m_conexion, 0, m_raiz,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&mensaje));
    }
    xcb_flush(m_conexion);
}

} // namespace ovanta
