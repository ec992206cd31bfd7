#include "ui/InterfazQml.h"

#include "ui/Ovanta.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace ovanta {

InterfazQml::InterfazQml(OvantaApp &app) : m_aspecto(app.plataforma().apariencia())
{
    Ovanta::usar(&app, &m_aspecto);
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
    m_motor = std::make_unique<QQmlApplicationEngine>();
    m_motor->addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_motor->load(QUrl(QStringLiteral("qrc:/qt/qml/Ovanta/VentanaPrincipal.qml")));
    if (m_motor->rootObjects().isEmpty()) return;
    m_ventana = qobject_cast<QQuickWindow *>(m_motor->rootObjects().constFirst());
    m_ventana->installEventFilter(this);
    Q_EMIT ventanaAbierta();
}

void InterfazQml::minimizarAlCerrar(bool si)
{
    m_minimizar = si;
}

bool InterfazQml::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto != m_ventana || evento->type() != QEvent::Close) return false;
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
    m_ventana = nullptr;
    // The window is still inside its own close event: let it finish before its scene goes.
    m_motor.release()->deleteLater();
    Q_EMIT ventanaCerrada();
}

} // namespace ovanta

extern "C" Q_DECL_EXPORT ovanta::Interfaz *crearInterfaz(ovanta::OvantaApp &app)
{
    return new ovanta::InterfazQml(app);
}
