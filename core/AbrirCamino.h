#pragma once

namespace ovanta {

/// open(2) for an absolute path that may be longer than the system takes in one piece. `opciones` need
/// O_CLOEXEC to be given as for open(2). -1 with `errno` on failure.
int abrirCamino(const char *ruta, int opciones);

} // namespace ovanta
