#pragma once

#include "devices/Usbmux.h"
#include "tests/devices/TelefonoDePrueba.h"

#include <gtest/gtest.h>

namespace ovanta::pruebas {

inline const Usbmux::Dispositivo porCable{.id = 7, .udid = "00008110-1", .porRed = false};
inline const Plazo sobrado{std::chrono::hours(24)};

/// How a locked device answers.
inline const DiccionarioPlist conError{{"Error", "PasswordProtected"}};

/// A device in memory behind usbmuxd.
struct UsbmuxEnMemoria : testing::Test
{
    TelefonoDePrueba telefono;
    ConexionesEnMemoria conexiones;

    UsbmuxEnMemoria()
    {
        conexiones.usbmuxd = [this] { return telefono.extremo(); };
    }

    std::expected<LecturaBateriaIOS, ErrorIOS> leer(const Usbmux::Dispositivo &dispositivo = porCable)
    {
        return Usbmux::leer(conexiones, dispositivo, sobrado);
    }
    /// The reading where this one reply is another; without a value the connection closes instead.
    std::expected<LecturaBateriaIOS, ErrorIOS> leerCon(const char *clave, std::optional<ValorPlist> respuesta)
    {
        telefono.respuestas[clave] = std::move(respuesta);
        return leer();
    }
    std::string fallo(const char *clave, std::optional<ValorPlist> respuesta)
    {
        const auto leida = leerCon(clave, std::move(respuesta));
        return leida ? "" : leida.error().errorDescription();
    }
};

} // namespace ovanta::pruebas
