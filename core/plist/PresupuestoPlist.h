#pragma once

#include "core/plist/LeerPlist.h"

#include <utility>

namespace ovanta {

/// Thrown inside the readers and the writer; never leaves them.
struct PlistRechazada
{
    ErrorPlist error;
};

[[noreturn]] inline void rechazarPlist(std::string motivo,
                                       ErrorPlist::Caso caso = ErrorPlist::Caso::malformada)
{
    throw PlistRechazada{{caso, std::move(motivo)}};
}

/// What is left of the limits of one reading.
class PresupuestoPlist
{
public:
    explicit PresupuestoPlist(const LimitesPlist &limites) : m_queda(limites) {}

    void cobrarObjetos(std::size_t cuantos)
    {
        if (cuantos > m_queda.objetos) rechazarPlist("demasiados valores", ErrorPlist::Caso::excesiva);
        m_queda.objetos -= cuantos;
    }
    void cobrarBytes(std::size_t cuantos)
    {
        if (cuantos > m_queda.bytes) rechazarPlist("demasiados datos", ErrorPlist::Caso::excesiva);
        m_queda.bytes -= cuantos;
    }

    /// For as long as a container is open.
    class Nivel
    {
    public:
        explicit Nivel(PresupuestoPlist &presupuesto) : m_presupuesto(presupuesto)
        {
            if (m_presupuesto.m_queda.profundidad <= 0)
                rechazarPlist("demasiados niveles", ErrorPlist::Caso::excesiva);
            --m_presupuesto.m_queda.profundidad;
        }
        Nivel(const Nivel &) = delete;
        Nivel &operator=(const Nivel &) = delete;
        ~Nivel() { ++m_presupuesto.m_queda.profundidad; }

    private:
        PresupuestoPlist &m_presupuesto;
    };

private:
    LimitesPlist m_queda;
};

/// The two formats; they throw `PlistRechazada`.
ValorPlist leerPlistXml(std::string_view bytes, PresupuestoPlist &presupuesto);
ValorPlist leerPlistBinaria(std::string_view bytes, PresupuestoPlist &presupuesto);

} // namespace ovanta
