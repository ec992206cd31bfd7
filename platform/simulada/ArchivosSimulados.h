#pragma once

#include "platform/Archivos.h"

namespace ovanta {

/// Everything in the synthetic home is as old as its last change: its real birth is that of the home.
class ArchivosSimulados final : public Archivos
{
public:
    std::optional<Fecha> creado(const std::string &ruta) override;
};

} // namespace ovanta
