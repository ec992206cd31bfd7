#include "platform/linux/UnidadPropia.h"

#include "core/Descriptor.h"
#include "core/LeerArchivo.h"
#include "core/Rutas.h"
#include "platform/linux/Renglones.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::uint64_t limiteLista = std::uint64_t{1} << 20;

bool esDeUnaAplicacion(const OrigenProceso &origen, std::uint32_t uid)
{
    const std::string_view unidad = ultimoComponente(origen.grupo);
    return origen.clase == OrigenProceso::Clase::aplicacion && origen.unificado &&
           (unidad.starts_with("app-") || unidad.starts_with("snap.")) &&
           (unidad.ends_with(".scope") || unidad.ends_with(".service")) &&
           origen.grupo.find("/user@" + std::to_string(uid) + ".service/") != std::string::npos &&
           estandarizar(origen.grupo) == origen.grupo;
}

/// What is killed reaches the groups below too, and nobody looked into those.
bool tieneSubgrupos(const std::string &carpeta)
{
    std::error_code error;
    for (std::filesystem::directory_iterator entrada(carpeta, error), fin; !error && entrada != fin;
         entrada.increment(error))
        if (entrada->is_directory(error)) return true;
    return static_cast<bool>(error);
}

/// Whether every process in the list is one of `pids`, and there is one.
bool soloHay(std::string_view lista, const std::vector<std::int32_t> &pids)
{
    bool alguno = false;
    while (!lista.empty()) {
        const std::string_view linea = cortar(lista, '\n');
        std::int32_t pid = 0;
        std::from_chars(linea.data(), linea.data() + linea.size(), pid);
        if (std::ranges::find(pids, pid) == pids.end()) return false;
        alguno = true;
    }
    return alguno;
}

} // namespace

bool matarUnidad(const std::string &raiz, const OrigenProceso &origen, std::uint32_t uid,
                 const std::vector<std::int32_t> &pids)
{
    if (!esDeUnaAplicacion(origen, uid)) return false;
    const std::string carpeta = raiz + origen.grupo;
    try {
        if (tieneSubgrupos(carpeta) ||
            !soloHay(leerArchivo(carpeta + "/cgroup.procs", limiteLista, EnlaceFinal::rechazar), pids))
            return false;
    } catch (const ErrorDeLectura &) {
        return false;
    }
    const Descriptor orden(::open((carpeta + "/cgroup.kill").c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
    return orden.abierto() && ::write(orden.numero(), "1", 1) == 1;
}

} // namespace ovanta
