#pragma once

#include "platform/simulada/dispositivos/UsbmuxdSimulado.h"

#include <functional>
#include <memory>

namespace ovanta::pruebas {

/// A simulated device whose keys are quickly made, changed by `ajustar`.
inline std::shared_ptr<DispositivoSimulado>
dispositivo(const std::function<void(OpcionesDispositivo &)> &ajustar = {})
{
    OpcionesDispositivo opciones;
    opciones.claveDelMac = TipoDeClave::p256;
    opciones.claveDelDispositivo = TipoDeClave::p256;
    if (ajustar) ajustar(opciones);
    return std::make_shared<DispositivoSimulado>(opciones);
}

} // namespace ovanta::pruebas
