#include "platform/simulada/AplicacionesSimuladas.h"

#include <QFile>
#include <QXmlStreamReader>

namespace ovanta {

namespace {

constexpr qint64 limiteDePlist = 65'536;

/// The text under `clave` directly in the one dictionary of a property list.
QString textoDe(const QByteArray &plist, const QString &clave)
{
    QXmlStreamReader lector(plist);
    if (!lector.readNextStartElement() || lector.name() != u"plist") return {};
    if (!lector.readNextStartElement() || lector.name() != u"dict") return {};
    while (lector.readNextStartElement()) {
        if (lector.name() != u"key" || lector.readElementText() != clave) {
            lector.skipCurrentElement();
            continue;
        }
        const bool hayTexto = lector.readNextStartElement() && lector.name() == u"string";
        return hayTexto ? lector.readElementText() : QString();
    }
    return {};
}

} // namespace

bool AplicacionesSimuladas::enEjecucion(const std::string &bundleID) const
{
    const std::lock_guard guardia{m_cerrojo};
    return m_abiertas.contains(bundleID);
}

std::string AplicacionesSimuladas::identificadorDePaquete(const std::string &ruta) const
{
    QFile archivo(QFile::decodeName(QByteArray::fromStdString(ruta + "/Contents/Info.plist")));
    if (!archivo.open(QIODevice::ReadOnly)) return {};
    const QByteArray plist = archivo.read(limiteDePlist + 1);
    if (plist.size() > limiteDePlist) return {};
    return textoDe(plist, QStringLiteral("CFBundleIdentifier")).toStdString();
}

void AplicacionesSimuladas::abrir(std::string bundleID)
{
    const std::lock_guard guardia{m_cerrojo};
    m_abiertas.insert(std::move(bundleID));
}

void AplicacionesSimuladas::cerrar(const std::string &bundleID)
{
    const std::lock_guard guardia{m_cerrojo};
    m_abiertas.erase(bundleID);
}

} // namespace ovanta
