#include "core/Cleaner.h"

#include "core/CarpetaDatos.h"
#include "core/Desinstalacion.h"
#include "core/Enlaces.h"
#include "core/Tamano.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/SegundoPlano.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>
#include <map>
#include <utility>

namespace ovanta {

/// What one batch has done so far. Its worker may outlive the store by one item.
struct Cleaner::Lote
{
    explicit Lote(const std::string &carpeta) : registro(carpeta) {}

    ResultadoLimpieza resultado;
    std::vector<Movimiento> movimientos;
    RegistroPrevio registro;

    void anotar(std::expected<Movimiento, std::string> traslado)
    {
        if (!traslado) {
            resultado.errores.push_back(std::move(traslado.error()));
            return;
        }
        ++resultado.movidos;
        resultado.bytes = sumarConTope(resultado.bytes, traslado->bytes);
        movimientos.push_back(std::move(*traslado));
    }
};

std::shared_ptr<Cleaner::Lote> Cleaner::empezar()
{
    OVANTA_HILO_PRINCIPAL();
    fijarTrabajando(true);
    return std::make_shared<Lote>(carpetaDatos(m_plataforma.lugares().hogar));
}

QCoro::Task<ResultadoLimpieza> Cleaner::limpiar(std::vector<Regla> reglas)
{
    const QPointer vivo{this};
    const auto lote = empezar();
    for (const Regla &regla : reglas) {
        fijarProgreso("Procesando " + regla.name + "…");
        auto mirar = [seguridad = m_puerta.seguridad, regla] {
            return ovanta::previsualizar(*seguridad, regla);
        };
        auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(mirar));
        const Previsualizacion vista = co_await futuro;
        if (vista.error) lote->resultado.errores.push_back(regla.name + ": " + *vista.error);
        if (!vivo) co_return lote->resultado;
        auto pedir = [puerta = m_puerta, regla](const auto &ruta) {
            return pedidoDeRegla(puerta, regla, ruta);
        };
        co_await mover(lote, vista.rutas, std::move(pedir));
        if (!vivo) co_return lote->resultado;
    }
    co_await terminar(lote);
    co_return lote->resultado;
}

QCoro::Task<ResultadoLimpieza> Cleaner::limpiarRutas(std::vector<std::string> rutas, std::string etiqueta,
                                                     UltimaMirada mirada)
{
    const QPointer vivo{this};
    const auto lote = empezar();
    auto pedir = [puerta = m_puerta, etiqueta, mirada](const auto &ruta) {
        return pedidoDeRuta(puerta, ruta, etiqueta, mirada);
    };
    co_await mover(lote, std::move(rutas), std::move(pedir));
    if (vivo) co_await terminar(lote);
    co_return lote->resultado;
}

QCoro::Task<ResultadoLimpieza> Cleaner::limpiarRutasSeleccionadas(std::vector<std::string> rutas,
                                                                  std::string dentroDe, std::string etiqueta)
{
    const QPointer vivo{this};
    const auto lote = empezar();
    std::ranges::sort(rutas);
    rutas.erase(std::ranges::unique(rutas).begin(), rutas.end());
    // Taken once, before the first validation: later the folder may have been swapped.
    auto resolver = [dentroDe] { return resolverEnlaces(dentroDe).value_or(dentroDe); };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(resolver));
    const Seleccion seleccion{dentroDe, co_await futuro};
    if (!vivo) co_return lote->resultado;
    auto pedir = [puerta = m_puerta, seleccion, etiqueta](const auto &ruta) {
        return pedidoDeSeleccion(puerta, ruta, seleccion, etiqueta);
    };
    co_await mover(lote, std::move(rutas), std::move(pedir));
    if (vivo) co_await terminar(lote);
    co_return lote->resultado;
}

QCoro::Task<ResultadoLimpieza> Cleaner::desinstalarAplicacion(std::string ruta, std::string bundleID,
                                                              std::vector<std::string> restos)
{
    OVANTA_HILO_PRINCIPAL();
    const auto enEjecucion = [this](const std::string &id) {
        return m_plataforma.aplicaciones().enEjecucion(id);
    };
    auto plan = planDeDesinstalacion(*m_puerta.seguridad, enEjecucion, ruta, bundleID, restos);
    if (!plan) co_return ResultadoLimpieza{0, 0, {plan.error()}};
    auto lote = limpiarRutasInternas(std::move(*plan), "desinstalación");
    co_return co_await lote;
}

QCoro::Task<ResultadoLimpieza> Cleaner::desactivarAgenteInicio(std::string ruta)
{
    OVANTA_HILO_PRINCIPAL();
    std::vector<std::string> agente;
    try {
        agente.push_back(m_puerta.seguridad->validarAgenteInicio(ruta));
    } catch (const std::exception &) {
        agente.clear();
    }
    if (agente.empty()) co_return ResultadoLimpieza{0, 0, {"Este elemento de inicio está protegido."}};
    auto lote = limpiarRutasInternas(std::move(agente), "inicio de sesión");
    co_return co_await lote;
}

QCoro::Task<ResultadoLimpieza> Cleaner::limpiarRutasInternas(std::vector<std::string> rutas,
                                                             std::string etiqueta)
{
    const QPointer vivo{this};
    const auto lote = empezar();
    // Measured now, not in their turn: nobody validates them again.
    std::map<std::string, Pedido> pedidos;
    for (const auto &ruta : rutas)
        pedidos.emplace(ruta, pedidoValidado(m_puerta, ruta, etiqueta));
    auto pedir = [pedidos = std::move(pedidos)](const auto &ruta) { return pedidos.at(ruta); };
    co_await mover(lote, std::move(rutas), std::move(pedir));
    if (vivo) co_await terminar(lote);
    co_return lote->resultado;
}

QCoro::Task<> Cleaner::mover(std::shared_ptr<Lote> lote, std::vector<std::string> rutas, Pedir pedir)
{
    const QPointer vivo{this};
    const MediosDeTraslado medios{m_plataforma.papelera(), m_plataforma.herramientas(), m_plataforma.reloj()};
    for (const std::string &ruta : rutas) {
        Pedido pedido = pedir(ruta);
        if (!pedido.progreso.empty()) fijarProgreso(pedido.progreso);
        auto trabajo = [medios, lote, pedido = std::move(pedido)] {
            return trasladar(medios, lote->registro, pedido);
        };
        auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(trabajo));
        lote->anotar(co_await futuro);
        if (!vivo) co_return;
    }
}

QCoro::Task<> Cleaner::terminar(std::shared_ptr<Lote> lote)
{
    const QPointer vivo{this};
    m_registros.push_back(lote->registro.archivo());
    anteponerAlHistorial(std::move(lote->movimientos));
    co_await guardarHistorial();
    if (!vivo) co_return;
    fijarTrabajando(false);
    fijarProgreso({});
}

} // namespace ovanta
