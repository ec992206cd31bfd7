#pragma once

#include "devices/IdentidadTemporal.h"

#include <cstdint>
#include <memory>
#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

namespace ovanta {

template <auto Soltar>
struct Soltador
{
    template <typename Tipo>
    void operator()(Tipo *objeto) const
    {
        Soltar(objeto);
    }
};

using Certificado = std::unique_ptr<X509, Soltador<X509_free>>;
using Clave = std::unique_ptr<EVP_PKEY, Soltador<EVP_PKEY_free>>;
using Contexto = std::unique_ptr<SSL_CTX, Soltador<SSL_CTX_free>>;
using Sesion = std::unique_ptr<SSL, Soltador<SSL_free>>;

struct IdentidadTemporal::Pareja
{
    Certificado certificado;
    Clave clave;
};

/// OpenSSL keeps a queue of errors for each thread: this empties it for one call of ours, and after it.
class ColaDeErrores
{
public:
    ColaDeErrores();
    ColaDeErrores(const ColaDeErrores &) = delete;
    ColaDeErrores &operator=(const ColaDeErrores &) = delete;
    ~ColaDeErrores();

    /// The reason number of the first error since then; 0 where there is none.
    std::int32_t motivo() const;
};

} // namespace ovanta
