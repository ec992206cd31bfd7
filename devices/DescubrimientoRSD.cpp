#include "devices/DescubrimientoRSD.h"

#include "devices/XPC.h"

#include <charconv>
#include <utility>

namespace ovanta {

namespace {

constexpr std::uint32_t raiz = 1;       // the stream of the messages
constexpr std::uint32_t respuestas = 3; // the stream that the device answers on

std::optional<std::uint16_t> puertoDe(std::string_view texto)
{
    if (texto.starts_with('+')) texto.remove_prefix(1);
    std::uint16_t puerto = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), puerto);
    if (error != std::errc{} || fin != texto.data() + texto.size()) return std::nullopt;
    return puerto;
}

/// Bytes of the first whole message in `pendiente`; 0 where it has not come yet.
std::size_t largoDeMensaje(std::string_view pendiente)
{
    if (pendiente.size() < XPC::bytesDeEnvoltura) return 0;
    const std::uint64_t cuerpo = XPC::u64(pendiente, 8).value();
    if (pendiente.size() - XPC::bytesDeEnvoltura < cuerpo) return 0;
    return XPC::bytesDeEnvoltura + cuerpo;
}

} // namespace

std::optional<ServiciosRSD> serviciosDe(const ValorXPC &mensaje)
{
    const ValorXPC *servicios = mensaje.en("Services");
    const auto *mapa = servicios ? servicios->como<ValorXPC::Mapa>() : nullptr;
    if (!mapa) return std::nullopt;
    ServiciosRSD hallados;
    for (const auto &[nombre, servicio] : *mapa) {
        const ValorXPC *campo = servicio.en("Port");
        const auto *texto = campo ? campo->como<std::string>() : nullptr;
        if (!texto) continue;
        if (const auto puerto = puertoDe(*texto)) hallados.emplace(nombre, *puerto);
    }
    return hallados;
}

std::vector<std::string> DescubrimientoRSD::saludo()
{
    using namespace http2;
    constexpr std::uint16_t streamsALaVez = 3, ventanaInicial = 4; // RFC 9113, section 6.5.2
    return {
        std::string(prefacio),
        frame(ajustes, 0, 0, ajuste(streamsALaVez, 100) + ajuste(ventanaInicial, 1048576)),
        frame(ventana, 0, 0, incremento(983041)),
        frame(cabeceras, flagFinDeCabeceras, raiz, {}),
        frame(datos, 0, raiz, XPC::envoltura(0x1, true)),
        frame(datos, 0, raiz, XPC::envoltura(0x201, false)),
        frame(cabeceras, flagFinDeCabeceras, respuestas, {}),
        frame(datos, 0, respuestas, XPC::envoltura(0x400001, false)),
    };
}

std::expected<DescubrimientoRSD::Paso, ErrorIOS> DescubrimientoRSD::recibir(const http2::Cabecera &cabecera,
                                                                            std::string_view carga)
{
    switch (cabecera.tipo) {
    case http2::ajustes:
        if ((cabecera.flags & http2::flagAck) != 0) return Paso{};
        return Paso{.respuesta = http2::frame(http2::ajustes, http2::flagAck, 0, {}), .servicios = {}};
    case http2::despedida:
        return std::unexpected(ErrorIOS::protocolo("el dispositivo cerró el descubrimiento"));
    case http2::datos: {
        m_datos += carga.size();
        if (m_datos > datosMaximos)
            return std::unexpected(ErrorIOS::protocolo("respuesta con longitud inválida"));
        std::string &pendiente = m_pendientes[cabecera.stream];
        pendiente.append(carga);
        return Paso{.respuesta = {}, .servicios = tomarMensajes(pendiente)};
    }
    default:
        return Paso{};
    }
}

std::optional<ServiciosRSD> DescubrimientoRSD::tomarMensajes(std::string &pendiente)
{
    std::string_view resto = pendiente;
    std::optional<ServiciosRSD> hallados;
    while (const std::size_t largo = hallados ? 0 : largoDeMensaje(resto)) {
        const std::string_view cuerpo = resto.substr(XPC::bytesDeEnvoltura, largo - XPC::bytesDeEnvoltura);
        resto.remove_prefix(largo);
        if (cuerpo.size() <= XPC::bytesDePrefijo) continue;
        std::size_t posicion = XPC::bytesDePrefijo;
        if (const auto mensaje = XPC::valor(cuerpo, posicion)) hallados = serviciosDe(*mensaje);
    }
    pendiente.erase(0, pendiente.size() - resto.size());
    return hallados;
}

std::expected<ServiciosRSD, ErrorIOS> descubrirServicios(const TuboRSD &tubo)
{
    for (const std::string &trozo : DescubrimientoRSD::saludo())
        if (auto escrito = tubo.escribir(trozo); !escrito) return std::unexpected(escrito.error());
    DescubrimientoRSD descubrimiento;
    for (int i = 0; i < DescubrimientoRSD::tramasMaximas; ++i) {
        const auto bytes = tubo.leer(http2::Cabecera::bytes);
        if (!bytes) return std::unexpected(bytes.error());
        const http2::Cabecera cabecera = http2::leerCabecera(*bytes);
        std::string carga;
        if (cabecera.longitud > 0) {
            auto leida = tubo.leer(cabecera.longitud);
            if (!leida) return std::unexpected(leida.error());
            carga = *std::move(leida);
        }
        auto paso = descubrimiento.recibir(cabecera, carga);
        if (!paso) return std::unexpected(paso.error());
        if (!paso->respuesta.empty())
            if (auto escrito = tubo.escribir(paso->respuesta); !escrito)
                return std::unexpected(escrito.error());
        if (paso->servicios) return *std::move(paso->servicios);
    }
    return std::unexpected(ErrorIOS::protocolo("descubrimiento sin lista de servicios"));
}

} // namespace ovanta
