#include "devices/MensajeUsbmux.h"

#include "core/LittleEndian.h"
#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"

#include <bit>
#include <utility>

namespace ovanta::Usbmux {

namespace {

constexpr std::uint32_t version = 1;
constexpr std::uint32_t tipoPlist = 8;
constexpr std::uint32_t etiqueta = 1;

/// Reads a property list that must be a dictionary; `siNo` is the error where it is another thing.
std::expected<DiccionarioPlist, ErrorIOS> leerDiccionario(std::string_view plist, const ErrorIOS &siNo)
{
    auto leida = leerPlist(plist);
    if (!leida && leida.error().caso != ErrorPlist::Caso::claveSinTexto)
        return std::unexpected(ErrorIOS::otro(leida.error().descripcion()));
    if (!leida || !leida->si<DiccionarioPlist>()) return std::unexpected(siNo);
    return std::get<DiccionarioPlist>(std::move(leida->variante()));
}

ErrorIOS ilegible()
{
    return ErrorIOS::protocolo("respuesta de usbmuxd ilegible");
}

ErrorIOS sinConfianza()
{
    return ErrorIOS::protocolo(
        "Este dispositivo no confía en el Mac. Desbloquéalo y acepta «Confiar en este ordenador».");
}

} // namespace

std::expected<std::string, ErrorIOS> mensaje(DiccionarioPlist peticion)
{
    peticion.poner("ClientVersionString", "Ovanta");
    peticion.poner("ProgName", "Ovanta");
    const auto plist = escribirPlistXml(std::move(peticion));
    if (!plist) return std::unexpected(ErrorIOS::otro(plist.error().descripcion()));
    return aLittleEndian(bytesDeCabecera + plist->size(), 4) + aLittleEndian(version, 4) +
           aLittleEndian(tipoPlist, 4) + aLittleEndian(etiqueta, 4) + *plist;
}

std::expected<std::size_t, ErrorIOS> bytesQueSiguen(std::string_view cabecera)
{
    const std::uint64_t largo = leerLittleEndian(cabecera.substr(0, 4));
    if (largo < bytesDeCabecera || largo > maximoRespuesta) return std::unexpected(ilegible());
    return largo - bytesDeCabecera;
}

std::expected<DiccionarioPlist, ErrorIOS> interpretarRespuesta(std::string_view plist)
{
    return leerDiccionario(plist, ilegible());
}

std::vector<Dispositivo> dispositivosDe(const DiccionarioPlist &respuesta)
{
    std::vector<Dispositivo> dispositivos;
    const auto *lista = respuesta.valor<ListaPlist>("DeviceList");
    if (!lista) return dispositivos;
    for (const ValorPlist &uno : *lista) {
        const auto *entrada = uno.si<DiccionarioPlist>();
        const auto *id = entrada ? entrada->valor<std::int64_t>("DeviceID") : nullptr;
        const auto *propiedades = entrada ? entrada->valor<DiccionarioPlist>("Properties") : nullptr;
        const auto *udid = propiedades ? propiedades->valor<std::string>("SerialNumber") : nullptr;
        if (!id || !udid) continue;
        const auto *tipo = propiedades->valor<std::string>("ConnectionType");
        dispositivos.push_back({.id = *id, .udid = *udid, .porRed = tipo && *tipo == "Network"});
    }
    return dispositivos;
}

std::expected<Emparejamiento, ErrorIOS> emparejamientoDe(const DiccionarioPlist &respuesta)
{
    const auto *datos = respuesta.valor<DatosPlist>("PairRecordData");
    if (!datos) return std::unexpected(sinConfianza());
    const auto ficha = leerDiccionario(datos->bytes, sinConfianza());
    if (!ficha) return std::unexpected(ficha.error());
    const auto *certificado = ficha->valor<DatosPlist>("HostCertificate");
    const auto *clave = ficha->valor<DatosPlist>("HostPrivateKey");
    const auto *hostID = ficha->valor<std::string>("HostID");
    const auto *systemBUID = ficha->valor<std::string>("SystemBUID");
    const auto *dispositivo = ficha->valor<DatosPlist>("DeviceCertificate");
    if (!certificado || !clave || !hostID || !systemBUID || !dispositivo)
        return std::unexpected(sinConfianza());
    return Emparejamiento{.certificado = certificado->bytes,
                          .clave = clave->bytes,
                          .certificadoDispositivo = dispositivo->bytes,
                          .hostID = *hostID,
                          .systemBUID = *systemBUID};
}

std::int64_t puertoDeRed(std::uint16_t puerto)
{
    return std::byteswap(puerto);
}

} // namespace ovanta::Usbmux
