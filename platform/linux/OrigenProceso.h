#pragma once

#include <string>
#include <string_view>

namespace ovanta {

/// What holds a process, told by its control group.
struct OrigenProceso
{
    enum class Clase {
        ninguna,    ///< nothing that says more than whose process it is
        aplicacion, ///< the unit of one application of the user
        contenedor,
        maquinaVirtual,
        sesion, ///< part of the desktop, or a service of the machine
    };

    Clase clase = Clase::ninguna;
    /// Desktop id of an application; name or short number of a container or machine.
    std::string id;
    /// Path of the group in its hierarchy up to what was recognised, without an end slash.
    std::string grupo;
    bool deInicio = false;  ///< started with the session
    bool conNombre = false; ///< `id` is a name that somebody gave, no number
    bool unificado = false; ///< `grupo` lies in the unified hierarchy

    bool operator==(const OrigenProceso &) const = default;
};

/// Reads the text of /proc/<pid>/cgroup: the unified hierarchy, else systemd's own. Any bytes.
/// `propio` is the group of the container that this program itself runs in: what lies in it is
/// looked at from inside. Empty outside of containers.
/// Sources: cgroups(7); https://systemd.io/DESKTOP_ENVIRONMENTS/; systemd-escape(1)
OrigenProceso origenDe(std::string_view cgroup, std::string_view propio = {});

/// A unit's name without systemd's "\x2d" escapes; what is no escape stays.
std::string sinEscapesDeUnidad(std::string_view nombre);

} // namespace ovanta
