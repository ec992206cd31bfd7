#pragma once

#include "core/LeerArchivo.h"

#include <string>

namespace ovanta::pruebas {

/// A file of /proc as the kernel of that version writes it.
inline std::string fixturaProc(const std::string &kernel, const std::string &archivo)
{
    return leerArchivo(OVANTA_FIXTURES "/proc/" + kernel + "/" + archivo, 1 << 20, EnlaceFinal::rechazar);
}

} // namespace ovanta::pruebas
