#pragma once

#include "platform/Bateria.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ovanta {

/// Decides when the low-battery notice is due: once a discharge, and again only after the machine was
/// on mains.
class AvisoBateria
{
public:
    /// Takes note of a reading and tells whether the notice is to be sent now. `umbral` is in per
    /// cent, below 1 means never. Where notices cannot be sent (`puede`) this one stays due.
    bool corresponde(const std::optional<EstadoBateria> &bateria, std::int64_t umbral, bool puede);

private:
    bool m_enviado = false;
};

/// The notice's texts.
std::string tituloAvisoBateria(const EstadoBateria &bateria);
std::string cuerpoAvisoBateria(const EstadoBateria &bateria);

} // namespace ovanta
