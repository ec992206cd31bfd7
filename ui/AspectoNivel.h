#pragma once

#include "monitors/NivelDisco.h"
#include "ui/componentes/Paleta.h"

#include <QString>

namespace ovanta {

/// How a level of the disk is drawn and called.
struct AspectoNivel
{
    QString simbolo;
    Tinte tinte;
    QString texto;
};

AspectoNivel aspectoDe(NivelDisco nivel);

} // namespace ovanta
