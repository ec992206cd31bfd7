#include "ui/PrefsViewEstado.h"

#include "app/MostrarEnDock.h"
#include "core/qt/SegundoPlano.h"
#include "core/qt/Texto.h"
#include "ui/Ovanta.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>
#include <array>

namespace ovanta {

namespace {

constexpr std::array<int, 6> porcentajes{0, 5, 10, 15, 20, 30};

QString textoPorcentaje(int porcentaje)
{
    return porcentaje <= 0 ? QStringLiteral("Nunca") : QStringLiteral("Al %1 %").arg(porcentaje);
}

QString redondo(double valor)
{
    return QString::asprintf("%.0f", valor);
}

struct EstadoInicio
{
    bool activado = false;
    std::string error;
};

/// Tells the system what is wanted, if anything, and asks it how things stand then. Blocking.
EstadoInicio consultarInicio(InicioAutomatico &inicio, std::optional<bool> pedido)
{
    EstadoInicio estado;
    if (pedido)
        if (const auto hecho = inicio.fijar(*pedido); !hecho) estado.error = hecho.error();
    estado.activado = inicio.activado();
    return estado;
}

} // namespace

PrefsViewEstado::PrefsViewEstado(QObject *parent)
    : QObject(parent), m_app(Ovanta::app()), m_enDock(mostrarEnDock(m_app.plataforma().preferencias()))
{
    connect(&m_app.disco(), &DiskMonitor::ajustesChanged, this, &PrefsViewEstado::discoChanged);
    connect(&m_app.disco(), &DiskMonitor::permisoNotificacionesChanged, this,
            &PrefsViewEstado::permisoChanged);
    connect(&m_app.stats(), &SystemStatsMonitor::ajustesChanged, this, &PrefsViewEstado::barraChanged);
    connect(&m_app.scanner(), &Scanner::ajustesChanged, this, &PrefsViewEstado::analisisChanged);
    atenderInicio();
}

PrefsViewEstado::~PrefsViewEstado()
{
    if (!m_inicioPedido) return;
    InicioAutomatico &inicio = m_app.plataforma().inicioAutomatico();
    enSegundoPlano(Prioridad::Usuario,
                   [&inicio, pedido = *m_inicioPedido] { consultarInicio(inicio, pedido); });
}

QString PrefsViewEstado::textoAviso() const
{
    return QStringLiteral("Aviso: %1 GB").arg(redondo(umbralAviso()));
}

QString PrefsViewEstado::textoCritico() const
{
    return QStringLiteral("Crítico: %1 GB").arg(redondo(umbralCritico()));
}

QString PrefsViewEstado::simboloPermiso() const
{
    return permiso() == QLatin1String("concedido") ? QStringLiteral("checkmark.circle.fill")
                                                   : QStringLiteral("info.circle");
}

Tinte PrefsViewEstado::tintePermiso() const
{
    return permiso() == QLatin1String("concedido") ? Tinte::Verde : Tinte::Secundario;
}

QStringList PrefsViewEstado::opcionesBateria() const
{
    QStringList textos;
    for (const int porcentaje : porcentajes)
        textos << textoPorcentaje(porcentaje);
    return textos;
}

int PrefsViewEstado::opcionBateria() const
{
    const auto *hallado = std::ranges::find(porcentajes, std::max(0, m_app.stats().avisoBateria()));
    return hallado == porcentajes.end() ? -1 : static_cast<int>(hallado - porcentajes.begin());
}

QString PrefsViewEstado::textoBateria() const
{
    return textoPorcentaje(m_app.stats().avisoBateria());
}

void PrefsViewEstado::elegirBateria(int opcion)
{
    if (opcion < 0 || opcion >= static_cast<int>(porcentajes.size())) return;
    m_app.stats().fijarAvisoBateria(porcentajes[static_cast<std::size_t>(opcion)]);
}

QString PrefsViewEstado::textoMinimo() const
{
    return QStringLiteral("Ignorar archivos de menos de %1 MB").arg(redondo(minimoMB()));
}

QString PrefsViewEstado::textoDias() const
{
    return QStringLiteral("«Descarga vieja» a partir de %1 días").arg(m_app.scanner().diasDescargas());
}

void PrefsViewEstado::fijarEnDock(bool si)
{
    if (si == m_enDock) return;
    m_enDock = si;
    fijarMostrarEnDock(m_app.plataforma(), si);
    Q_EMIT enDockChanged();
}

void PrefsViewEstado::fijarAlInicio(bool si)
{
    if (si == m_alInicio) return;
    m_alInicio = si;
    m_inicioPedido = si;
    Q_EMIT inicioChanged();
    atenderInicio();
}

QCoro::Task<> PrefsViewEstado::atenderInicio()
{
    // One at a time: of wishes that come while the system is busy only the last one counts.
    if (m_atendiendo) co_return;
    m_atendiendo = true;
    const QPointer vivo{this};
    do {
        InicioAutomatico &inicio = m_app.plataforma().inicioAutomatico();
        auto trabajo = [&inicio, pedido = std::exchange(m_inicioPedido, std::nullopt)] {
            return consultarInicio(inicio, pedido);
        };
        auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(trabajo));
        const EstadoInicio estado = co_await futuro;
        if (!vivo) co_return;
        if (!m_inicioPedido) m_alInicio = estado.activado;
        m_errorInicio = mostrar(estado.error);
        Q_EMIT inicioChanged();
    } while (m_inicioPedido);
    m_atendiendo = false;
}

} // namespace ovanta
