#include "platform/linux/MaquinaVirtual.h"

#include "core/Rutas.h"
#include "core/Utf8.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr std::size_t limiteNombre = 128;

/// qemu(1): "-name guest=web,debug-threads=on", or the name alone before the first comma.
std::string_view nombreDeQemu(std::string_view valor)
{
    constexpr std::string_view clave = "guest=";
    if (const std::size_t lugar = valor.find(clave); lugar != valor.npos)
        valor = valor.substr(lugar + clave.size());
    return valor.substr(0, valor.find(','));
}

std::string_view nombreSegun(std::string_view palabra, std::string_view valor)
{
    if (palabra == "-name") return nombreDeQemu(valor);
    if (palabra == "-avd" || palabra == "--comment") return valor;
    if (!palabra.ends_with(".vmx")) return {};
    palabra = ultimoComponente(palabra);
    return palabra.substr(0, palabra.size() - 4);
}

bool sirve(std::string_view nombre)
{
    return !nombre.empty() && nombre.size() <= limiteNombre && esUtf8(nombre) &&
           std::ranges::none_of(nombre, [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

} // namespace

std::optional<std::string> nombreDeMaquina(const std::vector<std::string> &palabras)
{
    for (std::size_t i = 1; i < palabras.size(); ++i) {
        const std::string_view valor = i + 1 < palabras.size() ? std::string_view{palabras[i + 1]} : "";
        if (const auto nombre = nombreSegun(palabras[i], valor); sirve(nombre)) return std::string{nombre};
    }
    return std::nullopt;
}

} // namespace ovanta
