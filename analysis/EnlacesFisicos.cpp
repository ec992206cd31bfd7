#include "analysis/EnlacesFisicos.h"

#include "core/AbrirCamino.h"

#include <algorithm>
#include <tuple>

namespace ovanta {

namespace {

using Numero = ListaArchivos::Numero;

bool mismoArchivo(const ListaArchivos &lista, Numero a, Numero b)
{
    return lista.inodo(a) == lista.inodo(b) && lista.dispositivo(a) == lista.dispositivo(b) &&
           lista.bytes(a) == lista.bytes(b);
}

bool sigueAhi(const ListaArchivos &lista, Numero archivo)
{
    struct stat atributos = {};
    return describirCamino(lista.ruta(archivo).c_str(), &atributos) == 0 &&
           atributos.st_ino == lista.inodo(archivo) && atributos.st_dev == lista.dispositivo(archivo);
}

} // namespace

EnlacesFisicos::EnlacesFisicos(const ListaArchivos &lista, std::vector<Numero> &archivos)
{
    std::ranges::sort(archivos, {}, [&](Numero i) {
        return std::tuple(lista.inodo(i), lista.dispositivo(i), lista.bytes(i), i);
    });
    std::size_t quedan = 0;
    for (const Numero archivo : archivos) {
        if (quedan > 0 && mismoArchivo(lista, archivos[quedan - 1], archivo))
            m_otros[archivos[quedan - 1]].push_back(archivo);
        else
            archivos[quedan++] = archivo;
    }
    archivos.resize(quedan);
    std::ranges::sort(archivos);
}

std::span<const Numero> EnlacesFisicos::otrosNombres(Numero primero) const
{
    const auto hallados = m_otros.find(primero);
    if (hallados == m_otros.end()) return {};
    return hallados->second;
}

std::vector<Numero> EnlacesFisicos::nombresQueQuedan(const ListaArchivos &lista, Numero primero) const
{
    std::vector<Numero> nombres{primero};
    const auto otros = otrosNombres(primero);
    if (otros.empty()) return nombres;
    nombres.insert(nombres.end(), otros.begin(), otros.end());
    std::erase_if(nombres, [&](Numero nombre) { return !sigueAhi(lista, nombre); });
    return nombres;
}

} // namespace ovanta
