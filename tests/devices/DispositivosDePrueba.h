#pragma once

#include "platform/simulada/dispositivos/UsbmuxdSimulado.h"
#include "tests/devices/ClienteCrudo.h"

#include <functional>
#include <memory>

namespace ovanta::pruebas {

/// A simulated device whose keys are quickly made, changed by `ajustar`.
inline std::shared_ptr<DispositivoSimulado>
dispositivo(const std::function<void(OpcionesDispositivo &)> &ajustar = {})
{
    OpcionesDispositivo opciones;
    opciones.claveDelMac = TipoDeClave::p256;
    opciones.claveDelDispositivo = TipoDeClave::p256;
    if (ajustar) ajustar(opciones);
    return std::make_shared<DispositivoSimulado>(opciones);
}

/// Serves what is behind one port of a device, and the peer that talks to it.
struct Puerto
{
    Puerto(std::shared_ptr<DispositivoSimulado> quien, std::uint16_t puerto)
        : Puerto(std::move(quien), puerto, *escucharEnBucle(0))
    {
    }
    Puerto(std::shared_ptr<DispositivoSimulado> quien, std::uint16_t puerto, Descriptor escucha)
        : dispositivo(std::move(quien)), cliente(ClienteCrudo::dePuerto(puertoDe(escucha))),
          servidor(std::move(escucha),
                   [this, puerto](EnchufeSimulado &enchufe) { dispositivo->conversar(enchufe, puerto); })
    {
    }

    std::shared_ptr<DispositivoSimulado> dispositivo;
    ClienteCrudo cliente;
    ServidorSimulado servidor;
};

inline std::string texto(const std::string &clave, const std::string &valor)
{
    return "<key>" + clave + "</key><string>" + valor + "</string>";
}

inline std::string peticion(const std::string &orden, const std::string &mas = {})
{
    return plist(texto("Label", "yo") + texto("Request", orden) + mas);
}

inline std::string abrirSesion(DispositivoSimulado &dispositivo)
{
    return peticion("StartSession", texto("HostID", dispositivo.emparejamiento().hostId()) +
                                        texto("SystemBUID", dispositivo.emparejamiento().buid()));
}

template <typename Cliente>
std::string preguntar(const Cliente &cliente, const std::string &pregunta)
{
    cliente.escribirMarco(pregunta);
    return cliente.leerMarco();
}

} // namespace ovanta::pruebas
