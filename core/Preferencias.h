#pragma once

#include "core/Fecha.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ovanta {

/// The user's settings: a flat map from key to value that outlives the program.
/// Every reader sees the newest value at once; no copy is kept by the callers.
/// All members may be called from any thread.
class Preferencias
{
public:
    /// Text is bytes: paths that are not UTF-8 survive. `std::vector<std::string>` is a list of
    /// such texts.
    using Valor = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>, Fecha>;

    virtual ~Preferencias() = default;

    /// The value that `leer` gives while `clave` holds nothing. Never written to disk.
    virtual void registrar(std::string_view clave, Valor porDefecto) = 0;

    /// The stored value, else the registered one, else nothing.
    virtual std::optional<Valor> leer(std::string_view clave) const = 0;

    /// Stores a value. It is in effect at once and on disk soon after; a failing disk is ignored.
    virtual void fijar(std::string_view clave, Valor valor) = 0;

    /// Forgets the stored value; the registered one holds again.
    virtual void quitar(std::string_view clave) = 0;

    /// The value under `clave` read as the given kind; another kind or nothing gives the zero of
    /// that kind. A whole number counts as a real one and the other way round (cut towards zero).
    bool booleano(std::string_view clave) const;
    double real(std::string_view clave) const;
    std::int64_t entero(std::string_view clave) const;
    std::vector<std::string> lista(std::string_view clave) const;

    /// A boolean only where one is really stored or registered under `clave`.
    std::optional<bool> booleanoSiHay(std::string_view clave) const;
};

} // namespace ovanta
