#pragma once

#include "devices/LecturaBateriaIOS.h"
#include "devices/MensajeUsbmux.h"
#include "platform/Conexiones.h"

#include <chrono>

/// The classic road to a device: usbmuxd, which knows what is attached and what is paired, and the services
/// of the device itself behind it. Nothing is shared between calls; each blocks, so background threads only.
namespace ovanta::Usbmux {

/// What a reading may take in all; one of a device at hand takes about a second.
inline constexpr std::chrono::milliseconds limiteDeLectura{120'000};
/// The same for the list, which usbmuxd has ready.
inline constexpr std::chrono::milliseconds limiteDeLista{20'000};

/// The devices that usbmuxd lists, in its order.
std::expected<std::vector<Dispositivo>, ErrorIOS> conectados(Conexiones &conexiones, const Plazo &plazo);

/// One complete reading.
std::expected<LecturaBateriaIOS, ErrorIOS> leer(Conexiones &conexiones, const Dispositivo &dispositivo,
                                                const Plazo &plazo);

} // namespace ovanta::Usbmux
