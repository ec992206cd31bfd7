#pragma once

#include <sys/stat.h>

namespace ovanta {

/// open(2) for an absolute path that may be longer than the system takes in one piece. `opciones` need
/// O_CLOEXEC to be given as for open(2). -1 with `errno` on failure.
int abrirCamino(const char *ruta, int opciones);

/// lstat(2) for such a path. -1 with `errno` on failure.
int describirCamino(const char *ruta, struct stat *atributos);

} // namespace ovanta
