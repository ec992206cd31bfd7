#include "app/CargadorInterfaz.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace ovanta {

namespace {

/// Beside the program's folder in a build tree, below it in an installation.
QStringList candidatas()
{
    const QDir programa(QCoreApplication::applicationDirPath());
    return {programa.filePath(QStringLiteral("../lib/libovanta_interfaz.so")),
            programa.filePath(QStringLiteral("../lib/ovanta/libovanta_interfaz.so"))};
}

} // namespace

CargadorInterfaz::CargadorInterfaz(OvantaApp &app) : m_app(app) {}

Interfaz *CargadorInterfaz::interfaz()
{
    if (m_interfaz) return m_interfaz.get();
    // Drawing on the processor costs a mostly still window less memory and power than a graphics
    // context of its own; who wants another renderer names it.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) qputenv("QT_QUICK_BACKEND", "software");
    for (const QString &ruta : candidatas()) {
        QLibrary biblioteca(ruta);
        biblioteca.setLoadHints(QLibrary::PreventUnloadHint);
        const auto crear = reinterpret_cast<CrearInterfaz>(biblioteca.resolve("crearInterfaz"));
        if (crear) {
            m_interfaz.reset(crear(m_app));
            return m_interfaz.get();
        }
        m_error = biblioteca.errorString();
    }
    return nullptr;
}

} // namespace ovanta
