#include "devices/TramasHttp2.h"

#include <cassert>

namespace ovanta::http2 {

namespace {

void anadir(std::string &bytes, std::uint32_t numero, int cuantos)
{
    for (int i = cuantos - 1; i >= 0; --i)
        bytes.push_back(static_cast<char>(numero >> (8 * i) & 0xFF));
}

std::uint32_t leer(std::string_view bytes)
{
    std::uint32_t numero = 0;
    for (const char byte : bytes)
        numero = numero << 8 | static_cast<unsigned char>(byte);
    return numero;
}

} // namespace

Cabecera leerCabecera(std::string_view bytes)
{
    assert(bytes.size() == Cabecera::bytes);
    return {.longitud = leer(bytes.substr(0, 3)),
            .tipo = static_cast<std::uint8_t>(bytes[3]),
            .flags = static_cast<std::uint8_t>(bytes[4]),
            .stream = leer(bytes.substr(5, 4))};
}

std::string frame(std::uint8_t tipo, std::uint8_t flags, std::uint32_t stream, std::string_view carga)
{
    std::string bytes;
    bytes.reserve(Cabecera::bytes + carga.size());
    anadir(bytes, static_cast<std::uint32_t>(carga.size()), 3);
    anadir(bytes, tipo, 1);
    anadir(bytes, flags, 1);
    anadir(bytes, stream, 4);
    return bytes.append(carga);
}

std::string ajuste(std::uint16_t id, std::uint32_t valor)
{
    std::string bytes;
    anadir(bytes, id, 2);
    anadir(bytes, valor, 4);
    return bytes;
}

std::string incremento(std::uint32_t bytes)
{
    std::string carga;
    anadir(carga, bytes, 4);
    return carga;
}

} // namespace ovanta::http2
