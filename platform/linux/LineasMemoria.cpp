#include "platform/linux/LineasMemoria.h"

#include "core/Tamano.h"
#include "platform/linux/Renglones.h"

namespace ovanta {

namespace {

/// Takes a word off the front, with the blanks around it.
std::string_view palabra(std::string_view &resto)
{
    saltarEspacios(resto);
    const std::size_t largo = std::min(resto.find_first_of(" \t"), resto.size());
    const std::string_view primera = resto.substr(0, largo);
    resto.remove_prefix(largo);
    return primera;
}

/// "12.34" as 1234; a third decimal and what follows is not looked at.
std::optional<std::uint64_t> centesimas(std::string_view texto)
{
    const auto enteras = numero(texto);
    if (!enteras) return std::nullopt;
    std::uint64_t valor = multiplicarConTope(*enteras, 100);
    if (!texto.starts_with('.')) return valor;
    texto.remove_prefix(1);
    for (std::uint64_t peso : {std::uint64_t{10}, std::uint64_t{1}}) {
        if (texto.empty() || texto.front() < '0' || texto.front() > '9') break;
        valor = sumarConTope(valor, static_cast<std::uint64_t>(texto.front() - '0') * peso);
        texto.remove_prefix(1);
    }
    return valor;
}

} // namespace

std::uint64_t interpretarZram(std::string_view texto)
{
    std::array<std::uint64_t, 3> valores{};
    return numeros(texto, valores) == valores.size() ? valores[2] : 0;
}

std::uint64_t interpretarBytesEscritos(std::string_view texto)
{
    constexpr std::uint64_t sector = 512;
    std::array<std::uint64_t, 7> valores{};
    return numeros(texto, valores) == valores.size() ? multiplicarConTope(valores[6], sector) : 0;
}

std::uint64_t interpretarPswpout(std::string_view texto)
{
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        if (palabra(linea) == "pswpout") return numero(linea).value_or(0);
    }
    return 0;
}

SwapEnZram interpretarSwaps(std::string_view texto)
{
    constexpr std::string_view principio = "/dev/zram";
    constexpr std::string_view cifras = "0123456789";
    SwapEnZram swap;
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        const std::string_view archivo = palabra(linea);
        if (!archivo.starts_with(principio) || archivo.size() == principio.size()) continue;
        if (archivo.substr(principio.size()).find_first_not_of(cifras) != std::string_view::npos) continue;
        palabra(linea); // its type
        std::array<std::uint64_t, 2> valores{};
        if (numeros(linea, valores) < valores.size()) continue;
        swap.dispositivos.emplace_back(archivo.substr(std::string_view("/dev/").size()));
        swap.total = sumarConTope(swap.total, multiplicarConTope(valores[0], 1024));
        swap.usado = sumarConTope(swap.usado, multiplicarConTope(valores[1], 1024));
    }
    return swap;
}

std::optional<PresionPSI> interpretarPresion(std::string_view texto)
{
    constexpr std::string_view clave = "avg10=";
    std::optional<std::uint64_t> some, full;
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        const std::string_view quien = palabra(linea);
        const std::string_view media = palabra(linea);
        if (!media.starts_with(clave)) continue;
        if (quien == "some") some = centesimas(media.substr(clave.size()));
        if (quien == "full") full = centesimas(media.substr(clave.size()));
    }
    if (!some || !full) return std::nullopt;
    return PresionPSI{.some = *some, .full = *full};
}

} // namespace ovanta
