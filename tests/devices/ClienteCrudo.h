#pragma once

#include "core/Descriptor.h"

#include <cstdint>
#include <memory>
#include <openssl/ssl.h>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta::pruebas {

/// A peer that knows nothing of the protocols: bytes out, bytes in. A read that gets nothing for a long
/// time counts as the end.
class ClienteCrudo
{
public:
    static ClienteCrudo deRuta(const std::string &ruta);
    static ClienteCrudo dePuerto(std::uint16_t puerto);

    bool conectado() const { return m_enchufe.abierto(); }
    int descriptor() const { return m_enchufe.numero(); }
    void escribir(std::string_view bytes) const;
    /// What comes until there are that many bytes, or the end.
    std::string leer(std::size_t cuantos) const;
    std::string leerTodo() const;
    /// Ends what this side sends.
    void acabar() const;

    /// A frame of lockdown: a big-endian length of four bytes, and the text.
    void escribirMarco(std::string_view texto) const;
    /// The text of the next frame; empty at the end.
    std::string leerMarco() const;

private:
    Descriptor m_enchufe;
};

/// The client's half of TLS, by OpenSSL itself, over a socket that stays open behind it.
class ClienteTls
{
public:
    /// An identity in PEM; empty texts for none.
    struct Identidad
    {
        std::string certificado;
        std::string clave;
    };

    ClienteTls(const ClienteCrudo &cliente, const Identidad &identidad);

    bool negociado() const { return m_negociado; }
    std::string version() const { return SSL_get_version(m_tls.get()); }
    /// The device's certificate.
    std::string der() const;
    void escribirMarco(std::string_view texto) const;
    std::string leerMarco() const;

private:
    std::string leer(std::size_t cuantos) const;

    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> m_contexto;
    std::unique_ptr<SSL, decltype(&SSL_free)> m_tls{nullptr, &SSL_free};
    bool m_negociado = false;
};

/// A property list of one dictionary, its inside given as XML.
std::string plist(std::string_view dentro);
/// The text element behind a key in an XML property list, where the two stand side by side.
std::string valorEnXml(const std::string &xml, const std::string &clave);

} // namespace ovanta::pruebas
