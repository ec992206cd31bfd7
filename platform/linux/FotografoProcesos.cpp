#include "platform/linux/FotografoProcesos.h"

#include "platform/linux/BarridoProc.h"

#include <algorithm>

namespace ovanta {

FotografoProcesos::FotografoProcesos(Barrer barrer, LugaresEntradas lugares, EntornoProcesos entorno,
                                     std::optional<std::string> pantalla)
    : m_barrer(std::move(barrer)), m_entorno(entorno), m_clasificador(std::move(lugares), std::move(entorno)),
      m_ventanas(std::move(pantalla))
{
}

std::shared_ptr<FotografoProcesos> FotografoProcesos::deEsteEquipo()
{
    const auto barrido = std::make_shared<BarridoProc>();
    return std::make_shared<FotografoProcesos>(
        [barrido] { return barrido->barrer(); }, LugaresEntradas::delEntorno(),
        EntornoProcesos::deEsteProceso(), VentanasX11::pantallaDelEntorno());
}

FotoRef FotografoProcesos::ahora()
{
    const std::scoped_lock cerrado(m_cerrojo);
    return tomar(true);
}

FotoRef FotografoProcesos::nueva()
{
    const std::scoped_lock cerrado(m_cerrojo);
    return tomar(false);
}

FotoRef FotografoProcesos::reciente()
{
    constexpr std::chrono::seconds momento{2};
    const std::scoped_lock cerrado(m_cerrojo);
    if (m_ultima && std::chrono::steady_clock::now() - m_ultima->cuando < momento) return m_ultima;
    return tomar(false);
}

bool FotografoProcesos::hacenFaltaVentanas(const std::vector<ProcesoVisto> &procesos) const
{
    constexpr std::chrono::minutes caducidad{2};
    if (!m_ultima || std::chrono::steady_clock::now() - m_ventanasVistas >= caducidad) return true;
    const std::uint64_t ahora = EntornoProcesos::ahora();
    return std::ranges::any_of(procesos, [&](const ProcesoVisto &proceso) {
        return ahora < proceso.inicio + m_entorno.marcasPorMinuto / 2;
    });
}

FotoRef FotografoProcesos::tomar(bool conVentanas)
{
    auto foto = std::make_shared<FotoProcesos>();
    foto->procesos = m_barrer();
    if (m_ultima) foto->ventanas = m_ultima->ventanas;
    if (conVentanas || hacenFaltaVentanas(foto->procesos)) {
        // Nobody loses its windows by a server that is slow: without them it would be signalled.
        if (auto ventanas = m_ventanas.listar()) foto->ventanas = std::move(*ventanas);
        m_ventanasVistas = std::chrono::steady_clock::now();
    }
    foto->pertenencias = m_clasificador.clasificar(foto->procesos, foto->ventanas, EntornoProcesos::ahora());
    foto->cuando = std::chrono::steady_clock::now();
    m_ultima = foto;
    return foto;
}

EntradaRef FotografoProcesos::primeraEntrada(const std::vector<std::string> &ids)
{
    const std::scoped_lock cerrado(m_cerrojo);
    return m_clasificador.entradaDe(ids);
}

} // namespace ovanta
