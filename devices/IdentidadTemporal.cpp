#include "devices/IdentidadTemporal.h"

#include "devices/DerPem.h"
#include "devices/OpenSsl.h"

#include <openssl/crypto.h>
#include <openssl/rsaerr.h>

namespace ovanta {

namespace {

/// Bytes of a private key; wiped at the end.
class Secreto
{
public:
    explicit Secreto(std::optional<std::string> bytes) : m_bytes(std::move(bytes)) {}
    Secreto(const Secreto &) = delete;
    Secreto &operator=(const Secreto &) = delete;
    ~Secreto()
    {
        if (m_bytes) OPENSSL_cleanse(m_bytes->data(), m_bytes->size());
    }

    explicit operator bool() const { return m_bytes.has_value(); }
    const std::string &operator*() const { return *m_bytes; }

private:
    std::optional<std::string> m_bytes;
};

/// Where OpenSSL reads from; it moves the pointer.
struct Tramo
{
    explicit Tramo(const std::string &bytes)
        : inicio(reinterpret_cast<const unsigned char *>(bytes.data())),
          largo(static_cast<long>(bytes.size()))
    {
    }
    const unsigned char *inicio;
    long largo;
};

Certificado leerCertificado(const std::string &der)
{
    Tramo tramo{der};
    return Certificado{d2i_X509(nullptr, &tramo.inicio, tramo.largo)};
}

/// The inner key names its kind by itself, but for an elliptic one, whose curve may stand only in the outer
/// structure.
Clave leerClave(const std::string &interior, const std::string &pkcs8)
{
    Tramo tramo{interior};
    if (Clave clave{d2i_AutoPrivateKey(nullptr, &tramo.inicio, tramo.largo)}) return clave;
    tramo = Tramo{pkcs8};
    const std::unique_ptr<PKCS8_PRIV_KEY_INFO, Soltador<PKCS8_PRIV_KEY_INFO_free>> exterior{
        d2i_PKCS8_PRIV_KEY_INFO(nullptr, &tramo.inicio, tramo.largo)};
    return Clave{exterior ? EVP_PKCS82PKEY(exterior.get()) : nullptr};
}

/// A signature with a key beyond this would take minutes.
constexpr int maximoBits = OPENSSL_RSA_MAX_MODULUS_BITS;

} // namespace

IdentidadTemporal::IdentidadTemporal(std::unique_ptr<Pareja> pareja) : m_pareja(std::move(pareja)) {}
IdentidadTemporal::IdentidadTemporal(IdentidadTemporal &&) noexcept = default;
IdentidadTemporal &IdentidadTemporal::operator=(IdentidadTemporal &&) noexcept = default;
IdentidadTemporal::~IdentidadTemporal() = default;

std::expected<IdentidadTemporal, ErrorIOS> IdentidadTemporal::crear(std::string_view certificadoPEM,
                                                                    std::string_view clavePEM)
{
    const ColaDeErrores alLeer;
    const auto certificadoDer = derDesdePem(certificadoPEM);
    const Secreto pkcs8{derDesdePem(clavePEM)};
    const Secreto interior{pkcs8 ? pkcs1(*pkcs8) : std::nullopt};
    auto pareja = std::make_unique<Pareja>();
    if (certificadoDer) pareja->certificado = leerCertificado(*certificadoDer);
    if (!pareja->certificado || !interior)
        return std::unexpected(ErrorIOS::protocolo("emparejamiento con certificados ilegibles"));
    pareja->clave = leerClave(*interior, *pkcs8);
    if (!pareja->clave) return std::unexpected(ErrorIOS::tls("importar", alLeer.motivo()));
    if (EVP_PKEY_get_bits(pareja->clave.get()) > maximoBits)
        return std::unexpected(ErrorIOS::tls("importar", RSA_R_MODULUS_TOO_LARGE));
    // What was tried in vain until the key was read is no error.
    const ColaDeErrores alUnir;
    if (X509_check_private_key(pareja->certificado.get(), pareja->clave.get()) != 1)
        return std::unexpected(ErrorIOS::tls("crear identidad", alUnir.motivo()));
    return IdentidadTemporal{std::move(pareja)};
}

std::optional<std::string> IdentidadTemporal::pkcs1(std::string_view desdePKCS8)
{
    return pkcs1DesdePkcs8(desdePKCS8);
}

} // namespace ovanta
