#pragma once

#include <memory>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <string>

namespace ovanta {

struct LiberarOpenSSL
{
    void operator()(EVP_PKEY *clave) const { EVP_PKEY_free(clave); }
    void operator()(X509 *certificado) const { X509_free(certificado); }
};
using ClaveSimulada = std::shared_ptr<EVP_PKEY>;
using CertificadoSimulado = std::shared_ptr<X509>;

enum class TipoDeClave { rsa1024, rsa2048, rsa4096, p256 };

/// A key pair made at run time. The same object for the same type and name within one run of the
/// program, since an RSA key takes long to make. Any thread. Throws `std::runtime_error`.
ClaveSimulada claveSimulada(TipoDeClave tipo, const std::string &nombre);

/// Whose word a certificate bears.
struct EmisorSimulado
{
    std::string nombre;
    ClaveSimulada clave;
};

/// An X.509 certificate, version 3, for `sujeto` and its key. It is valid from ten years before now, for
/// twenty years, or for nine where it has `caducado`. Throws `std::runtime_error`.
CertificadoSimulado certificar(const EmisorSimulado &sujeto, const EmisorSimulado &emisor,
                               bool caducado = false);

std::string derDe(const CertificadoSimulado &certificado);
/// With line feeds alone.
std::string pemDe(const CertificadoSimulado &certificado);
/// As PKCS#8 ("PRIVATE KEY"), or in the form of its own algorithm ("RSA PRIVATE KEY").
std::string pemDe(const ClaveSimulada &clave, bool pkcs8 = true);

/// The same certificate with the last byte of its signature changed: it still decodes and its key fits.
CertificadoSimulado conUnByteDistinto(const CertificadoSimulado &certificado);

} // namespace ovanta
