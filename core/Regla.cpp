#include "core/Regla.h"

#include "core/Tamano.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace ovanta {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> categoriasEnOrden{{
    {"developer", "Desarrollo"},
    {"ml", "Machine learning"},
    {"cache", "Cachés del sistema"},
    {"browser", "Navegadores"},
    {"user", "Tus carpetas"},
}};

/// Letters of ASCII and of the Latin-1 supplement, which hold every Spanish one, in UTF-8.
void cambiarLetra(char &byte, char anterior, bool mayuscula)
{
    const auto c = static_cast<unsigned char>(byte);
    const bool latina = static_cast<unsigned char>(anterior) == 0xC3;
    const bool minusculaAscii = c >= 'a' && c <= 'z';
    const bool mayusculaAscii = c >= 'A' && c <= 'Z';
    // 0xB7 and 0x97 are the signs of division and multiplication; 0xBF has its capital elsewhere.
    const bool minusculaLatina = latina && c >= 0xA0 && c <= 0xBE && c != 0xB7;
    const bool mayusculaLatina = latina && c >= 0x80 && c <= 0x9E && c != 0x97;
    if (mayuscula && (minusculaAscii || minusculaLatina)) byte = static_cast<char>(c - 0x20);
    if (!mayuscula && (mayusculaAscii || mayusculaLatina)) byte = static_cast<char>(c + 0x20);
}

/// Each word with a capital first letter and small ones after it.
std::string capitalizar(std::string texto)
{
    bool inicio = true;
    char anterior = ' ';
    for (char &byte : texto) {
        const char original = byte;
        const bool primerByteDeLetra = static_cast<unsigned char>(byte) == 0xC3;
        cambiarLetra(byte, anterior, inicio);
        if (!primerByteDeLetra) inicio = byte == ' ' || byte == '\t' || byte == '\n';
        anterior = original;
    }
    return texto;
}

std::vector<Regla> deCategoria(const std::vector<Regla> &reglas, std::string_view clave)
{
    std::vector<const Regla *> halladas;
    for (const Regla &regla : reglas) {
        if (regla.category == clave) halladas.push_back(&regla);
    }
    // Equal sizes keep their order in the list, which is that of their addresses.
    std::ranges::sort(halladas, [](const Regla *a, const Regla *b) {
        return std::pair(b->bytes.value_or(0), a) < std::pair(a->bytes.value_or(0), b);
    });
    std::vector<Regla> copias;
    for (const Regla *regla : halladas)
        copias.push_back(*regla);
    return copias;
}

} // namespace

std::string Regla::categoriaLegible() const
{
    const auto hallada =
        std::ranges::find(categoriasEnOrden, category, &std::pair<std::string_view, std::string_view>::first);
    return hallada == categoriasEnOrden.end() ? capitalizar(category) : std::string(hallada->second);
}

std::uint64_t bytesRecuperables(const std::vector<Regla> &reglas)
{
    std::uint64_t total = 0;
    for (const Regla &regla : reglas) {
        if (regla.risk == "safe") total = sumar(total, regla.bytes.value_or(0));
    }
    return total;
}

std::vector<GrupoDeReglas> porCategoria(const std::vector<Regla> &reglas)
{
    std::vector<GrupoDeReglas> grupos;
    for (const auto &[clave, titulo] : categoriasEnOrden) {
        GrupoDeReglas grupo{std::string(clave), std::string(titulo), deCategoria(reglas, clave)};
        if (!grupo.reglas.empty()) grupos.push_back(std::move(grupo));
    }
    return grupos;
}

} // namespace ovanta

std::size_t std::hash<ovanta::Regla>::operator()(const ovanta::Regla &regla) const noexcept
{
    std::size_t suma = 0;
    const auto mezclar = [&suma](std::size_t parte) { suma = suma * 31 + parte; };
    for (const std::string *campo : {&regla.id, &regla.name, &regla.path, &regla.category, &regla.risk,
                                     &regla.mode, &regla.why, &regla.cost}) {
        mezclar(std::hash<std::string>{}(*campo));
    }
    mezclar(std::hash<std::optional<std::uint64_t>>{}(regla.bytes));
    mezclar(regla.existe ? 1 : 0);
    return suma;
}
