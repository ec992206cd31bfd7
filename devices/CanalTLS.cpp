#include "devices/CanalTLS.h"

namespace ovanta {

namespace {

constexpr const char *sinRespuesta = "el dispositivo no respondió a tiempo";

/// A session that asks for no resumption, under no rule of the system's.
Contexto nuevoContexto()
{
    Contexto contexto{SSL_CTX_new(TLS_client_method())};
    if (!contexto) return contexto;
    SSL_CTX_set_session_cache_mode(contexto.get(), SSL_SESS_CACHE_OFF);
    // Devices from before RFC 5746.
    SSL_CTX_set_options(contexto.get(), SSL_OP_LEGACY_SERVER_CONNECT);
    return contexto;
}

} // namespace

std::expected<std::unique_ptr<CanalTLS>, ErrorIOS> CanalTLS::negociar(Canal &canal,
                                                                      const IdentidadTemporal &identidad,
                                                                      std::optional<std::string> esperado,
                                                                      const char *cifrados)
{
    std::unique_ptr<CanalTLS> nuevo{new CanalTLS{canal, std::move(esperado)}};
    if (auto error = nuevo->configurar(identidad, cifrados)) return std::unexpected(std::move(*error));
    if (auto error = nuevo->saludar()) return std::unexpected(std::move(*error));
    return nuevo;
}

std::optional<ErrorIOS> CanalTLS::configurar(const IdentidadTemporal &identidad, const char *cifrados)
{
    const ColaDeErrores cola;
    m_contexto = nuevoContexto();
    if (!m_contexto) return ErrorIOS::tls("contexto", -1);
    SSL_CTX *contexto = m_contexto.get();
    const auto &pareja = identidad.pareja();
    if (SSL_CTX_set_min_proto_version(contexto, TLS1_VERSION) != 1 ||
        SSL_CTX_set_max_proto_version(contexto, 0) != 1 || SSL_CTX_set_cipher_list(contexto, cifrados) != 1 ||
        SSL_CTX_use_certificate(contexto, pareja.certificado.get()) != 1 ||
        SSL_CTX_use_PrivateKey(contexto, pareja.clave.get()) != 1)
        return ErrorIOS::tls("configurar", cola.motivo());
    SSL_CTX_set_verify(contexto, SSL_VERIFY_PEER, nullptr);
    SSL_CTX_set_cert_verify_callback(contexto, comprobar, this);
    m_sesion.reset(SSL_new(contexto));
    BIO *bio = m_sesion ? nuevoBioDeCanal(&m_enlace) : nullptr;
    if (!bio) return ErrorIOS::tls("configurar", cola.motivo());
    SSL_set_bio(m_sesion.get(), bio, bio);
    return std::nullopt;
}

bool CanalTLS::esElEsperado(X509 *certificado) const
{
    unsigned char *bytes = nullptr;
    const int largo = certificado ? i2d_X509(certificado, &bytes) : -1;
    if (largo < 0) return false;
    const std::unique_ptr<unsigned char, decltype([](unsigned char *p) { OPENSSL_free(p); })> dueno{bytes};
    return m_esperado ==
           std::string_view{reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(largo)};
}

/// Called as soon as the certificate has come; a 0 ends the handshake with an alert.
int CanalTLS::comprobar(X509_STORE_CTX *tienda, void *canal)
{
    auto &este = *static_cast<CanalTLS *>(canal);
    este.m_ajeno = !este.esElEsperado(X509_STORE_CTX_get0_cert(tienda));
    X509_STORE_CTX_set_error(tienda, este.m_ajeno ? X509_V_ERR_CERT_REJECTED : X509_V_OK);
    return este.m_ajeno ? 0 : 1;
}

std::optional<ErrorIOS> CanalTLS::saludar()
{
    while (true) {
        const ColaDeErrores cola;
        m_enlace.olvidar();
        const int resultado = SSL_connect(m_sesion.get());
        m_viva = resultado == 1;
        if (m_viva) return std::nullopt;
        if (m_ajeno)
            return ErrorIOS::tls("el certificado del dispositivo no coincide con el emparejamiento", -1);
        // A silent device may still answer: the end of that is the Plazo's.
        if (SSL_get_error(m_sesion.get(), resultado) != SSL_ERROR_WANT_READ)
            return fallo("negociación", resultado, cola);
    }
}

ErrorIOS CanalTLS::fallo(const char *paso, int resultado, const ColaDeErrores &cola) const
{
    if (m_enlace.vencido) return ErrorIOS::socket(sinRespuesta);
    if (m_enlace.estado) return ErrorIOS::tls(paso, *m_enlace.estado);
    if (SSL_get_error(m_sesion.get(), resultado) == SSL_ERROR_ZERO_RETURN)
        return ErrorIOS::tls(paso, estadoCerrado);
    return ErrorIOS::tls(paso, cola.motivo());
}

std::expected<void, ErrorIOS> CanalTLS::escribir(std::string_view bytes)
{
    if (bytes.empty()) return {};
    const ColaDeErrores cola;
    m_enlace.olvidar();
    std::size_t escritos = 0;
    const int resultado = SSL_write_ex(m_sesion.get(), bytes.data(), bytes.size(), &escritos);
    if (resultado == 1 && escritos == bytes.size()) return {};
    m_viva = false;
    return std::unexpected(fallo("escritura", resultado, cola));
}

std::expected<std::size_t, ErrorIOS> CanalTLS::leer(std::span<char> lugar)
{
    const ColaDeErrores cola;
    m_enlace.olvidar();
    std::size_t leidos = 0;
    const int resultado = SSL_read_ex(m_sesion.get(), lugar.data(), lugar.size(), &leidos);
    if (resultado == 1) return leidos;
    m_viva = SSL_get_error(m_sesion.get(), resultado) == SSL_ERROR_WANT_READ;
    return std::unexpected(fallo("lectura", resultado, cola));
}

CanalTLS::~CanalTLS()
{
    if (!m_viva) return;
    const ColaDeErrores cola;
    m_enlace.canal->ponerTiempos(std::chrono::milliseconds{0}, std::chrono::milliseconds{0});
    SSL_shutdown(m_sesion.get());
}

} // namespace ovanta
