#include "platform/simulada/SensoresSimulados.h"

#include "platform/simulada/Ondas.h"

#include <algorithm>

namespace ovanta {

namespace {

constexpr double ticksPorSegundo = 100.0;
constexpr double horasHastaVacia = 8.0;
constexpr double horasHastaLlena = 2.0;

} // namespace

double ContadoresSimulados::segundos() const
{
    return std::max(segundosEntre(m_inicio, m_reloj.ahora()), 0.0);
}

std::optional<Contadores::Ticks> ContadoresSimulados::procesador()
{
    const double t = segundos();
    const double todos = ticksPorSegundo * nucleos;
    const double user = suma(0.19, {{0.10, 47}, {0.06, 13}, {0.03, 5}}, t);
    const double system = suma(0.07, {{0.03, 31}, {0.02, 11}}, t);
    const double nice = suma(0.01, {}, t);
    return Ticks{entero(todos * user), entero(todos * system), entero(todos * (t - user - system - nice)),
                 entero(todos * nice)};
}

Contadores::Red ContadoresSimulados::red()
{
    const double t = segundos();
    return {entero(suma(1.9e6, {{1.2e6, 37}, {0.6e6, 9}}, t)), entero(suma(2.4e5, {{1.5e5, 23}}, t))};
}

std::optional<Contadores::Memoria> ContadoresSimulados::memoria()
{
    const double t = segundos();
    const double fisica = static_cast<double>(bytesFisicos);
    return Memoria{entero(fisica * valor(0.42, {{0.03, 180}, {0.01, 29}}, t)), entero(fisica * 0.14),
                   entero(fisica * valor(0.08, {{0.02, 300}}, t)), bytesFisicos};
}

double BateriaSimulada::carga() const
{
    const double horas = segundosEntre(m_desde, m_reloj.ahora()) / 3600.0;
    const double cambio = m_enCorriente ? horas / horasHastaLlena : -horas / horasHastaVacia;
    return std::clamp(m_carga + cambio, 0.0, 1.0);
}

void BateriaSimulada::leer(std::function<void(std::optional<EstadoBateria>)> listo)
{
    if (!m_presente) return listo(std::nullopt);
    const double ahora = carga();
    EstadoBateria estado;
    estado.porcentaje = static_cast<int>(ahora * 100.0);
    estado.enCorriente = m_enCorriente;
    estado.cargando = m_enCorriente && ahora < 1.0;
    const int minutos = static_cast<int>(ahora * horasHastaVacia * 60.0);
    if (!m_enCorriente && minutos >= 1) estado.minutosRestantes = minutos;
    estado.ciclos = 214;
    estado.salud = 91;
    listo(estado);
}

void BateriaSimulada::enchufar(bool enCorriente)
{
    fijarCarga(carga());
    m_enCorriente = enCorriente;
}

void BateriaSimulada::fijarCarga(double carga)
{
    m_carga = std::clamp(carga, 0.0, 1.0);
    m_desde = m_reloj.ahora();
}

} // namespace ovanta
