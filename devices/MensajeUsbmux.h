#pragma once

#include "core/plist/ValorPlist.h"
#include "devices/ErrorIOS.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>
#include <vector>

/// Messages of usbmuxd: a header of four little-endian 32-bit words and a property list. Pure; any thread.
namespace ovanta::Usbmux {

/// A device that is attached now.
struct Dispositivo
{
    std::int64_t id = 0; ///< of usbmuxd; means nothing once the device is detached
    std::string udid;
    bool porRed = false;

    bool operator==(const Dispositivo &) const = default;
};

/// What this computer and the device hold of each other since the user accepted the one on the other.
struct Emparejamiento
{
    std::string certificado;            ///< PEM, of this computer
    std::string clave;                  ///< PEM, of this computer
    std::string certificadoDispositivo; ///< PEM
    std::string hostID;
    std::string systemBUID;

    bool operator==(const Emparejamiento &) const = default;
};

inline constexpr std::size_t bytesDeCabecera = 16;
/// Header and property list of a reply together.
inline constexpr std::uint32_t maximoRespuesta = 33'554'431;

/// The whole message of a request, to which the names of the program are added.
std::expected<std::string, ErrorIOS> mensaje(DiccionarioPlist peticion);

/// Bytes that follow the header of a reply; `cabecera` is `bytesDeCabecera` long.
std::expected<std::size_t, ErrorIOS> bytesQueSiguen(std::string_view cabecera);

/// The property list of a reply. What its own reader says against it is passed on.
std::expected<DiccionarioPlist, ErrorIOS> interpretarRespuesta(std::string_view plist);

/// The devices of a reply to ListDevices, in its order. Entries that lack their id or serial number, and a
/// missing list, are no error.
std::vector<Dispositivo> dispositivosDe(const DiccionarioPlist &respuesta);

/// The record of a reply to ReadPairRecord. `protocolo` with what the user can do where there is none or it
/// lacks something.
std::expected<Emparejamiento, ErrorIOS> emparejamientoDe(const DiccionarioPlist &respuesta);

/// The two bytes of a port the other way round, as Connect wants them.
std::int64_t puertoDeRed(std::uint16_t puerto);

} // namespace ovanta::Usbmux
