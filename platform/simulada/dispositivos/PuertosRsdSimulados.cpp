#include "platform/simulada/dispositivos/PuertosRsdSimulados.h"

#include "core/ErrorSistema.h"
#include "platform/simulada/dispositivos/ReleSimulado.h"
#include "platform/simulada/dispositivos/RsdSimulado.h"

#include <cerrno>

namespace ovanta {

namespace {

Descriptor escuchar(const std::string &direccion, std::optional<std::uint16_t> puerto)
{
    for (std::uint16_t uno = puerto.value_or(primerPuertoRsd); uno <= puerto.value_or(ultimoPuertoRsd); ++uno)
        if (auto escucha = escucharEnBucle(uno, direccion)) return std::move(*escucha);
    lanzarErrno(EADDRINUSE);
}

} // namespace

PuertosRsdSimulados::PuertosRsdSimulados(std::shared_ptr<DispositivoSimulado> dispositivo,
                                         std::vector<OpcionesRsd> puertos, std::string direccion)
    : m_dispositivo(std::move(dispositivo)), m_direccion(std::move(direccion))
{
    Descriptor rele = escuchar(m_direccion, 0);
    m_puertoRele = puertoDe(rele);
    m_servidores.push_back(
        std::make_unique<ServidorSimulado>(std::move(rele), [this](EnchufeSimulado &enchufe) {
            conversarConRele(enchufe, *m_dispositivo, AccesoAlRele::porTunel);
        }));
    for (const OpcionesRsd &opciones : puertos)
        abrir(opciones);
}

void PuertosRsdSimulados::abrir(const OpcionesRsd &opciones)
{
    Descriptor escucha = escuchar(m_direccion, opciones.puerto);
    m_puertos.push_back(puertoDe(escucha));
    m_servidores.push_back(
        std::make_unique<ServidorSimulado>(std::move(escucha), [this, opciones](EnchufeSimulado &enchufe) {
            RsdSimulado(enchufe, opciones, *m_dispositivo, m_puertoRele, m_diario).conversar();
        }));
}

} // namespace ovanta
