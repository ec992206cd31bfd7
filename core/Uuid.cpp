#include "core/Uuid.h"

#include "core/Hexadecimal.h"

#include <array>
#include <cerrno>
#include <sys/random.h>
#include <system_error>

namespace ovanta {

namespace {

constexpr std::array<std::size_t, 4> guiones{8, 13, 18, 23};
constexpr std::size_t largo = 36;

} // namespace

std::string uuidNuevo()
{
    std::array<char, 16> azar{};
    if (::getentropy(azar.data(), azar.size()) != 0) throw std::system_error(errno, std::generic_category());
    azar[6] = static_cast<char>((azar[6] & 0x0F) | 0x40);
    azar[8] = static_cast<char>((azar[8] & 0x3F) | 0x80);
    std::string texto = aHexadecimal({azar.data(), azar.size()});
    for (const auto guion : guiones)
        texto.insert(guion, 1, '-');
    return texto;
}

bool esUuid(std::string_view texto)
{
    if (texto.size() != largo) return false;
    std::string cifras(texto);
    for (auto guion = guiones.rbegin(); guion != guiones.rend(); ++guion) {
        if (cifras[*guion] != '-') return false;
        cifras.erase(*guion, 1);
    }
    return deHexadecimal(cifras).has_value();
}

} // namespace ovanta
