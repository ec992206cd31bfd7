#include "platform/simulada/dispositivos/EmparejamientoSimulado.h"

#include "core/Uuid.h"
#include "core/plist/EscribirPlist.h"

namespace ovanta {

namespace {

DatosPlist pemComo(const OpcionesDispositivo &opciones, const std::string &pem)
{
    if (!opciones.pemConRetornos) return {pem};
    std::string conRetornos;
    for (const char letra : pem)
        conRetornos += letra == '\n' ? std::string("\r\n") : std::string(1, letra);
    return {conRetornos};
}

CertificadoSimulado mostrado(const OpcionesDispositivo &opciones, const CertificadoSimulado &registrado,
                             const EmisorSimulado &dispositivo)
{
    switch (opciones.certificadoMostrado) {
    case CertificadoMostrado::elDelRegistro:
        return registrado;
    case CertificadoMostrado::conUnByteDistinto:
        return conUnByteDistinto(registrado);
    case CertificadoMostrado::otro:
        return certificar({"otro", dispositivo.clave}, dispositivo);
    }
    std::unreachable();
}

} // namespace

EmparejamientoSimulado::EmparejamientoSimulado(const OpcionesDispositivo &opciones)
    : m_hostId(uuidNuevo()), m_buid(uuidNuevo())
{
    // The root has a key of its own, as Macs make it when they pair. Only its signatures are ever used.
    const EmisorSimulado raiz{"Root", claveSimulada(TipoDeClave::p256, "raíz")};
    const EmisorSimulado mac{"Host", claveSimulada(opciones.claveDelMac, "mac")};
    const EmisorSimulado dispositivo{"Device", claveSimulada(opciones.claveDelDispositivo, "dispositivo")};
    const CertificadoSimulado delMac = certificar(mac, raiz);
    const CertificadoSimulado delDispositivo = certificar(
        dispositivo, opciones.certificadoAutofirmado ? dispositivo : raiz, opciones.certificadoCaducado);
    m_identidad = {mostrado(opciones, delDispositivo, dispositivo), dispositivo.clave, delMac};

    std::vector<EntradaPlist> entradas{
        {"DeviceCertificate", pemComo(opciones, pemDe(delDispositivo))},
        {"EscrowBag", DatosPlist{std::string(32, '\x07')}},
        {"HostCertificate", pemComo(opciones, pemDe(delMac))},
        {"HostID", m_hostId},
        {"HostPrivateKey", pemComo(opciones, pemDe(mac.clave, opciones.clavePkcs8))},
        {"RootCertificate", pemComo(opciones, pemDe(certificar(raiz, raiz)))},
        {"RootPrivateKey", pemComo(opciones, pemDe(raiz.clave, opciones.clavePkcs8))},
        {"SystemBUID", m_buid},
        {"WiFiMACAddress", "f0:18:98:3a:5c:7e"}};
    std::erase_if(entradas,
                  [&](const EntradaPlist &una) { return opciones.clavesAusentes.contains(una.clave); });
    m_registro = opciones.registroIlegible ? "esto no es una lista de propiedades"
                                           : escribirPlistXml(DiccionarioPlist(std::move(entradas))).value();
}

} // namespace ovanta
