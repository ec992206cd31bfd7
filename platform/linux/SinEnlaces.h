#pragma once

#include "core/Descriptor.h"
#include "core/Identidad.h"

#include <sys/stat.h>

#include <string>

namespace ovanta {

// Looking at folders without following links unawares. All of these throw std::system_error.
// The descriptors only name a place (O_PATH): nothing can be read or written through them.

/// Opens the folder at the absolute `ruta`; fails where any part of the way is a link.
Descriptor abrirCarpetaReal(const std::string &ruta);

/// A folder and where it really lies.
struct CarpetaReal
{
    std::string ruta; ///< absolute, free of links
    Descriptor carpeta;
};

/// Opens the folder that the absolute `ruta` leads to, links followed.
CarpetaReal abrirSiguiendo(const std::string &ruta);

/// Opens the folder `nombre` directly in `carpeta`; fails where it is a link.
Descriptor abrirSubcarpeta(int carpeta, const std::string &nombre);

/// The state of `nombre` in `carpeta`, of a link itself.
struct stat estadoDe(int carpeta, const std::string &nombre);
/// The state of an open file.
struct stat estadoDe(int fd);

Identidad identidadDe(const struct stat &estado);

} // namespace ovanta
