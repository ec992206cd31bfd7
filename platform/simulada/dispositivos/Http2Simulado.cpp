#include "platform/simulada/dispositivos/Http2Simulado.h"

namespace ovanta {

namespace {

constexpr std::uint32_t limiteDeCarga = 1U << 20U;

void poner(std::string &salida, std::uint64_t numero, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i)
        salida.push_back(static_cast<char>((numero >> (8 * i)) & 0xff));
}

std::uint32_t numeroDe(std::string_view bytes)
{
    std::uint32_t numero = 0;
    for (const char byte : bytes)
        numero = numero << 8U | static_cast<unsigned char>(byte);
    return numero;
}

} // namespace

std::string MarcoHttp2::bytes() const
{
    std::string salida;
    poner(salida, carga.size(), 3);
    poner(salida, tipo, 1);
    poner(salida, banderas, 1);
    poner(salida, flujo, 4);
    return salida + carga;
}

MarcoHttp2 MarcoHttp2::leer(CanalSimulado &canal)
{
    const std::string cabecera = canal.leer(9);
    const std::string_view vista = cabecera;
    const std::uint32_t longitud = numeroDe(vista.substr(0, 3));
    if (longitud > limiteDeCarga) throw FinDeConversacion{};
    return {static_cast<std::uint8_t>(vista[3]), static_cast<std::uint8_t>(vista[4]),
            numeroDe(vista.substr(5)), canal.leer(longitud)};
}

std::string ajusteHttp2(std::uint16_t identificador, std::uint32_t valor)
{
    std::string entrada;
    poner(entrada, identificador, 2);
    poner(entrada, valor, 4);
    return entrada;
}

} // namespace ovanta
