#pragma once

#include "core/TextoBytes.h"
#include "monitors/EstadoMemoria.h"
#include "monitors/RankingProcesos.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// Something that the user can do about the memory.
struct Recomendacion
{
    struct Accion
    {
        enum class Clase { ninguna, cerrar, reiniciar, simuladores };

        Clase clase = Clase::ninguna;
        std::int32_t pid = 0; ///< of the application to close

        static Accion cerrar(std::int32_t pid) { return {Clase::cerrar, pid}; }

        bool operator==(const Accion &) const = default;
    };

    std::string id;
    std::string icono; ///< a system symbol
    std::string texto;
    Accion accion;

    bool operator==(const Recomendacion &) const = default;
};

/// What the recommendations are made of.
struct DatosRecomendaciones
{
    std::uint64_t total = 0;
    std::uint64_t swapUsado = 0;
    EstadoMemoria estado = EstadoMemoria::normal;
    int diasEncendido = 0;
    std::vector<Proceso> procesos; ///< the ranking
};

/// Whether a name has a word in it, as the user's language compares: case does not count.
using ContieneTexto = std::function<bool(std::string_view nombre, std::string_view palabra)>;

/// In the order of the screen: at most one about swap and the machine's age, the top consumer, then
/// the programs that are known to keep memory.
std::vector<Recomendacion> calcularRecomendaciones(const DatosRecomendaciones &datos,
                                                   const ContieneTexto &contiene,
                                                   const FormaNumeros &forma = {});

} // namespace ovanta
