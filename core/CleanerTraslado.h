#pragma once

#include "core/Movimiento.h"
#include "core/RegistroPrevio.h"
#include "platform/Herramientas.h"
#include "platform/Papelera.h"
#include "platform/Reloj.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <string>

namespace ovanta {

/// What the way of an item into the Trash needs of the machine.
struct MediosDeTraslado
{
    Papelera &papelera;
    Herramientas &herramientas;
    const Reloj &reloj;
};

/// One item that is to go.
struct Pedido
{
    /// Validates the item and at once takes its measure, so that what moves is what was validated.
    /// Throws `Seguridad::Rechazo` for a refusal, any other exception for a failure. Any thread.
    std::function<Papelera::Medida()> medir;
    /// A last look right before the move; it throws as `medir` does. May be empty.
    std::function<void(const Papelera::Medida &)> antesDeMover = {};
    std::string etiqueta;
    std::string progreso;   ///< shown while the item is under way; empty: what was shown stays
    std::string alRechazar; ///< the line of the result where the item is refused
    std::string nombre;     ///< stands before the description of any other failure
};

/// Validates, measures, moves and records one item, in this order. The record learns of the move
/// before and after it. On failure gives a line for the user; never throws.
/// Blocking: background threads only.
std::expected<Movimiento, std::string> trasladar(MediosDeTraslado medios, RegistroPrevio &registro,
                                                 const Pedido &pedido);

/// The measure of a validated path, taken for the Trash. The folder that really holds the item must
/// lie in `raizReal`, which is free of links: a folder on the way may have become a link since the
/// path was validated. Throws with a text for the user.
Papelera::Medida medirDentro(Papelera &papelera, const std::string &ruta, const std::string &raizReal);

/// Disk usage of an item in bytes, in whole kibibytes; 0 where `du` does not tell it within 60 s.
std::uint64_t tamano(Herramientas &herramientas, const std::string &ruta);

} // namespace ovanta
