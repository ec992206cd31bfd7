#include "tests/devices/DispositivoTLS.h"

#include <algorithm>
#include <stdexcept>
#include <thread>

namespace ovanta::pruebas {

namespace {

int admitir(X509_STORE_CTX *tienda, void *admitido)
{
    return X509_cmp(X509_STORE_CTX_get0_cert(tienda), static_cast<X509 *>(admitido)) == 0 ? 1 : 0;
}

} // namespace

DispositivoTLS::DispositivoTLS(const Opciones &opciones, Parte &parte)
    : m_opciones(opciones), m_parte(parte), m_contexto(SSL_CTX_new(TLS_server_method()))
{
    SSL_CTX *contexto = m_contexto.get();
    const bool listo =
        SSL_CTX_set_min_proto_version(contexto, opciones.minima) == 1 &&
        SSL_CTX_set_max_proto_version(contexto, opciones.maxima) == 1 &&
        SSL_CTX_set_cipher_list(contexto, opciones.cifrados) == 1 &&
        (!opciones.par || (SSL_CTX_use_certificate(contexto, opciones.par->certificado.get()) == 1 &&
                           SSL_CTX_use_PrivateKey(contexto, opciones.par->clave.get()) == 1));
    if (!listo) throw std::runtime_error("OpenSSL refuses to play the device");
    if (opciones.admite) {
        SSL_CTX_set_verify(contexto, SSL_VERIFY_PEER | SSL_VERIFY_FAIL_IF_NO_PEER_CERT, nullptr);
        SSL_CTX_set_cert_verify_callback(contexto, admitir, opciones.admite->certificado.get());
    }
    SSL_CTX_set_dh_auto(contexto, 1);
    m_sesion.reset(SSL_new(contexto));
    SSL_set_bio(m_sesion.get(), BIO_new(BIO_s_mem()), BIO_new(BIO_s_mem()));
    SSL_set_accept_state(m_sesion.get());
}

void DispositivoTLS::avanzar()
{
    SSL *sesion = m_sesion.get();
    if (m_rota) return;
    if (!m_parte.saludado) {
        const int resultado = SSL_do_handshake(sesion);
        m_parte.saludado = resultado == 1;
        m_rota = resultado != 1 && SSL_get_error(sesion, resultado) != SSL_ERROR_WANT_READ;
        if (!m_parte.saludado) return;
        m_parte.version = SSL_version(sesion);
        m_parte.clienteConocido = SSL_get0_peer_certificate(sesion) != nullptr;
        if (m_opciones.despedirse) SSL_shutdown(sesion);
    }
    char lugar[4096];
    for (int leidos = 0; (leidos = SSL_read(sesion, lugar, sizeof lugar)) > 0;) {
        m_parte.aplicacion.append(lugar, static_cast<std::size_t>(leidos));
        if (const auto respuesta = std::exchange(m_parte.respuesta, {}); !respuesta.empty())
            SSL_write(sesion, respuesta.data(), static_cast<int>(respuesta.size()));
    }
    m_parte.despedido = (SSL_get_shutdown(sesion) & SSL_RECEIVED_SHUTDOWN) != 0;
}

std::expected<std::size_t, Canal::Fallo> DispositivoTLS::enviar(std::string_view bytes)
{
    if (m_parte.entregado >= m_opciones.cortarTras) return std::unexpected(Fallo::cerrado);
    m_parte.recibido += bytes;
    BIO_write(SSL_get_rbio(m_sesion.get()), bytes.data(), static_cast<int>(bytes.size()));
    // In a thread of its own: OpenSSL's queue of errors belongs to the thread, and here it is the client's.
    std::jthread{[this] { avanzar(); }}.join();
    return bytes.size();
}

std::expected<std::size_t, Canal::Fallo> DispositivoTLS::recibir(std::span<char> lugar)
{
    BIO *salida = SSL_get_wbio(m_sesion.get());
    const auto hay = std::min({lugar.size(), m_opciones.porVez, BIO_ctrl_pending(salida),
                               m_opciones.cortarTras - m_parte.entregado});
    if (m_parte.entregado >= m_opciones.cortarTras) return std::unexpected(m_opciones.alCortar);
    if (hay == 0 && (m_rota || m_parte.despedido)) return std::unexpected(Fallo::cerrado);
    if (hay == 0)
        return std::unexpected(++m_silencios > m_opciones.silencios ? Fallo::vencido : Fallo::silencio);
    BIO_read(salida, lugar.data(), static_cast<int>(hay));
    m_parte.entregado += hay;
    return hay;
}

} // namespace ovanta::pruebas
