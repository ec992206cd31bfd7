#include "core/plist/ExploradorXml.h"

#include "core/Utf8.h"
#include "core/plist/PresupuestoPlist.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

namespace ovanta {

namespace {

constexpr std::string_view blancos = " \t\r\n";

struct Nombrada
{
    std::string_view nombre;
    char letra;
};
constexpr Nombrada nombradas[] = {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"apos", '\''}, {"quot", '"'}};

/// The longest that is worth looking at: "&#x0010FFFF;" and the like.
constexpr std::size_t maximoReferencia = 16;

/// XML 1.0, production 2.
bool esLetraXml(std::uint32_t letra)
{
    return letra == 0x9 || letra == 0xA || letra == 0xD || (letra >= 0x20 && letra < 0xD800) ||
           (letra >= 0xE000 && letra < 0xFFFE) || (letra >= 0x10000 && letra < 0x110000);
}

std::uint32_t numeroDeReferencia(std::string_view cifras)
{
    const bool hexadecimal = cifras.starts_with('x');
    if (hexadecimal) cifras.remove_prefix(1);
    std::uint32_t letra = 0;
    const char *fin = cifras.data() + cifras.size();
    const auto [hasta, error] = std::from_chars(cifras.data(), fin, letra, hexadecimal ? 16 : 10);
    if (error != std::errc{} || hasta != fin || !esLetraXml(letra)) rechazarPlist("carácter ilegible");
    return letra;
}

/// Adds the character that stands at the front of `resto` as "&…;", and takes it from there.
void tomarReferencia(std::string &texto, std::string_view &resto)
{
    const auto fin = resto.substr(0, maximoReferencia).find(';');
    if (fin == std::string_view::npos) rechazarPlist("entidad sin final");
    const auto nombre = resto.substr(1, fin - 1);
    resto.remove_prefix(fin + 1);
    if (nombre.starts_with('#')) return anadirUtf8(texto, numeroDeReferencia(nombre.substr(1)));
    const auto *hallada = std::ranges::find(nombradas, nombre, &Nombrada::nombre);
    if (hallada == std::end(nombradas)) rechazarPlist("entidad desconocida");
    texto += hallada->letra;
}

void anadirLineas(std::string &texto, std::string_view trozo)
{
    for (auto fin = trozo.find('\r'); fin != std::string_view::npos; fin = trozo.find('\r')) {
        texto += trozo.substr(0, fin);
        texto += '\n';
        trozo.remove_prefix(fin + (trozo.substr(fin).starts_with("\r\n") ? 2 : 1));
    }
    texto += trozo;
}

/// Adds what stands between two tags.
void anadirTexto(std::string &texto, std::string_view trozo)
{
    if (!esUtf8(trozo)) rechazarPlist("texto ilegible");
    for (auto lugar = trozo.find('&'); lugar != std::string_view::npos; lugar = trozo.find('&')) {
        anadirLineas(texto, trozo.substr(0, lugar));
        trozo.remove_prefix(lugar);
        tomarReferencia(texto, trozo);
    }
    anadirLineas(texto, trozo);
}

/// Adds what stands in a section in which nothing has a meaning.
void anadirLiteral(std::string &texto, std::string_view trozo)
{
    if (!esUtf8(trozo)) rechazarPlist("texto ilegible");
    anadirLineas(texto, trozo);
}

bool igualSinCaja(std::string_view a, std::string_view b)
{
    const auto minuscula = [](char letra) {
        return letra >= 'A' && letra <= 'Z' ? static_cast<char>(letra + 32) : letra;
    };
    return std::ranges::equal(a, b, {}, minuscula, minuscula);
}

} // namespace

ExploradorXml::ExploradorXml(std::string_view documento) : m_resto(documento)
{
    tomar("\xEF\xBB\xBF");
    comprobarDeclaracion();
    saltarBlancos();
    if (tomar("<!DOCTYPE")) saltarTipo();
}

