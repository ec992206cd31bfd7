#pragma once

#include "monitors/EstadoMemoria.h"
#include "platform/Bateria.h"
#include "ui/componentes/Paleta.h"

#include <QString>

namespace ovanta {

// What the panel says of the live figures.

/// A share as a percentage: "23 %".
QString textoPorcentaje(double fraccion);

/// Blue, above a half orange, above four fifths red.
Tinte tinteProcesador(double fraccion);

/// How short of memory the machine is; the curve is purple where the words are in the quiet colour.
QString textoPresion(EstadoMemoria estado);
Tinte tintePresion(EstadoMemoria estado);
Tinte tinteCurvaPresion(EstadoMemoria estado);

/// Bytes a second: below 1000 "0 KB/s", below a million in whole kilobytes, then in MB or GB.
QString textoVelocidad(double bytesPorSegundo);

/// The charge and what the battery does, or how long it will last.
QString textoBateria(const EstadoBateria &bateria);
QString simboloBateria(const EstadoBateria &bateria);
Tinte tinteBateria(const EstadoBateria &bateria);

/// What is left of the battery's first capacity; empty where that is not known.
QString textoSalud(const EstadoBateria &bateria);
Tinte tinteSalud(const EstadoBateria &bateria);

} // namespace ovanta
