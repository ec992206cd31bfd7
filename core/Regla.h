#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// One entry of the catalogue: a cache or folder that can be cleaned, and what is known about it.
/// The first eight fields come from the file, the last two from the latest measurement.
struct Regla
{
    std::string id;       ///< stable key, also the label of its history entries
    std::string name;     ///< shown to the user
    std::string path;     ///< bytes; a leading "~" stands for the home directory
    std::string category; ///< "developer", "ml", "browser", "cache" or "user"
    std::string risk;     ///< "safe", "review" or "manual"
    std::string mode;     ///< "self": the item moves whole; else its direct contents do
    std::string why;      ///< shown in the detail
    std::string cost;     ///< what the user loses, shown in the detail
    std::optional<std::uint64_t> bytes;
    bool existe = false;

    bool operator==(const Regla &) const = default;

    /// The category in the user's words; an unknown key is capitalised.
    std::string categoriaLegible() const;
};

/// The rules of one category, largest first.
struct GrupoDeReglas
{
    std::string clave;
    std::string titulo;
    std::vector<Regla> reglas;
};

/// What cleaning every rule with `risk` "safe" would free; a rule without a figure counts as nothing.
std::uint64_t bytesRecuperables(const std::vector<Regla> &reglas);

/// The rules by category in the order in which screens show them, without empty groups. Inside a
/// group by `bytes` descending, an absent size as 0, equal sizes in the order given. Rules of a
/// category that is not known are in no group.
std::vector<GrupoDeReglas> porCategoria(const std::vector<Regla> &reglas);

} // namespace ovanta

template <>
struct std::hash<ovanta::Regla>
{
    std::size_t operator()(const ovanta::Regla &regla) const noexcept;
};
