#include "core/qt/SegundoPlano.h"
#include "core/qt/Texto.h"
#include "ui/MemoryViewEstado.h"

#include <QCoroFuture>
#include <QPointer>
#include <ranges>
#include <utility>

namespace ovanta {

namespace {

template <typename Nombres>
QString unidos(const Nombres &nombres)
{
    QStringList lista;
    for (const std::string &nombre : nombres)
        lista << mostrar(nombre);
    return lista.join(QStringLiteral(", "));
}

template <typename Mapa>
std::set<std::int32_t> pidsDe(const Mapa &mapa)
{
    std::set<std::int32_t> pids;
    for (const auto &[pid, valor] : mapa)
        pids.insert(pid);
    return pids;
}

} // namespace

QString textoDeCierre(const ResultadoCierre &resultado)
{
    QStringList partes;
    if (!resultado.cerradas.empty())
        partes << QStringLiteral("Cerradas: ") + unidos(resultado.cerradas) + QStringLiteral(".");
    if (!resultado.sinCerrar.empty())
        partes << QStringLiteral("Siguen abiertas: ") + unidos(std::views::values(resultado.sinCerrar)) +
                      QStringLiteral(". Puede que estén esperando a que guardes algo, o que se hayan "
                                     "escondido en la barra de menú en vez de salir.");
    if (partes.isEmpty()) return QStringLiteral("Las apps seleccionadas ya no estaban abiertas.");
    return partes.join(QLatin1Char(' '));
}

QString textoDeForzar(const std::vector<std::string> &terminadas)
{
    if (terminadas.empty()) return QStringLiteral("No se pudo forzar la salida.");
    return QStringLiteral("Forzada la salida de ") + unidos(terminadas) + QStringLiteral(".");
}

QString MemoryViewEstado::textoForzar() const
{
    if (m_sinCerrar.empty()) return {};
    return QStringLiteral("Forzar salida de ") + unidos(std::views::values(m_sinCerrar));
}

void MemoryViewEstado::pedirCierre()
{
    m_confirmandoCierre = haySeleccion() && !m_cerrando;
    Q_EMIT flujoChanged();
}

void MemoryViewEstado::pedirForzar()
{
    m_confirmandoForzar = !m_sinCerrar.empty() && !m_cerrando;
    Q_EMIT flujoChanged();
}

// A sheet that closes because its question was answered says so too: that is no news.
void MemoryViewEstado::cancelarCierre()
{
    if (std::exchange(m_confirmandoCierre, false)) Q_EMIT flujoChanged();
}

void MemoryViewEstado::cancelarForzar()
{
    if (std::exchange(m_confirmandoForzar, false)) Q_EMIT flujoChanged();
}

void MemoryViewEstado::cancelarReinicio()
{
    if (std::exchange(m_confirmandoReinicio, false)) Q_EMIT flujoChanged();
}

void MemoryViewEstado::confirmarCierre()
{
    if (!std::exchange(m_confirmandoCierre, false)) return;
    cerrar();
}

void MemoryViewEstado::confirmarForzar()
{
    if (!std::exchange(m_confirmandoForzar, false)) return;
    forzar();
}

void MemoryViewEstado::confirmarReinicio()
{
    if (!std::exchange(m_confirmandoReinicio, false)) return;
    Q_EMIT flujoChanged();
    m_mem.pedirReinicio();
}

QCoro::Task<> MemoryViewEstado::cerrar()
{
    const QPointer vivo{this};
    m_cerrando = true;
    Q_EMIT flujoChanged();
    auto cierre = m_mem.cerrarAplicaciones(pidsDe(m_seleccionadas));
    const ResultadoCierre resultado = co_await cierre;
    if (vivo) publicarCierre(resultado);
}

void MemoryViewEstado::publicarCierre(const ResultadoCierre &resultado)
{
    m_cerrando = false;
    m_seleccionadas.clear();
    m_sinCerrar = resultado.sinCerrar;
    m_resultadoCierre = textoDeCierre(resultado);
    publicarFilas();
}

QCoro::Task<> MemoryViewEstado::forzar()
{
    const QPointer vivo{this};
    m_cerrando = true;
    Q_EMIT flujoChanged();
    auto salida = m_mem.forzarSalida(pidsDe(m_sinCerrar));
    const std::vector<std::string> terminadas = co_await salida;
    if (!vivo) co_return;
    m_cerrando = false;
    m_sinCerrar.clear();
    m_resultadoCierre = textoDeForzar(terminadas);
    Q_EMIT flujoChanged();
}

void MemoryViewEstado::abrirMonitorDeActividad()
{
    abrirMonitor();
}

QCoro::Task<> MemoryViewEstado::abrirMonitor()
{
    const QPointer vivo{this};
    auto abrir = [&aplicaciones = m_app.plataforma().aplicacionesEnMarcha()] {
        return aplicaciones.abrirMonitorDeActividad();
    };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(abrir));
    const bool abierto = co_await futuro;
    if (!vivo) co_return;
    m_errorMonitor = abierto ? QString() : QStringLiteral("No se pudo abrir el Monitor de Actividad.");
    Q_EMIT flujoChanged();
}

} // namespace ovanta
