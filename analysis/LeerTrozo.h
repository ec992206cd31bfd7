#pragma once

#include "platform/AccesoArchivos.h"

#include <cstddef>

namespace ovanta {

/// Reads until `bytes` are there or nothing more comes. An error ends the content as its end would.
inline std::size_t leerTrozo(AccesoArchivos &acceso, int descriptor, char *destino, std::size_t bytes)
{
    std::size_t leidos = 0;
    while (leidos < bytes) {
        const ssize_t n = acceso.leer(descriptor, destino + leidos, bytes - leidos);
        if (n <= 0) break;
        leidos += static_cast<std::size_t>(n);
    }
    return leidos;
}

} // namespace ovanta
