#pragma once

#include "core/Ejecutar.h"
#include "platform/Herramientas.h"

namespace ovanta {

/// The real tools of this machine.
class HerramientasLinux final : public Herramientas
{
public:
    explicit HerramientasLinux(std::string hogar) : m_hogar(std::move(hogar)) {}

    std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                         bool tolerarFallo) override
    {
        return ovanta::ejecutar(binario, args, timeout, tolerarFallo);
    }
    std::optional<std::string> buscarBinario(std::string_view nombre) override
    {
        return ovanta::buscarBinario(nombre, m_hogar);
    }

private:
    std::string m_hogar;
};

} // namespace ovanta
