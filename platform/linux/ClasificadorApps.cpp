#include "platform/linux/ClasificadorApps.h"

#include "core/Rutas.h"
#include "platform/linux/IdentidadProceso.h"
#include "platform/linux/LineaDeOrdenes.h"
#include "platform/linux/MaquinaVirtual.h"
#include "platform/linux/ProgramasConocidos.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <time.h>
#include <unistd.h>

namespace ovanta {

namespace {

using Clase = Pertenencia::Clase;

bool mismoPrograma(const std::shared_ptr<const std::string> &uno,
                   const std::shared_ptr<const std::string> &otro)
{
    return uno == otro || (uno && otro && *uno == *otro);
}

PertenenciaRef crear(Pertenencia pertenencia)
{
    return std::make_shared<const Pertenencia>(std::move(pertenencia));
}

PertenenciaRef deEntrada(EntradaRef entrada)
{
    Pertenencia p;
    p.clase = Clase::aplicacion;
    p.clave = entrada->ruta;
    p.deInicio = entrada->deInicio;
    p.entrada = std::move(entrada);
    return crear(std::move(p));
}

/// A folder that does not exist, then a text whose last component reads well without its extension.
PertenenciaRef conTitulo(Clase clase, const std::string &titulo, std::string nombre)
{
    Pertenencia p;
    p.clase = clase;
    p.clave = "/ovanta/" + titulo;
    std::ranges::replace(p.clave.begin() + 8, p.clave.end(), '/', '-');
    p.nombre = std::move(nombre);
    return crear(std::move(p));
}

PertenenciaRef deContenedor(const OrigenProceso &origen)
{
    return conTitulo(Clase::contenedor, "Contenedor " + origen.id,
                     origen.conNombre ? "Contenedor " + origen.id : std::string{});
}

PertenenciaRef deMaquina(const std::string &nombre)
{
    return conTitulo(Clase::maquinaVirtual, "Máquina virtual " + nombre, "Máquina virtual " + nombre);
}

/// Oldest first: who started a process was there before it.
std::vector<std::size_t> porEdad(const std::vector<ProcesoVisto> &procesos)
{
    std::vector<std::size_t> orden(procesos.size());
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::ranges::sort(orden, {},
                      [&](std::size_t i) { return std::pair(procesos[i].inicio, procesos[i].pid); });
    return orden;
}

} // namespace

const std::string &programaDe(const ProcesoVisto &proceso)
{
    return proceso.exe ? *proceso.exe : proceso.comm;
}

EntornoProcesos EntornoProcesos::deEsteProceso()
{
    EntornoProcesos entorno;
    entorno.uid = ::getuid();
    entorno.propio = ::getpid();
    const char *wayland = std::getenv("WAYLAND_DISPLAY");
    entorno.ventanasOcultas = wayland && *wayland;
    entorno.marcasPorMinuto = 60 * static_cast<std::uint64_t>(std::max(::sysconf(_SC_CLK_TCK), 1L));
    return entorno;
}

std::uint64_t EntornoProcesos::ahora()
{
    timespec hora{};
    ::clock_gettime(CLOCK_BOOTTIME, &hora);
    const auto porSegundo = static_cast<std::uint64_t>(std::max(::sysconf(_SC_CLK_TCK), 1L));
    return static_cast<std::uint64_t>(hora.tv_sec) * porSegundo +
           static_cast<std::uint64_t>(hora.tv_nsec) * porSegundo / 1'000'000'000;
}

ClasificadorApps::ClasificadorApps(LugaresEntradas lugares, EntornoProcesos entorno)
    : m_catalogo(lugares), m_entorno(std::move(entorno)), m_hogar(lugares.hogar)
{
    const OrigenProceso origen = origenDe(leerDeProceso(m_entorno.proc, m_entorno.propio, "cgroup"));
    if (origen.clase == OrigenProceso::Clase::contenedor) m_contenedorPropio = origen.grupo;
}

std::vector<PertenenciaRef> ClasificadorApps::clasificar(const std::vector<ProcesoVisto> &procesos,
                                                         const std::vector<VentanaVista> &ventanas,
                                                         std::uint64_t ahora)
{
    if (m_catalogo.refrescar()) ++m_version;
    m_miradas = 0;
    std::unordered_map<std::int32_t, Ventanas> porPid;
    for (const VentanaVista &ventana : ventanas)
        porPid[ventana.pid].push_back(&ventana);
    const Ventanas ninguna;
    std::vector<PertenenciaRef> resultado(procesos.size());
    std::unordered_map<std::int32_t, std::size_t> puestos;
    std::unordered_map<std::int32_t, Decidida> decididas;
    for (const std::size_t i : porEdad(procesos)) {
        const ProcesoVisto &proceso = procesos[i];
        const auto suyas = porPid.find(proceso.pid);
        const Ventanas &lista = suyas == porPid.end() ? ninguna : suyas->second;
        const auto antes = m_decididas.find(proceso.pid);
        const bool conocido = antes != m_decididas.end() && antes->second.inicio == proceso.inicio;
        Decidida decidida = conocido ? std::move(antes->second) : Decidida{};
        if (!conocido || !vale(decidida, proceso, lista.size())) {
            ++m_miradas;
            const auto padre = puestos.find(proceso.padre);
            const bool hayPadre = padre != puestos.end();
            auto nueva = decidir(proceso, hayPadre ? &procesos[padre->second] : nullptr,
                                 hayPadre ? resultado[padre->second] : nullptr, lista);
            // Signs can go while the process stays: the parent that it helped, the entry, the window.
            const bool pierde = conocido && nueva->clase == Clase::suelta &&
                                decidida.pertenencia->clase == Clase::aplicacion &&
                                mismoPrograma(decidida.exe, proceso.exe);
            if (!pierde) decidida.pertenencia = std::move(nueva);
            decidida = {proceso.inicio, ahora, m_version, lista.size(), proceso.exe, decidida.pertenencia};
        }
        resultado[i] = decidida.pertenencia;
        puestos.insert_or_assign(proceso.pid, i);
        decididas.insert_or_assign(proceso.pid, std::move(decidida));
    }
    m_decididas = std::move(decididas);
    return resultado;
}

EntradaRef ClasificadorApps::entradaDe(const std::vector<std::string> &ids)
{
    if (m_catalogo.refrescar()) ++m_version;
    for (const std::string &id : ids)
        if (auto entrada = m_catalogo.porId(id); entrada && entrada->instalada) return entrada;
    return nullptr;
}

bool ClasificadorApps::vale(const Decidida &decidida, const ProcesoVisto &proceso, std::size_t ventanas) const
{
    const bool joven = decidida.cuando < proceso.inicio + m_entorno.marcasPorMinuto;
    return !joven && decidida.catalogo == m_version && decidida.ventanas == ventanas &&
           mismoPrograma(decidida.exe, proceso.exe);
}

PertenenciaRef ClasificadorApps::decidir(const ProcesoVisto &proceso, const ProcesoVisto *padre,
                                         PertenenciaRef delPadre, const Ventanas &ventanas) const
{
    const std::string_view programa = ultimoComponente(programaDe(proceso));
    OrigenProceso origen = origenDe(leerDeProceso(m_entorno.proc, proceso.pid, "cgroup"), m_contenedorPropio);
    if (origen.clase == OrigenProceso::Clase::contenedor) return deContenedor(origen);
    if (origen.clase == OrigenProceso::Clase::maquinaVirtual) return deMaquina(origen.id);
    if (esMaquinaVirtual(programa)) {
        const auto linea = leerDeProceso(m_entorno.proc, proceso.pid, "cmdline");
        return deMaquina(nombreDeMaquina(palabrasDeLinea(linea)).value_or(std::to_string(proceso.pid)));
    }
    static const PertenenciaRef suelta = crear({});
    if (proceso.uid != m_entorno.uid) return suelta;
    const bool delEscritorio = std::ranges::any_of(ventanas, &VentanaVista::delEscritorio);
    if (esParteDeSesion(programa) || origen.clase == OrigenProceso::Clase::sesion || delEscritorio) {
        Pertenencia p;
        p.clase = Clase::sesion;
        return crear(std::move(p));
    }
    Caso caso{proceso, padre, delPadre.get(), ventanas, programa, {}};
    if (esInterprete(programa))
        caso.guion = guionDe(palabrasDeLinea(leerDeProceso(m_entorno.proc, proceso.pid, "cmdline")));
    if (origen.clase == OrigenProceso::Clase::aplicacion) return porUnidad(caso, std::move(origen));
    if (auto entrada = porLanzamiento(caso)) return deEntrada(std::move(entrada));
    if (ayudaAlPadre(caso)) return delPadre;
    if (auto entrada = porVentanas(caso)) return deEntrada(std::move(entrada));
    if (auto entrada = porPrograma(caso)) return deEntrada(std::move(entrada));
    if (auto pertenencia = porSusSenas(caso)) return pertenencia;
    return suelta;
}

PertenenciaRef ClasificadorApps::porUnidad(const Caso &caso, OrigenProceso origen) const
{
    Pertenencia p;
    p.clase = Clase::aplicacion;
    p.deInicio = origen.deInicio;
    p.entrada = m_catalogo.porId(origen.id);
    if (!p.entrada) p.entrada = m_catalogo.porClaseVentana(origen.id);
    if (!p.entrada) p.entrada = porPrograma(caso);
    p.deInicio = p.deInicio || (p.entrada && p.entrada->deInicio);
    p.nombre = origen.id;
    p.clave = p.entrada ? p.entrada->ruta : "/ovanta/" + origen.id + ".scope";
    p.origen = std::move(origen);
    return crear(std::move(p));
}

EntradaRef ClasificadorApps::porLanzamiento(const Caso &caso) const
{
    const std::string entorno = leerDeProceso(m_entorno.proc, caso.proceso.pid, "environ");
    const auto pid = variableDe(entorno, "GIO_LAUNCHED_DESKTOP_FILE_PID");
    // Children inherit it: only the one that was started so is meant.
    if (pid != std::to_string(caso.proceso.pid)) return nullptr;
    const auto ruta = variableDe(entorno, "GIO_LAUNCHED_DESKTOP_FILE");
    if (!ruta) return nullptr;
    if (auto entrada = m_catalogo.porRuta(*ruta)) return entrada;
    std::string_view id = ultimoComponente(*ruta);
    if (id.ends_with(".desktop")) id.remove_suffix(8);
    return m_catalogo.porId(id);
}

EntradaRef ClasificadorApps::porVentanas(const Caso &caso) const
{
    const EntradaRef deSuPrograma = caso.ventanas.empty() ? nullptr : porPrograma(caso);
    EntradaRef primera;
    for (const VentanaVista *ventana : caso.ventanas) {
        EntradaRef entrada = m_catalogo.porClaseVentana(ventana->clase);
        if (!entrada) entrada = m_catalogo.porClaseVentana(ventana->instancia);
        // Of several that fit, the one that names the program: a browser also shows web applications.
        if (entrada && entrada == deSuPrograma) return entrada;
        if (!primera) primera = std::move(entrada);
    }
    return primera;
}

EntradaRef ClasificadorApps::porPrograma(const Caso &caso) const
{
    if (!caso.guion.empty()) return m_catalogo.porPrograma(caso.guion, ultimoComponente(caso.guion));
    return m_catalogo.porPrograma(programaDe(caso.proceso), caso.programa);
}

PertenenciaRef ClasificadorApps::porSusSenas(const Caso &caso) const
{
    if (caso.ventanas.empty()) return nullptr;
    const bool generico = esInterprete(caso.programa) || esLanzador(caso.programa);
    const std::string &titulo = !caso.guion.empty() ? caso.guion
                                : !generico         ? programaDe(caso.proceso)
                                                    : caso.ventanas.front()->clase;
    if (titulo.empty()) return nullptr;
    Pertenencia p;
    p.clase = Clase::aplicacion;
    p.clave = titulo.starts_with('/') ? titulo : "/ovanta/" + titulo;
    p.nombre = ultimoComponente(titulo);
    return crear(std::move(p));
}

bool ClasificadorApps::ayudaAlPadre(const Caso &caso) const
{
    if (!caso.delPadre || caso.delPadre->clase != Clase::aplicacion) return false;
    // Where the parent has a unit of its own, its helpers stayed in it.
    if (!caso.delPadre->origen.grupo.empty()) return false;
    const std::string &exe = programaDe(caso.proceso);
    const std::string &exePadre = programaDe(*caso.padre);
    const std::string_view programaPadre = ultimoComponente(exePadre);
    // What the script of an application starts is the application; so is what its sandbox holds.
    if (esConsola(programaPadre) || programaPadre == "bwrap") return true;
    if (esAyudante(caso.programa)) return true;
    if (esConsola(caso.programa)) return false;
    if (exe == exePadre) return true;
    const std::string carpeta = carpetaDeInstalacion(exePadre, m_hogar);
    return !carpeta.empty() && yaceEn(exe, carpeta);
}

} // namespace ovanta
