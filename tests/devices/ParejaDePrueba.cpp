#include "tests/devices/ParejaDePrueba.h"

#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

namespace ovanta::pruebas {

namespace {

std::string contenido(BIO *memoria)
{
    char *bytes = nullptr;
    const long largo = BIO_get_mem_data(memoria, &bytes);
    return {bytes, static_cast<std::size_t>(largo)};
}

ParejaDePrueba generar()
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> clave{EVP_RSA_gen(2048), EVP_PKEY_free};
    const std::unique_ptr<X509, decltype(&X509_free)> ficha{X509_new(), X509_free};
    X509_set_version(ficha.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(ficha.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(ficha.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(ficha.get()), 86400);
    X509_set_pubkey(ficha.get(), clave.get());
    X509_sign(ficha.get(), clave.get(), EVP_sha256());

    const std::unique_ptr<BIO, decltype(&BIO_free)> uno{BIO_new(BIO_s_mem()), BIO_free};
    const std::unique_ptr<BIO, decltype(&BIO_free)> otro{BIO_new(BIO_s_mem()), BIO_free};
    PEM_write_bio_X509(uno.get(), ficha.get());
    PEM_write_bio_PKCS8PrivateKey(otro.get(), clave.get(), nullptr, nullptr, 0, nullptr, nullptr);
    return {contenido(uno.get()), contenido(otro.get())};
}

} // namespace

const ParejaDePrueba &parejaDePrueba()
{
    static const ParejaDePrueba pareja = generar();
    return pareja;
}

} // namespace ovanta::pruebas
