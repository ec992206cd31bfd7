#include "core/Ejecutar.h"

#include "core/EntornoHerramienta.h"
#include "core/GrupoProcesos.h"
#include "core/HerramientasVivas.h"
#include "core/Rutas.h"
#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <poll.h>
#include <system_error>
#include <utility>

namespace ovanta {
namespace {

using Cronometro = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto graciaTrasSIGTERM = 3s;
constexpr auto graciaTrasSIGKILL = 2s;
constexpr auto esperaDeTuberias = 5s;

/// One output of the tool: what was read so far, and the pipe until its end.
struct Salida
{
    Descriptor tuberia;
    std::string texto;

    void leer()
    {
        std::array<char, 65536> trozo;
        const ssize_t leidos = ::read(tuberia.numero(), trozo.data(), trozo.size());
        if (leidos > 0) {
            texto.append(trozo.data(), static_cast<std::size_t>(leidos));
        } else if (leidos == 0 || errno != EINTR) {
            tuberia.cerrar();
        }
    }
};

/// A tool on its way: collects what it prints while the caller waits for one thing or another.
class Ejecucion
{
public:
    Ejecucion(const std::string &binario, const std::vector<std::string> &args)
        : Ejecucion(binario, args, Tuberia::crear(), Tuberia::crear())
    {
    }

    bool esperarFin(Cronometro::duration limite)
    {
        return esperar(limite, [this] { return !m_fin.abierto(); });
    }

    bool esperarTuberias(Cronometro::duration limite)
    {
        return esperar(limite, [this] { return !m_salida.tuberia.abierto() && !m_error.tuberia.abierto(); });
    }

    void senalar(int senal) const noexcept { m_grupo.senalar(senal); }

    /// Only once `esperarFin` gave true.
    int recoger() { return m_grupo.recoger(); }

    std::string tomarSalida() { return std::exchange(m_salida.texto, {}); }
    std::string tomarError() { return std::exchange(m_error.texto, {}); }

private:
    /// The writing ends close with the parameters: from then on only the tool holds them.
    Ejecucion(const std::string &binario, const std::vector<std::string> &args, Tuberia salida, Tuberia error)
        : m_salida{std::move(salida.lectura), {}}, m_error{std::move(error.lectura), {}},
          m_grupo({binario, args, entornoHerramienta(binario), salida.escritura.numero(),
                   error.escritura.numero()}),
          m_fin(m_grupo.abrirFin())
    {
    }

    /// Whether `listo` came true in time; the pipes are drained meanwhile.
    template <typename Listo>
    bool esperar(Cronometro::duration limite, Listo listo)
    {
        const auto hasta = Cronometro::now() + limite;
        while (!listo()) {
            const auto queda = std::max(hasta - Cronometro::now(), Cronometro::duration::zero());
            atender(queda);
            if (queda == Cronometro::duration::zero()) return listo();
        }
        return true;
    }

    void atender(Cronometro::duration comoMucho)
    {
        const auto ms = std::chrono::ceil<std::chrono::milliseconds>(comoMucho).count();
        // The notice is looked at last, so that a tool's end by `detenerHerramientas` never hides it.
        std::array<pollfd, 4> fuentes{{{m_salida.tuberia.numero(), POLLIN, 0},
                                       {m_error.tuberia.numero(), POLLIN, 0},
                                       {m_fin.numero(), POLLIN, 0},
                                       {HerramientasVivas::delPrograma().aviso(), POLLIN, 0}}};
        if (::poll(fuentes.data(), fuentes.size(), static_cast<int>(std::min<long long>(ms, INT_MAX))) < 0) {
            if (errno == EINTR) return;
            throw std::system_error(errno, std::system_category());
        }
        const auto [salida, error, fin, aviso] = fuentes;
        if (aviso.revents != 0) lanzarCancelado();
        if (salida.revents != 0) m_salida.leer();
        if (error.revents != 0) m_error.leer();
        if (fin.revents != 0) m_fin.cerrar();
    }

    Salida m_salida;
    Salida m_error;
    GrupoProcesos m_grupo;
    Descriptor m_fin; ///< closed once the tool ended
};

/// A number of seconds that a clock can bear: no time at all for what is none, thirty years at most.
double segundosSensatos(double timeout)
{
    return timeout > 0 ? std::min(timeout, 1e9) : 0;
}

Cronometro::duration duracion(double segundos)
{
    return std::chrono::duration_cast<Cronometro::duration>(std::chrono::duration<double>(segundos));
}

std::string comoTexto(std::string bytes)
{
    return esUtf8(bytes) ? std::move(bytes) : std::string();
}

/// The polite and the forced stop. Whoever of the group is left when the pipes have had their time
/// goes too: until then the children of a tool that ended politely can finish what they were at.
void detenerPorTiempo(Ejecucion &ejecucion)
{
    ejecucion.senalar(SIGTERM);
    bool terminada = ejecucion.esperarFin(graciaTrasSIGTERM);
    if (!terminada) {
        ejecucion.senalar(SIGKILL);
        terminada = ejecucion.esperarFin(graciaTrasSIGKILL);
    }
    ejecucion.esperarTuberias(esperaDeTuberias);
    ejecucion.senalar(SIGKILL);
    if (terminada) ejecucion.recoger();
}

} // namespace

std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                     bool tolerarFallo)
{
    if (!esEjecutable(binario)) throw ShellError::noEncontrado(binario);
    const double segundos = segundosSensatos(timeout);
    Ejecucion ejecucion(binario, args);
    if (!ejecucion.esperarFin(duracion(segundos))) {
        detenerPorTiempo(ejecucion);
        throw ShellError::agotado(std::string(ultimoComponente(binario)), segundos);
    }
    ejecucion.esperarTuberias(esperaDeTuberias);
    const int codigo = ejecucion.recoger();

    std::string salida = comoTexto(ejecucion.tomarSalida());
    if (codigo == 0 || (tolerarFallo && !salida.empty())) return salida;
    const std::string error = comoTexto(ejecucion.tomarError());
    throw ShellError::fallo(codigo, error.empty() ? salida : error);
}

void detenerHerramientas()
{
    HerramientasVivas::delPrograma().detener();
}

} // namespace ovanta
