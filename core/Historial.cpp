#include "core/Historial.h"

#include "core/LeerArchivo.h"
#include "core/LeerJson.h"
#include "core/MovimientoJson.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ovanta {

void anteponer(std::vector<Movimiento> &historial, std::vector<Movimiento> lote)
{
    std::ranges::move(historial, std::back_inserter(lote));
    if (lote.size() > maximoHistorial) lote.resize(maximoHistorial);
    historial = std::move(lote);
}

std::string codificarHistorial(const std::vector<Movimiento> &historial)
{
    auto lista = nlohmann::ordered_json::array();
    for (const auto &movimiento : historial)
        lista.push_back(aJson(movimiento));
    return lista.dump(2);
}

std::vector<Movimiento> decodificarHistorial(std::string_view bytes)
{
    const auto lista = leerJson(bytes);
    if (!lista || !lista->is_array()) return {};
    std::vector<Movimiento> historial;
    for (const auto &objeto : *lista) {
        auto movimiento = movimientoDeJson(objeto);
        if (!movimiento) return {};
        historial.push_back(std::move(*movimiento));
    }
    if (historial.size() > maximoHistorial) historial.resize(maximoHistorial);
    return historial;
}

std::vector<Movimiento> cargarHistorial(const std::string &archivo)
{
    try {
        return decodificarHistorial(leerArchivo(archivo, limiteHistorial, EnlaceFinal::seguir));
    } catch (const ErrorDeLectura &) {
        return {};
    }
}

} // namespace ovanta
