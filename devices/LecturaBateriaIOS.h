#pragma once

#include "core/plist/ValorPlist.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ovanta {

/// What one complete reading of a device told, by either road. What it did not tell, or told in a wrong
/// type, is absent.
struct LecturaBateriaIOS
{
    std::optional<std::string> nombre;
    std::optional<std::string> modelo;    ///< product type, as "iPhone14,2"
    std::optional<std::string> marketing; ///< name of the model; by CoreDevice only
    std::optional<std::string> clase;     ///< as "iPhone"
    std::optional<std::string> version;
    std::string transporte;                 ///< "cable" or "Wi-Fi"
    DiccionarioPlist registro;              ///< the battery's entry in the device's IORegistry; not empty
    std::optional<std::int64_t> porcentaje; ///< by usbmuxd only
    std::optional<bool> cargando;           ///< by usbmuxd only

    bool operator==(const LecturaBateriaIOS &) const = default;
};

} // namespace ovanta
