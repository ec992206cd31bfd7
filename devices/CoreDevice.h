#pragma once

#include "devices/LecturaBateriaIOS.h"
#include "devices/ListaDevicectl.h"
#include "platform/Conexiones.h"
#include "platform/Herramientas.h"

#include <chrono>

/// The road to the devices that Xcode knows: its tool `devicectl` lists them and opens a tunnel, through
/// which their discovery and their diagnostics relay are reached. Nothing is shared between calls; each
/// blocks, so background threads only.
namespace ovanta::CoreDevice {

/// What a reading may take in all: the tool twice, the search of all ports and the conversation after it.
inline constexpr std::chrono::milliseconds limiteDeLectura{300'000};
/// The same for the list.
inline constexpr std::chrono::milliseconds limiteDeLista{60'000};

/// The devices that the tool lists, in its order; none where this machine has no such tool.
std::expected<std::vector<Dispositivo>, ErrorIOS> conectados(Herramientas &herramientas, const Plazo &plazo);

/// The IPv6 address of the device at this end of a tunnel, which the tool opens when it is asked for
/// details.
std::expected<std::string, ErrorIOS> abrirTunel(Herramientas &herramientas, const Dispositivo &dispositivo,
                                                const Plazo &plazo);

/// One complete reading.
std::expected<LecturaBateriaIOS, ErrorIOS> leer(Herramientas &herramientas, Conexiones &conexiones,
                                                const Dispositivo &dispositivo, const Plazo &plazo);

} // namespace ovanta::CoreDevice
