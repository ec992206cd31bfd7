#include "core/plist/EscribirPlist.h"

#include "core/Base64.h"
#include "core/Utf8.h"
#include "core/plist/PresupuestoPlist.h"

#include <cmath>

namespace ovanta {

namespace {

constexpr std::string_view cabecera = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                      "<plist version=\"1.0\">\n";

/// U+FFFE and U+FFFF have no place in XML 1.0, and of the control characters only these three.
bool cabeEnXml(std::string_view texto)
{
    for (const char letra : texto)
        if (static_cast<unsigned char>(letra) < 0x20 && letra != '\t' && letra != '\n' && letra != '\r')
            return false;
    return esUtf8(texto) && !texto.contains("\xEF\xBF\xBE") && !texto.contains("\xEF\xBF\xBF");
}

class EscritorXml
{
public:
    std::string escribir(const ValorPlist &valor)
    {
        m_xml = cabecera;
        std::visit(*this, valor.variante());
        m_xml += "</plist>\n";
        return std::move(m_xml);
    }

    void operator()(bool valor) { renglon(valor ? "<true/>" : "<false/>"); }
    void operator()(std::int64_t valor) { elemento("integer", std::to_string(valor)); }
    void operator()(std::uint64_t valor) { elemento("integer", std::to_string(valor)); }
    void operator()(double valor) { elemento("real", textoDeReal(valor)); }
    void operator()(Fecha valor);
    void operator()(UidPlist valor);
    void operator()(const std::string &valor) { elemento("string", escapado(valor)); }
    void operator()(const DatosPlist &valor) { elemento("data", aBase64(valor.bytes)); }
    void operator()(const ListaPlist &valores);
    void operator()(const DiccionarioPlist &valores);

private:
    static std::string textoDeReal(double valor);
    static std::string escapado(std::string_view texto);
    void renglon(std::string_view texto);
    void elemento(std::string_view nombre, std::string_view contenido);

    std::string m_xml;
    PresupuestoPlist m_presupuesto{LimitesPlist{}};
    std::size_t m_sangria = 0;
};

void EscritorXml::renglon(std::string_view texto)
{
    m_xml.append(m_sangria, '\t');
    m_xml += texto;
    m_xml += '\n';
}

void EscritorXml::elemento(std::string_view nombre, std::string_view contenido)
{
    m_xml.append(m_sangria, '\t');
    m_xml.append("<").append(nombre).append(">").append(contenido);
    m_xml.append("</").append(nombre).append(">\n");
}

std::string EscritorXml::textoDeReal(double valor)
{
    if (std::isnan(valor)) return "nan";
    if (std::isinf(valor)) return valor > 0 ? "+infinity" : "-infinity";
    return textoPlano(valor);
}

std::string EscritorXml::escapado(std::string_view texto)
{
    if (!cabeEnXml(texto)) rechazarPlist("un texto no se puede escribir");
    std::string limpio;
    limpio.reserve(texto.size());
    for (const char letra : texto) {
        switch (letra) {
        case '&':
            limpio += "&amp;";
            break;
        case '<':
            limpio += "&lt;";
            break;
        case '>':
            limpio += "&gt;";
            break;
        case '\r':
            limpio += "&#13;";
            break; // a bare one would be read as a line feed
        default:
            limpio += letra;
        }
    }
    return limpio;
}

void EscritorXml::operator()(Fecha valor)
{
    using namespace std::chrono;
    if (valor < sys_days{year{0} / 1 / 1} || valor >= sys_days{year{10000} / 1 / 1})
        rechazarPlist("una fecha no se puede escribir");
    elemento("date", textoISO8601(valor));
}

void EscritorXml::operator()(UidPlist valor)
{
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    renglon("<dict>");
    ++m_sangria;
    elemento("key", "CF$UID");
    elemento("integer", std::to_string(valor.numero));
    --m_sangria;
    renglon("</dict>");
}

void EscritorXml::operator()(const ListaPlist &valores)
{
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    if (valores.empty()) return renglon("<array/>");
    renglon("<array>");
    ++m_sangria;
    for (const auto &valor : valores)
        std::visit(*this, valor.variante());
    --m_sangria;
    renglon("</array>");
}

void EscritorXml::operator()(const DiccionarioPlist &valores)
{
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    if (valores.empty()) return renglon("<dict/>");
    renglon("<dict>");
    ++m_sangria;
    for (const auto &[clave, valor] : valores.entradas()) {
        elemento("key", escapado(clave));
        std::visit(*this, valor.variante());
    }
    --m_sangria;
    renglon("</dict>");
}

} // namespace

std::expected<std::string, ErrorPlist> escribirPlistXml(const ValorPlist &valor)
{
    try {
        return EscritorXml{}.escribir(valor);
    } catch (PlistRechazada &rechazo) {
        return std::unexpected(std::move(rechazo.error));
    }
}

} // namespace ovanta
