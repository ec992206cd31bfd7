#include "ui/PanelQml.h"

#include "platform/Apariencia.h"
#include "ui/PosicionPanel.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPainterPath>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>

namespace ovanta {

namespace {

/// Between the panel and the bar, where no shadow keeps them apart.
constexpr int separacion = 6;

QList<PantallaDelPanel> pantallas()
{
    QList<PantallaDelPanel> todas;
    for (const QScreen *pantalla : QGuiApplication::screens())
        todas.append({pantalla->geometry(), pantalla->availableGeometry()});
    return todas;
}

QRegion redondeada(QSize tamano, qreal radio)
{
    QPainterPath forma;
    forma.addRoundedRect(QRectF({0, 0}, tamano), radio, radio);
    return {forma.toFillPolygon().toPolygon()};
}

} // namespace

PanelQml::PanelQml(const Apariencia &apariencia) : m_apariencia(apariencia) {}

PanelQml::~PanelQml() = default;

void PanelQml::abrir(QQmlEngine &motor, const QRect &icono)
{
    if (m_ventana) return;
    QQmlComponent componente(&motor, QUrl(QStringLiteral("qrc:/qt/qml/Ovanta/VentanaPanel.qml")));
    if (!componente.isReady()) {
        qCritical("%s", qPrintable(componente.errorString()));
        return;
    }
    m_icono = icono;
    m_puntero = QCursor::pos();
    m_tuvoFoco = false;
    m_ventana.reset(qobject_cast<QQuickWindow *>(componente.createWithInitialProperties(
        {{QStringLiteral("transparente"), m_apariencia.transparencia()}})));
    m_ventana->installEventFilter(this);
    connect(m_ventana.get(), &QWindow::activeChanged, this, &PanelQml::seguirFoco);
    // A change of the scene's own property, which has no signal that the compiler knows.
    connect(m_ventana.get(), SIGNAL(altoDeseadoChanged()), this, SLOT(acomodar()));
    acomodar();
    m_ventana->show();
    m_ventana->requestActivate();
}

void PanelQml::acomodar()
{
    if (!m_ventana) return;
    const bool transparente = m_ventana->property("transparente").toBool();
    const int hueco = transparente ? 0 : separacion;
    const PantallaDelPanel pantalla = pantallaDelPanel(m_icono, m_puntero, pantallas());
    const QSize tamano(
        m_ventana->property("anchoDeseado").toInt(),
        std::min(m_ventana->property("altoDeseado").toInt(), pantalla.disponible.height() - 2 * hueco));
    m_ventana->setGeometry({posicionPanel(tamano, m_icono, m_puntero, pantalla, hueco), tamano});
    if (!transparente) m_ventana->setMask(redondeada(tamano, m_ventana->property("radio").toReal()));
}

void PanelQml::seguirFoco()
{
    if (!m_ventana) return;
    if (m_ventana->isActive())
        m_tuvoFoco = true;
    else if (m_tuvoFoco)
        cerrarPor(true);
}

bool PanelQml::eventFilter(QObject *objeto, QEvent *evento)
{
    if (m_ventana && objeto == m_ventana.get() && evento->type() == QEvent::Close) cerrar();
    return false;
}

void PanelQml::cerrarPor(bool foco)
{
    if (!m_ventana) return;
    // The window is still inside one of its own events: let it finish before its scene goes.
    QQuickWindow *ventana = m_ventana.release();
    ventana->disconnect(this);
    ventana->hide();
    ventana->deleteLater();
    Q_EMIT cerrado(foco);
}

} // namespace ovanta
