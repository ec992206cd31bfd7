#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace ovanta {

/// A decoded value of the remote XPC wire format. Numbers keep the sign of their kind; a date is its
/// raw 64-bit number, a UUID its 16 bytes.
struct ValorXPC
{
    using Datos = std::vector<std::uint8_t>;
    using Lista = std::vector<ValorXPC>;
    using Mapa = std::map<std::string, ValorXPC, std::less<>>;
    using Contenido = std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, Datos,
                                   std::string, Lista, Mapa>;

    Contenido contenido = nullptr;

    /// The value where it is a `T`, null otherwise.
    template <typename T>
    const T *como() const
    {
        return std::get_if<T>(&contenido);
    }

    /// What a dictionary has under `clave`; null for any other value and for a missing key.
    const ValorXPC *en(std::string_view clave) const
    {
        const auto *mapa = como<Mapa>();
        if (!mapa) return nullptr;
        const auto hallado = mapa->find(clave);
        return hallado == mapa->end() ? nullptr : &hallado->second;
    }

    friend bool operator==(const ValorXPC &, const ValorXPC &) = default;
};

} // namespace ovanta
