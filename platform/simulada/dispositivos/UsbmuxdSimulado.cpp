#include "platform/simulada/dispositivos/UsbmuxdSimulado.h"

#include "core/ErrorSistema.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace ovanta {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t tamanoDeCabecera = 16;
constexpr std::uint32_t version = 1;
constexpr std::uint32_t mensajePlist = 8;

enum Resultado : std::int64_t {
    bien = 0,
    ordenDesconocida = 1,
    sinDispositivo = 2,
    rechazada = 3,
    otraVersion = 6
};

DiccionarioPlist resultado(Resultado numero)
{
    return {{"MessageType", "Result"}, {"Number", static_cast<std::int64_t>(numero)}};
}

std::uint32_t palabra(std::string_view bytes)
{
    std::uint32_t numero = 0;
    for (std::size_t i = 0; i < 4; ++i)
        numero |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return numero;
}

std::string cabecera(std::uint32_t longitud, std::uint32_t etiqueta)
{
    std::string bytes;
    for (const std::uint32_t campo : {tamanoDeCabecera + longitud, version, mensajePlist, etiqueta})
        for (const int desplazado : {0, 8, 16, 24})
            bytes.push_back(static_cast<char>((campo >> desplazado) & 0xff));
    return bytes;
}

/// The port of a message comes in network order, read as a number of this machine.
std::optional<std::uint16_t> puertoDe(const PeticionPlist &peticion)
{
    const auto numero = peticion.entero("PortNumber");
    if (!numero || *numero < 0 || *numero > 0xffff) return std::nullopt;
    return static_cast<std::uint16_t>((*numero & 0xff) << 8 | *numero >> 8);
}

std::string carpetaNueva()
{
    std::string plantilla = fs::temp_directory_path().native() + "/ovanta-usbmuxd.XXXXXX";
    if (!::mkdtemp(plantilla.data())) lanzarErrno(errno);
    return plantilla;
}

DiccionarioPlist fichaDe(const OpcionesDispositivo &opciones)
{
    DiccionarioPlist propiedades{{"DeviceID", opciones.identificador}};
    if (opciones.conNumeroDeSerie) propiedades.poner("SerialNumber", opciones.udid);
    if (opciones.conexion) propiedades.poner("ConnectionType", *opciones.conexion);
    if (opciones.conexion == "Network") {
        propiedades.poner("EscapedFullServiceName",
                          "f0:18:98:3a:5c:7e@fe80::f218:98ff:fe3a:5c7e._apple-mobdev2._tcp");
        propiedades.poner("NetworkAddress",
                          DatosPlist{std::string("\x1c\x1e\0\0", 4) + std::string(24, '\0')});
    } else {
        propiedades.poner("ConnectionSpeed", 480'000'000);
        propiedades.poner("LocationID", 336'592'896);
        propiedades.poner("ProductID", 4'776);
    }
    return {{"DeviceID", opciones.identificador}, {"MessageType", "Attached"}, {"Properties", propiedades}};
}

} // namespace

UsbmuxdSimulado::UsbmuxdSimulado(Dispositivos dispositivos, Opciones opciones)
    : m_dispositivos(std::move(dispositivos)), m_opciones(std::move(opciones)), m_carpeta(carpetaNueva()),
      m_ruta(m_carpeta + "/usbmuxd")
{
    m_servidor = std::make_unique<ServidorSimulado>(escucharEnRuta(m_ruta),
                                                    [this](EnchufeSimulado &enchufe) { conversar(enchufe); });
}

UsbmuxdSimulado::~UsbmuxdSimulado()
{
    m_servidor.reset();
    std::error_code error; // the system clears its temporary folder anyway
    fs::remove_all(m_carpeta, error);
}

void UsbmuxdSimulado::conversar(EnchufeSimulado &enchufe)
{
    Contestador contestador(enchufe, m_opciones.fallos);
    for (;;) {
        const Mensaje mensaje = leerMensaje(enchufe);
        const auto contestar = [&](const DiccionarioPlist &respuesta) {
            contestador.contestar(enchufe, respuesta, [&](std::uint32_t longitud) {
                return cabecera(longitud, mensaje.etiqueta);
            });
        };
        anotar(mensaje.peticion);
        const auto puerto = puertoDe(mensaje.peticion);
        DispositivoSimulado *dispositivo = destino(mensaje.peticion);
        if (!mensaje.admisible) {
            contestar(resultado(otraVersion));
        } else if (mensaje.peticion.texto("MessageType") != "Connect") {
            contestar(responder(mensaje.peticion));
        } else if (!dispositivo) {
            contestar(resultado(sinDispositivo));
        } else if (!puerto || dispositivo->opciones().rechazaConexiones ||
                   !dispositivo->aceptaConexion(*puerto)) {
            contestar(resultado(rechazada));
        } else {
            contestar(resultado(bien));
            return dispositivo->conversar(enchufe, *puerto);
        }
    }
}

UsbmuxdSimulado::Mensaje UsbmuxdSimulado::leerMensaje(EnchufeSimulado &enchufe)
{
    const std::string cabecera = enchufe.leer(tamanoDeCabecera);
    const std::string_view bytes = cabecera;
    const std::uint32_t longitud = palabra(bytes);
    if (longitud < tamanoDeCabecera || longitud > limiteDePeticion) throw FinDeConversacion{};
    const auto peticion = PeticionPlist::leer(enchufe.leer(longitud - tamanoDeCabecera));
    if (!peticion) throw FinDeConversacion{};
    return {palabra(bytes.substr(12)), *peticion,
            palabra(bytes.substr(4)) == version && palabra(bytes.substr(8)) == mensajePlist};
}

void UsbmuxdSimulado::anotar(const PeticionPlist &peticion)
{
    m_diario.anotar(peticion.texto("MessageType") + " (" + peticion.texto("ClientVersionString") + ", " +
                    peticion.texto("ProgName") + ")");
}

DiccionarioPlist UsbmuxdSimulado::responder(const PeticionPlist &peticion) const
{
    const std::string orden = peticion.texto("MessageType");
    if (orden == "ListDevices") return m_opciones.conLista ? lista() : DiccionarioPlist{};
    if (orden == "ReadPairRecord") return registroDe(peticion.texto("PairRecordID"));
    return resultado(ordenDesconocida);
}

DiccionarioPlist UsbmuxdSimulado::lista() const
{
    ListaPlist fichas;
    for (const auto &dispositivo : m_dispositivos)
        fichas.emplace_back(fichaDe(dispositivo->opciones()));
    return {{"DeviceList", fichas}};
}

DiccionarioPlist UsbmuxdSimulado::registroDe(const std::string &udid) const
{
    for (const auto &dispositivo : m_dispositivos)
        if (dispositivo->opciones().udid == udid && dispositivo->opciones().deConfianza)
            return {{"PairRecordData", DatosPlist{dispositivo->emparejamiento().registro()}}};
    return resultado(sinDispositivo);
}

DispositivoSimulado *UsbmuxdSimulado::destino(const PeticionPlist &peticion) const
{
    const auto esEl = [&](const auto &uno) {
        return uno->opciones().identificador == peticion.entero("DeviceID");
    };
    const auto hallado = std::ranges::find_if(m_dispositivos, esEl);
    return hallado == m_dispositivos.end() ? nullptr : hallado->get();
}

} // namespace ovanta
