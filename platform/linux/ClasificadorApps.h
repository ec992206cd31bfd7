#pragma once

#include "platform/linux/CatalogoEntradas.h"
#include "platform/linux/OrigenProceso.h"
#include "platform/linux/ProcesoVisto.h"
#include "platform/linux/VentanaVista.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace ovanta {

/// The path of its program, or the best there is instead.
const std::string &programaDe(const ProcesoVisto &proceso);

/// What a process belongs to.
struct Pertenencia
{
    enum class Clase {
        suelta, ///< nothing: it stands alone
        aplicacion,
        contenedor,
        maquinaVirtual,
        sesion, ///< part of the desktop or of the machine; stands alone too and is never touched
    };

    Clase clase = Clase::suelta;
    std::string clave;    ///< `AplicacionEnMarcha::ruta`; empty where it stands alone
    EntradaRef entrada;   ///< null where there is none
    OrigenProceso origen; ///< the unit of its own that an application runs in, if it has one
    std::string nombre;   ///< where no entry gives a better one; may be empty
    bool deInicio = false;

    std::optional<std::string> ruta() const { return clave.empty() ? std::nullopt : std::optional{clave}; }
};

using PertenenciaRef = std::shared_ptr<const Pertenencia>;

/// Whose eyes the processes are seen with.
struct EntornoProcesos
{
    std::string proc = "/proc";
    std::uint32_t uid = 0;
    std::int32_t propio = 0;                  ///< pid of this program
    std::uint64_t marcasPorMinuto = 60 * 100; ///< `ProcesoVisto::inicio` in a minute
    /// A Wayland session: applications have windows that nobody else may list or close.
    bool ventanasOcultas = false;

    static EntornoProcesos deEsteProceso();
    /// This moment, in the unit of `ProcesoVisto::inicio`.
    static std::uint64_t ahora();
};

/// Tells which application a process belongs to. What was decided is kept: a process is looked at anew
/// only while it is young (its unit is entered after its start), when it gets or loses its windows, becomes
/// another program, or the desktop entries change. For one thread at a time; reads /proc.
class ClasificadorApps
{
public:
    ClasificadorApps(LugaresEntradas lugares, EntornoProcesos entorno);

    /// One answer for each process, never null; `ahora` in the unit of `ProcesoVisto::inicio`.
    std::vector<PertenenciaRef> clasificar(const std::vector<ProcesoVisto> &procesos,
                                           const std::vector<VentanaVista> &ventanas, std::uint64_t ahora);

    /// How many processes the last call looked at anew.
    std::size_t miradas() const { return m_miradas; }

    /// Of the desktop ids the first whose application is installed; null where none is.
    EntradaRef entradaDe(const std::vector<std::string> &ids);

private:
    struct Decidida
    {
        std::uint64_t inicio = 0;
        std::uint64_t cuando = 0;
        std::uint64_t catalogo = 0;
        std::size_t ventanas = 0;
        std::shared_ptr<const std::string> exe;
        PertenenciaRef pertenencia;
    };
    using Ventanas = std::vector<const VentanaVista *>;

    /// A process about to be decided.
    struct Caso
    {
        const ProcesoVisto &proceso;
        const ProcesoVisto *padre;   ///< null: not among those seen
        const Pertenencia *delPadre; ///< null: the same
        const Ventanas &ventanas;
        std::string_view programa; ///< file name of `exe`
        std::string guion;         ///< the script that an interpreter runs
    };

    bool vale(const Decidida &decidida, const ProcesoVisto &proceso, std::size_t ventanas) const;
    PertenenciaRef decidir(const ProcesoVisto &proceso, const ProcesoVisto *padre, PertenenciaRef delPadre,
                           const Ventanas &ventanas) const;
    PertenenciaRef porUnidad(const Caso &caso, OrigenProceso origen) const;
    EntradaRef porLanzamiento(const Caso &caso) const;
    EntradaRef porVentanas(const Caso &caso) const;
    EntradaRef porPrograma(const Caso &caso) const;
    PertenenciaRef porSusSenas(const Caso &caso) const;
    bool ayudaAlPadre(const Caso &caso) const;

    CatalogoEntradas m_catalogo;
    EntornoProcesos m_entorno;
    std::string m_hogar;
    std::string m_contenedorPropio;
    std::uint64_t m_version = 0; ///< of the catalogue
    std::size_t m_miradas = 0;
    std::unordered_map<std::int32_t, Decidida> m_decididas;
};

} // namespace ovanta
