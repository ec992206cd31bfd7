#pragma once

#include "platform/AccesoArchivos.h"

namespace ovanta {

/// Reads the synthetic home, whose files are real. A file with the sticky bit plays one whose content
/// lies in the cloud.
class AccesoArchivosSimulado final : public AccesoArchivos
{
public:
    int abrirEn(int carpeta, const char *nombre) override;
    ssize_t leer(int descriptor, void *destino, std::size_t bytes) override;
    void anticipar(int, std::uint64_t) override {}
    std::uint64_t bytesCompartidos(int) override { return 0; }
    bool esVirtual(int) override { return false; }
    bool estaEnLaNube(const struct stat &atributos) override { return (atributos.st_mode & S_ISVTX) != 0; }
};

} // namespace ovanta
