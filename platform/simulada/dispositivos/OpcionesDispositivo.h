#pragma once

#include "platform/simulada/dispositivos/BateriaIOSSimulada.h"
#include "platform/simulada/dispositivos/CanalTlsSimulado.h"
#include "platform/simulada/dispositivos/FallosSimulados.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace ovanta {

/// Which certificate a device shows, beside the one that its pairing record holds.
enum class CertificadoMostrado { elDelRegistro, conUnByteDistinto, otro };

/// Everything that a simulated iPhone or iPad is and does. As it stands: a trusted iPhone by cable, in
/// good health, that speaks TLS 1.2.
struct OpcionesDispositivo
{
    std::string nombre = "iPhone de Ana";
    std::string modelo = "iPhone14,7";
    std::string marketing = "iPhone 14"; ///< known to the developer tools alone
    std::string clase = "iPhone";
    std::string version = "17.6.1";
    std::string udid = "00008110-000A1B2C3D4E5F60";
    BateriaIOSSimulada bateria;

    // What the multiplexer tells of it.
    std::int64_t identificador = 1;
    std::optional<std::string> conexion = "USB"; ///< `ConnectionType`; "Network" by Wi-Fi
    bool conNumeroDeSerie = true;
    bool rechazaConexiones = false;

    // The pairing.
    bool deConfianza = true;              ///< else there is no pairing record
    std::set<std::string> clavesAusentes; ///< left out of the record
    bool registroIlegible = false;        ///< the record is no property list
    bool pemConRetornos = false;          ///< lines end in CR LF
    bool clavePkcs8 = true;               ///< else "RSA PRIVATE KEY"
    TipoDeClave claveDelMac = TipoDeClave::rsa2048;
    TipoDeClave claveDelDispositivo = TipoDeClave::rsa2048;
    bool certificadoCaducado = false;
    bool certificadoAutofirmado = false; ///< else signed by the pairing's root
    CertificadoMostrado certificadoMostrado = CertificadoMostrado::elDelRegistro;

    // Lockdown.
    bool bloqueado = false;                     ///< its screen: it starts no service
    std::optional<bool> sesionCifrada = true;   ///< `EnableSessionSSL`; may be missing
    std::optional<bool> servicioCifrado = true; ///< `EnableServiceSSL`; may be missing
    VersionTls tls = VersionTls::tls12;
    AlNegociar alNegociarSesion = AlNegociar::acepta;
    AlNegociar alNegociarServicio = AlNegociar::acepta;
    bool conDominioDeBateria = true;                  ///< else its values are missing in the answer
    std::optional<std::uint16_t> puertoRele = 49'731; ///< missing: `StartService` tells no port

    // The diagnostics relay.
    std::optional<std::string> estadoRele = "Success"; ///< `Status`; may be missing
    bool conDiagnostico = true;                        ///< else the answer holds no `Diagnostics`
    std::optional<DiccionarioPlist> registro;          ///< instead of that of `bateria`

    FallosSimulados fallosLockdown;
    FallosSimulados fallosRele;
};

} // namespace ovanta
