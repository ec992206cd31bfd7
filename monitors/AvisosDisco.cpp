#include "monitors/AvisosDisco.h"

#include "core/Tamano.h"

#include <limits>

namespace ovanta {

namespace {

std::string cifra(std::uint64_t bytes, const FormaNumeros &forma)
{
    if (bytes > std::numeric_limits<std::int64_t>::max()) desbordamientoDeTamano();
    return textoBytes(bytes, EstiloBytes::archivo, forma);
}

} // namespace

bool AvisosDisco::corresponde(NivelDisco nivel, Fecha ahora)
{
    if (nivel == NivelDisco::ok) {
        m_nivelNotificado = NivelDisco::ok;
        m_ultimaNotificacion.reset();
        return false;
    }
    const bool haSubido = nivel > m_nivelNotificado;
    if (m_ultimaNotificacion && !haSubido && ahora - *m_ultimaNotificacion <= repeticion) return false;
    m_nivelNotificado = nivel;
    m_ultimaNotificacion = ahora;
    return true;
}

std::string tituloAviso(NivelDisco nivel)
{
    switch (nivel) {
    case NivelDisco::ok:
        return "Espacio suficiente";
    case NivelDisco::aviso:
        return "Queda poco espacio";
    case NivelDisco::critico:
        return "Espacio crítico";
    }
    return {};
}

std::string cuerpoAviso(std::uint64_t libre, std::uint64_t total, const FormaNumeros &forma)
{
    return "Quedan " + cifra(libre, forma) + " libres de " + cifra(total, forma) + ".";
}

} // namespace ovanta
