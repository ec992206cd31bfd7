#pragma once

#include "monitors/EstadoMemoria.h"
#include "ui/componentes/Paleta.h"

#include <QString>

namespace ovanta {

/// How a state of the memory is drawn and called.
struct AspectoMemoria
{
    QString simbolo;
    Tinte tinte;
    QString texto;
};

AspectoMemoria aspectoDe(EstadoMemoria estado);

/// What a state means for the user, who may see swap that an earlier peak left behind.
QString explicacionDe(EstadoMemoria estado, std::uint64_t swapUsado);

} // namespace ovanta
