#include "monitors/MemoryMonitor.h"

#include "core/Tamano.h"
#include "core/qt/Calendario.h"
#include "core/qt/EntregaUnica.h"
#include "core/qt/Formato.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/Texto.h"

#include <utility>

namespace ovanta {

namespace {

constexpr std::chrono::seconds periodoMemoria{10};
constexpr std::chrono::seconds toleranciaMemoria{2};

/// Diacritics count, case does not; composed and decomposed forms of a letter are the same.
bool contieneTexto(std::string_view nombre, std::string_view palabra)
{
    const QString donde = mostrar(nombre).normalized(QString::NormalizationForm_C);
    return donde.contains(mostrar(palabra), Qt::CaseInsensitive);
}

} // namespace

MemoryMonitor::MemoryMonitor(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma), m_ultima(plataforma.reloj().ahora())
{
    OVANTA_HILO_PRINCIPAL();
    medir();
    m_temporizador = m_plataforma.reloj().cada(periodoMemoria, toleranciaMemoria, [this] { medir(); });
}

MemoryMonitor::~MemoryMonitor()
{
    m_temporizador.reset();
    m_lecturaEnCurso.waitForFinished();
}

std::uint64_t MemoryMonitor::usada() const
{
    return sumarConTope(sumarConTope(m_lectura.apps, m_lectura.wired), m_lectura.comprimida);
}

QDateTime MemoryMonitor::ultimaQt() const
{
    return enQt(m_ultima);
}

QString MemoryMonitor::estadoQt() const
{
    return mostrar(textoEstado(estado()));
}

void MemoryMonitor::medir()
{
    OVANTA_HILO_PRINCIPAL();
    const std::uint64_t total = m_plataforma.memoriaSistema().fisica();
    if (std::exchange(m_total, total) != total) Q_EMIT lecturaChanged();
    if (m_leyendo) return;
    m_leyendo = true;
    recargar();
}

void MemoryMonitor::recargar()
{
    // The memory and the processes in one go, delivered in one go: all this happens at rest too.
    auto mirar = [&plataforma = m_plataforma] { return Vistos::de(plataforma); };
    auto publicar = [this](const Vistos &vistos) {
        publicarLectura(vistos.lectura, m_plataforma.reloj().ahora());
        publicarProcesos(vistos);
        publicarRecomendaciones(m_plataforma.reloj().ahora());
        m_leyendo = false;
    };
    m_lecturaEnCurso = entregarUnaVez(Prioridad::Utilidad, std::move(mirar), this, std::move(publicar));
}

MemoryMonitor::Vistos MemoryMonitor::Vistos::de(Plataforma &plataforma)
{
    AplicacionesEnMarcha &aplicaciones = plataforma.aplicacionesEnMarcha();
    Vistos vistos;
    vistos.lectura = plataforma.memoriaSistema().leer();
    vistos.muestras = plataforma.procesos().muestrear();
    vistos.fecha = plataforma.reloj().ahora();
    vistos.nucleos = plataforma.procesos().nucleos();
    vistos.apps = aplicaciones.listar();
    vistos.identificadorPropio = aplicaciones.identificadorPropio();
    return vistos;
}

void MemoryMonitor::publicarLectura(const MemoriaSistema::Lectura &lectura, Fecha ahora)
{
    m_lectura = lectura;
    m_nivelKernel = estadoDelNivel(lectura.nivel);
    const LecturaSwap swap{lectura.swapouts, ahora};
    if (m_anterior) m_swapSalidaPorSeg = ritmoSwap(*m_anterior, swap).value_or(m_swapSalidaPorSeg);
    m_anterior = swap;
    if (lectura.arranque) m_diasEncendido = diasEntre(*lectura.arranque, ahora);
    Q_EMIT lecturaChanged();
}

void MemoryMonitor::publicarProcesos(const Vistos &vistos)
{
    TiemposCPU tiempos = tiemposCPU(vistos.muestras, vistos.fecha);
    const FigurasCPU figuras = figurasCPU(m_cpuAnterior, tiempos, vistos.nucleos);
    m_cpuAnterior = std::move(tiempos);
    m_procesos = rankingProcesos(vistos.muestras, figuras, vistos.apps, vistos.identificadorPropio);
    m_publicadas = publicadasHasta(m_publicadas, vistos.muestras, m_procesos);
}

void MemoryMonitor::publicarRecomendaciones(Fecha ahora)
{
    const DatosRecomendaciones datos{m_total, swapUsado(), estado(), m_diasEncendido, m_procesos};
    m_recomendaciones = calcularRecomendaciones(datos, contieneTexto, Formato::delUsuario().numeros());
    m_ultima = ahora;
    Q_EMIT rankingChanged();
}

} // namespace ovanta
