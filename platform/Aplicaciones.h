#pragma once

#include <string>

namespace ovanta {

/// Installed and running applications, by bundle identifier. Any thread.
class Aplicaciones
{
public:
    virtual ~Aplicaciones() = default;

    /// Whether an application with this identifier is running.
    virtual bool enEjecucion(const std::string &bundleID) const = 0;

    /// The identifier of the application bundle at `ruta`; empty where there is no bundle or it has
    /// none.
    virtual std::string identificadorDePaquete(const std::string &ruta) const = 0;
};

} // namespace ovanta
