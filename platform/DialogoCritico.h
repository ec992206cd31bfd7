#pragma once

#include <functional>
#include <string>

namespace ovanta {

/// An alert that comes to the front by itself, for what must not be missed where no notification
/// can be shown. Main thread; does not block it.
class DialogoCritico
{
public:
    virtual ~DialogoCritico() = default;

    /// Shows the alert with the one button `boton` and calls `alCerrar` when it was dismissed.
    virtual void mostrar(const std::string &titulo, const std::string &cuerpo, const std::string &boton,
                         std::function<void()> alCerrar) = 0;
};

} // namespace ovanta
