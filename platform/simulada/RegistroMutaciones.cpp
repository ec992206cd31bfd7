#include "platform/simulada/RegistroMutaciones.h"

#include <utility>

namespace ovanta {

void RegistroMutaciones::anotar(Mutacion mutacion)
{
    const std::lock_guard guardia{m_cerrojo};
    m_mutaciones.push_back(std::move(mutacion));
}

std::vector<Mutacion> RegistroMutaciones::todas() const
{
    const std::lock_guard guardia{m_cerrojo};
    return m_mutaciones;
}

std::vector<std::string> RegistroMutaciones::objetos(Mutacion::Clase clase) const
{
    std::vector<std::string> objetos;
    for (const Mutacion &mutacion : todas())
        if (mutacion.clase == clase) objetos.push_back(mutacion.objeto);
    return objetos;
}

} // namespace ovanta
