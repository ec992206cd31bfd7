#pragma once

#include "core/plist/ValorPlist.h"

#include <optional>

namespace ovanta {

/// The battery of a simulated iPhone or iPad.
struct BateriaIOSSimulada
{
    int porcentaje = 76;
    bool cargando = true;
    int ciclos = 412;
    std::optional<int> capacidadDiseno = 3'279;  ///< mAh; some models do not tell it
    std::optional<int> capacidadNominal = 2'918; ///< mAh
    int capacidadMedida = 2'874;                 ///< mAh
    int temperatura = 2'870;                     ///< hundredths of a degree Celsius
    int voltaje = 4'112;                         ///< mV
};

/// What the registry of the device holds under "AppleSmartBattery".
DiccionarioPlist registroDeBateria(const BateriaIOSSimulada &bateria);

/// The values of the lockdown domain "com.apple.mobile.battery".
DiccionarioPlist dominioDeBateria(const BateriaIOSSimulada &bateria);

} // namespace ovanta
