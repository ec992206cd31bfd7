#include "platform/linux/AplicacionesEnMarchaLinux.h"

#include "platform/linux/IdentidadProceso.h"
#include "platform/linux/MonitorDeActividad.h"
#include "platform/linux/UnidadPropia.h"

#include <algorithm>
#include <csignal>
#include <unordered_map>
#include <unordered_set>

namespace ovanta {

namespace {

using Politica = AplicacionEnMarcha::Politica;

/// Those that no other process of the group started: the rest ends with them.
std::vector<std::size_t> raicesDe(const GrupoApp &grupo, const FotoProcesos &foto)
{
    std::unordered_set<std::int32_t> pids;
    for (const std::size_t i : grupo.miembros)
        pids.insert(foto.procesos[i].pid);
    std::vector<std::size_t> raices;
    for (const std::size_t i : grupo.miembros)
        if (i == grupo.principal || !pids.contains(foto.procesos[i].padre)) raices.push_back(i);
    return raices;
}

std::vector<std::int32_t> pidsDe(const GrupoApp &grupo, const FotoProcesos &foto)
{
    std::vector<std::int32_t> pids;
    for (const std::size_t i : grupo.miembros)
        pids.push_back(foto.procesos[i].pid);
    return pids;
}

} // namespace

AplicacionesEnMarchaLinux::AplicacionesEnMarchaLinux(std::shared_ptr<FotografoProcesos> fotografo,
                                                     std::string escritorio, std::string grupos)
    : m_fotografo(std::move(fotografo)), m_escritorio(std::move(escritorio)), m_grupos(std::move(grupos))
{
}

std::optional<std::string> AplicacionesEnMarchaLinux::identificadorPropio() const
{
    return "com.belmora.Ovanta";
}

std::vector<AplicacionEnMarcha> AplicacionesEnMarchaLinux::listar()
{
    const FotoRef foto = m_fotografo->reciente();
    std::vector<AplicacionEnMarcha> apps;
    for (const GrupoApp &grupo : agrupar(*foto, propioYAncestros(m_fotografo->entorno())))
        apps.push_back(aplicacionDe(grupo, *foto));
    return apps;
}

bool AplicacionesEnMarchaLinux::terminada(const AplicacionEnMarcha &app)
{
    return !sigueVivo(m_fotografo->entorno().proc, app.pid, app.inicio);
}

std::optional<AplicacionesEnMarchaLinux::Hallada>
AplicacionesEnMarchaLinux::buscarClave(const std::string &clave)
{
    FotoRef foto = m_fotografo->ahora();
    std::vector<GrupoApp> grupos = agrupar(*foto, propioYAncestros(m_fotografo->entorno()));
    const auto hallado = std::ranges::find_if(
        grupos, [&](const GrupoApp &grupo) { return grupo.pertenencia->clave == clave; });
    if (hallado == grupos.end() || hallado->intocable) return std::nullopt;
    return Hallada{std::move(foto), std::move(*hallado)};
}

std::optional<AplicacionesEnMarchaLinux::Hallada>
AplicacionesEnMarchaLinux::buscar(const AplicacionEnMarcha &app)
{
    if (app.politica == Politica::prohibida || !app.ruta || app.identificador == identificadorPropio())
        return std::nullopt;
    auto hallada = buscarClave(*app.ruta);
    if (!hallada) return std::nullopt;
    const bool esEsa = std::ranges::any_of(hallada->grupo.miembros, [&](std::size_t i) {
        const ProcesoVisto &proceso = hallada->foto->procesos[i];
        return proceso.pid == app.pid && proceso.inicio == app.inicio;
    });
    return esEsa ? std::move(hallada) : std::nullopt;
}

/// Where windows cannot be listed, an application that shows itself may have unsaved work in one: only
/// force, which says so, ends it.
bool AplicacionesEnMarchaLinux::puedeTenerVentanas(const GrupoApp &grupo, const FotoProcesos &foto) const
{
    return m_fotografo->entorno().ventanasOcultas && aplicacionDe(grupo, foto).politica == Politica::regular;
}

bool AplicacionesEnMarchaLinux::senalar(const ProcesoVisto &proceso, int senal) const
{
    const EntornoProcesos &entorno = m_fotografo->entorno();
    return proceso.uid == entorno.uid && proceso.pid != entorno.propio &&
           senalarSiEs(entorno.proc, proceso.pid, proceso.inicio, senal);
}

void AplicacionesEnMarchaLinux::cerrar(const AplicacionEnMarcha &app)
{
    const auto hallada = buscar(app);
    if (!hallada) return;
    // Who has windows may have something to save in them: it gets no signal, even if nobody hears this.
    if (!hallada->grupo.ventanas.empty()) return m_fotografo->ventanas().pedirCierre(hallada->grupo.ventanas);
    if (puedeTenerVentanas(hallada->grupo, *hallada->foto)) return;
    for (const std::size_t i : raicesDe(hallada->grupo, *hallada->foto))
        senalar(hallada->foto->procesos[i], SIGTERM);
}

void AplicacionesEnMarchaLinux::forzar(const AplicacionEnMarcha &app)
{
    const auto hallada = buscar(app);
    if (!hallada) return;
    matar(*hallada);
    // Once more for what was started while the others were dying.
    if (const auto resto = buscarClave(*app.ruta)) matar(*resto);
}

void AplicacionesEnMarchaLinux::matar(const Hallada &hallada)
{
    const auto pids = pidsDe(hallada.grupo, *hallada.foto);
    for (const std::size_t i : hallada.grupo.miembros) {
        matarUnidad(m_grupos, hallada.foto->pertenencias[i]->origen, m_fotografo->entorno().uid, pids);
        senalar(hallada.foto->procesos[i], SIGKILL);
    }
}

std::vector<AplicacionesEnMarcha::Proceso> AplicacionesEnMarchaLinux::procesosDe(const std::string &ruta)
{
    std::vector<Proceso> procesos;
    const auto hallada = buscarClave(ruta);
    if (!hallada) return procesos;
    for (const std::size_t i : hallada->grupo.miembros) {
        const ProcesoVisto &proceso = hallada->foto->procesos[i];
        if (proceso.uid == m_fotografo->entorno().uid) procesos.push_back({proceso.pid, proceso.inicio});
    }
    return procesos;
}

void AplicacionesEnMarchaLinux::pedirFin(const std::vector<Proceso> &procesos)
{
    const FotoRef foto = m_fotografo->ahora();
    for (const GrupoApp &grupo : agrupar(*foto, propioYAncestros(m_fotografo->entorno()))) {
        // Another one of the same application may be asking its user to save.
        if (grupo.intocable || !grupo.ventanas.empty() || puedeTenerVentanas(grupo, *foto)) continue;
        for (const std::size_t i : grupo.miembros) {
            const Proceso este{foto->procesos[i].pid, foto->procesos[i].inicio};
            if (std::ranges::find(procesos, este) != procesos.end()) senalar(foto->procesos[i], SIGTERM);
        }
    }
}

bool AplicacionesEnMarchaLinux::abrirMonitorDeActividad()
{
    const EntradaRef entrada = m_fotografo->primeraEntrada(monitoresDeActividad(m_escritorio));
    return entrada && abrirEntrada(entrada->entrada);
}

} // namespace ovanta
