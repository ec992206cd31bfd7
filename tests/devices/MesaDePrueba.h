#pragma once

#include "devices/Usbmux.h"
#include "platform/ConexionesPosix.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <thread>

namespace ovanta::pruebas {

using Ajuste = std::function<void(OpcionesDispositivo &)>;

/// One simulated device behind a simulated usbmuxd, on real sockets.
struct Mesa
{
    explicit Mesa(const Ajuste &ajustar = {}, UsbmuxdSimulado::Opciones opciones = {})
        : telefono(dispositivo(ajustar)), usbmuxd({telefono}, std::move(opciones)), conexiones(usbmuxd.ruta())
    {
    }

    std::expected<LecturaBateriaIOS, ErrorIOS> leer(const Plazo &plazo = Plazo{std::chrono::minutes(1)})
    {
        const auto conectados = Usbmux::conectados(conexiones, plazo);
        if (!conectados) return std::unexpected(conectados.error());
        if (conectados->size() != 1) return std::unexpected(ErrorIOS::otro("no hay un dispositivo"));
        return Usbmux::leer(conexiones, conectados->front(), plazo);
    }
    std::string fallo(const Plazo &plazo = Plazo{std::chrono::minutes(1)})
    {
        const auto leida = leer(plazo);
        return leida ? "" : leida.error().errorDescription();
    }

    /// What the device saw, once it has seen so much: it writes that down at its own pace.
    std::vector<std::string> diario(std::size_t cuantas) const
    {
        for (const Plazo plazo{std::chrono::seconds(20)};
             telefono->diario().lineas().size() < cuantas && !plazo.vencido();)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return telefono->diario().lineas();
    }

    std::shared_ptr<DispositivoSimulado> telefono;
    UsbmuxdSimulado usbmuxd;
    ConexionesPosix conexiones;
};

} // namespace ovanta::pruebas
