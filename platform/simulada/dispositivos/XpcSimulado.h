#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ovanta {

struct EntradaXpc;

/// A value as a device sends it in an XPC object.
struct ValorXpc
{
    struct Nulo
    {
    };
    struct Momento
    {
        std::int64_t nanosegundos;
    };
    struct Datos
    {
        std::string bytes;
    };
    using Uuid = std::array<unsigned char, 16>;
    /// A type word with nothing behind it, for instance one that the client does not know.
    struct PalabraSuelta
    {
        std::uint32_t palabra;
    };
    using Lista = std::vector<ValorXpc>;
    using Diccionario = std::vector<EntradaXpc>; ///< in the order given; a key may come twice

    std::variant<Nulo, bool, std::int64_t, std::uint64_t, double, Momento, Datos, std::string, Uuid,
                 PalabraSuelta, Lista, Diccionario>
        valor;
};

struct EntradaXpc
{
    std::string clave;
    ValorXpc valor;
};

/// An XPC object: its magic, its version (5) and the value, padded to four bytes.
std::string objetoXpc(const ValorXpc &valor);

/// A RemoteXPC wrapper: magic, flags, length of the body, message id, body.
std::string envolturaXpc(std::uint32_t banderas, std::uint64_t mensaje, std::string_view cuerpo);

} // namespace ovanta
