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
