#include "core/Rutas.h"

#include <algorithm>
#include <array>

namespace ovanta {

namespace {

// Unicode's category Zs and the tab, in UTF-8. Each begins with a lead byte, so none of them can be
// the tail of another character.
constexpr std::array<std::string_view, 18> BLANCOS{" ",
                                                   "\t",
                                                   "\xC2\xA0",
                                                   "\xE1\x9A\x80",
                                                   "\xE2\x80\x80",
                                                   "\xE2\x80\x81",
                                                   "\xE2\x80\x82",
                                                   "\xE2\x80\x83",
                                                   "\xE2\x80\x84",
                                                   "\xE2\x80\x85",
                                                   "\xE2\x80\x86",
                                                   "\xE2\x80\x87",
                                                   "\xE2\x80\x88",
                                                   "\xE2\x80\x89",
                                                   "\xE2\x80\x8A",
                                                   "\xE2\x80\xAF",
                                                   "\xE2\x81\x9F",
                                                   "\xE3\x80\x80"};

std::size_t blancoDelante(std::string_view texto)
{
    const auto blanco = std::ranges::find_if(BLANCOS, [&](auto b) { return texto.starts_with(b); });
    return blanco == BLANCOS.end() ? 0 : blanco->size();
}

std::size_t blancoDetras(std::string_view texto)
{
    const auto blanco = std::ranges::find_if(BLANCOS, [&](auto b) { return texto.ends_with(b); });
    return blanco == BLANCOS.end() ? 0 : blanco->size();
}

void agregar(std::string &ruta, std::string_view componente)
{
    if (!ruta.empty() && ruta.back() != '/') ruta += '/';
    ruta += componente;
}

// Whether there was a component that ".." could take away. The root needs none: ".." stays there.
bool quitarUltimo(std::string &ruta)
{
    if (ruta == "/") return true;
    const auto barra = ruta.rfind('/');
    const auto inicio = barra == std::string::npos ? 0 : barra + 1;
    if (ruta.empty() || std::string_view(ruta).substr(inicio) == "..") return false;
    ruta.resize(barra == 0 ? 1 : barra == std::string::npos ? 0 : barra);
    return true;
}

} // namespace

std::string_view siguienteComponente(std::string_view &resto)
{
    resto.remove_prefix(std::min(resto.find_first_not_of('/'), resto.size()));
    const auto componente = resto.substr(0, resto.find('/'));
    resto.remove_prefix(componente.size());
    return componente;
}

std::string estandarizar(std::string_view ruta)
{
    std::string limpia;
    limpia.reserve(ruta.size());
    if (ruta.starts_with('/')) limpia = "/";
    for (auto c = siguienteComponente(ruta); !c.empty(); c = siguienteComponente(ruta)) {
        if (c == "." || (c == ".." && quitarUltimo(limpia))) continue;
        agregar(limpia, c);
    }
    return limpia;
}

std::string expandirTilde(std::string_view ruta, std::string_view hogar)
{
    if (!ruta.starts_with('~')) return std::string(ruta);
    return std::string(hogar).append(ruta.substr(1));
}

std::string_view recortarBlancos(std::string_view texto)
{
    while (const auto n = blancoDelante(texto))
        texto.remove_prefix(n);
    while (const auto n = blancoDetras(texto))
        texto.remove_suffix(n);
    return texto;
}

std::string unir(std::string_view base, std::string_view relativa)
{
    std::string unida(base);
    if (!relativa.empty()) agregar(unida, relativa);
    return unida;
}

bool yaceEn(std::string_view ruta, std::string_view base)
{
    return ruta.starts_with(base) && (ruta.size() == base.size() || ruta[base.size()] == '/');
}

bool cruza(std::string_view una, std::string_view otra)
{
    return yaceEn(una, otra) || yaceEn(otra, una);
}

bool yaceEnAlguna(std::string_view ruta, const ConjuntoRutas &bases)
{
    if (bases.empty()) return false;
    // A base above the path is one of the texts that end just before one of the path's slashes.
    for (auto barra = ruta.find('/'); barra != std::string_view::npos; barra = ruta.find('/', barra + 1)) {
        if (bases.contains(ruta.substr(0, barra))) return true;
    }
    return bases.contains(ruta);
}

bool cruzaAlguna(std::string_view ruta, const ConjuntoRutas &otras)
{
    if (yaceEnAlguna(ruta, otras)) return true;
    const std::string debajo = std::string(ruta) + '/';
    const auto primera = otras.lower_bound(debajo);
    return primera != otras.end() && primera->starts_with(debajo);
}

std::string_view carpetaContenedora(std::string_view ruta)
{
    const auto barra = ruta.rfind('/');
    if (barra == std::string_view::npos) return {};
    return ruta.substr(0, std::max<std::size_t>(barra, 1));
}

std::string_view ultimoComponente(std::string_view ruta)
{
    const auto fin = ruta.find_last_not_of('/');
    if (fin == std::string_view::npos) return ruta.substr(0, 1);
    ruta = ruta.substr(0, fin + 1);
    return ruta.substr(ruta.rfind('/') + 1);
}

std::string_view extension(std::string_view ruta)
{
    const auto nombre = ruta.substr(ruta.rfind('/') + 1);
    const auto punto = nombre.rfind('.');
    return punto == std::string_view::npos || punto == 0 ? std::string_view{} : nombre.substr(punto + 1);
}

} // namespace ovanta
