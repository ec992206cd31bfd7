#include "devices/TramasHttp2.h"

#include "core/BigEndian.h"

#include <cassert>

namespace ovanta::http2 {

Cabecera leerCabecera(std::string_view bytes)
{
    assert(bytes.size() == Cabecera::bytes);
    return {.longitud = static_cast<std::uint32_t>(leerBigEndian(bytes.substr(0, 3))),
            .tipo = static_cast<std::uint8_t>(bytes[3]),
            .flags = static_cast<std::uint8_t>(bytes[4]),
            .stream = static_cast<std::uint32_t>(leerBigEndian(bytes.substr(5, 4)))};
}

std::string frame(std::uint8_t tipo, std::uint8_t flags, std::uint32_t stream, std::string_view carga)
{
    return aBigEndian(carga.size(), 3) + aBigEndian(tipo, 1) + aBigEndian(flags, 1) + aBigEndian(stream, 4) +
           std::string(carga);
}

std::string ajuste(std::uint16_t id, std::uint32_t valor)
{
    return aBigEndian(id, 2) + aBigEndian(valor, 4);
}

std::string incremento(std::uint32_t bytes)
{
    return aBigEndian(bytes, 4);
}

} // namespace ovanta::http2
