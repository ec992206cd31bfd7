#include "analysis/Candidatos.h"

namespace ovanta {

namespace {

using Numero = ListaArchivos::Numero;

} // namespace

Candidatos::Candidatos(const ListaArchivos &archivos, IntervaloDeTamano tamanos)
    : Candidatos(archivos, mismoTamano(archivos, tamanos))
{
}

Candidatos::Candidatos(const ListaArchivos &archivos, std::vector<Numero> mismoTamano)
    : m_enlaces(archivos, mismoTamano)
{
    std::vector<std::optional<std::uint64_t>> bytes;
    bytes.reserve(mismoTamano.size());
    for (const Numero archivo : mismoTamano) {
        m_todos.push_back({archivo, 0});
        bytes.emplace_back(archivos.bytes(archivo));
    }
    separar(bytes);
}

std::vector<Numero> Candidatos::mismoTamano(const ListaArchivos &archivos, IntervaloDeTamano tamanos)
{
    const auto bytes = [&](Numero i) { return archivos.bytes(i); };
    std::vector<Numero> orden;
    for (Numero i = 0; i < archivos.size(); ++i)
        if (bytes(i) >= tamanos.desde && bytes(i) <= tamanos.hasta) orden.push_back(i);
    std::ranges::sort(orden, {}, bytes);
    std::size_t quedan = 0;
    for (std::size_t i = 0; i < orden.size(); ++i) {
        const bool comoAntes = i > 0 && bytes(orden[i - 1]) == bytes(orden[i]);
        const bool comoDespues = i + 1 < orden.size() && bytes(orden[i + 1]) == bytes(orden[i]);
        if (comoAntes || comoDespues) orden[quedan++] = orden[i];
    }
    orden.resize(quedan);
    return orden;
}

} // namespace ovanta
