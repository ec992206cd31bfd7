#pragma once

#include "devices/ErrorIOS.h"

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// The certificate and private key of this computer in a pairing record, for one reading of one device. They
/// live in memory only and end with it. Several channels may use it, one at a time.
class IdentidadTemporal
{
public:
    /// The pair in OpenSSL's terms; known to the TLS channel only.
    struct Pareja;

    /// `protocolo` where a PEM does not decode, `tls` "importar" where the key is none, `tls`
    /// "crear identidad" where it is not the key of the certificate.
    static std::expected<IdentidadTemporal, ErrorIOS> crear(std::string_view certificadoPEM,
                                                            std::string_view clavePEM);

    IdentidadTemporal(IdentidadTemporal &&) noexcept;
    IdentidadTemporal &operator=(IdentidadTemporal &&) noexcept;
    ~IdentidadTemporal();

    /// The contents of the inner OCTET STRING of a PKCS#8 PrivateKeyInfo (RFC 5208). Nothing where the
    /// bytes are anything else, a plain PKCS#1 key among them.
    static std::optional<std::string> pkcs1(std::string_view desdePKCS8);

    const Pareja &pareja() const { return *m_pareja; }

private:
    explicit IdentidadTemporal(std::unique_ptr<Pareja> pareja);

    std::unique_ptr<Pareja> m_pareja;
};

} // namespace ovanta
