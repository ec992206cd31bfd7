// A small X11 program that the tests close and force. Usage: ventana MODE CLASS [MIB]
//   cierra      ends when its window is closed, with exit code 7
//   pregunta    opens a dialogue instead and stays; says "preguntado"
//   sordo       hears neither its window nor SIGTERM; says "sordo" each time
//   ayudantes   as "cierra", with two helpers that outlive it
//   fondo       draws the desktop's background
//   mudo        has no window
// MIB is how much memory it takes besides.
#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

constexpr int cerradaPorSuVentana = 7;
constexpr unsigned vidaMaxima = 300; // seconds: it must not outlive tests that crashed

void decir(const char *texto)
{
    std::puts(texto);
    std::fflush(stdout);
}

xcb_atom_t atomo(xcb_connection_t *conexion, std::string_view nombre)
{
    const auto pedido =
        xcb_intern_atom(conexion, 0, static_cast<std::uint16_t>(nombre.size()), nombre.data());
    auto *respuesta = xcb_intern_atom_reply(conexion, pedido, nullptr);
    const xcb_atom_t valor = respuesta ? respuesta->atom : XCB_ATOM_NONE;
    std::free(respuesta);
    return valor;
}

void ponerTexto(xcb_connection_t *conexion, xcb_window_t ventana, xcb_atom_t cual, const std::string &texto)
{
    xcb_change_property(conexion, XCB_PROP_MODE_REPLACE, ventana, cual, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(texto.size()), texto.data());
}

void ponerNumero(xcb_connection_t *conexion, xcb_window_t ventana, xcb_atom_t cual, xcb_atom_t tipo,
                 std::uint32_t numero)
{
    xcb_change_property(conexion, XCB_PROP_MODE_REPLACE, ventana, cual, tipo, 32, 1, &numero);
}

xcb_window_t crear(xcb_connection_t *conexion, const std::string &clase)
{
    const xcb_screen_t *pantalla = xcb_setup_roots_iterator(xcb_get_setup(conexion)).data;
    const xcb_window_t ventana = xcb_generate_id(conexion);
    xcb_create_window(conexion, XCB_COPY_FROM_PARENT, ventana, pantalla->root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, pantalla->root_visual, 0, nullptr);
    std::array<char, 256> equipo{};
    ::gethostname(equipo.data(), equipo.size() - 1);
    ponerTexto(conexion, ventana, XCB_ATOM_WM_NAME, clase);
    ponerTexto(conexion, ventana, XCB_ATOM_WM_CLASS, clase + '\0' + clase + '\0');
    ponerTexto(conexion, ventana, XCB_ATOM_WM_CLIENT_MACHINE, equipo.data());
    ponerNumero(conexion, ventana, atomo(conexion, "WM_PROTOCOLS"), XCB_ATOM_ATOM,
                atomo(conexion, "WM_DELETE_WINDOW"));
    return ventana;
}

/// A dialogue names no process of its own, only the window that it stands before.
void preguntar(xcb_connection_t *conexion, xcb_window_t principal, const std::string &clase)
{
    const xcb_window_t dialogo = crear(conexion, clase);
    ponerNumero(conexion, dialogo, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, principal);
    xcb_map_window(conexion, dialogo);
    xcb_flush(conexion);
    decir("preguntado");
}

void dejarAyudantes()
{
    for (int i = 0; i < 2; ++i) {
        if (::fork() != 0) continue;
        ::prctl(PR_SET_PDEATHSIG, 0);
        ::alarm(vidaMaxima);
        ::pause();
        ::_exit(0);
    }
}

/// Every page is written, or the system would not count it.
std::vector<char> tomarMemoria(std::string_view mib)
{
    std::size_t cuanta = 0;
    std::from_chars(mib.data(), mib.data() + mib.size(), cuanta);
    return std::vector<char>(cuanta << 20U, 1);
}

int atender(xcb_connection_t *conexion, xcb_window_t ventana, std::string_view modo, const std::string &clase)
{
    while (auto *suceso = xcb_wait_for_event(conexion)) {
        const bool mensaje = (suceso->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
        std::free(suceso);
        if (!mensaje) continue;
        if (modo == "pregunta")
            preguntar(conexion, ventana, clase);
        else if (modo == "sordo")
            decir("sordo");
        else
            return cerradaPorSuVentana;
    }
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) return 2;
    const std::string_view modo = argv[1];
    const std::string clase = argv[2];
    const std::vector<char> memoria = tomarMemoria(argc > 3 ? argv[3] : "0");
    ::alarm(vidaMaxima);
    if (modo == "sordo") std::signal(SIGTERM, SIG_IGN);
    if (modo == "ayudantes") dejarAyudantes();
    if (modo == "mudo") {
        decir("listo");
        ::pause();
        return 0;
    }
    xcb_connection_t *conexion = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(conexion) != 0) return 3;
    const xcb_window_t ventana = crear(conexion, clase);
    ponerNumero(conexion, ventana, atomo(conexion, "_NET_WM_PID"), XCB_ATOM_CARDINAL,
                static_cast<std::uint32_t>(::getpid()));
    if (modo == "fondo")
        ponerNumero(conexion, ventana, atomo(conexion, "_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM,
                    atomo(conexion, "_NET_WM_WINDOW_TYPE_DESKTOP"));
    xcb_map_window(conexion, ventana);
    xcb_flush(conexion);
    decir("listo");
    const int codigo = atender(conexion, ventana, modo, clase);
    xcb_disconnect(conexion);
    return codigo;
}
