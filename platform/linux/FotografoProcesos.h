#pragma once

#include "platform/linux/ClasificadorApps.h"
#include "platform/linux/VentanasX11.h"

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// One look at the running processes: what each belongs to and which windows there were.
struct FotoProcesos
{
    std::vector<ProcesoVisto> procesos;
    std::vector<PertenenciaRef> pertenencias; ///< one for each of `procesos`
    std::vector<VentanaVista> ventanas;
    std::chrono::steady_clock::time_point cuando;
};

using FotoRef = std::shared_ptr<const FotoProcesos>;

/// Takes such looks for everybody who needs one. Blocking; any thread, one at a time gets in.
class FotografoProcesos
{
public:
    /// As `BarridoProc::barrer`.
    using Barrer = std::function<std::vector<ProcesoVisto>()>;

    FotografoProcesos(Barrer barrer, LugaresEntradas lugares, EntornoProcesos entorno,
                      std::optional<std::string> pantalla);

    /// This machine, this user, this session.
    static std::shared_ptr<FotografoProcesos> deEsteEquipo();

    /// How things stand now.
    FotoRef ahora();
    /// A new look, for those who measure. The display is asked again only while there are young processes,
    /// and every other minute: windows come with processes, and each question wakes the display server too.
    FotoRef nueva();
    /// The last look where it is a moment old, else `nueva`: for those who only show.
    FotoRef reciente();

    const EntornoProcesos &entorno() const { return m_entorno; }
    VentanasX11 &ventanas() { return m_ventanas; }

    /// Of the desktop ids the first whose application is installed; null where none is.
    EntradaRef primeraEntrada(const std::vector<std::string> &ids);

private:
    FotoRef tomar(bool conVentanas);
    bool hacenFaltaVentanas(const std::vector<ProcesoVisto> &procesos) const;

    std::mutex m_cerrojo;
    Barrer m_barrer;
    EntornoProcesos m_entorno;
    ClasificadorApps m_clasificador;
    VentanasX11 m_ventanas;
    FotoRef m_ultima;
    std::chrono::steady_clock::time_point m_ventanasVistas;
};

} // namespace ovanta
