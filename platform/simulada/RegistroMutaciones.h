#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace ovanta {

/// Something that the program did to the simulated machine.
struct Mutacion
{
    enum class Clase {
        movimiento,
        herramienta,
        ajuste,
        notificacion,
        dialogo,
        archivoMostrado,
        inicio,
        politica,
        aplicacion,
    };

    Clase clase;
    std::string objeto;  ///< path, tool, key, notice or application that it was about
    std::string detalle; ///< where it went, arguments, text or order

    bool operator==(const Mutacion &) const = default;
};

/// All that the program did to the simulated machine, in order, so that a test can say that nothing
/// outside the plan was touched. Any thread.
class RegistroMutaciones
{
public:
    void anotar(Mutacion mutacion);

    std::vector<Mutacion> todas() const;
    /// The objects of one kind, for example every path that went to the Trash.
    std::vector<std::string> objetos(Mutacion::Clase clase) const;

private:
    mutable std::mutex m_cerrojo;
    std::vector<Mutacion> m_mutaciones;
};

} // namespace ovanta
