#pragma once

#include "devices/ErrorIOS.h"

#include <expected>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What `devicectl` writes, in JSON. Pure; any thread.
namespace ovanta::CoreDevice {

/// A device that Xcode knows.
struct Dispositivo
{
    std::string id; ///< of CoreDevice: what `devicectl` wants to be told
    std::string udid;
    std::optional<std::string> nombre;
    std::optional<std::string> modelo;
    std::optional<std::string> marketing;
    std::optional<std::string> clase;
    std::optional<std::string> version;
    std::string transporte; ///< "cable" or "Wi-Fi"

    bool operator==(const Dispositivo &) const = default;
};

/// The `result` of a file that `devicectl` wrote; always an object. `otro` where it is no JSON.
std::expected<nlohmann::json, ErrorIOS> resultadoDe(std::string_view archivo);

/// The devices of the result of "list devices", in its order. Those that lack an id, a UDID or a transport,
/// and a missing list, are no error.
std::vector<Dispositivo> dispositivosDe(const nlohmann::json &resultado);

/// The address in the result of "device info details" where the tunnel stands.
std::optional<std::string> direccionDe(const nlohmann::json &resultado);

/// What is said of a tool that wrote nothing of use.
ErrorIOS sinDatosDeXcode();

} // namespace ovanta::CoreDevice
