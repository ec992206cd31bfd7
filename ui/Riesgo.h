#pragma once

#include "ui/componentes/Paleta.h"

#include <QString>
#include <string_view>

namespace ovanta {

/// The badge of a risk: "safe", "review", and "manual" for that and anything else.
struct Riesgo
{
    QString texto;
    Tinte tinte;
};

Riesgo riesgoVisible(std::string_view risk);

} // namespace ovanta
