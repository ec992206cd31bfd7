#include "platform/simulada/dispositivos/HogarDeDispositivos.h"

#include <system_error>

namespace ovanta {

namespace {

OpcionesDispositivo iphoneDeLucia()
{
    OpcionesDispositivo opciones;
    opciones.nombre = "iPhone de Lucía";
    opciones.modelo = "iPhone16,1";
    opciones.marketing = "iPhone 15 Pro";
    opciones.version = "18.1";
    opciones.udid = "00008130-001C2D3E4F50607A";
    opciones.identificador = 3;
    opciones.tls = VersionTls::tls13;
    opciones.bateria = {.porcentaje = 81,
                        .cargando = true,
                        .ciclos = 214,
                        .capacidadDiseno = 3'274,
                        .capacidadNominal = 3'078,
                        .capacidadMedida = 3'041,
                        .temperatura = 3'120,
                        .voltaje = 4'236};
    return opciones;
}

OpcionesDispositivo iphoneDeMartin()
{
    OpcionesDispositivo opciones;
    opciones.nombre = "iPhone de Martín";
    opciones.modelo = "iPhone12,1";
    opciones.version = "17.7.1";
    opciones.udid = "00008030-000D1E2F3A4B5C6D";
    opciones.identificador = 4;
    opciones.bateria = {.porcentaje = 38,
                        .cargando = true,
                        .ciclos = 861,
                        .capacidadDiseno = 3'110,
                        .capacidadNominal = 2'302,
                        .capacidadMedida = 2'268,
                        .temperatura = 2'840,
                        .voltaje = 3'871};
    return opciones;
}

OpcionesDispositivo ipadDelSalon()
{
    OpcionesDispositivo opciones;
    opciones.nombre = "iPad del salón";
    opciones.modelo = "iPad13,18";
    opciones.marketing = "iPad (10.ª generación)";
    opciones.clase = "iPad";
    opciones.version = "17.6.1";
    opciones.udid = "00008101-000E2F3A4B5C6D7E";
    opciones.identificador = 7;
    opciones.conexion = "Network";
    opciones.bateria = {.porcentaje = 62,
                        .cargando = false,
                        .ciclos = 503,
                        .capacidadDiseno = 7'606,
                        .capacidadNominal = 6'389,
                        .capacidadMedida = 6'322,
                        .temperatura = 2'460,
                        .voltaje = 3'958};
    return opciones;
}

OpcionesDispositivo ipadDeLaAbuela()
{
    OpcionesDispositivo opciones;
    opciones.nombre = "iPad de la abuela";
    opciones.modelo = "iPad5,3";
    opciones.clase = "iPad";
    opciones.version = "15.8.3";
    opciones.udid = "8f1c2d3e4a5b6c7d8e9f0a1b2c3d4e5f60718293";
    opciones.identificador = 9;
    opciones.bateria.capacidadDiseno.reset();
    opciones.bateria.capacidadNominal.reset();
    opciones.bateria.porcentaje = 100;
    return opciones;
}

OpcionesDispositivo iphoneAjeno()
{
    OpcionesDispositivo opciones;
    opciones.nombre = "iPhone de una visita";
    opciones.udid = "00008120-001A2B3C4D5E6F70";
    opciones.identificador = 11;
    opciones.deConfianza = false;
    return opciones;
}

std::shared_ptr<DispositivoSimulado> con(const OpcionesDispositivo &opciones)
{
    return std::make_shared<DispositivoSimulado>(opciones);
}

} // namespace

HogarDeDispositivos::HogarDeDispositivos()
    : m_dispositivos{con(iphoneDeLucia()), con(iphoneDeMartin()), con(ipadDelSalon()), con(ipadDeLaAbuela()),
                     con(iphoneAjeno())},
      // The iPad is asleep for the tools, so that its figures come by the multiplexer; a third device that
      // they know is away.
      m_devicectl(
          {{m_dispositivos.at(0), "6F0D3C1A-2B4E-5F60-8A7B-9C0D1E2F3A41", "wired", {"connected"}},
           {m_dispositivos.at(2), "7A1E4D2B-3C5F-4071-9B8C-0D1E2F3A4B52", "localNetwork", {"disconnected"}},
           {con({}), "8B2F5E3C-4D60-4182-8C9D-1E2F3A4B5C63", std::nullopt, {"unavailable"}}})
{
}

std::string HogarDeDispositivos::rutaUsbmuxd()
{
    std::call_once(m_iniciado, [this] {
        try {
            m_usbmuxd = std::make_unique<UsbmuxdSimulado>(m_dispositivos);
        } catch (const std::system_error &) {
        }
    });
    return m_usbmuxd ? m_usbmuxd->ruta() : "/var/empty/usbmuxd";
}

} // namespace ovanta
