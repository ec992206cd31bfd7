#pragma once

namespace ovanta {

/// open(2) for an absolute path that may be longer than the system takes in one piece. `opciones` need
/// O_CLOEXEC to be given as for open(2). -1 with `errno` on failure.
int abrirCamino(const char *ruta, int opciones);

/// The same for a folder that is only to be passed through, as by openat(2).
int abrirCarpetaDePaso(const char *ruta);

} // namespace ovanta
