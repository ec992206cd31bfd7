#include "platform/simulada/VolumenSimulado.h"

namespace ovanta {

void VolumenSimulado::leer(std::function<void(std::optional<Espacio>)> listo)
{
    if (m_legible)
        listo(Espacio{bloque, bytesTotales / bloque, m_libre});
    else
        listo(std::nullopt);
}

} // namespace ovanta
