#include "analysis/GrupoDuplicados.h"

#include "core/Tamano.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <string_view>

namespace ovanta {

const std::string &identidadDeCopia(const ArchivoHallado &archivo)
{
    return archivo.identidadFisica ? *archivo.identidadFisica : archivo.ruta;
}

std::uint64_t GrupoDuplicados::desperdiciado() const
{
    if (copias.empty()) return 0;
    std::set<std::string_view> fisicas;
    for (const ArchivoHallado &copia : copias)
        fisicas.insert(identidadDeCopia(copia));
    return multiplicar(bytes, fisicas.size() - 1);
}

bool GrupoDuplicados::esMismaCopiaFisica(const ArchivoHallado &archivo) const
{
    return !copias.empty() && archivo.identidadFisica &&
           copias.front().identidadFisica == archivo.identidadFisica;
}

std::vector<ArchivoHallado> GrupoDuplicados::rutasMismaCopiaFisica(const ArchivoHallado &archivo) const
{
    std::vector<ArchivoHallado> mismas;
    std::ranges::copy_if(copias, std::back_inserter(mismas), [&](const ArchivoHallado &copia) {
        return identidadDeCopia(copia) == identidadDeCopia(archivo);
    });
    return mismas;
}

std::uint64_t desperdicioTotal(const std::vector<GrupoDuplicados> &grupos)
{
    return std::accumulate(
        grupos.begin(), grupos.end(), std::uint64_t{0},
        [](std::uint64_t suma, const GrupoDuplicados &grupo) { return sumar(suma, grupo.desperdiciado()); });
}

} // namespace ovanta
