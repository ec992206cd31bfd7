#pragma once

#include <expected>
#include <functional>
#include <string>

namespace ovanta {

/// The desktop's notification service. Main thread; never blocks.
class Notificaciones
{
public:
    enum class Sonido { normal, critico };

    struct Aviso
    {
        std::string id; ///< a later notice with the same id replaces the earlier one
        std::string titulo;
        std::string cuerpo;
        Sonido sonido = Sonido::normal;
    };

    virtual ~Notificaciones() = default;

    /// Whether this process can use the service at all (on a Mac: it has a bundle identifier; on
    /// Linux: a server is on the session bus, asked without waiting).
    virtual bool disponible() const = 0;

    /// Asks once for leave to notify; the answer (granted or not, or an error's text) comes on the
    /// main thread.
    virtual void pedirPermiso(std::function<void(std::expected<bool, std::string>)> respuesta) = 0;

    /// Called on the main thread when `disponible` changed.
    virtual void alCambiar(std::function<void()> accion) = 0;

    /// Shows a notice. What the service does with it is not observed.
    virtual void enviar(const Aviso &aviso) = 0;
};

} // namespace ovanta
