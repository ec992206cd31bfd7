#include "platform/simulada/MemoriaSimulada.h"

#include "platform/PaginasMemoria.h"
#include "platform/simulada/Ondas.h"
#include "platform/simulada/SensoresSimulados.h"

namespace ovanta {

namespace {

/// What a level means: shares of the whole memory, swap in bytes, and pages written a second.
struct Apuro
{
    std::int32_t memorystatus;
    double internas;
    double comprimidas;
    double externas;
    std::uint64_t swapUsado;
    std::uint64_t swapTotal;
    double paginasPorSegundo;
};

constexpr std::uint64_t gib = 1ULL << 30;

constexpr Apuro apuroDe(MemoriaSistema::Nivel nivel)
{
    switch (nivel) {
    case MemoriaSistema::Nivel::tension:
        return {2, 0.56, 0.17, 0.06, 3 * gib + gib / 2, 4 * gib, 140};
    case MemoriaSistema::Nivel::critico:
        return {4, 0.58, 0.20, 0.03, 7 * gib, 8 * gib, 1300};
    case MemoriaSistema::Nivel::normal:
        break;
    }
    return {1, 0.44, 0.08, 0.22, 2 * gib + gib / 4, 3 * gib, 0};
}

constexpr double reservada = 0.14;
constexpr double purgable = 0.02;

PaginasMemoria paginasDe(const Apuro &apuro, double t)
{
    const double todas =
        static_cast<double>(ContadoresSimulados::bytesFisicos / MemoriaSimulada::tamanoPagina);
    const double internas = valor(apuro.internas, {{0.02, 180}, {0.01, 29}}, t);
    const double externas = valor(apuro.externas, {{0.01, 70}}, t);
    const double usadas = internas + externas + reservada + apuro.comprimidas;
    PaginasMemoria paginas;
    paginas.internalPageCount = entero(todas * internas);
    paginas.externalPageCount = entero(todas * externas);
    paginas.purgeableCount = entero(todas * purgable);
    paginas.wireCount = entero(todas * reservada);
    paginas.compressorPageCount = entero(todas * apuro.comprimidas);
    paginas.freeCount = entero(todas * (1.0 - usadas));
    return paginas;
}

} // namespace

MemoriaSimulada::MemoriaSimulada(const Reloj &reloj)
    : m_reloj(reloj), m_inicio(reloj.ahora()), m_escritas(412'000), m_desde(m_inicio)
{
}

std::uint64_t MemoriaSimulada::fisica()
{
    return ContadoresSimulados::bytesFisicos;
}

double MemoriaSimulada::paginasEscritas(Fecha ahora) const
{
    return m_escritas + apuroDe(m_nivel).paginasPorSegundo * std::max(segundosEntre(m_desde, ahora), 0.0);
}

MemoriaSistema::Lectura MemoriaSimulada::leer()
{
    const std::lock_guard guardia{m_cerrojo};
    const Fecha ahora = m_reloj.ahora();
    const Apuro apuro = apuroDe(m_nivel);
    PaginasMemoria paginas = paginasDe(apuro, segundosEntre(m_inicio, ahora));
    paginas.swapouts = entero(paginasEscritas(ahora));
    Lectura lectura = categoriasDeMemoria(paginas, tamanoPagina);
    lectura.swapUsado = apuro.swapUsado;
    lectura.swapTotal = apuro.swapTotal;
    lectura.nivel = nivelDeMemorystatus(apuro.memorystatus);
    lectura.arranque = m_inicio - std::chrono::days(diasEncendida) - std::chrono::hours(2);
    return lectura;
}

void MemoriaSimulada::apretar(Nivel nivel)
{
    const std::lock_guard guardia{m_cerrojo};
    const Fecha ahora = m_reloj.ahora();
    m_escritas = paginasEscritas(ahora);
    m_desde = ahora;
    m_nivel = nivel;
}

} // namespace ovanta
