#pragma once

#include "core/Seguridad.h"
#include "platform/Plataforma.h"

namespace ovanta {

/// The path gate for this machine. `plataforma` must outlive it.
inline Seguridad crearSeguridad(Plataforma &plataforma)
{
    Aplicaciones &aplicaciones = plataforma.aplicaciones();
    return Seguridad{
        {plataforma.lugares().hogar, plataforma.lugares().protegidas,
         [&aplicaciones](const std::string &ruta) { return aplicaciones.identificadorDePaquete(ruta); }},
        plataforma.preferencias()};
}

} // namespace ovanta