bool ExploradorXml::tomar(std::string_view comienzo)
{
    if (!m_resto.starts_with(comienzo)) return false;
    m_resto.remove_prefix(comienzo.size());
    return true;
}

void ExploradorXml::saltarHasta(std::string_view final)
{
    const auto lugar = m_resto.find(final);
    if (lugar == std::string_view::npos) rechazarPlist("documento cortado");
    m_resto.remove_prefix(lugar + final.size());
}

/// Only UTF-8 and what is part of it is read.
void ExploradorXml::comprobarDeclaracion()
{
    if (!m_resto.starts_with("<?xml")) return;
    auto declaracion = m_resto;
    saltarHasta("?>");
    declaracion.remove_suffix(m_resto.size());
    const auto lugar = declaracion.find("encoding");
    if (lugar == std::string_view::npos) return;
    const auto abre = declaracion.find_first_of("\"'", lugar);
    if (abre == std::string_view::npos) rechazarPlist("codificación ilegible");
    const auto cierra = declaracion.find(declaracion[abre], abre + 1);
    if (cierra == std::string_view::npos) rechazarPlist("codificación ilegible");
    const auto nombre = declaracion.substr(abre + 1, cierra - abre - 1);
    if (!igualSinCaja(nombre, "utf-8") && !igualSinCaja(nombre, "us-ascii"))
        rechazarPlist("codificación desconocida");
}

bool ExploradorXml::saltarAdorno()
{
    if (tomar("<!--"))
        saltarHasta("-->");
    else if (tomar("<?"))
        saltarHasta("?>");
    else
        return false;
    return true;
}

void ExploradorXml::saltarTipo()
{
    const auto fin = m_resto.find_first_of("[>");
    if (fin == std::string_view::npos) rechazarPlist("documento cortado");
    if (m_resto[fin] == '[') rechazarPlist("las declaraciones propias no se admiten");
    m_resto.remove_prefix(fin + 1);
}

void ExploradorXml::saltarBlancos()
{
    do {
        m_resto.remove_prefix(std::min(m_resto.find_first_not_of(blancos), m_resto.size()));
    } while (m_resto.starts_with("<") && saltarAdorno());
}

ExploradorXml::Etiqueta ExploradorXml::etiqueta()
{
    saltarBlancos();
    if (!tomar("<")) rechazarPlist(m_resto.empty() ? "documento cortado" : "texto fuera de un valor");
    Etiqueta leida{{}, tomar("/") ? Forma::cierre : Forma::apertura};
    const auto fin = m_resto.find('>');
    if (fin == std::string_view::npos) rechazarPlist("documento cortado");
    auto interior = m_resto.substr(0, fin);
    m_resto.remove_prefix(fin + 1);
    if (leida.forma == Forma::apertura && interior.ends_with('/')) {
        leida.forma = Forma::vacia;
        interior.remove_suffix(1);
    }
    leida.nombre = interior.substr(0, interior.find_first_of(blancos));
    return leida;
}

std::string ExploradorXml::texto(const Etiqueta &etiqueta)
{
    std::string texto;
    if (etiqueta.forma == Forma::vacia) return texto;
    while (true) {
        const auto fin = m_resto.find('<');
        if (fin == std::string_view::npos) rechazarPlist("documento cortado");
        anadirTexto(texto, m_resto.substr(0, fin));
        m_resto.remove_prefix(fin);
        if (saltarAdorno()) continue;
        if (!tomar("<![CDATA[")) break;
        anadirLiteral(texto, m_resto.substr(0, m_resto.find("]]>")));
        saltarHasta("]]>");
    }
    if (this->etiqueta() != Etiqueta{etiqueta.nombre, Forma::cierre}) rechazarPlist("etiqueta sin cerrar");
    return texto;
}

void ExploradorXml::fin()
{
    saltarBlancos();
    if (!m_resto.empty()) rechazarPlist("sobran datos al final");
}

} // namespace ovanta
