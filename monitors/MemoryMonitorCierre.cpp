#include "core/qt/HiloPrincipal.h"
#include "core/qt/SegundoPlano.h"
#include "monitors/MemoryMonitor.h"

#include <QCoroFuture>
#include <QPointer>
#include <QPromise>
#include <algorithm>
#include <utility>

namespace ovanta {

namespace {

using namespace std::chrono_literals;

constexpr int vueltasAlCerrar = 16;
constexpr std::chrono::milliseconds pausaAlCerrar = 500ms;
constexpr int vueltasAlForzar = 10;
constexpr std::chrono::milliseconds pausaAlForzar = 300ms;
/// An application's helpers may leave by themselves.
constexpr std::chrono::milliseconds pausaDeRestos = 1s;

} // namespace

QCoro::Task<> MemoryMonitor::pausar(std::chrono::milliseconds cuanto)
{
    auto promesa = std::make_shared<QPromise<void>>();
    promesa->start();
    auto futuro = promesa->future();
    const auto temporizador = m_plataforma.reloj().unaVez(cuanto, [promesa] { promesa->finish(); });
    co_await futuro;
}

QFuture<bool> MemoryMonitor::todasTerminadas(Apps apps) const
{
    auto mirar = [&aplicaciones = m_plataforma.aplicacionesEnMarcha(), apps = std::move(apps)] {
        return std::ranges::all_of(
            apps, [&](const AplicacionEnMarcha &app) { return aplicaciones.terminada(app); });
    };
    return enSegundoPlano(Prioridad::Usuario, std::move(mirar));
}

QFuture<std::vector<std::string>> MemoryMonitor::nombresTerminados(Apps apps) const
{
    auto mirar = [&aplicaciones = m_plataforma.aplicacionesEnMarcha(), apps = std::move(apps)] {
        std::vector<std::string> nombres;
        for (const AplicacionEnMarcha &app : apps)
            if (aplicaciones.terminada(app)) nombres.push_back(nombreAlForzar(app));
        return nombres;
    };
    return enSegundoPlano(Prioridad::Usuario, std::move(mirar));
}

/// Gives the order to each application that was meant and may be ended, and tells which those are.
QCoro::Task<MemoryMonitor::Apps> MemoryMonitor::ordenar(IdentidadesProcesos pedidas, Orden orden)
{
    auto mandar = [&aplicaciones = m_plataforma.aplicacionesEnMarcha(), pedidas = std::move(pedidas), orden] {
        Apps apps = appsCerrables(aplicaciones.listar(), pedidas, aplicaciones.identificadorPropio());
        for (const AplicacionEnMarcha &app : apps)
            (aplicaciones.*orden)(app);
        return apps;
    };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(mandar));
    Apps apps = co_await futuro;
    co_return apps;
}

QCoro::Task<> MemoryMonitor::esperarFin(Apps apps, int vueltas, std::chrono::milliseconds pausa)
{
    const QPointer vivo{this};
    for (int vuelta = 0; vuelta < vueltas; ++vuelta) {
        auto terminadas = todasTerminadas(apps);
        const bool todas = co_await terminadas;
        if (todas || !vivo) co_return;
        auto espera = pausar(pausa);
        co_await espera;
        if (!vivo) co_return;
    }
}

QCoro::Task<> MemoryMonitor::terminarRestos(AplicacionEnMarcha app)
{
    const QPointer vivo{this};
    const std::optional<std::string> ruta = rutaDeRestos(app);
    if (!ruta) co_return;
    auto espera = pausar(pausaDeRestos);
    co_await espera;
    if (!vivo) co_return;
    auto terminar = [&aplicaciones = m_plataforma.aplicacionesEnMarcha(), ruta = *ruta] {
        aplicaciones.pedirFin(aplicaciones.procesosDe(ruta));
    };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(terminar));
    co_await futuro;
}

QCoro::Task<ResultadoCierre> MemoryMonitor::cerrarAplicaciones(std::set<std::int32_t> pids)
{
    OVANTA_HILO_PRINCIPAL();
    const QPointer vivo{this};
    auto ordenes = ordenar(identidadesDe(pids, m_publicadas), &AplicacionesEnMarcha::cerrar);
    const Apps apps = co_await ordenes;
    if (!vivo) co_return {};
    auto fin = esperarFin(apps, vueltasAlCerrar, pausaAlCerrar);
    co_await fin;
    ResultadoCierre resultado;
    IdentidadesProcesos abiertas;
    for (const AplicacionEnMarcha &app : apps) {
        if (!vivo) co_return resultado;
        auto terminada = todasTerminadas({app});
        const bool cerrada = co_await terminada;
        if (!cerrada) {
            resultado.sinCerrar[app.pid] = nombreAlCerrar(app);
            abiertas[app.pid] = app.inicio;
            continue;
        }
        resultado.cerradas.push_back(nombreAlCerrar(app));
        if (!vivo) co_return resultado;
        auto restos = terminarRestos(app);
        co_await restos;
    }
    if (!vivo) co_return resultado;
    m_sinCerrar = std::move(abiertas);
    medir();
    co_return resultado;
}

QCoro::Task<std::vector<std::string>> MemoryMonitor::forzarSalida(std::set<std::int32_t> pids)
{
    OVANTA_HILO_PRINCIPAL();
    const QPointer vivo{this};
    IdentidadesProcesos conocidas = m_sinCerrar;
    conocidas.insert(m_publicadas.begin(), m_publicadas.end());
    auto ordenes = ordenar(identidadesDe(pids, conocidas), &AplicacionesEnMarcha::forzar);
    const Apps apps = co_await ordenes;
    if (!vivo) co_return {};
    auto fin = esperarFin(apps, vueltasAlForzar, pausaAlForzar);
    co_await fin;
    for (const AplicacionEnMarcha &app : apps) {
        if (!vivo) co_return {};
        auto terminada = todasTerminadas({app});
        const bool cerrada = co_await terminada;
        if (!cerrada || !vivo) continue;
        auto restos = terminarRestos(app);
        co_await restos;
    }
    if (!vivo) co_return {};
    medir();
    auto quienes = nombresTerminados(apps);
    const std::vector<std::string> nombres = co_await quienes;
    co_return nombres;
}

QCoro::Task<> MemoryMonitor::pedirReinicio()
{
    OVANTA_HILO_PRINCIPAL();
    auto pedir = [&reinicio = m_plataforma.reinicio()] { reinicio.pedir(); };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(pedir));
    co_await futuro;
}

} // namespace ovanta
