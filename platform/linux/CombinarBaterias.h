#pragma once

#include "platform/Bateria.h"

#include <optional>
#include <vector>

namespace ovanta {

/// One battery as its source tells of it. Amounts are in one unit for all batteries of a machine;
/// 0 where unknown.
struct LecturaBateria
{
    double contenido = 0;
    double lleno = 0;
    double deFabrica = 0; ///< what it held when it was new
    double ritmo = 0;     ///< what it gives in an hour
    std::optional<double> porcentaje;
    std::optional<int> segundos; ///< until empty, as the source reckons it
    int ciclos = 0;
    bool cargando = false;
    bool descargando = false;
};

struct LecturaBaterias
{
    std::vector<LecturaBateria> baterias;
    std::optional<bool> enCorriente; ///< absent where no source of mains is known
};

/// All batteries taken as one: their contents together, the cycles of the most worn. Nothing where
/// there is none or none tells its charge.
std::optional<EstadoBateria> combinarBaterias(const LecturaBaterias &lectura);

} // namespace ovanta
