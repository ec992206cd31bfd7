#include "platform/linux/BarridoProc.h"

#include "core/Tamano.h"
#include "platform/linux/ArchivosDeProceso.h"
#include "platform/linux/Meminfo.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace ovanta {

namespace {

// 22 fields of at most 20 digits, and a name.
constexpr std::size_t lugarDeStat = 1024;
constexpr std::size_t lugarDeStatm = 256;
// The groups of its user stand before what is looked for.
constexpr std::size_t lugarDeStatus = 65536;

} // namespace

BarridoProc::BarridoProc(std::string raiz)
    : m_raiz(std::move(raiz)), m_meminfo(m_raiz + "/meminfo"),
      m_bytesPorPagina(static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE))),
      m_nanosPorTick(1'000'000'000 / static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK)))
{
}

bool BarridoProc::abrir()
{
    if (m_proc.abierto()) return true;
    m_proc = Descriptor(::open(m_raiz.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    m_relojes = m_proc.abierto() && esProcPropio(m_proc.numero());
    return m_proc.abierto();
}

void BarridoProc::mirarIntercambio()
{
    const std::optional<Meminfo> memoria = interpretarMeminfo(m_meminfo.leerEntero(m_lugar));
    m_hayIntercambio = memoria && memoria->swapUsado() > 0;
    m_lugar.resize(std::max(m_lugar.size(), lugarDeStatus));
}

std::vector<ProcesoVisto> BarridoProc::barrer()
{
    if (!abrir()) return {};
    listarPids(m_proc.numero(), m_entradas);
    mirarIntercambio();
    ++m_barridos;
    std::vector<ProcesoVisto> vistos;
    vistos.reserve(m_entradas.size());
    m_siguientes.clear();
    m_siguientes.reserve(m_entradas.size());
    auto antes = m_conocidos.begin();
    for (const EntradaDePid &entrada : m_entradas) {
        while (antes != m_conocidos.end() && antes->entrada.pid < entrada.pid)
            ++antes;
        const bool conocido = antes != m_conocidos.end() && antes->entrada == entrada;
        ver(entrada, conocido ? &*antes : nullptr, vistos);
    }
    std::swap(m_conocidos, m_siguientes);
    return vistos;
}

/// `antes` is what the sweep before knew of that folder.
void BarridoProc::ver(const EntradaDePid &entrada, Conocido *antes, std::vector<ProcesoVisto> &vistos)
{
    if (antes != nullptr && vale(*antes) && (antes->delNucleo || medir(*antes, false))) {
        m_siguientes.push_back(std::move(*antes));
    } else {
        Conocido nuevo;
        if (!conocer(entrada, antes, nuevo)) return;
        if (!nuevo.delNucleo) medir(nuevo, true);
        m_siguientes.push_back(std::move(nuevo));
    }
    const Conocido &conocido = m_siguientes.back();
    const std::uint64_t huella =
        sumarConTope(multiplicarConTope(conocido.statm.propias, m_bytesPorPagina), conocido.vmSwap);
    if (conocido.delNucleo || huella == 0) return;
    ProcesoVisto &visto = vistos.emplace_back(conocido.proceso);
    visto.huella = huella;
    visto.tiempoCPU = tiempo(conocido);
}

bool BarridoProc::vale(const Conocido &conocido) const
{
    const ProcesoVisto &proceso = conocido.proceso;
    if ((static_cast<std::uint32_t>(proceso.pid) + m_barridos) % barridosPorRenovacion == 0) return false;
    return conocido.delNucleo || (m_relojes && conocido.confirmado && vive(proceso.padre));
}

bool BarridoProc::vive(std::int32_t pid) const
{
    return pid == 0 || std::ranges::binary_search(m_entradas, pid, {}, &EntradaDePid::pid);
}

bool BarridoProc::conocer(const EntradaDePid &entrada, const Conocido *antes, Conocido &conocido) const
{
    const int proc = m_proc.numero();
    std::array<char, lugarDeStat> lugar;
    const auto linea = interpretarLineaStat(leerDeProceso(proc, entrada.pid, "stat", lugar));
    if (!linea || linea->acabado()) return false;
    conocido.entrada = entrada;
    conocido.delNucleo = linea->delNucleo;
    conocido.ticks = linea->ticks;
    ProcesoVisto &proceso = conocido.proceso;
    proceso.pid = entrada.pid;
    if (linea->delNucleo) return true;
    proceso.padre = linea->padre;
    proceso.inicio = linea->inicio;
    proceso.comm = linea->comm;
    proceso.uid = uidDeProceso(proc, entrada.pid);
    std::string programa = programaDeProceso(proc, entrada.pid, linea->comm);
    const bool igual = antes != nullptr && antes->proceso.exe && *antes->proceso.exe == programa;
    proceso.exe = igual ? antes->proceso.exe : std::make_shared<const std::string>(std::move(programa));
    conocido.confirmado = igual && antes->proceso.inicio == proceso.inicio;
    return true;
}

bool BarridoProc::medir(Conocido &conocido, bool reciente)
{
    const int proc = m_proc.numero();
    const std::int32_t pid = conocido.proceso.pid;
    const auto antes = std::exchange(conocido.reloj, m_relojes ? relojDeProceso(pid) : std::nullopt);
    if (!reciente && !m_hayIntercambio && conocido.reloj && conocido.reloj == antes) {
        // Who has not run has neither taken nor given back private memory, and without swap nobody else takes
        // it away. The clock costs a tenth of what "statm" does.
        conocido.vmSwap = 0;
        return true;
    }
    std::array<char, lugarDeStatm> lugar;
    const auto statm = interpretarLineaStatm(leerDeProceso(proc, pid, "statm", lugar)).value_or(LineaStatm{});
    if (!reciente && statm.codigo != conocido.statm.codigo) return false;
    // "status" costs several times what "statm" does; memory that did not move was not swapped either.
    if (!m_hayIntercambio)
        conocido.vmSwap = 0;
    else if (reciente || statm.propias != conocido.statm.propias)
        conocido.vmSwap = interpretarVmSwap(leerDeProceso(proc, pid, "status", m_lugar));
    conocido.statm = statm;
    return true;
}

std::uint64_t BarridoProc::tiempo(const Conocido &conocido) const
{
    return conocido.reloj.value_or(multiplicarConTope(conocido.ticks, m_nanosPorTick));
}

} // namespace ovanta
