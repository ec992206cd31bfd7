#include "platform/linux/FotografoProcesos.h"

#include "platform/linux/BarridoProc.h"

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
    return tomar();
}

FotoRef FotografoProcesos::reciente()
{
    constexpr std::chrono::seconds momento{2};
    const std::scoped_lock cerrado(m_cerrojo);
    if (m_ultima && std::chrono::steady_clock::now() - m_ultima->cuando < momento) return m_ultima;
    return tomar();
}

FotoRef FotografoProcesos::tomar()
{
    auto foto = std::make_shared<FotoProcesos>();
    foto->procesos = m_barrer();
    // Nobody loses its windows by a server that is slow: without them it would be signalled.
    auto ventanas = m_ventanas.listar();
    if (ventanas)
        foto->ventanas = std::move(*ventanas);
    else if (m_ultima)
        foto->ventanas = m_ultima->ventanas;
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
