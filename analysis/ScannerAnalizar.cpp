#include "analysis/Scanner.h"

#include "analysis/BuscarCarpetas.h"
#include "analysis/Duplicados.h"
#include "analysis/Recorrer.h"
#include "core/Rutas.h"
#include "core/qt/HiloPrincipal.h"
#include "platform/SeguridadDePlataforma.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QPointer>

namespace ovanta {

namespace {

constexpr double bytesPorMebibyte = 1024.0 * 1024.0;

std::vector<std::string> bajo(const std::string &hogar, const std::vector<std::string> &relativas)
{
    std::vector<std::string> rutas;
    for (const std::string &relativa : relativas)
        rutas.push_back(unir(hogar, relativa));
    return rutas;
}

/// The walk of an analysis as the settings stand now. Nothing of it changes with them later.
Recorrido recorridoDe(const Scanner &scanner, Plataforma &plataforma)
{
    const auto seguridad = std::make_shared<const Seguridad>(crearSeguridad(plataforma));
    auto proteccionesUsuario = seguridad->proteccionesUsuario();
    const std::vector<std::string> &papeleras = plataforma.lugares().papeleras;
    const ConjuntoRutas tirado(papeleras.begin(), papeleras.end());
    Recorrido recorrido;
    recorrido.raices = bajo(plataforma.lugares().hogar, scanner.raices());
    recorrido.minimo = static_cast<std::uint64_t>(scanner.minimoMB() * bytesPorMebibyte);
    recorrido.ignorados = NombresIgnorados::deAnalisis();
    recorrido.estaProtegida = [seguridad, proteccionesUsuario, tirado](const std::string &ruta) {
        return yaceEnAlguna(ruta, tirado) ||
               seguridad->esRutaProtegidaParaAnalisis(ruta, proteccionesUsuario);
    };
    return recorrido;
}

} // namespace

/// Starts a stage that a stop gives up where it hangs.
template <typename F>
auto Scanner::etapa(F trabajo)
{
    auto tarea = abandonable(std::move(trabajo));
    m_abandonar = tarea.abandonar;
    return tarea.futuro;
}

std::function<void(std::uint64_t)> Scanner::alAvanzar()
{
    return [vivo = QPointer{this}, cancelacion = m_cancelacion](std::uint64_t vistas) {
        auto aviso = [vivo, cancelacion, vistas] {
            if (vivo) vivo->avanzar(cancelacion.get(), vistas);
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(aviso), Qt::QueuedConnection);
    };
}

QCoro::Task<> Scanner::analizar()
{
    OVANTA_HILO_PRINCIPAL();
    if (m_trabajando) co_return;
    const QPointer vivo{this};
    empezar();
    const auto cancelacion = m_cancelacion;
    AccesoArchivos &acceso = m_plataforma.accesoArchivos();
    const Lugares &lugares = m_plataforma.lugares();
    const CriterioDescargas criterio{bajo(lugares.hogar, lugares.descargas), m_plataforma.reloj().ahora(),
                                     m_diasDescargas};

    auto recorrerlo = [recorrido = recorridoDe(*this, m_plataforma), &acceso, cancelacion,
                       aviso = alAvanzar()] {
        return std::make_shared<const ListaArchivos>(recorrer(recorrido, acceso, cancelacion.get(), aviso));
    };
    auto recorrida = etapa(std::move(recorrerlo));
    const auto archivos = co_await recorrida;
    if (!vivo) co_return;
    m_recorriendo = false;
    if (cancelacion->cancelada() || !archivos) co_return terminar();

    m_archivosVistos = (*archivos)->size();
    fijarProgreso(QStringLiteral("Buscando duplicados en %1 archivos…").arg(m_archivosVistos));
    auto buscar = [lista = *archivos, &acceso, cancelacion] {
        return std::make_shared<std::vector<GrupoDuplicados>>(
            buscarDuplicados(*lista, acceso, cancelacion.get()));
    };
    auto buscados = etapa(std::move(buscar));
    const auto grupos = co_await buscados;
    if (!vivo) co_return;
    if (cancelacion->cancelada() || !grupos) co_return terminar();

    auto clasificarlo = [lista = *archivos, grupos = *grupos, criterio] {
        return std::make_shared<Clasificados>(clasificar(*lista, std::move(*grupos), criterio));
    };
    auto clasificada = etapa(std::move(clasificarlo));
    const auto clasificados = co_await clasificada;
    if (!vivo) co_return;
    if (!clasificados) co_return terminar();
    publicarDuplicados(std::move(**clasificados));

    fijarProgreso(QStringLiteral("Buscando carpetas de dependencias…"));
    auto pesadas = [&herramientas = m_plataforma.herramientas(), lugares, cancelacion] {
        return std::make_shared<std::vector<CarpetaPesada>>(
            buscarCarpetas(herramientas, lugares, cancelacion.get()));
    };
    auto buscadas = etapa(std::move(pesadas));
    const auto carpetas = co_await buscadas;
    if (!vivo) co_return;
    if (!cancelacion->cancelada() && carpetas) publicarCarpetas(std::move(**carpetas));
    terminar();
}

} // namespace ovanta
