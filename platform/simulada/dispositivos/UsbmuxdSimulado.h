#pragma once

#include "platform/simulada/dispositivos/DispositivoSimulado.h"
#include "platform/simulada/dispositivos/MarcosSimulados.h"
#include "platform/simulada/dispositivos/ServidorSimulado.h"

#include <memory>
#include <string>
#include <vector>

namespace ovanta {

/// The daemon that multiplexes connections to devices, on a Unix socket of its own in a private temporary
/// folder. Serves on its own threads until it is destroyed, which ends every tunnel through it.
class UsbmuxdSimulado
{
public:
    using Dispositivos = std::vector<std::shared_ptr<DispositivoSimulado>>;
    struct Opciones
    {
        bool conLista = true;   ///< else the answer to `ListDevices` has no `DeviceList`
        FallosSimulados fallos; ///< of the messages before a tunnel
    };

    /// Throws `std::system_error`.
    explicit UsbmuxdSimulado(Dispositivos dispositivos) : UsbmuxdSimulado(std::move(dispositivos), {}) {}
    UsbmuxdSimulado(Dispositivos dispositivos, Opciones opciones);
    ~UsbmuxdSimulado();
    UsbmuxdSimulado(const UsbmuxdSimulado &) = delete;
    UsbmuxdSimulado &operator=(const UsbmuxdSimulado &) = delete;

    /// Path of the socket.
    const std::string &ruta() const { return m_ruta; }
    const Dispositivos &dispositivos() const { return m_dispositivos; }
    /// Each message with the two names that its sender gave itself.
    const DiarioSimulado &diario() const { return m_diario; }

private:
    struct Mensaje
    {
        std::uint32_t etiqueta;
        PeticionPlist peticion;
        bool admisible; ///< of the version and kind that are served
    };

    void conversar(EnchufeSimulado &enchufe);
    static Mensaje leerMensaje(EnchufeSimulado &enchufe);
    void anotar(const PeticionPlist &peticion);
    DiccionarioPlist responder(const PeticionPlist &peticion) const;
    DiccionarioPlist lista() const;
    DiccionarioPlist registroDe(const std::string &udid) const;
    DispositivoSimulado *destino(const PeticionPlist &peticion) const;

    Dispositivos m_dispositivos;
    Opciones m_opciones;
    DiarioSimulado m_diario;
    std::string m_carpeta;
    std::string m_ruta;
    std::unique_ptr<ServidorSimulado> m_servidor;
};

} // namespace ovanta
