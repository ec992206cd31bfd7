#include "platform/linux/LineaDeOrdenes.h"

#include "platform/linux/Renglones.h"

namespace ovanta {

namespace {

constexpr std::size_t palabrasMaximas = 1000;

} // namespace

std::vector<std::string> palabrasDeLinea(std::string_view cmdline)
{
    std::vector<std::string> palabras;
    while (!cmdline.empty() && palabras.size() < palabrasMaximas)
        palabras.emplace_back(cortar(cmdline, '\0'));
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
        const std::string_view palabra = cortar(environ, '\0');
        if (palabra.size() > nombre.size() && palabra[nombre.size()] == '=' && palabra.starts_with(nombre))
            return palabra.substr(nombre.size() + 1);
    }
    return std::nullopt;
}

} // namespace ovanta
