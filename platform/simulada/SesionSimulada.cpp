#include "platform/simulada/SesionSimulada.h"

#include "platform/simulada/Ondas.h"
#include "platform/simulada/SensoresSimulados.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr std::int32_t primerPid = 412;
constexpr const char *monitorDeActividad = "/System/Applications/Utilities/Activity Monitor.app";

} // namespace

SesionSimulada::SesionSimulada(const Reloj &reloj, RegistroMutaciones &registro)
    : m_reloj(reloj), m_registro(registro), m_inicio(reloj.ahora())
{
    std::int32_t pid = primerPid;
    for (ProgramaMac &programa : programasDeUnMac()) {
        Programa nuevo{std::move(programa.app), programa.alCerrar, {}};
        for (ProcesoMac &proceso : programa.procesos) {
            nuevo.procesos.push_back({std::move(proceso), pid, 1000 + static_cast<std::uint64_t>(pid), {}});
            pid += 3;
        }
        if (nuevo.app) nuevo.app->pid = nuevo.procesos.front().pid;
        if (nuevo.app) nuevo.app->inicio = nuevo.procesos.front().inicio;
        m_programas.push_back(std::move(nuevo));
    }
}

unsigned SesionSimulada::nucleos() const
{
    return ContadoresSimulados::nucleos;
}

bool SesionSimulada::vive(const EnMarcha &proceso) const
{
    return !proceso.fin || m_reloj.ahora() < *proceso.fin;
}

MuestraProceso SesionSimulada::muestraDe(const Programa &programa, const EnMarcha &proceso) const
{
    constexpr double nanosegundos = 1e9;
    const double t = std::max(segundosEntre(m_inicio, m_reloj.ahora()), 0.0);
    const double periodo = 40.0 + proceso.pid % 50;
    const double carga = proceso.proceso.carga;
    MuestraProceso muestra;
    muestra.pid = proceso.pid;
    muestra.inicio = proceso.inicio;
    muestra.nombre = proceso.proceso.nombre;
    if (programa.app) muestra.rutaApp = programa.app->ruta;
    muestra.huella = entero(proceso.proceso.huella * valor(1.0, {{0.02, periodo}}, t));
    muestra.tiempoCPU = entero(nanosegundos * suma(carga, {{carga / 2, periodo}}, t));
    return muestra;
}

std::vector<MuestraProceso> SesionSimulada::muestrear()
{
    const std::lock_guard guardia{m_cerrojo};
    std::vector<MuestraProceso> muestras;
    for (const Programa &programa : m_programas)
        for (const EnMarcha &proceso : programa.procesos)
            if (vive(proceso)) muestras.push_back(muestraDe(programa, proceso));
    return muestras;
}

std::vector<AplicacionEnMarcha> SesionSimulada::listar()
{
    const std::lock_guard guardia{m_cerrojo};
    std::vector<AplicacionEnMarcha> apps;
    for (const Programa &programa : m_programas)
        if (programa.app && vive(programa.procesos.front())) apps.push_back(*programa.app);
    return apps;
}

SesionSimulada::Programa *SesionSimulada::programaDe(const AplicacionEnMarcha &app)
{
    const auto hallado = std::ranges::find_if(m_programas, [&](const Programa &programa) {
        return programa.app && programa.app->pid == app.pid && programa.app->inicio == app.inicio;
    });
    return hallado == m_programas.end() ? nullptr : &*hallado;
}

bool SesionSimulada::terminada(const AplicacionEnMarcha &app)
{
    const std::lock_guard guardia{m_cerrojo};
    const Programa *programa = programaDe(app);
    return !programa || !vive(programa->procesos.front());
}

void SesionSimulada::anotar(const AplicacionEnMarcha &app, const std::string &orden)
{
    m_registro.anotar({Mutacion::Clase::aplicacion, app.nombre.value_or(std::string{}), orden});
}

void SesionSimulada::terminar(Programa &programa, bool conAuxiliares)
{
    const Fecha fin = m_reloj.ahora() + demoraAlSalir;
    for (EnMarcha &proceso : programa.procesos) {
        if (!proceso.fin) proceso.fin = fin;
        if (!conAuxiliares) return;
    }
}

void SesionSimulada::cerrar(const AplicacionEnMarcha &app)
{
    const std::lock_guard guardia{m_cerrojo};
    anotar(app, "cerrar");
    Programa *programa = programaDe(app);
    if (!programa || programa->alCerrar == AlCerrar::preguntaSiGuardar) return;
    terminar(*programa, programa->alCerrar == AlCerrar::sale);
}

void SesionSimulada::forzar(const AplicacionEnMarcha &app)
{
    const std::lock_guard guardia{m_cerrojo};
    anotar(app, "forzar");
    if (Programa *programa = programaDe(app))
        terminar(*programa, programa->alCerrar != AlCerrar::dejaAuxiliares);
}

std::vector<AplicacionesEnMarcha::Proceso> SesionSimulada::procesosDe(const std::string &ruta)
{
    const std::lock_guard guardia{m_cerrojo};
    std::vector<Proceso> procesos;
    for (const Programa &programa : m_programas) {
        if (!programa.app || programa.app->ruta != ruta) continue;
        for (const EnMarcha &proceso : programa.procesos)
            if (vive(proceso)) procesos.push_back({proceso.pid, proceso.inicio});
    }
    return procesos;
}

void SesionSimulada::pedirFin(const std::vector<Proceso> &procesos)
{
    const std::lock_guard guardia{m_cerrojo};
    for (const Proceso &pedido : procesos) {
        m_registro.anotar({Mutacion::Clase::aplicacion, "pid " + std::to_string(pedido.pid), "SIGTERM"});
        for (Programa &programa : m_programas)
            for (EnMarcha &proceso : programa.procesos)
                if (Proceso{proceso.pid, proceso.inicio} == pedido) proceso.fin = m_reloj.ahora();
    }
}

bool SesionSimulada::abrirMonitorDeActividad()
{
    m_registro.anotar({Mutacion::Clase::archivoMostrado, monitorDeActividad, {}});
    return true;
}

void SesionSimulada::salir(const std::string &nombre)
{
    const std::lock_guard guardia{m_cerrojo};
    for (Programa &programa : m_programas)
        if (programa.app && programa.app->nombre == nombre) terminar(programa, true);
}

} // namespace ovanta
