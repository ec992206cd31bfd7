#pragma once

#include "devices/ConexionIOS.h"
#include "devices/DescubrimientoRSD.h"

#include <chrono>

/// Remote Service Discovery: which services a device offers at the address of its tunnel.
namespace ovanta::RSD {

/// The device does not tell where its discovery listens; it is one of these.
inline constexpr std::uint16_t primerPuerto = 58783;
inline constexpr std::uint16_t ultimoPuerto = 59283;
/// How long a port may take to open.
inline constexpr std::chrono::milliseconds esperaPorPuerto{250};
/// How long one step of a conversation waits, and all of it together.
inline constexpr std::chrono::milliseconds esperaPorPaso{4'000};
inline constexpr std::chrono::milliseconds limitePorPuerto{30'000};

/// Tries the ports in ascending order and tells what the first that answers offers. `protocolo` where none
/// does; `socket` where `plazo` ends before. Blocking: background threads only.
std::expected<ServiciosRSD, ErrorIOS> servicios(Conexiones &conexiones, const std::string &ip,
                                                const Plazo &plazo);

/// The conversation on an open connection.
std::expected<ServiciosRSD, ErrorIOS> servicios(ConexionIOS &conexion);

} // namespace ovanta::RSD
