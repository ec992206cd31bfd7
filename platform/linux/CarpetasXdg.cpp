#include "platform/linux/CarpetasXdg.h"

#include "core/Rutas.h"

#include <algorithm>
#include <optional>

namespace ovanta {

namespace {

constexpr std::string_view principioClave = "XDG_";
constexpr std::string_view finClave = "_DIR";
constexpr std::string_view claveDescargas = "XDG_DOWNLOAD_DIR";
constexpr std::string_view variableHogar = "$HOME";

/// What stands between double quotes, without the shell's backslashes.
std::optional<std::string> entreComillas(std::string_view texto)
{
    if (texto.size() < 2 || texto.front() != '"' || texto.back() != '"') return std::nullopt;
    texto = texto.substr(1, texto.size() - 2);
    std::string resultado;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '"' || texto[i] == '\0') return std::nullopt;
        if (texto[i] == '\\' && ++i == texto.size()) return std::nullopt;
        resultado += texto[i];
    }
    return resultado;
}

/// The path below home that a value names: "$HOME/Documentos", or an absolute path that lies there.
std::optional<std::string> bajoHogar(std::string_view valor, std::string_view hogar)
{
    const bool conVariable =
        valor.starts_with(variableHogar) && valor.substr(variableHogar.size()).starts_with('/');
    if (!conVariable && !valor.starts_with('/')) return std::nullopt;
    const std::string ruta =
        estandarizar(conVariable ? std::string{hogar} + std::string{valor.substr(variableHogar.size())}
                                 : std::string{valor});
    if (ruta == hogar || !yaceEn(ruta, hogar)) return std::nullopt;
    return ruta.substr(hogar.size() + 1);
}

struct Entrada
{
    std::string_view clave;
    std::string carpeta;
};

std::optional<Entrada> leerLinea(std::string_view linea, std::string_view hogar)
{
    linea = recortarBlancos(linea);
    const std::size_t igual = linea.find('=');
    if (igual == std::string_view::npos) return std::nullopt;
    const std::string_view clave = linea.substr(0, igual);
    if (!clave.starts_with(principioClave) || !clave.ends_with(finClave)) return std::nullopt;
    const auto valor = entreComillas(linea.substr(igual + 1));
    auto carpeta = valor ? bajoHogar(*valor, hogar) : std::nullopt;
    return carpeta ? std::optional<Entrada>{{clave, std::move(*carpeta)}} : std::nullopt;
}

std::vector<Entrada> entradas(std::string_view userDirs, std::string_view hogar)
{
    std::vector<Entrada> leidas;
    while (!userDirs.empty()) {
        const std::size_t fin = std::min(userDirs.find('\n'), userDirs.size());
        if (auto entrada = leerLinea(userDirs.substr(0, fin), hogar)) leidas.push_back(std::move(*entrada));
        userDirs.remove_prefix(std::min(fin + 1, userDirs.size()));
    }
    return leidas;
}

} // namespace

std::vector<std::string> carpetasDelUsuario(std::string_view userDirs, std::string_view hogar)
{
    std::vector<std::string> carpetas;
    for (Entrada &entrada : entradas(userDirs, hogar)) {
        const bool repetida = std::ranges::find(carpetas, entrada.carpeta) != carpetas.end();
        if (entrada.clave != claveDescargas && !repetida) carpetas.push_back(std::move(entrada.carpeta));
    }
    return carpetas;
}

std::optional<std::string> carpetaDelUsuario(std::string_view userDirs, std::string_view hogar,
                                             std::string_view clave)
{
    std::optional<std::string> ultima;
    for (Entrada &entrada : entradas(userDirs, hogar))
        if (entrada.clave == clave) ultima = std::move(entrada.carpeta);
    return ultima;
}

} // namespace ovanta
