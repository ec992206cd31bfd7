#include "platform/simulada/dispositivos/CanalTlsSimulado.h"

#include <array>
#include <openssl/err.h>
#include <stdexcept>
#include <utility>

namespace ovanta {

namespace {

using namespace std::string_view_literals;

int leerBio(BIO *bio, char *destino, int cuantos)
{
    try {
        auto &enchufe = *static_cast<EnchufeSimulado *>(BIO_get_data(bio));
        return static_cast<int>(enchufe.leerAlgo({destino, static_cast<std::size_t>(cuantos)}));
    } catch (const FinDeConversacion &) {
        return -1;
    }
}

int escribirBio(BIO *bio, const char *bytes, int cuantos)
{
    try {
        static_cast<EnchufeSimulado *>(BIO_get_data(bio))
            ->escribir({bytes, static_cast<std::size_t>(cuantos)});
        return cuantos;
    } catch (const FinDeConversacion &) {
        return -1;
    }
}

long controlarBio(BIO *, int orden, long, void *)
{
    return orden == BIO_CTRL_FLUSH ? 1 : 0;
}

BIO_METHOD *metodoBio()
{
    static const std::unique_ptr<BIO_METHOD, decltype(&BIO_meth_free)> metodo = [] {
        BIO_METHOD *nuevo = BIO_meth_new(BIO_get_new_index() | BIO_TYPE_SOURCE_SINK, "enchufe simulado");
        BIO_meth_set_read(nuevo, &leerBio);
        BIO_meth_set_write(nuevo, &escribirBio);
        BIO_meth_set_ctrl(nuevo, &controlarBio);
        return std::unique_ptr<BIO_METHOD, decltype(&BIO_meth_free)>(nuevo, &BIO_meth_free);
    }();
    return metodo.get();
}

int protocoloDe(VersionTls version)
{
    switch (version) {
    case VersionTls::tls10:
        return TLS1_VERSION;
    case VersionTls::tls12:
        return TLS1_2_VERSION;
    case VersionTls::tls13:
        return TLS1_3_VERSION;
    }
    std::unreachable();
}

/// The pinned comparison that a device makes: no chain, no dates, the very bytes of the pairing.
int verificarCliente(X509_STORE_CTX *cadena, void *identidad)
{
    const X509 *visto = X509_STORE_CTX_get0_cert(cadena);
    const auto &esperado = static_cast<IdentidadDelServidor *>(identidad)->clienteEsperado;
    if (visto && X509_cmp(visto, esperado.get()) == 0) return 1;
    X509_STORE_CTX_set_error(cadena, X509_V_ERR_CERT_REJECTED);
    return 0;
}

std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> nuevoContexto(IdentidadDelServidor &identidad,
                                                                VersionTls version)
{
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> contexto{SSL_CTX_new(TLS_server_method()),
                                                               &SSL_CTX_free};
    const int protocolo = protocoloDe(version);
    const bool listo = contexto && SSL_CTX_set_min_proto_version(contexto.get(), protocolo) == 1 &&
                       SSL_CTX_set_max_proto_version(contexto.get(), protocolo) == 1 &&
                       // Old devices speak TLS 1.0 and have short keys, which OpenSSL refuses by itself.
                       SSL_CTX_set_cipher_list(contexto.get(), "ALL:@SECLEVEL=0") == 1 &&
                       SSL_CTX_use_certificate(contexto.get(), identidad.certificado.get()) == 1 &&
                       SSL_CTX_use_PrivateKey(contexto.get(), identidad.clave.get()) == 1;
    if (!listo) throw std::runtime_error("OpenSSL no admite la identidad del dispositivo");
    SSL_CTX_set_verify(contexto.get(), SSL_VERIFY_PEER | SSL_VERIFY_FAIL_IF_NO_PEER_CERT, nullptr);
    SSL_CTX_set_cert_verify_callback(contexto.get(), &verificarCliente, &identidad);
    SSL_CTX_set_session_cache_mode(contexto.get(), SSL_SESS_CACHE_OFF);
    return contexto;
}

} // namespace

CanalTlsSimulado::CanalTlsSimulado(EnchufeSimulado &enchufe, const IdentidadDelServidor &identidad,
                                   VersionTls version, AlNegociar alNegociar)
    : m_enchufe(enchufe), m_identidad(identidad)
{
    if (alNegociar != AlNegociar::acepta) fingir(alNegociar);
    m_contexto = nuevoContexto(m_identidad, version);
    m_tls.reset(SSL_new(m_contexto.get()));
    BIO *bio = BIO_new(metodoBio());
    if (!m_tls || !bio) throw std::runtime_error("OpenSSL no abre el canal");
    BIO_set_data(bio, &m_enchufe);
    BIO_set_init(bio, 1);
    SSL_set_bio(m_tls.get(), bio, bio);
    if (SSL_accept(m_tls.get()) != 1) throw FinDeConversacion{};
}

CanalTlsSimulado::~CanalTlsSimulado()
{
    ERR_clear_error();
}

/// Ends the conversation in every way but with a handshake. The client's first message is awaited, so
/// that it learns of the refusal when it expects an answer.
void CanalTlsSimulado::fingir(AlNegociar alNegociar)
{
    std::array<char, 4096> saludo;
    m_enchufe.leerAlgo(saludo);
    if (alNegociar == AlNegociar::alerta) m_enchufe.escribir("\x15\x03\x01\x00\x02\x02\x28"sv);
    if (alNegociar == AlNegociar::basura) m_enchufe.escribir(std::string(64, '\x5a'));
    if (alNegociar != AlNegociar::cierra) m_enchufe.callar();
    throw FinDeConversacion{};
}

std::string CanalTlsSimulado::leer(std::size_t cuantos)
{
    std::string bytes(cuantos, '\0');
    for (std::size_t leidos = 0; leidos < cuantos;) {
        std::size_t ahora = 0;
        if (SSL_read_ex(m_tls.get(), bytes.data() + leidos, cuantos - leidos, &ahora) != 1)
            throw FinDeConversacion{};
        leidos += ahora;
    }
    return bytes;
}

void CanalTlsSimulado::escribir(std::string_view bytes)
{
    std::size_t escritos = 0;
    if (!bytes.empty() && SSL_write_ex(m_tls.get(), bytes.data(), bytes.size(), &escritos) != 1)
        throw FinDeConversacion{};
}

} // namespace ovanta
