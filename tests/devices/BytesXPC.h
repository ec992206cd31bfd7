#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Writes the wire forms that tests need, by their own arithmetic.
namespace ovanta::pruebas {

/// `cuantos` bytes of a number, the lowest first.
inline std::string le(std::uint64_t numero, int cuantos)
{
    std::string bytes;
    for (int i = 0; i < cuantos; ++i, numero /= 256)
        bytes.push_back(static_cast<char>(numero % 256));
    return bytes;
}

/// The same, the highest first.
inline std::string be(std::uint64_t numero, int cuantos)
{
    const std::string alReves = le(numero, cuantos);
    return {alReves.rbegin(), alReves.rend()};
}

inline std::string rellenar(std::string bytes)
{
    while (bytes.size() % 4 != 0)
        bytes.push_back('\0');
    return bytes;
}

inline std::string xpcTexto(const std::string &texto)
{
    return le(0x9000, 4) + le(texto.size() + 1, 4) + rellenar(texto + '\0');
}

inline std::string xpcClave(const std::string &texto)
{
    return rellenar(texto + '\0');
}

/// A container with its honest length.
inline std::string xpcContenedor(std::uint32_t tipo, std::uint32_t cuantos, const std::string &contenido)
{
    return le(tipo, 4) + le(4 + contenido.size(), 4) + le(cuantos, 4) + contenido;
}

inline std::string xpcMapa(const std::vector<std::pair<std::string, std::string>> &entradas)
{
    std::string contenido;
    for (const auto &[clave, valor] : entradas)
        contenido += xpcClave(clave) + valor;
    return xpcContenedor(0xF000, static_cast<std::uint32_t>(entradas.size()), contenido);
}

inline std::string xpcLista(const std::vector<std::string> &elementos)
{
    std::string contenido;
    for (const std::string &uno : elementos)
        contenido += uno;
    return xpcContenedor(0xE000, static_cast<std::uint32_t>(elementos.size()), contenido);
}

/// A wrapper around `valor`; around nothing where that is empty.
inline std::string xpcMensaje(const std::string &valor, std::uint32_t flags = 1)
{
    const std::string cuerpo = valor.empty() ? valor : le(0x42133742, 4) + le(5, 4) + valor;
    return le(0x29B00B92, 4) + le(flags, 4) + le(cuerpo.size(), 8) + le(7, 8) + cuerpo;
}

inline std::string xpcServicio(const std::string &puerto)
{
    return xpcMapa({{"Port", xpcTexto(puerto)}, {"Entitlement", xpcTexto("com.example")}});
}

/// What a device tells of itself at first.
inline std::string xpcSaludo(const std::string &servicios)
{
    return xpcMapa({{"MessageType", xpcTexto("Handshake")},
                    {"MessagingProtocolVersion", le(0x4000, 4) + le(5, 8)},
                    {"Services", servicios},
                    {"UUID", le(0xA000, 4) + std::string(16, 'u')}});
}

} // namespace ovanta::pruebas
