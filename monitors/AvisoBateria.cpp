#include "monitors/AvisoBateria.h"

namespace ovanta {

bool AvisoBateria::corresponde(const std::optional<EstadoBateria> &bateria, std::int64_t umbral, bool puede)
{
    if (!bateria) return false;
    if (bateria->enCorriente) {
        m_enviado = false;
        return false;
    }
    if (umbral < 1 || umbral < bateria->porcentaje || m_enviado || !puede) return false;
    m_enviado = true;
    return true;
}

std::string tituloAvisoBateria(const EstadoBateria &bateria)
{
    return "Batería al " + std::to_string(bateria.porcentaje) + " %";
}

std::string cuerpoAvisoBateria(const EstadoBateria &bateria)
{
    if (!bateria.minutosRestantes) return "Conecta el cargador pronto.";
    const int minutos = *bateria.minutosRestantes;
    return "Quedan unos " + std::to_string(minutos / 60) + " h " + std::to_string(minutos % 60) +
           " min. Conecta el cargador.";
}

} // namespace ovanta
