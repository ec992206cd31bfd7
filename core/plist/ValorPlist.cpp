#include "core/plist/ValorPlist.h"

#include "core/OrdenEstable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace ovanta {

namespace {

bool antes(const EntradaPlist &entrada, std::string_view clave)
{
    return entrada.clave < clave;
}

std::string textoReal(double valor)
{
    char lugar[32];
    const auto [fin, error] = std::to_chars(std::begin(lugar), std::end(lugar), valor);
    return {lugar, fin};
}

struct Escritor
{
    std::string operator()(bool valor) const { return valor ? "1" : "0"; }
    std::string operator()(std::int64_t valor) const { return std::to_string(valor); }
    std::string operator()(std::uint64_t valor) const { return std::to_string(valor); }
    std::string operator()(double valor) const { return textoReal(valor); }
    std::string operator()(Fecha valor) const { return textoISO8601(valor); }
    std::string operator()(UidPlist valor) const { return std::to_string(valor.numero); }
    std::string operator()(const std::string &valor) const { return valor; }
    std::string operator()(const DatosPlist &valor) const
    {
        return std::to_string(valor.bytes.size()) + " bytes";
    }
    std::string operator()(const ListaPlist &valores) const
    {
        std::string texto;
        for (const auto &valor : valores)
            texto += (texto.empty() ? "" : ", ") + textoPlano(valor);
        return "[" + texto + "]";
    }
    std::string operator()(const DiccionarioPlist &valores) const
    {
        std::string texto;
        for (const auto &[clave, valor] : valores.entradas())
            texto += (texto.empty() ? "" : ", ") + clave + ": " + textoPlano(valor);
        return "[" + texto + "]";
    }
};

} // namespace

DiccionarioPlist::DiccionarioPlist(std::initializer_list<EntradaPlist> entradas) : m_entradas(entradas)
{
    ordenar();
}

DiccionarioPlist::DiccionarioPlist(std::vector<EntradaPlist> entradas) : m_entradas(std::move(entradas))
{
    ordenar();
}

void DiccionarioPlist::ordenar()
{
    // Strictly ascending: nothing to sort, nothing twice.
    if (std::ranges::is_sorted(m_entradas, std::ranges::less_equal{}, &EntradaPlist::clave)) return;
    // The last of equal keys comes to stand first, and the others go.
    std::ranges::reverse(m_entradas);
    ordenarEstable(m_entradas, std::less<>{},
                   [](const EntradaPlist &e) { return std::string_view{e.clave}; });
    const auto sobrantes = std::ranges::unique(m_entradas, {}, &EntradaPlist::clave);
    m_entradas.erase(sobrantes.begin(), sobrantes.end());
}

const ValorPlist *DiccionarioPlist::buscar(std::string_view clave) const
{
    const auto lugar = std::lower_bound(m_entradas.begin(), m_entradas.end(), clave, antes);
    return lugar != m_entradas.end() && lugar->clave == clave ? &lugar->valor : nullptr;
}

void DiccionarioPlist::poner(std::string clave, ValorPlist valor)
{
    const auto lugar = std::lower_bound(m_entradas.begin(), m_entradas.end(), std::string_view{clave}, antes);
    if (lugar != m_entradas.end() && lugar->clave == clave)
        lugar->valor = std::move(valor);
    else
        m_entradas.insert(lugar, {std::move(clave), std::move(valor)});
}

bool DiccionarioPlist::operator==(const DiccionarioPlist &otro) const
{
    return m_entradas == otro.m_entradas;
}

std::optional<double> ValorPlist::numero() const
{
    if (const auto *real = si<double>()) return *real;
    if (const auto *grande = si<std::uint64_t>()) return static_cast<double>(*grande);
    if (const auto valor = entero()) return static_cast<double>(*valor);
    return std::nullopt;
}

std::optional<std::int64_t> ValorPlist::entero() const
{
    if (const auto *valor = si<std::int64_t>()) return *valor;
    if (const auto *logico = si<bool>()) return *logico ? 1 : 0;
    constexpr double limite = 9223372036854775808.0; // 2^63, the first real that no longer fits
    const auto *real = si<double>();
    if (!real || !(*real >= -limite && *real < limite) || *real != std::trunc(*real)) return std::nullopt;
    return static_cast<std::int64_t>(*real);
}

bool ValorPlist::operator==(const ValorPlist &otro) const
{
    const auto *real = si<double>();
    const auto *otroReal = otro.si<double>();
    if (real && otroReal && std::isnan(*real)) return std::isnan(*otroReal);
    return m_variante == otro.m_variante;
}

std::string textoPlano(const ValorPlist &valor)
{
    return std::visit(Escritor{}, valor.variante());
}

} // namespace ovanta
