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

std::optional<std::string> leerLinea(std::string_view linea, std::string_view hogar)
{
    linea = recortarBlancos(linea);
    const std::size_t igual = linea.find('=');
    if (igual == std::string_view::npos) return std::nullopt;
    const std::string_view clave = linea.substr(0, igual);
    if (!clave.starts_with(principioClave) || !clave.ends_with(finClave) || clave == claveDescargas)
        return std::nullopt;
    const auto valor = entreComillas(linea.substr(igual + 1));
    return valor ? bajoHogar(*valor, hogar) : std::nullopt;
}

} // namespace

std::vector<std::string> carpetasDelUsuario(std::string_view userDirs, std::string_view hogar)
{
    std::vector<std::string> carpetas;
    while (!userDirs.empty()) {
        const std::size_t fin = std::min(userDirs.find('\n'), userDirs.size());
        auto carpeta = leerLinea(userDirs.substr(0, fin), hogar);
        userDirs.remove_prefix(std::min(fin + 1, userDirs.size()));
        if (carpeta && std::find(carpetas.begin(), carpetas.end(), *carpeta) == carpetas.end())
            carpetas.push_back(std::move(*carpeta));
    }
    return carpetas;
}

} // namespace ovanta
