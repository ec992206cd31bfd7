#pragma once

#include "platform/Procesos.h"
#include "platform/linux/FotografoProcesos.h"

#include <memory>

namespace ovanta {

/// The processes of /proc, each under the application that it belongs to.
class ProcesosLinux final : public Procesos
{
public:
    explicit ProcesosLinux(std::shared_ptr<FotografoProcesos> fotografo) : m_fotografo(std::move(fotografo))
    {
    }

    unsigned nucleos() const override;
    std::vector<MuestraProceso> muestrear() override;

private:
    std::shared_ptr<FotografoProcesos> m_fotografo;
};

} // namespace ovanta
