#pragma once

#include "platform/AccesoArchivos.h"

namespace ovanta {

class AccesoArchivosLinux final : public AccesoArchivos
{
public:
    int abrirEn(int carpeta, const char *nombre) override;
    ssize_t leer(int descriptor, void *destino, std::size_t bytes) override;
    void anticipar(int descriptor, std::uint64_t bytes) override;
    std::uint64_t bytesCompartidos(int descriptor) override;
    bool esVirtual(int carpeta) override;
    /// Linux marks no such files.
    bool estaEnLaNube(const struct stat &) override { return false; }
};

} // namespace ovanta
