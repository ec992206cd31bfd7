#pragma once

#include "platform/InicioAutomatico.h"
#include "platform/simulada/RegistroMutaciones.h"

#include <mutex>

namespace ovanta {

/// The Mac's list of what starts at login. Every request is recorded.
class InicioSimulado final : public InicioAutomatico
{
public:
    explicit InicioSimulado(RegistroMutaciones &registro) : m_registro(registro) {}

    bool activado() override;
    std::expected<void, std::string> fijar(bool activado) override;

    /// From now on every request is refused with this description; an empty one ends that.
    void fallar(std::string descripcion);

private:
    RegistroMutaciones &m_registro;
    std::mutex m_cerrojo;
    bool m_activado = false;
    std::string m_fallo;
};

} // namespace ovanta
