#include "ui/InterfazQml.h"

#include "ui/Ovanta.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace ovanta {

InterfazQml::InterfazQml(OvantaApp &app) : m_app(app)
{
    Ovanta::usar(&app);
}

InterfazQml::~InterfazQml() = default;

bool InterfazQml::enfocarVentanaExistente()
{
    if (!m_ventana) return false;
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
    connect(m_ventana, &QQuickWindow::visibleChanged, this, [this](bool visible) {
        if (!visible) cerrar();
    });
    Q_EMIT ventanaAbierta();
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
