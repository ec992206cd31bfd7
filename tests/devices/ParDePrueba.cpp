#include "tests/devices/ParDePrueba.h"

#include "core/Base64.h"

#include <map>
#include <mutex>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509v3.h>
#include <stdexcept>

namespace ovanta::pruebas {

namespace {

using Bio = std::unique_ptr<BIO, Soltador<BIO_free_all>>;

void exigirDeOpenSsl(bool hecho)
{
    if (!hecho) throw std::runtime_error("OpenSSL refuses to make a test certificate");
}

std::string contenido(const Bio &bio)
{
    char *bytes = nullptr;
    const long largo = BIO_get_mem_data(bio.get(), &bytes);
    return {bytes, static_cast<std::size_t>(largo)};
}

Certificado firmar(EVP_PKEY *clave, const ParDePrueba::Opciones &opciones)
{
    Certificado certificado{X509_new()};
    X509 *x509 = certificado.get();
    X509_set_version(x509, X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(x509), 1);
    X509_gmtime_adj(X509_getm_notBefore(x509), opciones.desde);
    X509_gmtime_adj(X509_getm_notAfter(x509), opciones.hasta);
    X509_NAME *nombre = X509_get_subject_name(x509);
    X509_NAME_add_entry_by_txt(nombre, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char *>("prueba"),
                               -1, -1, 0);
    X509_set_issuer_name(x509, nombre);
    exigirDeOpenSsl(X509_set_pubkey(x509, clave) == 1);
    if (opciones.relleno > 0) {
        const std::string largo(opciones.relleno, 'x');
        X509_EXTENSION *comentario =
            X509V3_EXT_conf_nid(nullptr, nullptr, NID_netscape_comment, largo.c_str());
        exigirDeOpenSsl(comentario && X509_add_ext(x509, comentario, -1) == 1);
        X509_EXTENSION_free(comentario);
    }
    exigirDeOpenSsl(X509_sign(x509, clave, EVP_sha256()) > 0);
    return certificado;
}

} // namespace

ParDePrueba::ParDePrueba(const Opciones &opciones)
    : clave(opciones.bitsRsa > 0 ? EVP_RSA_gen(static_cast<unsigned>(opciones.bitsRsa)) : EVP_EC_gen("P-256"))
{
    exigirDeOpenSsl(clave != nullptr);
    certificado = firmar(clave.get(), opciones);
}

std::string ParDePrueba::der() const
{
    const Bio bio{BIO_new(BIO_s_mem())};
    exigirDeOpenSsl(i2d_X509_bio(bio.get(), certificado.get()) == 1);
    return contenido(bio);
}

std::string ParDePrueba::pem() const
{
    return enPem(der());
}

std::string ParDePrueba::clavePem() const
{
    const Bio bio{BIO_new(BIO_s_mem())};
    exigirDeOpenSsl(i2d_PKCS8PrivateKeyInfo_bio(bio.get(), clave.get()) == 1);
    return enPem(contenido(bio));
}

std::string ParDePrueba::clavePkcs1() const
{
    const Bio bio{BIO_new(BIO_s_mem())};
    exigirDeOpenSsl(i2d_PrivateKey_bio(bio.get(), clave.get()) == 1);
    return enPem(contenido(bio));
}

const ParDePrueba &parDe(int bitsRsa)
{
    static std::mutex cerrojo;
    static std::map<int, ParDePrueba> hechos;
    const std::lock_guard guardia{cerrojo};
    return hechos.try_emplace(bitsRsa, ParDePrueba::Opciones{.bitsRsa = bitsRsa}).first->second;
}

std::string enPem(const std::string &der, const std::string &fin)
{
    std::string pem = "-----BEGIN PRUEBA-----" + fin;
    const auto base64 = aBase64(der);
    for (std::size_t i = 0; i < base64.size(); i += 64)
        pem += base64.substr(i, 64) + fin;
    return pem + "-----END PRUEBA-----" + fin;
}

} // namespace ovanta::pruebas
