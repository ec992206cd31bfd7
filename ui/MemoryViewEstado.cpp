#include "ui/MemoryViewEstado.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/AspectoMemoria.h"
#include "ui/Ovanta.h"

#include <algorithm>
#include <cmath>

namespace ovanta {

namespace {

constexpr double ritmoVisible = 1.0;
constexpr double ritmoAlto = 50.0;

} // namespace

MemoryViewEstado::MemoryViewEstado(QObject *parent)
    : QObject(parent), m_app(Ovanta::app()), m_mem(m_app.mem())
{
    connect(&m_mem, &MemoryMonitor::lecturaChanged, this, &MemoryViewEstado::publicarLectura);
    connect(&m_mem, &MemoryMonitor::rankingChanged, this, &MemoryViewEstado::publicarRanking);
    publicarLectura();
    publicarRanking();
}

void MemoryViewEstado::publicarLectura()
{
    m_categorias.publicar(filasDeCategorias(m_mem));
    Q_EMIT lecturaChanged();
}

void MemoryViewEstado::publicarRanking()
{
    std::erase_if(m_seleccionadas,
                  [this](const auto &tique) { return !sigueSiendo(tique, m_mem.procesos()); });
    m_recomendaciones.reordenar(filasDeRecomendaciones(m_mem.recomendaciones()));
    publicarFilas();
    Q_EMIT lecturaChanged();
    Q_EMIT rankingChanged();
}

void MemoryViewEstado::publicarFilas()
{
    std::vector<FilaProceso> filas;
    for (const Proceso &proceso : m_mem.procesos())
        filas.push_back(filaDeProceso(proceso, m_mem.total(), m_seleccionadas.contains(proceso.id)));
    m_filas.reordenar(std::move(filas));
    Q_EMIT flujoChanged();
}

QString MemoryViewEstado::enUso() const
{
    return textoDeMemoria(m_mem.usada()) + QStringLiteral(" en uso de ") + textoDeMemoria(m_mem.total());
}

QString MemoryViewEstado::ultimaLectura() const
{
    return QStringLiteral("Última lectura: ") + Formato::delUsuario().hora(m_mem.ultima()) +
           QStringLiteral(" · se actualiza sola cada 10 s");
}

QString MemoryViewEstado::etiqueta() const
{
    return aspectoDe(m_mem.estado()).texto;
}

QString MemoryViewEstado::explicacion() const
{
    return explicacionDe(m_mem.estado(), m_mem.swapUsado());
}

QString MemoryViewEstado::simbolo() const
{
    return aspectoDe(m_mem.estado()).simbolo;
}

Tinte MemoryViewEstado::tinte() const
{
    return aspectoDe(m_mem.estado()).tinte;
}

QString MemoryViewEstado::porcentaje() const
{
    return QString::number(std::lround(presion() * 100)) + QStringLiteral(" %");
}

QString MemoryViewEstado::swap() const
{
    return textoDeMemoria(m_mem.swapUsado()) + QStringLiteral(" usados de ") +
           textoDeMemoria(m_mem.swapTotal());
}

QString MemoryViewEstado::actividadSwap() const
{
    const double ritmo = m_mem.swapSalidaPorSeg();
    if (ritmo < ritmoVisible) return QStringLiteral("Sin actividad de swap en este momento");
    return QStringLiteral("Escribiendo swap ahora: ") + QString::number(std::llround(ritmo)) +
           QStringLiteral(" páginas/s");
}

QString MemoryViewEstado::simboloActividad() const
{
    return m_mem.swapSalidaPorSeg() < ritmoVisible ? QStringLiteral("checkmark.circle")
                                                   : QStringLiteral("arrow.down.to.line");
}

Tinte MemoryViewEstado::tinteActividad() const
{
    return m_mem.swapSalidaPorSeg() > ritmoAlto ? Tinte::Naranja : Tinte::Secundario;
}

QString MemoryViewEstado::ayudaMemoria() const
{
    return QStringLiteral("Parte de los ") + textoDeMemoria(m_mem.total()) +
           QStringLiteral(" de RAM que ocupa esta app");
}

QString MemoryViewEstado::textoCerrar() const
{
    return QStringLiteral("Cerrar ") + Formato::delUsuario().entero(m_seleccionadas.size());
}

void MemoryViewEstado::medir()
{
    m_mem.medir();
}

void MemoryViewEstado::marcar(int pid, bool marcada)
{
    const auto &procesos = m_mem.procesos();
    const auto fila = std::ranges::find(procesos, pid, &Proceso::id);
    if (marcada && fila != procesos.end() && fila->sePuedeCerrar)
        m_seleccionadas[pid] = fila->inicio;
    else
        m_seleccionadas.erase(pid);
    publicarFilas();
}

void MemoryViewEstado::seguir(const QString &recomendacion)
{
    using Clase = Recomendacion::Accion::Clase;
    const auto &todas = m_mem.recomendaciones();
    const auto una = std::ranges::find(todas, bytesDe(recomendacion), &Recomendacion::id);
    if (una == todas.end()) return;
    switch (una->accion.clase) {
    case Clase::cerrar:
        m_seleccionadas.clear();
        marcar(una->accion.pid, true);
        return pedirCierre();
    case Clase::reiniciar:
        m_confirmandoReinicio = true;
        return flujoChanged();
    case Clase::simuladores:
        return m_app.navegacion().seleccionar(Seccion::simuladores);
    case Clase::ninguna:
        return;
    }
}

} // namespace ovanta
