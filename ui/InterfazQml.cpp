#include "ui/InterfazQml.h"

#include "ui/Ovanta.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

namespace ovanta {

InterfazQml::InterfazQml(OvantaApp &app)
    : m_aspecto(app.plataforma().apariencia()), m_panel(app.plataforma().apariencia())
{
    Ovanta::usar(&app, &m_aspecto, this);
    connect(&m_panel, &PanelQml::cerrado, this, [this](bool porFoco) {
        soltarMotor();
        Q_EMIT panelCerrado(porFoco);
    });
}

InterfazQml::~InterfazQml() = default;

bool InterfazQml::enfocarVentanaExistente()
{
    if (!m_ventana) return false;
    m_ventana->setWindowStates(m_ventana->windowStates() & ~Qt::WindowMinimized);
    m_ventana->show();
    m_ventana->raise();
    m_ventana->requestActivate();
    return true;
}

void InterfazQml::abrirVentana()
{
    if (enfocarVentanaExistente()) return;
    QQmlComponent componente(&motor(), QUrl(QStringLiteral("qrc:/qt/qml/Ovanta/VentanaPrincipal.qml")));
    m_ventana.reset(qobject_cast<QQuickWindow *>(componente.create()));
    if (!m_ventana) {
        qCritical("%s", qPrintable(componente.errorString()));
        return soltarMotor();
    }
    m_ventana->installEventFilter(this);
    Q_EMIT ventanaAbierta();
}

void InterfazQml::minimizarAlCerrar(bool si)
{
    m_minimizar = si;
}

void InterfazQml::abrirPanel(const QRect &icono)
{
    m_panel.abrir(motor(), icono);
    soltarMotor();
}

void InterfazQml::cerrarPanel()
{
    m_panel.cerrar();
}

bool InterfazQml::eventFilter(QObject *objeto, QEvent *evento)
{
    if (!m_ventana || objeto != m_ventana.get() || evento->type() != QEvent::Close) return false;
    if (m_minimizar) {
        evento->ignore();
        m_ventana->showMinimized();
        return true;
    }
    cerrar();
    return false;
}

void InterfazQml::cerrar()
{
    // The window is still inside its own close event: let it finish before its scene goes.
    m_ventana.release()->deleteLater();
    soltarMotor();
    Q_EMIT ventanaCerrada();
}

QQmlEngine &InterfazQml::motor()
{
    if (!m_motor) {
        m_motor = std::make_unique<QQmlEngine>();
        m_motor->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
    return *m_motor;
}

/// Without a window the engine goes, right after the last one that is on its way out.
void InterfazQml::soltarMotor()
{
    if (m_motor && !m_ventana && !m_panel.abierto()) m_motor.release()->deleteLater();
}

} // namespace ovanta

extern "C" Q_DECL_EXPORT ovanta::Interfaz *crearInterfaz(ovanta::OvantaApp &app)
{
    return new ovanta::InterfazQml(app);
}
