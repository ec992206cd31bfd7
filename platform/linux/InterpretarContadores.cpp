#include "platform/linux/InterpretarContadores.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ovanta {

namespace {

std::string_view cortar(std::string_view &resto, char fin)
{
    const std::size_t hasta = std::min(resto.find(fin), resto.size());
    const std::string_view parte = resto.substr(0, hasta);
    resto.remove_prefix(std::min(hasta + 1, resto.size()));
    return parte;
}

void saltarEspacios(std::string_view &resto)
{
    resto.remove_prefix(std::min(resto.find_first_not_of(" \t"), resto.size()));
}

/// The next number of a line, taken off its front.
std::optional<std::uint64_t> numero(std::string_view &resto)
{
    saltarEspacios(resto);
    std::uint64_t valor = 0;
    const auto [fin, error] = std::from_chars(resto.data(), resto.data() + resto.size(), valor);
    if (error != std::errc{}) return std::nullopt;
    resto.remove_prefix(static_cast<std::size_t>(fin - resto.data()));
    return valor;
}

/// The numbers of a line in order; those that are not there stay 0. Tells how many there are.
template <std::size_t N>
std::size_t numeros(std::string_view linea, std::array<std::uint64_t, N> &valores)
{
    for (std::size_t i = 0; i < N; ++i) {
        const std::optional<std::uint64_t> valor = numero(linea);
        if (!valor) return i;
        valores[i] = *valor;
    }
    return N;
}

struct CampoMeminfo
{
    std::string_view clave;
    std::uint64_t Contadores::Memoria::*destino;
};

constexpr CampoMeminfo camposMeminfo[] = {
    {"MemTotal", &Contadores::Memoria::fisica},   {"AnonPages", &Contadores::Memoria::apps},
    {"Shmem", &Contadores::Memoria::apps},        {"SUnreclaim", &Contadores::Memoria::wired},
    {"KernelStack", &Contadores::Memoria::wired}, {"PageTables", &Contadores::Memoria::wired},
    {"Percpu", &Contadores::Memoria::wired},      {"Mlocked", &Contadores::Memoria::wired},
    {"Zswap", &Contadores::Memoria::comprimida},
};

} // namespace

std::optional<Contadores::Ticks> interpretarStat(std::string_view texto)
{
    std::string_view linea = cortar(texto, '\n');
    if (!linea.starts_with("cpu ")) return std::nullopt;
    linea.remove_prefix(4);
    // user nice system idle iowait irq softirq; guests are part of user and nice.
    std::array<std::uint64_t, 7> valores{};
    if (numeros(linea, valores) < 4) return std::nullopt;
    return Contadores::Ticks{.user = valores[0],
                             .system = valores[2] + valores[5] + valores[6],
                             .idle = valores[3] + valores[4],
                             .nice = valores[1]};
}

Contadores::Red interpretarNetDev(std::string_view texto,
                                  const std::function<bool(std::string_view interfaz)> &cuenta)
{
    constexpr std::size_t recibidos = 0;
    constexpr std::size_t enviados = 8;
    Contadores::Red suma;
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        saltarEspacios(linea);
        if (linea.find(':') == std::string_view::npos) continue;
        const std::string_view interfaz = cortar(linea, ':');
        std::array<std::uint64_t, enviados + 1> valores{};
        if (numeros(linea, valores) < valores.size() || !cuenta(interfaz)) continue;
        suma.entrada += valores[recibidos];
        suma.salida += valores[enviados];
    }
    return suma;
}

bool nombreDeTarjeta(std::string_view interfaz)
{
    constexpr std::string_view principios[] = {"en", "eth", "wl", "ww"};
    return std::ranges::any_of(
        principios, [interfaz](std::string_view principio) { return interfaz.starts_with(principio); });
}

std::optional<Contadores::Memoria> interpretarMeminfo(std::string_view texto)
{
    Contadores::Memoria memoria;
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        const std::string_view clave = cortar(linea, ':');
        const auto *campo = std::ranges::find(camposMeminfo, clave, &CampoMeminfo::clave);
        if (campo == std::end(camposMeminfo)) continue;
        memoria.*(campo->destino) += numero(linea).value_or(0) * 1024;
    }
    if (memoria.fisica == 0) return std::nullopt;
    return memoria;
}

std::uint64_t interpretarZram(std::string_view texto)
{
    std::array<std::uint64_t, 3> valores{};
    return numeros(texto, valores) == valores.size() ? valores[2] : 0;
}

} // namespace ovanta
