#pragma once

#include "platform/simulada/dispositivos/DispositivoSimulado.h"
#include "platform/simulada/dispositivos/MarcosSimulados.h"

namespace ovanta {

/// One conversation with lockdown, the service of a device that opens sessions and starts other services.
class LockdownSimulado
{
public:
    LockdownSimulado(EnchufeSimulado &enchufe, DispositivoSimulado &dispositivo);

    /// Answers until the peer goes; ends by `FinDeConversacion`.
    [[noreturn]] void conversar();

private:
    DiccionarioPlist responder(const PeticionPlist &peticion, const std::string &orden);
    DiccionarioPlist abrirSesion(const PeticionPlist &peticion);
    DiccionarioPlist valor(const PeticionPlist &peticion) const;
    DiccionarioPlist abrirServicio(const PeticionPlist &peticion);
    DiccionarioPlist cerrarSesion(const PeticionPlist &peticion);

    EnchufeSimulado &m_enchufe;
    DispositivoSimulado &m_dispositivo;
    const OpcionesDispositivo &m_opciones;
    Contestador m_contestador;
    std::string m_sesion; ///< empty without one
};

} // namespace ovanta
