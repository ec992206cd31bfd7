#include "platform/linux/InterpretarContadores.h"

#include "platform/linux/Renglones.h"

#include <algorithm>
#include <array>

namespace ovanta {

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

} // namespace ovanta
