#include "analysis/Scanner.h"

#include "core/Tamano.h"
#include "core/qt/HiloPrincipal.h"

#include <utility>

namespace ovanta {

namespace {

constexpr std::string_view claveMinimo = "minimoMB";
constexpr std::string_view claveDias = "diasDescargas";

/// Beyond these a stored number is no setting of anyone: a tebibyte, and a century of days.
constexpr double maximoMB = 1024.0 * 1024.0;
constexpr std::int64_t maximoDias = 36'525;

/// How long a stage that was told to stop may take before it is given up.
constexpr std::chrono::milliseconds plazoParaDetenerse{600};

bool esMinimo(double mebibytes)
{
    return mebibytes >= 0 && mebibytes <= maximoMB;
}

bool esNumero(const std::optional<Preferencias::Valor> &valor)
{
    return valor && (std::holds_alternative<double>(*valor) || std::holds_alternative<std::int64_t>(*valor));
}

bool sonDias(std::int64_t dias)
{
    return dias > 0 && dias <= maximoDias;
}

} // namespace

Scanner::Scanner(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma), m_raices(plataforma.lugares().raices)
{
    OVANTA_HILO_PRINCIPAL();
    leerPreferencias();
}

Scanner::~Scanner()
{
    if (m_cancelacion) m_cancelacion->cancelar();
}

void Scanner::leerPreferencias()
{
    Preferencias &preferencias = m_plataforma.preferencias();
    preferencias.registrar(claveMinimo, m_minimoMB);
    preferencias.registrar(claveDias, std::int64_t{m_diasDescargas});
    const double minimo = preferencias.real(claveMinimo); // what cannot be read reads as 0
    const std::int64_t dias = preferencias.entero(claveDias);
    if (esNumero(preferencias.leer(claveMinimo)) && esMinimo(minimo)) m_minimoMB = minimo;
    if (sonDias(dias)) m_diasDescargas = static_cast<int>(dias);
}

void Scanner::fijarMinimoMB(double mebibytes)
{
    OVANTA_HILO_PRINCIPAL();
    if (mebibytes == m_minimoMB || !esMinimo(mebibytes)) return;
    m_minimoMB = mebibytes;
    m_plataforma.preferencias().fijar(claveMinimo, mebibytes);
    Q_EMIT ajustesChanged();
}

void Scanner::fijarDiasDescargas(int dias)
{
    OVANTA_HILO_PRINCIPAL();
    if (dias == m_diasDescargas || !sonDias(dias)) return;
    m_diasDescargas = dias;
    m_plataforma.preferencias().fijar(claveDias, std::int64_t{dias});
    Q_EMIT ajustesChanged();
}

void Scanner::fijarRaices(std::vector<std::string> raices)
{
    OVANTA_HILO_PRINCIPAL();
    m_raices = std::move(raices);
}

void Scanner::detener()
{
    OVANTA_HILO_PRINCIPAL();
    if (!m_cancelacion || m_cancelacion->cancelada()) return;
    m_cancelacion->cancelar();
    fijarProgreso(QStringLiteral("Deteniendo…"));
    // Only a fresh stage can end by itself; the disk under an old one may never answer.
    m_plazo = m_plataforma.reloj().unaVez(plazoParaDetenerse, [this] {
        if (m_abandonar) m_abandonar();
    });
}

void Scanner::empezar()
{
    OVANTA_HILO_PRINCIPAL();
    m_cancelacion = std::make_shared<BanderaCancelacion>();
    m_archivosVistos = 0;
    m_trabajando = m_recorriendo = true;
    Q_EMIT trabajandoChanged();
    fijarProgreso(QStringLiteral("Recorriendo carpetas…"));
}

void Scanner::terminar()
{
    OVANTA_HILO_PRINCIPAL();
    m_plazo.reset();
    m_abandonar = {};
    m_cancelacion.reset();
    m_pendiente = {};
    m_trabajando = m_recorriendo = false;
    fijarProgreso({});
    Q_EMIT trabajandoChanged();
}

void Scanner::fijarProgreso(const QString &progreso)
{
    OVANTA_HILO_PRINCIPAL();
    m_progreso = progreso;
    Q_EMIT avanceChanged();
}

void Scanner::avanzar(const BanderaCancelacion *cancelacion, std::uint64_t vistas)
{
    // A last word of the walk may come when the next stage has begun.
    if (!m_recorriendo || m_cancelacion.get() != cancelacion || cancelacion->cancelada()) return;
    m_archivosVistos = vistas;
    fijarProgreso(QStringLiteral("Recorriendo carpetas… %1 archivos").arg(vistas));
}

void Scanner::publicarDuplicados(Clasificados clasificados)
{
    OVANTA_HILO_PRINCIPAL();
    m_duplicados = listaDe(std::exchange(clasificados.duplicados, {}));
    m_grandes = listaDe(std::exchange(clasificados.grandes, {}));
    m_pendiente = std::move(clasificados);
    m_desperdicioTotal = ovanta::desperdicioTotal(*m_duplicados);
    Q_EMIT duplicadosChanged();
}

void Scanner::publicarCarpetas(std::vector<CarpetaPesada> carpetas)
{
    OVANTA_HILO_PRINCIPAL();
    m_carpetas = listaDe(std::move(carpetas));
    m_bytesCarpetas = 0;
    for (const CarpetaPesada &carpeta : *m_carpetas)
        m_bytesCarpetas = sumar(m_bytesCarpetas, carpeta.bytes);
    m_descargasViejas = listaDe(std::exchange(m_pendiente.descargasViejas, {}));
    m_capturas = listaDe(std::exchange(m_pendiente.capturas, {}));
    m_instaladores = listaDe(std::exchange(m_pendiente.instaladores, {}));
    Q_EMIT hallazgosChanged();
}

} // namespace ovanta
