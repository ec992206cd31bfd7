#include "ui/SpaceViewEstado.h"

#include "core/Rutas.h"
#include "core/qt/Formato.h"
#include "core/qt/SegundoPlano.h"
#include "core/qt/Texto.h"
#include "platform/SeguridadDePlataforma.h"
#include "ui/AsegurarReglas.h"
#include "ui/Ovanta.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>

namespace ovanta {

SpaceViewEstado::SpaceViewEstado(QObject *parent) : QObject(parent), m_app(Ovanta::app())
{
    connect(&m_app.reglas(), &RuleStore::reglasChanged, this, &SpaceViewEstado::actualizar);
    connect(&m_app.reglas(), &RuleStore::errorChanged, this, &SpaceViewEstado::estadoChanged);
    connect(&m_app.reglas(), &RuleStore::midiendoChanged, this, &SpaceViewEstado::estadoChanged);
    connect(&m_app.limpiador(), &Cleaner::trabajandoChanged, this, &SpaceViewEstado::estadoChanged);
    connect(&m_app.limpiador(), &Cleaner::progresoChanged, this, &SpaceViewEstado::estadoChanged);
    actualizar();
}

void SpaceViewEstado::actualizar()
{
    m_filas.publicar(filasDeReglas(m_app.reglas().porCategoria(), m_seleccion, m_soloConTamano));
    Q_EMIT estadoChanged();
}

QString SpaceViewEstado::error() const
{
    return mostrar(m_app.reglas().error().value_or(std::string{}));
}

QString SpaceViewEstado::seguros() const
{
    return Formato::delUsuario().bytes(m_app.reglas().bytesRecuperables()) + QStringLiteral(" seguros");
}

QString SpaceViewEstado::encontrados() const
{
    const auto cuantos = std::ranges::count_if(m_app.reglas().reglas(), &Regla::existe);
    return Formato::delUsuario().entero(static_cast<std::uint64_t>(cuantos)) +
           QStringLiteral(" objetivos encontrados");
}

void SpaceViewEstado::fijarSoloConTamano(bool soloConTamano)
{
    if (m_soloConTamano == soloConTamano) return;
    m_soloConTamano = soloConTamano;
    actualizar();
}

std::vector<Regla> SpaceViewEstado::elegidas() const
{
    return reglasElegidas(m_app.reglas().reglas(), m_seleccion);
}

std::optional<Regla> SpaceViewEstado::reglaDe(const QString &clave) const
{
    const auto &reglas = m_app.reglas().reglas();
    const auto hallada = std::ranges::find(reglas, ovanta::bytesDe(clave), &Regla::id);
    return hallada == reglas.end() ? std::nullopt : std::optional(*hallada);
}

QString SpaceViewEstado::textoSeleccion() const
{
    const std::size_t cuantas = elegidas().size();
    return Formato::delUsuario().entero(cuantas) +
           (cuantas == 1 ? QStringLiteral(" seleccionado") : QStringLiteral(" seleccionados"));
}

QString SpaceViewEstado::tamanoSeleccion() const
{
    return Formato::delUsuario().bytes(ovanta::bytesDe(elegidas()));
}

QString SpaceViewEstado::tituloConfirmacion() const
{
    return QStringLiteral("Mover %1 objetivos · %2")
        .arg(Formato::delUsuario().entero(elegidas().size()), tamanoSeleccion());
}

void SpaceViewEstado::alMostrar()
{
    asegurarReglas(m_app.reglas());
}

void SpaceViewEstado::volverAMedir()
{
    m_app.reglas().medir();
}

void SpaceViewEstado::fijarSeleccion(SeleccionReglas seleccion)
{
    m_seleccion = std::move(seleccion);
    actualizar();
}

void SpaceViewEstado::marcar(const QString &clave, bool marcada)
{
    const auto regla = reglaDe(clave);
    SeleccionReglas seleccion = m_seleccion;
    if (marcada && regla && marcable(*regla))
        seleccion.insert(regla->id);
    else if (regla)
        seleccion.erase(regla->id);
    fijarSeleccion(std::move(seleccion));
}

void SpaceViewEstado::marcarSeguros()
{
    fijarSeleccion(reglasSeguras(m_app.reglas().reglas()));
}

void SpaceViewEstado::desmarcarTodo()
{
    fijarSeleccion({});
}

void SpaceViewEstado::fijarPresentacion(const QString &presentacion)
{
    if (m_presentacion == presentacion) return;
    m_presentacion = presentacion;
    Q_EMIT presentacionChanged();
}

void SpaceViewEstado::verDetalle(const QString &clave)
{
    const auto regla = reglaDe(clave);
    if (!regla) return;
    m_detalle = detalleDe(*regla);
    fijarPresentacion(QStringLiteral("detalle-") + clave);
}

void SpaceViewEstado::mostrarEnGestor(const QString &clave)
{
    const auto regla = reglaDe(clave);
    if (!regla) return;
    Plataforma &plataforma = m_app.plataforma();
    plataforma.gestorArchivos().mostrar(expandirTilde(regla->path, plataforma.lugares().hogar));
}

void SpaceViewEstado::cerrarPresentacion()
{
    fijarPresentacion({});
}

void SpaceViewEstado::prepararSimulacion()
{
    simularElegidas();
}

QCoro::Task<> SpaceViewEstado::simularElegidas()
{
    const QPointer vivo{this};
    const std::vector<Regla> reglas = elegidas();
    auto mirar = [seguridad = crearSeguridad(m_app.plataforma()), reglas] {
        return simular(seguridad, reglas);
    };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(mirar));
    const std::vector<ObjetivoSimulado> objetivos = co_await futuro;
    if (!vivo) co_return;
    m_simulados.publicar(filasSimuladas(objetivos));
    m_totalSimulado = ovanta::totalSimulado(objetivos, ovanta::bytesDe(reglas));
    fijarPresentacion(QStringLiteral("simulacion"));
}

