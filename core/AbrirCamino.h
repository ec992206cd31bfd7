#pragma once

#include <fcntl.h>

namespace ovanta {

/// How to open a folder that is only gone through: one that may be searched but not read (0711) too.
#ifdef O_SEARCH
inline constexpr int soloPasar = O_SEARCH;
#else
inline constexpr int soloPasar = O_PATH;
#endif

/// open(2) for an absolute path that may be longer than the system takes in one piece. `opciones` need
/// O_CLOEXEC to be given as for open(2). -1 with `errno` on failure.
int abrirCamino(const char *ruta, int opciones);

} // namespace ovanta
