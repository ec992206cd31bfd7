#include "monitors/SystemStatsMonitor.h"

#include "core/qt/HiloPrincipal.h"

#include <QPointer>
#include <QVariantMap>
#include <algorithm>

namespace ovanta {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds periodoConFiguras = 2s;
constexpr std::chrono::milliseconds periodoSinFiguras = 5s;
/// The battery is the dear one to ask.
constexpr unsigned muestrasPorBateria = 15;

constexpr std::string_view claveCPU = "barraCPU";
constexpr std::string_view claveRAM = "barraRAM";
constexpr std::string_view claveRed = "barraRed";
constexpr std::string_view claveGrafica = "barraGrafica";
constexpr std::string_view claveAvisoBateria = "avisoBateria";

QList<double> enLista(const std::vector<double> &historial)
{
    return {historial.begin(), historial.end()};
}

QVariant siHay(const std::optional<int> &numero)
{
    return numero ? QVariant(*numero) : QVariant::fromValue(nullptr);
}

} // namespace

SystemStatsMonitor::SystemStatsMonitor(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma)
{
    OVANTA_HILO_PRINCIPAL();
    leerPreferencias();
    muestrear();
    reprogramar();
}

void SystemStatsMonitor::leerPreferencias()
{
    Preferencias &preferencias = m_plataforma.preferencias();
    preferencias.registrar(claveCPU, m_barraCPU);
    preferencias.registrar(claveRAM, m_barraRAM);
    preferencias.registrar(claveRed, m_barraRed);
    preferencias.registrar(claveGrafica, m_barraGrafica);
    preferencias.registrar(claveAvisoBateria, std::int64_t{m_avisoBateria});
    m_barraCPU = preferencias.booleano(claveCPU);
    m_barraRAM = preferencias.booleano(claveRAM);
    m_barraRed = preferencias.booleano(claveRed);
    m_barraGrafica = preferencias.booleano(claveGrafica);
    m_avisoBateria =
        static_cast<int>(std::clamp<std::int64_t>(preferencias.entero(claveAvisoBateria), 0, 100));
}

void SystemStatsMonitor::guardar()
{
    Preferencias &preferencias = m_plataforma.preferencias();
    preferencias.fijar(claveCPU, m_barraCPU);
    preferencias.fijar(claveRAM, m_barraRAM);
    preferencias.fijar(claveRed, m_barraRed);
    preferencias.fijar(claveGrafica, m_barraGrafica);
}

void SystemStatsMonitor::reprogramar()
{
    const std::chrono::milliseconds periodo = algoEnBarra() ? periodoConFiguras : periodoSinFiguras;
    m_temporizador.reset();
    m_temporizador = m_plataforma.reloj().cada(periodo, periodo / 5, [this] { muestrear(); });
}

void SystemStatsMonitor::muestrear()
{
    muestrearProcesador();
    muestrearMemoria();
    muestrearRed();
    m_termico = m_plataforma.termico().estado();
    if (m_contador % muestrasPorBateria == 0) leerBateria();
    ++m_contador;
    Q_EMIT muestraChanged();
}

void SystemStatsMonitor::muestrearProcesador()
{
    const std::optional<Contadores::Ticks> ticks = m_plataforma.contadores().procesador();
    if (!ticks) return;
    const TicksUso ahora = ticksUso(*ticks);
    if (m_ticksAnteriores) {
        if (const std::optional<double> carga = cargaEntre(*m_ticksAnteriores, ahora)) {
            m_cpu = *carga;
            empujar(m_historialCPU, m_cpu);
        }
    }
    m_ticksAnteriores = ahora;
}

void SystemStatsMonitor::muestrearMemoria()
{
    m_ram = fraccionRAM(m_plataforma.contadores().memoria());
    empujar(m_historialRAM, m_ram);
}

void SystemStatsMonitor::muestrearRed()
{
    const Fecha fecha = m_plataforma.reloj().ahora();
    const MuestraRed ahora{m_plataforma.contadores().red(), fecha};
    if (m_redAnterior) {
        m_red = velocidadEntre(*m_redAnterior, ahora);
        empujar(m_historialRed, m_red.bajada + m_red.subida);
    }
    m_redAnterior = ahora;
}

void SystemStatsMonitor::leerBateria()
{
    const QPointer vivo{this};
    m_plataforma.bateria().leer([vivo](const std::optional<EstadoBateria> &bateria) {
        if (!vivo) return;
        const bool cambia = bateria != vivo->m_bateria;
        vivo->m_bateria = bateria;
        vivo->revisarAvisoBateria();
        if (cambia) Q_EMIT vivo->bateriaChanged();
    });
}

void SystemStatsMonitor::revisarAvisoBateria()
{
    Notificaciones &notificaciones = m_plataforma.notificaciones();
    if (!m_aviso.corresponde(m_bateria, m_avisoBateria, notificaciones.disponible())) return;
    notificaciones.enviar({"bateria-baja", tituloAvisoBateria(*m_bateria), cuerpoAvisoBateria(*m_bateria),
                           Notificaciones::Sonido::normal});
}

void SystemStatsMonitor::cambiarFigura(bool &figura, bool mostrar)
{
    OVANTA_HILO_PRINCIPAL();
    if (figura == mostrar) return;
    figura = mostrar;
    guardar();
    reprogramar();
    Q_EMIT ajustesChanged();
}

void SystemStatsMonitor::fijarBarraCPU(bool mostrar)
{
    cambiarFigura(m_barraCPU, mostrar);
}

void SystemStatsMonitor::fijarBarraRAM(bool mostrar)
{
    cambiarFigura(m_barraRAM, mostrar);
}

void SystemStatsMonitor::fijarBarraRed(bool mostrar)
{
    cambiarFigura(m_barraRed, mostrar);
}

void SystemStatsMonitor::fijarBarraGrafica(bool mostrar)
{
    OVANTA_HILO_PRINCIPAL();
    if (m_barraGrafica == mostrar) return;
    m_barraGrafica = mostrar;
    guardar();
    Q_EMIT ajustesChanged();
}

void SystemStatsMonitor::fijarAvisoBateria(int porcentaje)
{
    OVANTA_HILO_PRINCIPAL();
    if (m_avisoBateria == porcentaje) return;
    m_avisoBateria = porcentaje;
    m_plataforma.preferencias().fijar(claveAvisoBateria, std::int64_t{porcentaje});
    Q_EMIT ajustesChanged();
}

QList<double> SystemStatsMonitor::historialCPUQt() const
{
    return enLista(m_historialCPU);
}

QList<double> SystemStatsMonitor::historialRAMQt() const
{
    return enLista(m_historialRAM);
}

QList<double> SystemStatsMonitor::historialRedQt() const
{
    return enLista(m_historialRed);
}

QVariant SystemStatsMonitor::bateriaQt() const
{
    if (!m_bateria) return QVariant::fromValue(nullptr);
    return QVariantMap{
        {QStringLiteral("porcentaje"), m_bateria->porcentaje},
        {QStringLiteral("cargando"), m_bateria->cargando},
        {QStringLiteral("enCorriente"), m_bateria->enCorriente},
        {QStringLiteral("minutosRestantes"), siHay(m_bateria->minutosRestantes)},
        {QStringLiteral("ciclos"), siHay(m_bateria->ciclos)},
        {QStringLiteral("salud"), siHay(m_bateria->salud)},
    };
}

} // namespace ovanta
