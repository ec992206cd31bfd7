#include "platform/simulada/dispositivos/CertificadosSimulados.h"

#include <map>
#include <mutex>
#include <openssl/bio.h>
#include <openssl/pem.h>
#include <stdexcept>
#include <utility>

namespace ovanta {

namespace {

constexpr long segundosPorAno = 365L * 24 * 3600;

template <typename T>
T *exigir(T *objeto)
{
    if (!objeto) throw std::runtime_error("OpenSSL no pudo crear un objeto");
    return objeto;
}

void exigir(bool hecho)
{
    if (!hecho) throw std::runtime_error("OpenSSL rechazó una operación");
}

ClaveSimulada nuevaClave(TipoDeClave tipo)
{
    switch (tipo) {
    case TipoDeClave::rsa1024:
        return {exigir(EVP_RSA_gen(1024U)), LiberarOpenSSL{}};
    case TipoDeClave::rsa2048:
        return {exigir(EVP_RSA_gen(2048U)), LiberarOpenSSL{}};
    case TipoDeClave::rsa4096:
        return {exigir(EVP_RSA_gen(4096U)), LiberarOpenSSL{}};
    case TipoDeClave::p256:
        return {exigir(EVP_EC_gen("P-256")), LiberarOpenSSL{}};
    }
    std::unreachable();
}

void nombrar(X509_NAME *nombre, const std::string &texto)
{
    exigir(X509_NAME_add_entry_by_txt(nombre, "CN", MBSTRING_UTF8,
                                      reinterpret_cast<const unsigned char *>(texto.c_str()), -1, -1,
                                      0) == 1);
}

/// What `escribir` puts into a memory BIO.
template <typename Escribir>
std::string enMemoria(Escribir escribir)
{
    const std::unique_ptr<BIO, decltype(&BIO_free)> bio{exigir(BIO_new(BIO_s_mem())), &BIO_free};
    exigir(escribir(bio.get()) == 1);
    char *datos = nullptr;
    const long tamano = BIO_get_mem_data(bio.get(), &datos);
    return {datos, static_cast<std::size_t>(tamano)};
}

} // namespace

ClaveSimulada claveSimulada(TipoDeClave tipo, const std::string &nombre)
{
    static std::mutex cerrojo;
    static std::map<std::pair<TipoDeClave, std::string>, ClaveSimulada> claves;
    const std::lock_guard guardia{cerrojo};
    ClaveSimulada &clave = claves[{tipo, nombre}];
    if (!clave) clave = nuevaClave(tipo);
    return clave;
}

CertificadoSimulado certificar(const EmisorSimulado &sujeto, const EmisorSimulado &emisor, bool caducado)
{
    CertificadoSimulado certificado{exigir(X509_new()), LiberarOpenSSL{}};
    exigir(X509_set_version(certificado.get(), X509_VERSION_3) == 1);
    exigir(ASN1_INTEGER_set(X509_get_serialNumber(certificado.get()), 1) == 1);
    exigir(X509_gmtime_adj(X509_getm_notBefore(certificado.get()), -10 * segundosPorAno));
    exigir(X509_gmtime_adj(X509_getm_notAfter(certificado.get()), (caducado ? -1 : 10) * segundosPorAno));
    nombrar(X509_get_subject_name(certificado.get()), sujeto.nombre);
    nombrar(X509_get_issuer_name(certificado.get()), emisor.nombre);
    exigir(X509_set_pubkey(certificado.get(), sujeto.clave.get()) == 1);
    exigir(X509_sign(certificado.get(), emisor.clave.get(), EVP_sha256()) > 0);
    return certificado;
}

std::string derDe(const CertificadoSimulado &certificado)
{
    return enMemoria([&](BIO *bio) { return i2d_X509_bio(bio, certificado.get()); });
}

std::string pemDe(const CertificadoSimulado &certificado)
{
    return enMemoria([&](BIO *bio) { return PEM_write_bio_X509(bio, certificado.get()); });
}

std::string pemDe(const ClaveSimulada &clave, bool pkcs8)
{
    return enMemoria([&](BIO *bio) {
        return pkcs8 ? PEM_write_bio_PKCS8PrivateKey(bio, clave.get(), nullptr, nullptr, 0, nullptr, nullptr)
                     : PEM_write_bio_PrivateKey_traditional(bio, clave.get(), nullptr, nullptr, 0, nullptr,
                                                            nullptr);
    });
}

CertificadoSimulado conUnByteDistinto(const CertificadoSimulado &certificado)
{
    std::string der = derDe(certificado);
    der.back() = static_cast<char>(der.back() ^ 1);
    const auto *bytes = reinterpret_cast<const unsigned char *>(der.data());
    return {exigir(d2i_X509(nullptr, &bytes, static_cast<long>(der.size()))), LiberarOpenSSL{}};
}

} // namespace ovanta
