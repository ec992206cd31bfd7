#include "platform/linux/InfoPapelera.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <ctime>

namespace ovanta {

namespace {

constexpr std::string_view grupo = "[Trash Info]";
constexpr std::string_view lineaRuta = "Path=";
constexpr std::string_view lineaFecha = "DeletionDate=";

bool esLiteral(unsigned char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~' || c == '/';
}

/// The number that the whole of `digitos` is; nothing for anything else, a sign included.
std::optional<int> numeroEntero(std::string_view digitos, int base = 10)
{
    int valor = 0;
    if (digitos.empty() || digitos.front() == '-') return std::nullopt;
    const auto [fin, error] = std::from_chars(digitos.data(), digitos.data() + digitos.size(), valor, base);
    if (error != std::errc{} || fin != digitos.data() + digitos.size()) return std::nullopt;
    return valor;
}

std::string textoFechaLocal(Fecha fecha)
{
    const std::time_t segundos = std::chrono::floor<std::chrono::seconds>(fecha).time_since_epoch().count();
    std::tm local{};
    ::localtime_r(&segundos, &local);
    std::array<char, 80> texto{};
    // strftime would not pad the year.
    std::snprintf(texto.data(), texto.size(), "%04d-%02d-%02dT%02d:%02d:%02d", local.tm_year + 1900,
                  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return texto.data();
}

/// The moment of a local time; with `verano` 0 or 1 only if that is the time then in force.
std::optional<std::time_t> momento(std::tm local, int verano)
{
    std::tm pedido = local;
    pedido.tm_isdst = verano;
    const std::time_t segundos = std::mktime(&pedido);
    const bool mismaHora =
        pedido.tm_mday == local.tm_mday && pedido.tm_hour == local.tm_hour && pedido.tm_min == local.tm_min;
    if (verano >= 0 && !mismaHora) return std::nullopt;
    return segundos;
}

/// "YYYY-MM-DDThh:mm:ss" as fields; nothing for any other shape or a day that does not exist.
std::optional<std::tm> camposDeFecha(std::string_view texto)
{
    if (texto.size() != 19) return std::nullopt;
    if (texto[4] != '-' || texto[7] != '-' || texto[10] != 'T' || texto[13] != ':' || texto[16] != ':')
        return std::nullopt;
    const auto ano = numeroEntero(texto.substr(0, 4)), mes = numeroEntero(texto.substr(5, 2)),
               dia = numeroEntero(texto.substr(8, 2));
    const auto hora = numeroEntero(texto.substr(11, 2)), minuto = numeroEntero(texto.substr(14, 2)),
               segundo = numeroEntero(texto.substr(17, 2));
    if (!ano || !mes || !dia || !hora || !minuto || !segundo) return std::nullopt;
    const std::chrono::year_month_day calendario{std::chrono::year{*ano},
                                                 std::chrono::month{static_cast<unsigned>(*mes)},
                                                 std::chrono::day{static_cast<unsigned>(*dia)}};
    if (!calendario.ok() || *hora > 23 || *minuto > 59 || *segundo > 59) return std::nullopt;
    std::tm campos{};
    campos.tm_year = *ano - 1900;
    campos.tm_mon = *mes - 1;
    campos.tm_mday = *dia;
    campos.tm_hour = *hora;
    campos.tm_min = *minuto;
    campos.tm_sec = *segundo;
    return campos;
}

std::optional<Fecha> leerFechaLocal(std::string_view texto)
{
    const auto campos = camposDeFecha(texto);
    if (!campos) return std::nullopt;
    std::optional<std::time_t> ultimo;
    for (const int verano : {-1, 0, 1})
        ultimo = std::max(ultimo, momento(*campos, verano));
    return Fecha{std::chrono::seconds{*ultimo}};
}

} // namespace

std::string codificarPorcentaje(std::string_view bytes)
{
    constexpr std::string_view cifras = "0123456789ABCDEF";
    std::string texto;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (esLiteral(byte)) {
            texto += c;
        } else {
            texto += '%';
            texto += cifras[byte >> 4];
            texto += cifras[byte & 15];
        }
    }
    return texto;
}

std::optional<std::string> decodificarPorcentaje(std::string_view texto)
{
    std::string bytes;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] != '%') {
            bytes += texto[i];
            continue;
        }
        const std::string_view cifras = texto.substr(i + 1, 2);
        const auto byte = cifras.size() == 2 ? numeroEntero(cifras, 16) : std::nullopt;
        if (!byte || *byte == 0) return std::nullopt;
        bytes += static_cast<char>(*byte);
        i += 2;
    }
    return bytes;
}

std::string escribirInfo(const InfoPapelera &info)
{
    std::string texto(grupo);
    texto.append("\n").append(lineaRuta).append(codificarPorcentaje(info.ruta));
    texto.append("\n").append(lineaFecha).append(textoFechaLocal(info.fecha)).append("\n");
    return texto;
}

std::optional<InfoPapelera> leerInfo(std::string_view texto)
{
    std::optional<std::string_view> ruta, fecha;
    bool enGrupo = false;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        const std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        if (linea.starts_with('[')) enGrupo = linea == grupo;
        if (!enGrupo) continue;
        if (!ruta && linea.starts_with(lineaRuta)) ruta = linea.substr(lineaRuta.size());
        if (!fecha && linea.starts_with(lineaFecha)) fecha = linea.substr(lineaFecha.size());
    }
    if (!ruta || ruta->empty() || !fecha) return std::nullopt;
    const auto bytes = decodificarPorcentaje(*ruta);
    const auto cuando = leerFechaLocal(*fecha);
    if (!bytes || bytes->contains('\0') || !cuando) return std::nullopt;
    return InfoPapelera{.ruta = *bytes, .fecha = *cuando};
}

} // namespace ovanta
