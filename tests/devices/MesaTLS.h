#pragma once

#include "devices/ConexionIOS.h"
#include "tests/devices/CanalGuion.h"
#include "tests/devices/DispositivoTLS.h"

namespace ovanta::pruebas {

inline constexpr int versiones[] = {TLS1_VERSION, TLS1_1_VERSION, TLS1_2_VERSION, TLS1_3_VERSION};

inline IdentidadTemporal identidadDe(const ParDePrueba &par)
{
    return IdentidadTemporal::crear(par.pem(), par.clavePem()).value();
}

/// A connection to a device, and what became of it.
struct MesaTLS
{
    explicit MesaTLS(const DispositivoTLS::Opciones &opciones)
    {
        UnaConexion conexiones{std::make_unique<DispositivoTLS>(opciones, parte)};
        conexion.emplace(ConexionIOS::abrirUnix(conexiones, "/usbmuxd", plazoLargo()).value());
    }
    auto activar(const std::string &pem)
    {
        static const auto identidad = identidadDe(parDe(0));
        return conexion->activarTLS(identidad, pem);
    }

    DispositivoTLS::Parte parte;
    std::optional<ConexionIOS> conexion;
};

} // namespace ovanta::pruebas
