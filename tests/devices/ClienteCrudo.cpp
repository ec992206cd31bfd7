#include "tests/devices/ClienteCrudo.h"

#include <cstring>
#include <netinet/in.h>
#include <openssl/pem.h>
#include <regex>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>

namespace ovanta::pruebas {

namespace {

/// Long enough for the slowest machine: reaching it means that the peer hangs.
constexpr timeval paciencia{30, 0};

template <typename Direccion>
Descriptor conectar(const Direccion &direccion, int familia)
{
    Descriptor enchufe{::socket(familia, SOCK_STREAM, 0)};
    ::setsockopt(enchufe.numero(), SOL_SOCKET, SO_RCVTIMEO, &paciencia, sizeof paciencia);
    ::setsockopt(enchufe.numero(), SOL_SOCKET, SO_SNDTIMEO, &paciencia, sizeof paciencia);
    if (::connect(enchufe.numero(), reinterpret_cast<const sockaddr *>(&direccion), sizeof direccion) != 0)
        return {};
    return enchufe;
}

std::string cabecera(std::size_t longitud)
{
    return {static_cast<char>(longitud >> 24), static_cast<char>(longitud >> 16),
            static_cast<char>(longitud >> 8), static_cast<char>(longitud)};
}

std::size_t longitudDe(const std::string &bytes)
{
    std::size_t longitud = 0;
    for (const char byte : bytes)
        longitud = longitud << 8 | static_cast<unsigned char>(byte);
    return longitud;
}

} // namespace

ClienteCrudo ClienteCrudo::deRuta(const std::string &ruta)
{
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    std::strncpy(direccion.sun_path, ruta.c_str(), sizeof direccion.sun_path - 1);
    ClienteCrudo cliente;
    cliente.m_enchufe = conectar(direccion, AF_UNIX);
    return cliente;
}

ClienteCrudo ClienteCrudo::dePuerto(std::uint16_t puerto)
{
    sockaddr_in6 direccion{};
    direccion.sin6_family = AF_INET6;
    direccion.sin6_addr = in6addr_loopback;
    direccion.sin6_port = htons(puerto);
    ClienteCrudo cliente;
    cliente.m_enchufe = conectar(direccion, AF_INET6);
    return cliente;
}

void ClienteCrudo::escribir(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t escritos = ::send(m_enchufe.numero(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (escritos < 1) return;
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
}

std::string ClienteCrudo::leer(std::size_t cuantos) const
{
    std::string bytes(cuantos, '\0');
    std::size_t leidos = 0;
    while (leidos < cuantos) {
        const ssize_t ahora = ::recv(m_enchufe.numero(), bytes.data() + leidos, cuantos - leidos, 0);
        if (ahora < 1) break;
        leidos += static_cast<std::size_t>(ahora);
    }
    bytes.resize(leidos);
    return bytes;
}

std::string ClienteCrudo::leerTodo() const
{
    std::string todo;
    for (std::string una = leer(1); !una.empty(); una = leer(1))
        todo += una;
    return todo;
}

void ClienteCrudo::acabar() const
{
    ::shutdown(m_enchufe.numero(), SHUT_WR);
}

void ClienteCrudo::escribirMarco(std::string_view texto) const
{
    escribir(cabecera(texto.size()) + std::string(texto));
}

std::string ClienteCrudo::leerMarco() const
{
    return leer(longitudDe(leer(4)));
}

ClienteTls::ClienteTls(const ClienteCrudo &cliente, const Identidad &identidad)
    : m_contexto(SSL_CTX_new(TLS_client_method()), &SSL_CTX_free)
{
    SSL_CTX_set_min_proto_version(m_contexto.get(), TLS1_VERSION);
    SSL_CTX_set_cipher_list(m_contexto.get(), "ALL:@SECLEVEL=0");
    if (!identidad.certificado.empty()) {
        const auto bio = [](const std::string &texto) {
            return std::unique_ptr<BIO, decltype(&BIO_free)>(
                BIO_new_mem_buf(texto.data(), static_cast<int>(texto.size())), &BIO_free);
        };
        X509 *certificado = PEM_read_bio_X509(bio(identidad.certificado).get(), nullptr, nullptr, nullptr);
        EVP_PKEY *clave = PEM_read_bio_PrivateKey(bio(identidad.clave).get(), nullptr, nullptr, nullptr);
        SSL_CTX_use_certificate(m_contexto.get(), certificado);
        SSL_CTX_use_PrivateKey(m_contexto.get(), clave);
        X509_free(certificado);
        EVP_PKEY_free(clave);
    }
    m_tls.reset(SSL_new(m_contexto.get()));
    SSL_set_fd(m_tls.get(), cliente.descriptor());
    m_negociado = SSL_connect(m_tls.get()) == 1;
}

std::string ClienteTls::der() const
{
    X509 *certificado = SSL_get0_peer_certificate(m_tls.get());
    unsigned char *bytes = nullptr;
    const int cuantos = certificado ? i2d_X509(certificado, &bytes) : 0;
    std::string der(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(std::max(0, cuantos)));
    OPENSSL_free(bytes);
    return der;
}

void ClienteTls::escribirMarco(std::string_view texto) const
{
    const std::string marco = cabecera(texto.size()) + std::string(texto);
    SSL_write(m_tls.get(), marco.data(), static_cast<int>(marco.size()));
}

std::string ClienteTls::leerMarco() const
{
    return leer(longitudDe(leer(4)));
}

std::string ClienteTls::leer(std::size_t cuantos) const
{
    std::string bytes(cuantos, '\0');
    std::size_t leidos = 0;
    while (leidos < cuantos) {
        const int ahora = SSL_read(m_tls.get(), bytes.data() + leidos, static_cast<int>(cuantos - leidos));
        if (ahora < 1) break;
        leidos += static_cast<std::size_t>(ahora);
    }
    bytes.resize(leidos);
    return bytes;
}

std::string plist(std::string_view dentro)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>)"
           R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">)"
           R"(<plist version="1.0"><dict>)" +
           std::string(dentro) + "</dict></plist>\n";
}

std::string valorEnXml(const std::string &xml, const std::string &clave)
{
    std::smatch hallado;
    const std::regex forma("<key>" + clave + "</key>\\s*<(\\w+)(?:/>|>([^<]*)</\\1>)");
    if (!std::regex_search(xml, hallado, forma)) return "";
    return hallado[2].matched ? hallado[2].str() : hallado[1].str();
}

} // namespace ovanta::pruebas
