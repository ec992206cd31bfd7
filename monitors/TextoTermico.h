#pragma once

#include "platform/Termico.h"

#include <string_view>

namespace ovanta {

/// The thermal state in words for the user.
constexpr std::string_view textoTermico(EstadoTermico estado)
{
    switch (estado) {
    case EstadoTermico::nominal:
        return "Normal";
    case EstadoTermico::fair:
        return "Templado";
    case EstadoTermico::serious:
        return "Caliente: el Mac reduce velocidad";
    case EstadoTermico::critical:
        return "Muy caliente: rendimiento limitado";
    case EstadoTermico::desconocido:
        break;
    }
    return "Desconocido";
}

} // namespace ovanta
