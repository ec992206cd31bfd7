#pragma once

#include "core/Fecha.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ovanta {

class ValorPlist;
struct EntradaPlist;

/// Bytes that are no text.
struct DatosPlist
{
    std::string bytes;

    bool operator==(const DatosPlist &) const = default;
};

/// The reference number that archives put in a property list.
struct UidPlist
{
    std::uint64_t numero = 0;

    bool operator==(const UidPlist &) const = default;
};

using ListaPlist = std::vector<ValorPlist>;

/// Values by UTF-8 text. It is kept in ascending byte order of its keys, each of which stands once.
class DiccionarioPlist
{
public:
    DiccionarioPlist();
    DiccionarioPlist(const DiccionarioPlist &);
    DiccionarioPlist(DiccionarioPlist &&) noexcept;
    DiccionarioPlist &operator=(const DiccionarioPlist &);
    DiccionarioPlist &operator=(DiccionarioPlist &&) noexcept;
    ~DiccionarioPlist();
    /// Of a key that comes twice the last value counts.
    DiccionarioPlist(std::initializer_list<EntradaPlist> entradas);
    explicit DiccionarioPlist(std::vector<EntradaPlist> entradas);

    /// The value of a key; null where there is none. Valid until the dictionary changes.
    const ValorPlist *buscar(std::string_view clave) const;
    /// The value of a key where it has this very type: `valor<std::string>("Request")`.
    template <typename Tipo>
    const Tipo *valor(std::string_view clave) const;
    /// Adds a value, or replaces that of the key.
    void poner(std::string clave, ValorPlist valor);

    const std::vector<EntradaPlist> &entradas() const { return m_entradas; }
    std::size_t size() const;
    bool empty() const { return size() == 0; }

    bool operator==(const DiccionarioPlist &otro) const;

private:
    void ordenar();

    std::vector<EntradaPlist> m_entradas;
};

/// One value of a property list. An integer is held signed where it fits, and unsigned only above
/// 2^63 - 1, so that equal numbers are equal values.
class ValorPlist
{
public:
    using Variante = std::variant<bool, std::int64_t, std::uint64_t, double, Fecha, UidPlist, std::string,
                                  DatosPlist, ListaPlist, DiccionarioPlist>;

    /// An empty dictionary.
    ValorPlist();
    template <std::same_as<bool> Logico>
    ValorPlist(Logico valor) : m_variante(valor)
    {
    }
    template <std::integral Entero>
        requires(!std::same_as<Entero, bool>)
    ValorPlist(Entero valor)
    {
        if (std::in_range<std::int64_t>(valor))
            m_variante = static_cast<std::int64_t>(valor);
        else
            m_variante = static_cast<std::uint64_t>(valor);
    }
    ValorPlist(double valor) : m_variante(valor) {}
    ValorPlist(Fecha valor) : m_variante(valor) {}
    ValorPlist(UidPlist valor) : m_variante(valor) {}
    ValorPlist(std::string valor) : m_variante(std::move(valor)) {}
    ValorPlist(const char *valor) : m_variante(std::string(valor)) {}
    ValorPlist(DatosPlist valor) : m_variante(std::move(valor)) {}
    ValorPlist(ListaPlist valor) : m_variante(std::move(valor)) {}
    ValorPlist(DiccionarioPlist valor) : m_variante(std::move(valor)) {}

    const Variante &variante() const { return m_variante; }
    Variante &variante() { return m_variante; }

    /// The value where it has this very type, else null.
    template <typename Tipo>
    const Tipo *si() const
    {
        return std::get_if<Tipo>(&m_variante);
    }

    /// Any number as a real: integers, reals, and a boolean as 0 or 1. Else nothing.
    std::optional<double> numero() const;
    /// An integer that fits, a real without a fraction that fits, a boolean as 0 or 1. Else nothing.
    std::optional<std::int64_t> entero() const;

    /// Equal type and equal value; two NaN are equal.
    bool operator==(const ValorPlist &otro) const;

private:
    Variante m_variante;
};

struct EntradaPlist
{
    std::string clave;
    ValorPlist valor;

    bool operator==(const EntradaPlist &) const = default;
};

// Only here do the entries have a size.
inline DiccionarioPlist::DiccionarioPlist() = default;
inline DiccionarioPlist::DiccionarioPlist(const DiccionarioPlist &) = default;
inline DiccionarioPlist::DiccionarioPlist(DiccionarioPlist &&) noexcept = default;
inline DiccionarioPlist &DiccionarioPlist::operator=(const DiccionarioPlist &) = default;
inline DiccionarioPlist &DiccionarioPlist::operator=(DiccionarioPlist &&) noexcept = default;
inline DiccionarioPlist::~DiccionarioPlist() = default;
inline std::size_t DiccionarioPlist::size() const
{
    return m_entradas.size();
}
inline ValorPlist::ValorPlist() : ValorPlist(DiccionarioPlist{}) {}

template <typename Tipo>
const Tipo *DiccionarioPlist::valor(std::string_view clave) const
{
    const ValorPlist *hallado = buscar(clave);
    return hallado ? hallado->si<Tipo>() : nullptr;
}

/// A value as it is put into a message: a text as it stands, a number in decimal, a boolean as 1 or 0,
/// a date as ISO 8601, data as the count of its bytes, the others with their values in brackets.
std::string textoPlano(const ValorPlist &valor);

} // namespace ovanta
