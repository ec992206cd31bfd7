#include "platform/linux/GrupoApp.h"

#include "core/Rutas.h"
#include "platform/linux/IdentidadProceso.h"
#include "platform/linux/ProgramasConocidos.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace ovanta {

namespace {

using Clase = Pertenencia::Clase;
using Politica = AplicacionEnMarcha::Politica;

constexpr std::size_t ancestrosMaximos = 1000;

/// What a container is called after where nobody named it: its first process that is not there to hold it.
std::string nombreDeContenedor(const GrupoApp &grupo, const FotoProcesos &foto)
{
    std::string_view programa;
    for (const std::size_t i : grupo.miembros) {
        const std::string_view este = ultimoComponente(programaDe(foto.procesos[i]));
        if (programa.empty()) programa = este;
        if (esSostenDeContenedor(este) || esConsola(este)) continue;
        programa = este;
        break;
    }
    return "Contenedor " + std::string{programa};
}

Politica politicaDe(const GrupoApp &grupo)
{
    const Pertenencia &p = *grupo.pertenencia;
    if (grupo.intocable || p.clase != Clase::aplicacion) return Politica::prohibida;
    if (!grupo.ventanas.empty()) return Politica::regular;
    if (!p.entrada) return Politica::prohibida;
    return p.deInicio || p.entrada->entrada.oculta ? Politica::accesoria : Politica::regular;
}

void completar(GrupoApp &grupo, const FotoProcesos &foto,
               const std::unordered_map<std::int32_t, std::vector<std::uint32_t>> &ventanas)
{
    std::ranges::sort(grupo.miembros, {}, [&](std::size_t i) {
        return std::pair(foto.procesos[i].inicio, foto.procesos[i].pid);
    });
    grupo.principal = grupo.miembros.front();
    for (const std::size_t i : grupo.miembros) {
        const auto suyas = ventanas.find(foto.procesos[i].pid);
        if (suyas == ventanas.end()) continue;
        if (grupo.ventanas.empty()) grupo.principal = i;
        grupo.ventanas.insert(grupo.ventanas.end(), suyas->second.begin(), suyas->second.end());
    }
    grupo.pertenencia = foto.pertenencias[grupo.principal];
}

} // namespace

std::set<std::int32_t> propioYAncestros(const EntornoProcesos &entorno)
{
    std::set<std::int32_t> propios;
    std::int32_t pid = entorno.propio;
    while (pid > 0 && propios.size() < ancestrosMaximos && propios.insert(pid).second)
        pid = padreDe(entorno.proc, pid);
    return propios;
}

std::vector<GrupoApp> agrupar(const FotoProcesos &foto, const std::set<std::int32_t> &propios)
{
    std::unordered_map<std::int32_t, std::vector<std::uint32_t>> ventanas;
    for (const VentanaVista &ventana : foto.ventanas)
        ventanas[ventana.pid].push_back(ventana.id);
    std::map<std::string_view, GrupoApp> porClave;
    for (std::size_t i = 0; i < foto.procesos.size(); ++i) {
        const Pertenencia &p = *foto.pertenencias[i];
        if (p.clave.empty()) continue;
        GrupoApp &grupo = porClave[p.clave];
        grupo.miembros.push_back(i);
        if (p.clase != Clase::aplicacion || propios.contains(foto.procesos[i].pid)) grupo.intocable = true;
    }
    std::vector<GrupoApp> grupos;
    for (auto &[clave, grupo] : porClave) {
        completar(grupo, foto, ventanas);
        grupos.push_back(std::move(grupo));
    }
    return grupos;
}

AplicacionEnMarcha aplicacionDe(const GrupoApp &grupo, const FotoProcesos &foto)
{
    const Pertenencia &p = *grupo.pertenencia;
    const ProcesoVisto &principal = foto.procesos[grupo.principal];
    AplicacionEnMarcha app;
    app.pid = principal.pid;
    app.inicio = principal.inicio;
    app.ruta = p.clave;
    app.politica = politicaDe(grupo);
    if (p.entrada) {
        app.identificador = p.entrada->id;
        app.nombre = p.entrada->entrada.nombre;
        app.icono = p.entrada->entrada.icono;
    } else {
        if (!p.origen.id.empty()) app.identificador = p.origen.id;
        app.nombre =
            p.clase == Clase::contenedor && p.nombre.empty() ? nombreDeContenedor(grupo, foto) : p.nombre;
    }
    return app;
}

} // namespace ovanta
