#include "platform/simulada/InicioSimulado.h"

namespace ovanta {

bool InicioSimulado::activado()
{
    const std::lock_guard guardia{m_cerrojo};
    return m_activado;
}

std::expected<void, std::string> InicioSimulado::fijar(bool activado)
{
    const std::lock_guard guardia{m_cerrojo};
    m_registro.anotar({Mutacion::Clase::inicio, activado ? "alta" : "baja", m_fallo});
    if (!m_fallo.empty()) return std::unexpected(m_fallo);
    m_activado = activado;
    return {};
}

void InicioSimulado::fallar(std::string descripcion)
{
    const std::lock_guard guardia{m_cerrojo};
    m_fallo = std::move(descripcion);
}

} // namespace ovanta
