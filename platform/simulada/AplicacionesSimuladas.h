#pragma once

#include "platform/Aplicaciones.h"

#include <mutex>
#include <set>

namespace ovanta {

/// Application bundles as they lie in the synthetic home. Which of them run is told.
class AplicacionesSimuladas final : public Aplicaciones
{
public:
    bool enEjecucion(const std::string &bundleID) const override;

    /// Reads "Contents/Info.plist", which must be an XML property list of at most 64 KiB.
    std::string identificadorDePaquete(const std::string &ruta) const override;

    void abrir(std::string bundleID);
    void cerrar(const std::string &bundleID);

private:
    mutable std::mutex m_cerrojo;
    std::set<std::string> m_abiertas;
};

} // namespace ovanta