void SpaceViewEstado::fijarConfirmando(bool confirmando)
{
    if (m_confirmando == confirmando) return;
    m_confirmando = confirmando;
    Q_EMIT presentacionChanged();
}

void SpaceViewEstado::pedirConfirmacion()
{
    fijarConfirmando(puedeMover());
}

void SpaceViewEstado::cancelar()
{
    fijarConfirmando(false);
}

void SpaceViewEstado::confirmar()
{
    if (!m_confirmando) return;
    fijarConfirmando(false);
    moverElegidas();
}

QCoro::Task<> SpaceViewEstado::moverElegidas()
{
    const QPointer vivo{this};
    OvantaApp &app = m_app;
    auto limpieza = app.limpiador().limpiar(elegidas());
    const ResultadoLimpieza resultado = co_await limpieza;
    if (vivo) publicarResultado(resultado);
    app.disco().medir();
    app.reglas().medir();
}

void SpaceViewEstado::publicarResultado(const ResultadoLimpieza &resultado)
{
    m_resumen = resumenDe(resultado);
    m_conFallos = !resultado.errores.empty();
    desmarcarTodo();
}

void SpaceViewEstado::verPapelera()
{
    m_app.plataforma().gestorArchivos().abrirPapelera();
}

QString resumenDe(const ResultadoLimpieza &resultado)
{
    const Formato &formato = Formato::delUsuario();
    const QString movidos =
        QStringLiteral("Movidos ") + formato.entero(static_cast<std::uint64_t>(resultado.movidos));
    if (resultado.errores.empty())
        return movidos + QStringLiteral(" elementos · ") + formato.bytes(resultado.bytes) +
               QStringLiteral(" a la Papelera");
    constexpr std::size_t primeros = 3;
    QStringList lineas;
    for (std::size_t i = 0; i < std::min(primeros, resultado.errores.size()); ++i)
        lineas << mostrar(resultado.errores[i]);
    return movidos + QStringLiteral(". ") + formato.entero(resultado.errores.size()) +
           QStringLiteral(" fallos: ") + lineas.join(QLatin1Char('\n'));
}

} // namespace ovanta
