#include "core/Base64.h"
#include "core/plist/ExploradorXml.h"
#include "core/plist/PresupuestoPlist.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace ovanta {

namespace {

using Etiqueta = ExploradorXml::Etiqueta;
using Forma = ExploradorXml::Forma;

constexpr std::string_view claveUid = "CF$UID";

std::string_view sinBlancos(std::string_view texto)
{
    constexpr std::string_view blancos = " \t\n";
    const auto desde = texto.find_first_not_of(blancos);
    if (desde == std::string_view::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(blancos) - desde + 1);
}

/// Decimal, or hexadecimal behind "0x"; from -2^63 to 2^64 - 1.
ValorPlist enteroDe(std::string_view cifras)
{
    const bool negativo = cifras.starts_with('-');
    if (negativo || cifras.starts_with('+')) cifras.remove_prefix(1);
    const bool hexadecimal = cifras.starts_with("0x") || cifras.starts_with("0X");
    if (hexadecimal) cifras.remove_prefix(2);
    std::uint64_t tamano = 0;
    const char *fin = cifras.data() + cifras.size();
    const auto [hasta, error] = std::from_chars(cifras.data(), fin, tamano, hexadecimal ? 16 : 10);
    constexpr std::uint64_t maximoNegativo = std::uint64_t{1} << 63;
    if (error != std::errc{} || hasta != fin || (negativo && tamano > maximoNegativo))
        rechazarPlist("número ilegible");
    if (negativo) return static_cast<std::int64_t>(~tamano + 1);
    return tamano;
}

double realDe(std::string_view texto)
{
    if (texto.starts_with('+') && !texto.starts_with("+-")) texto.remove_prefix(1);
    double real = 0;
    const char *fin = texto.data() + texto.size();
    const auto [hasta, error] = std::from_chars(texto.data(), fin, real);
    if (hasta != fin || error != std::errc{}) rechazarPlist("número ilegible");
    return real;
}

DatosPlist datosDe(std::string texto)
{
    std::erase_if(texto, [](char letra) { return letra == '\n' || letra == '\t' || letra == ' '; });
    auto bytes = deBase64(texto);
    if (!bytes) rechazarPlist("datos ilegibles");
    return {std::move(*bytes)};
}

Fecha fechaDe(std::string_view texto)
{
    const auto fecha = leerISO8601(texto);
    if (!fecha) rechazarPlist("fecha ilegible");
    return *fecha;
}

class LectorXml
{
public:
    LectorXml(std::string_view bytes, PresupuestoPlist &presupuesto)
        : m_explorador(bytes), m_presupuesto(presupuesto)
    {
    }

    ValorPlist leer()
    {
        if (m_explorador.etiqueta() != Etiqueta{"plist"}) rechazarPlist("formato desconocido");
        ValorPlist valor = leerValor(m_explorador.etiqueta());
        if (m_explorador.etiqueta() != Etiqueta{"plist", Forma::cierre}) rechazarPlist("sobra un valor");
        m_explorador.fin();
        return valor;
    }

private:
    ValorPlist leerValor(const Etiqueta &etiqueta);
    ValorPlist leerLista(const Etiqueta &etiqueta);
    ValorPlist leerDiccionario(const Etiqueta &etiqueta);
    std::string texto(const Etiqueta &etiqueta);

    ExploradorXml m_explorador;
    PresupuestoPlist &m_presupuesto;
};

std::string LectorXml::texto(const Etiqueta &etiqueta)
{
    std::string texto = m_explorador.texto(etiqueta);
    m_presupuesto.cobrarBytes(texto.size());
    return texto;
}

ValorPlist LectorXml::leerValor(const Etiqueta &etiqueta)
{
    m_presupuesto.cobrarObjetos(1);
    const auto &nombre = etiqueta.nombre;
    if (etiqueta.forma == Forma::cierre) rechazarPlist("falta un valor");
    if (nombre == "dict") return leerDiccionario(etiqueta);
    if (nombre == "array") return leerLista(etiqueta);
    if (nombre == "string") return texto(etiqueta);
    if (nombre == "integer") return enteroDe(sinBlancos(texto(etiqueta)));
    if (nombre == "data") return datosDe(texto(etiqueta));
    if (nombre == "real") return realDe(sinBlancos(texto(etiqueta)));
    if (nombre == "date") return fechaDe(sinBlancos(texto(etiqueta)));
    if (nombre != "true" && nombre != "false") rechazarPlist("valor de tipo desconocido");
    if (!sinBlancos(texto(etiqueta)).empty()) rechazarPlist("valor lógico con contenido");
    return nombre == "true";
}

ValorPlist LectorXml::leerLista(const Etiqueta &etiqueta)
{
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    ListaPlist lista;
    if (etiqueta.forma == Forma::vacia) return lista;
    while (true) {
        const auto siguiente = m_explorador.etiqueta();
        if (siguiente == Etiqueta{"array", Forma::cierre}) return lista;
        lista.push_back(leerValor(siguiente));
    }
}

ValorPlist LectorXml::leerDiccionario(const Etiqueta &etiqueta)
{
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    std::vector<EntradaPlist> entradas;
    while (etiqueta.forma != Forma::vacia) {
        const auto siguiente = m_explorador.etiqueta();
        if (siguiente == Etiqueta{"dict", Forma::cierre}) break;
        if (siguiente.nombre != "key" || siguiente.forma == Forma::cierre) rechazarPlist("falta una clave");
        m_presupuesto.cobrarObjetos(1);
        std::string clave = texto(siguiente);
        entradas.push_back({std::move(clave), leerValor(m_explorador.etiqueta())});
    }
    if (entradas.size() == 1 && entradas.front().clave == claveUid) {
        const ValorPlist &numero = entradas.front().valor;
        if (const auto *grande = numero.si<std::uint64_t>()) return UidPlist{*grande};
        const auto *chico = numero.si<std::int64_t>();
        if (chico && *chico >= 0) return UidPlist{static_cast<std::uint64_t>(*chico)};
    }
    return DiccionarioPlist{std::move(entradas)};
}

} // namespace

ValorPlist leerPlistXml(std::string_view bytes, PresupuestoPlist &presupuesto)
{
    return LectorXml{bytes, presupuesto}.leer();
}

} // namespace ovanta
