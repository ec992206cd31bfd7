#include "developer/SimulatorStore.h"

#include "core/Ejecutar.h"
#include "core/Rutas.h"
#include "core/Tamano.h"
#include "core/qt/Calendario.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/SegundoPlano.h"
#include "developer/ListaSimctl.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace ovanta {

namespace {

constexpr double limiteDeSimctl = 120.0; // seconds
constexpr double limiteDeDu = 300.0;     // seconds for all folders together
constexpr const char *claveDias = "diasNuevo";
constexpr std::int64_t diasPorDefecto = 7;

/// The newest first; an absent date is less than any other. Those of the same moment by name.
bool vaAntes(const Simulador &a, const Simulador &b)
{
    if (a.creado != b.creado) return a.creado > b.creado;
    return std::tie(a.nombre, a.id) < std::tie(b.nombre, b.id);
}

} // namespace

SimulatorStore::SimulatorStore(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma),
      m_raiz(unir(plataforma.lugares().hogar, "Library/Developer/CoreSimulator/Devices"))
{
    m_plataforma.preferencias().registrar(claveDias, diasPorDefecto);
    m_diasNuevo = static_cast<int>(std::clamp<std::int64_t>(m_plataforma.preferencias().entero(claveDias), 0,
                                                            std::numeric_limits<int>::max()));
}

QCoro::Task<> SimulatorStore::cargar()
{
    OVANTA_HILO_PRINCIPAL();
    if (m_cargando) co_return;
    const QPointer vivo{this};
    fijarEstado(true, std::nullopt);
    auto trabajo = [&plataforma = m_plataforma, raiz = m_raiz] { return listar(plataforma, raiz); };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(trabajo));
    Lista lista = co_await futuro;
    if (!vivo) co_return;
    if (!lista) {
        fijarEstado(false, std::move(lista.error()));
        co_return;
    }
    publicar(*std::move(lista));
    auto medicion = medirTamanos();
    co_await medicion;
    if (vivo) fijarEstado(false, std::nullopt);
}

QCoro::Task<> SimulatorStore::medirTamanos()
{
    OVANTA_HILO_PRINCIPAL();
    if (m_simuladores.empty()) co_return;
    const QPointer vivo{this};
    fijarMidiendo(true);
    auto trabajo = [&herramientas = m_plataforma.herramientas(), rutas = carpetas()] {
        return medirCarpetas(herramientas, rutas);
    };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(trabajo));
    const std::string salida = co_await futuro;
    if (!vivo) co_return;
    anotarTamanos(salida);
    fijarMidiendo(false);
}

SimulatorStore::Lista SimulatorStore::listar(Plataforma &plataforma, const std::string &raiz)
{
    try {
        const auto xcrun = plataforma.herramientas().buscarBinario("xcrun");
        if (!xcrun) throw ShellError::noEncontrado("xcrun (¿está instalado Xcode?)");
        const std::string salida = plataforma.herramientas().ejecutar(
            *xcrun, {"simctl", "list", "devices", "-j"}, limiteDeSimctl, false);
        std::vector<Simulador> simuladores = interpretarSimctl(salida);
        for (Simulador &simulador : simuladores)
            if (const auto carpeta = carpetaDeSimulador(raiz, simulador.id))
                simulador.creado = plataforma.archivos().creado(*carpeta);
        return simuladores;
    } catch (const std::exception &fallo) {
        return std::unexpected(fallo.what());
    }
}

std::string SimulatorStore::medirCarpetas(Herramientas &herramientas,
                                          const std::vector<std::string> &carpetas)
{
    if (carpetas.empty()) return {}; // without a path du would measure the current folder
    std::vector<std::string> args{"-sk"};
    args.insert(args.end(), carpetas.begin(), carpetas.end());
    try {
        return herramientas.ejecutar("/usr/bin/du", args, limiteDeDu, true);
    } catch (const std::exception &) {
        return {}; // simulators without a figure are shown as such
    }
}

void SimulatorStore::preseleccionarNuevos()
{
    std::set<std::string> ids;
    for (const Simulador &simulador : nuevos())
        ids.insert(simulador.id);
    fijarSeleccion(std::move(ids));
}

void SimulatorStore::fijarSeleccion(std::set<std::string> seleccion)
{
    OVANTA_HILO_PRINCIPAL();
    if (seleccion == m_seleccion) return;
    m_seleccion = std::move(seleccion);
    Q_EMIT seleccionChanged();
}

void SimulatorStore::fijarDiasNuevo(int dias)
{
    OVANTA_HILO_PRINCIPAL();
    m_plataforma.preferencias().fijar(claveDias, static_cast<std::int64_t>(dias));
    if (dias == m_diasNuevo) return;
    m_diasNuevo = dias;
    Q_EMIT simuladoresChanged();
}

std::optional<int> SimulatorStore::dias(const Simulador &simulador) const
{
    if (!simulador.creado) return std::nullopt;
    return diasEntre(*simulador.creado, m_plataforma.reloj().ahora());
}

bool SimulatorStore::esNuevo(const Simulador &simulador) const
{
    const auto edad = dias(simulador);
    return !simulador.arrancado() && edad && *edad <= m_diasNuevo;
}

std::vector<Simulador> SimulatorStore::nuevos() const
{
    std::vector<Simulador> hallados;
    std::ranges::copy_if(m_simuladores, std::back_inserter(hallados),
                         [this](const Simulador &uno) { return esNuevo(uno); });
    return hallados;
}

std::uint64_t SimulatorStore::sumaDeBytes(std::span<const Simulador> simuladores)
{
    std::uint64_t suma = 0;
    for (const Simulador &simulador : simuladores)
        suma = sumarConTope(suma, simulador.bytes.value_or(0));
    return suma;
}

std::uint64_t SimulatorStore::bytesSeleccionados() const
{
    std::uint64_t suma = 0;
    for (const Simulador &simulador : m_simuladores)
        if (m_seleccion.contains(simulador.id)) suma = sumarConTope(suma, simulador.bytes.value_or(0));
    return suma;
}

std::vector<std::string> SimulatorStore::carpetas() const
{
    std::vector<std::string> rutas;
    for (const Simulador &simulador : m_simuladores)
        if (auto carpeta = carpetaDeSimulador(m_raiz, simulador.id)) rutas.push_back(*std::move(carpeta));
    return rutas;
}

void SimulatorStore::publicar(std::vector<Simulador> simuladores)
{
    std::ranges::sort(simuladores, vaAntes);
    m_simuladores = std::move(simuladores);
    Q_EMIT simuladoresChanged();
    preseleccionarNuevos();
}

/// By id over the list as it stands now, which keeps its order.
void SimulatorStore::anotarTamanos(const std::string &salida)
{
    const auto tamanos = interpretarTamanos(salida);
    for (Simulador &simulador : m_simuladores) {
        const auto hallado = tamanos.find(simulador.id);
        simulador.bytes.reset();
        if (hallado != tamanos.end()) simulador.bytes = hallado->second;
    }
    Q_EMIT simuladoresChanged();
}

void SimulatorStore::fijarEstado(bool cargando, std::optional<std::string> error)
{
    m_cargando = cargando;
    m_error = std::move(error);
    Q_EMIT estadoChanged();
}

void SimulatorStore::fijarMidiendo(bool midiendo)
{
    m_midiendoTamanos = midiendo;
    Q_EMIT estadoChanged();
}

} // namespace ovanta
