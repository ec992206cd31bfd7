#include "platform/simulada/dispositivos/PeticionPlist.h"

#include <QByteArray>
#include <QXmlStreamReader>

namespace ovanta {

namespace {

std::optional<std::variant<std::string, std::int64_t>> valorDe(QXmlStreamReader &xml)
{
    const bool entero = xml.name() == QLatin1String("integer");
    if (!entero && xml.name() != QLatin1String("string")) return std::nullopt;
    const QString texto = xml.readElementText();
    if (xml.hasError()) return std::nullopt;
    if (!entero) return texto.toStdString();
    bool valido = false;
    const qlonglong numero = texto.toLongLong(&valido);
    if (!valido) return std::nullopt;
    return numero;
}

} // namespace

std::optional<PeticionPlist> PeticionPlist::leer(std::string_view xml)
{
    QXmlStreamReader lector(QByteArray(xml.data(), static_cast<qsizetype>(xml.size())));
    if (!lector.readNextStartElement() || lector.name() != QLatin1String("plist")) return std::nullopt;
    if (!lector.readNextStartElement() || lector.name() != QLatin1String("dict")) return std::nullopt;
    PeticionPlist peticion;
    while (lector.readNextStartElement()) {
        if (lector.name() != QLatin1String("key")) return std::nullopt;
        const std::string clave = lector.readElementText().toStdString();
        if (!lector.readNextStartElement()) return std::nullopt;
        auto valor = valorDe(lector);
        if (!valor || !peticion.m_valores.emplace(clave, *valor).second) return std::nullopt;
    }
    while (!lector.atEnd())
        if (lector.readNext() == QXmlStreamReader::StartElement) return std::nullopt;
    if (lector.hasError()) return std::nullopt;
    return peticion;
}

std::string PeticionPlist::texto(const std::string &clave) const
{
    const auto hallado = m_valores.find(clave);
    const auto *texto = hallado == m_valores.end() ? nullptr : std::get_if<std::string>(&hallado->second);
    return texto ? *texto : std::string{};
}

std::optional<std::int64_t> PeticionPlist::entero(const std::string &clave) const
{
    const auto hallado = m_valores.find(clave);
    const auto *numero = hallado == m_valores.end() ? nullptr : std::get_if<std::int64_t>(&hallado->second);
    return numero ? std::optional(*numero) : std::nullopt;
}

} // namespace ovanta
