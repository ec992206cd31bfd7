#pragma once

#include "platform/Aplicaciones.h"

namespace ovanta {

/// There are no application bundles on Linux: nothing has such an identifier.
class AplicacionesLinux final : public Aplicaciones
{
public:
    bool enEjecucion(const std::string &) const override { return false; }
    std::string identificadorDePaquete(const std::string &) const override { return {}; }
};

} // namespace ovanta
