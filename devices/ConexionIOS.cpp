#include "devices/ConexionIOS.h"

#include "core/BigEndian.h"
#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "devices/CanalTLS.h"
#include "devices/DerPem.h"

#include <span>

namespace ovanta {

namespace {

ErrorIOS falloAlEscribir(Canal::Fallo fallo)
{
    return ErrorIOS::socket(fallo == Canal::Fallo::vencido ? "el dispositivo no respondió a tiempo"
                                                           : "el dispositivo cerró la conexión");
}

ErrorIOS falloAlLeer(Canal::Fallo fallo)
{
    return ErrorIOS::socket(fallo == Canal::Fallo::cerrado ? "el dispositivo cerró la conexión"
                                                           : "el dispositivo no respondió a tiempo");
}

ErrorIOS falloAlAbrir(Conexiones::Fallo fallo, const std::string &sinRespuesta)
{
    switch (fallo) {
    case Conexiones::Fallo::sinSocket:
        return ErrorIOS::socket("socket()");
    case Conexiones::Fallo::direccionInvalida:
        return ErrorIOS::socket("dirección inválida");
    case Conexiones::Fallo::vencido:
        return ErrorIOS::socket("el dispositivo no respondió a tiempo");
    case Conexiones::Fallo::sinRespuesta:
        break;
    }
    return ErrorIOS::socket(sinRespuesta);
}

constexpr std::size_t anchoDeLongitud = 4;

/// Fills `cuantos` bytes with what `leerAlgo` gives piece by piece.
template <typename LeerAlgo>
std::expected<std::string, ErrorIOS> llenar(std::size_t cuantos, LeerAlgo leerAlgo)
{
    std::string bytes(cuantos, '\0');
    for (std::span<char> lugar{bytes}; !lugar.empty();) {
        const std::expected<std::size_t, ErrorIOS> leidos = leerAlgo(lugar);
        if (!leidos) return std::unexpected(leidos.error());
        lugar = lugar.subspan(*leidos);
    }
    return bytes;
}

} // namespace

ConexionIOS::ConexionIOS(std::unique_ptr<Canal> canal) : m_canal(std::move(canal)) {}
ConexionIOS::ConexionIOS(ConexionIOS &&) noexcept = default;
ConexionIOS::~ConexionIOS() = default;

ConexionIOS &ConexionIOS::operator=(ConexionIOS &&otra) noexcept
{
    // The cipher says goodbye over its channel, so it goes first.
    m_tls = std::move(otra.m_tls);
    m_canal = std::move(otra.m_canal);
    return *this;
}

ConexionIOS::Resultado<ConexionIOS> ConexionIOS::abrirUnix(Conexiones &conexiones, const std::string &ruta,
                                                           const Plazo &plazo)
{
    auto canal = conexiones.abrirUnix(ruta, plazo);
    if (!canal) return std::unexpected(falloAlAbrir(canal.error(), "usbmuxd no responde"));
    return ConexionIOS{std::move(*canal)};
}

ConexionIOS::Resultado<ConexionIOS> ConexionIOS::abrirTcp6(Conexiones &conexiones, const std::string &host,
                                                           std::uint16_t puerto,
                                                           std::chrono::milliseconds espera,
                                                           const Plazo &plazo)
{
    auto canal = conexiones.abrirTcp6(host, puerto, espera, plazo);
    if (!canal)
        return std::unexpected(falloAlAbrir(canal.error(), "puerto " + std::to_string(puerto) + " cerrado"));
    return ConexionIOS{std::move(*canal)};
}

ConexionIOS::Resultado<void> ConexionIOS::escribir(std::string_view bytes)
{
    return m_tls ? m_tls->escribir(bytes) : escribirCrudo(bytes);
}

ConexionIOS::Resultado<std::string> ConexionIOS::leer(std::size_t cuantos)
{
    if (!m_tls) return leerCrudo(cuantos);
    return llenar(cuantos, [this](std::span<char> lugar) { return m_tls->leer(lugar); });
}

ConexionIOS::Resultado<void> ConexionIOS::escribirCrudo(std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto enviados = m_canal->enviar(bytes);
        if (!enviados) return std::unexpected(falloAlEscribir(enviados.error()));
        bytes.remove_prefix(*enviados);
    }
    return {};
}

ConexionIOS::Resultado<std::string> ConexionIOS::leerCrudo(std::size_t cuantos)
{
    return llenar(cuantos, [this](std::span<char> lugar) -> Resultado<std::size_t> {
        const auto recibidos = m_canal->recibir(lugar);
        if (!recibidos) return std::unexpected(falloAlLeer(recibidos.error()));
        return *recibidos;
    });
}

ConexionIOS::Resultado<void> ConexionIOS::enviarPlist(const DiccionarioPlist &mensaje)
{
    const auto cuerpo = escribirPlistXml(mensaje);
    if (!cuerpo) return std::unexpected(ErrorIOS::otro(cuerpo.error().descripcion()));
    return escribir(aBigEndian(cuerpo->size(), anchoDeLongitud) + *cuerpo);
}

ConexionIOS::Resultado<DiccionarioPlist> ConexionIOS::recibirPlist()
{
    const auto cabecera = leer(anchoDeLongitud);
    if (!cabecera) return std::unexpected(cabecera.error());
    const auto largo = leerBigEndian(*cabecera);
    if (largo == 0 || largo > maximoPlist)
        return std::unexpected(ErrorIOS::protocolo("respuesta con longitud inválida"));
    const auto cuerpo = leer(largo);
    if (!cuerpo) return std::unexpected(cuerpo.error());
    auto valor = leerPlist(*cuerpo);
    if (!valor && valor.error().caso != ErrorPlist::Caso::claveSinTexto)
        return std::unexpected(ErrorIOS::otro(valor.error().descripcion()));
    auto *mensaje = valor ? std::get_if<DiccionarioPlist>(&valor->variante()) : nullptr;
    if (!mensaje) return std::unexpected(ErrorIOS::protocolo("respuesta ilegible"));
    return std::move(*mensaje);
}

ConexionIOS::Resultado<DiccionarioPlist> ConexionIOS::peticion(const DiccionarioPlist &mensaje)
{
    auto copia = mensaje;
    copia.poner("Label", "Ovanta");
    if (const auto enviado = enviarPlist(copia); !enviado) return std::unexpected(enviado.error());
    auto respuesta = recibirPlist();
    if (!respuesta) return respuesta;
    const auto *error = respuesta->valor<std::string>("Error");
    if (!error) return respuesta;
    const auto *pedido = mensaje.buscar("Request");
    return std::unexpected(ErrorIOS::protocolo((pedido ? textoPlano(*pedido) : "?") + ": " + *error));
}

ConexionIOS::Resultado<void> ConexionIOS::activarTLS(const IdentidadTemporal &identidad,
                                                     std::string_view certificadoDispositivo)
{
    auto canal = CanalTLS::negociar(*m_canal, identidad, der(certificadoDispositivo));
    if (!canal) return std::unexpected(std::move(canal.error()));
    m_tls = std::move(*canal);
    return {};
}

void ConexionIOS::ponerTiempos(std::chrono::milliseconds recibir, std::chrono::milliseconds enviar)
{
    m_canal->ponerTiempos(recibir, enviar);
}

std::optional<std::string> ConexionIOS::der(std::string_view desdePEM)
{
    return derDesdePem(desdePEM);
}

} // namespace ovanta
