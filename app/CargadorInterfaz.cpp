#include "app/CargadorInterfaz.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace ovanta {

QStringList CargadorInterfaz::candidatas()
{
    const QDir programa(QCoreApplication::applicationDirPath());
    return {programa.filePath(QStringLiteral("../lib/libovanta_interfaz.so")),
            programa.filePath(QStringLiteral("../lib/ovanta/libovanta_interfaz.so"))};
}

CargadorInterfaz::CargadorInterfaz(OvantaApp &app, QStringList candidatas)
    : m_app(app), m_candidatas(std::move(candidatas))
{
}

Interfaz *CargadorInterfaz::interfaz()
{
    if (m_interfaz) return m_interfaz.get();
    // Drawing on the processor costs a mostly still window less memory and power than a graphics
    // context of its own; who wants another renderer names it.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) qputenv("QT_QUICK_BACKEND", "software");
    for (const QString &ruta : std::as_const(m_candidatas)) {
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
