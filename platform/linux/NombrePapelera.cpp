#include "platform/linux/NombrePapelera.h"

#include "platform/linux/InfoPapelera.h"

namespace ovanta {

namespace {

/// At most `maximo` bytes of `nombre`, without half a UTF-8 character at the end. A name that is
/// not UTF-8 is cut anywhere.
std::string_view recortar(std::string_view nombre, std::size_t maximo)
{
    if (nombre.size() <= maximo) return nombre;
    const auto continua = [&](std::size_t i) {
        return (static_cast<unsigned char>(nombre[i]) & 0xC0) == 0x80;
    };
    for (std::size_t corte = maximo; corte > 0 && maximo - corte < 4; --corte) {
        if (!continua(corte)) return nombre.substr(0, corte);
    }
    return nombre.substr(0, maximo);
}

} // namespace

std::string nombreEnPapelera(std::string_view nombre, unsigned numero, std::size_t maximo)
{
    const std::string fin = numero > 1 ? "." + std::to_string(numero) : std::string();
    const std::size_t reservado = fin.size() + finDeInfo.size();
    return std::string(recortar(nombre, maximo > reservado ? maximo - reservado : 1)) + fin;
}

unsigned numeroLibre(unsigned desde, const std::function<bool(unsigned)> &ocupado)
{
    unsigned tomado = desde - 1;
    unsigned libre = desde;
    for (unsigned paso = 1; ocupado(libre); paso *= 2) {
        tomado = libre;
        libre += paso;
    }
    while (libre - tomado > 1) {
        const unsigned medio = tomado + (libre - tomado) / 2;
        (ocupado(medio) ? tomado : libre) = medio;
    }
    return libre;
}

} // namespace ovanta
