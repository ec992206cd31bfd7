#include "platform/linux/LineaDeOrdenes.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr std::size_t palabrasMaximas = 1000;

std::string_view siguiente(std::string_view &bytes)
{
    const std::size_t fin = std::min(bytes.find('\0'), bytes.size());
    const std::string_view palabra = bytes.substr(0, fin);
    bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    return palabra;
}

} // namespace

std::vector<std::string> palabrasDeLinea(std::string_view cmdline)
{
    std::vector<std::string> palabras;
    while (!cmdline.empty() && palabras.size() < palabrasMaximas)
        palabras.emplace_back(siguiente(cmdline));
    return palabras;
}

std::string guionDe(const std::vector<std::string> &palabras)
{
    for (std::size_t i = 1; i < palabras.size(); ++i) {
        if (palabras[i] == "-c" || palabras[i] == "-m" || palabras[i] == "-e") return {};
        if (!palabras[i].empty() && palabras[i].front() != '-') return palabras[i];
    }
    return {};
}

std::optional<std::string_view> variableDe(std::string_view environ, std::string_view nombre)
{
    while (!environ.empty()) {
        const std::string_view palabra = siguiente(environ);
        if (palabra.size() > nombre.size() && palabra[nombre.size()] == '=' && palabra.starts_with(nombre))
            return palabra.substr(nombre.size() + 1);
    }
    return std::nullopt;
}

} // namespace ovanta
