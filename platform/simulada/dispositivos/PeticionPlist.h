#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace ovanta {

/// A request as a device receives it: a flat dictionary of texts and integers.
class PeticionPlist
{
public:
    /// Reads an XML property list. Nothing for anything but such a dictionary, well formed to its end.
    static std::optional<PeticionPlist> leer(std::string_view xml);

    /// The text under a key; empty where there is none.
    std::string texto(const std::string &clave) const;
    std::optional<std::int64_t> entero(const std::string &clave) const;

private:
    std::map<std::string, std::variant<std::string, std::int64_t>> m_valores;
};

} // namespace ovanta
