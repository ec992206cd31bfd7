#include "core/Fecha.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>

namespace ovanta {

namespace {

using namespace std::chrono;

/// Takes exactly `cifras` digits off the front.
std::optional<int> tomarNumero(std::string_view &resto, std::size_t cifras)
{
    if (resto.size() < cifras) return std::nullopt;
    int numero = 0;
    for (std::size_t i = 0; i < cifras; ++i) {
        if (resto[i] < '0' || resto[i] > '9') return std::nullopt;
        numero = numero * 10 + (resto[i] - '0');
    }
    resto.remove_prefix(cifras);
    return numero;
}

bool tomar(std::string_view &resto, char letra)
{
    if (resto.empty() || resto.front() != letra) return false;
    resto.remove_prefix(1);
    return true;
}

std::optional<microseconds> tomarFraccion(std::string_view &resto)
{
    if (!tomar(resto, '.')) return microseconds{0};
    std::int64_t micros = 0;
    std::int64_t peso = 100'000;
    std::size_t cifras = 0;
    for (; cifras < resto.size() && resto[cifras] >= '0' && resto[cifras] <= '9'; ++cifras, peso /= 10)
        micros += (resto[cifras] - '0') * peso;
    if (cifras == 0) return std::nullopt;
    resto.remove_prefix(cifras);
    return microseconds{micros};
}

std::optional<minutes> tomarDesfase(std::string_view &resto)
{
    if (tomar(resto, 'Z')) return minutes{0};
    const int signo = tomar(resto, '+') ? 1 : tomar(resto, '-') ? -1 : 0;
    if (signo == 0) return std::nullopt;
    const auto horas = tomarNumero(resto, 2);
    tomar(resto, ':');
    const auto mins = tomarNumero(resto, 2);
    if (!horas || !mins || *horas > 23 || *mins > 59) return std::nullopt;
    return minutes{signo * (*horas * 60 + *mins)};
}

std::optional<sys_days> tomarDia(std::string_view &resto)
{
    const auto anio = tomarNumero(resto, 4);
    if (!anio || !tomar(resto, '-')) return std::nullopt;
    const auto mes = tomarNumero(resto, 2);
    if (!mes || !tomar(resto, '-')) return std::nullopt;
    const auto dia = tomarNumero(resto, 2);
    if (!dia) return std::nullopt;
    const year_month_day fecha{year{*anio}, month{static_cast<unsigned>(*mes)},
                               day{static_cast<unsigned>(*dia)}};
    if (!fecha.ok()) return std::nullopt;
    return sys_days{fecha};
}

std::optional<seconds> tomarHora(std::string_view &resto)
{
    const auto horas = tomarNumero(resto, 2);
    if (!horas || !tomar(resto, ':')) return std::nullopt;
    const auto mins = tomarNumero(resto, 2);
    if (!mins || !tomar(resto, ':')) return std::nullopt;
    const auto segs = tomarNumero(resto, 2);
    if (!segs || *horas > 23 || *mins > 59 || *segs > 60) return std::nullopt;
    return hours{*horas} + minutes{*mins} + seconds{*segs};
}

} // namespace

std::string textoISO8601(Fecha fecha)
{
    const auto segundos = floor<seconds>(fecha);
    const auto dia = floor<days>(segundos);
    const year_month_day civil{dia};
    const hh_mm_ss hora{segundos - dia};
    std::array<char, 48> texto{};
    std::snprintf(texto.data(), texto.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                  static_cast<int>(civil.year()), static_cast<unsigned>(civil.month()),
                  static_cast<unsigned>(civil.day()), static_cast<int>(hora.hours().count()),
                  static_cast<int>(hora.minutes().count()), static_cast<int>(hora.seconds().count()));
    return texto.data();
}

std::optional<Fecha> leerISO8601(std::string_view texto)
{
    const auto dia = tomarDia(texto);
    if (!dia || !tomar(texto, 'T')) return std::nullopt;
    const auto hora = tomarHora(texto);
    if (!hora) return std::nullopt;
    const auto fraccion = tomarFraccion(texto);
    if (!fraccion) return std::nullopt;
    const auto desfase = tomarDesfase(texto);
    if (!desfase || !texto.empty()) return std::nullopt;
    return Fecha{*dia} + *hora + *fraccion - *desfase;
}

} // namespace ovanta
