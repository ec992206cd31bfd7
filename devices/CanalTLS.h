#pragma once

#include "devices/BioDeCanal.h"
#include "devices/ErrorIOS.h"
#include "devices/IdentidadTemporal.h"
#include "devices/OpenSsl.h"

#include <expected>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ovanta {

/// A TLS client (1.0 to 1.3) over a connected channel. The system's trust plays no part: the one check of the
/// other side is that its certificate is the expected one.
class CanalTLS
{
public:
    /// Old devices offer short keys, SHA-1 and TLS 1.0: OpenSSL's level 0. Ciphers without a certificate
    /// are not among the default ones.
    static constexpr const char *cifradosHabituales = "DEFAULT:@SECLEVEL=0";

    /// Negotiates over `canal`, which must outlive the result. The DER of the other side's certificate must
    /// be `esperado`, byte for byte; where it is not, or `esperado` is nothing, the session ends before
    /// anything but an alert is sent. A handshake in which no certificate comes is taken as it is.
    static std::expected<std::unique_ptr<CanalTLS>, ErrorIOS>
    negociar(Canal &canal, const IdentidadTemporal &identidad, std::optional<std::string> esperado,
             const char *cifrados = cifradosHabituales);

    CanalTLS(const CanalTLS &) = delete;
    CanalTLS &operator=(const CanalTLS &) = delete;
    /// Says goodbye where that is possible at once.
    ~CanalTLS();

    std::expected<void, ErrorIOS> escribir(std::string_view bytes);
    /// Some bytes, at least one.
    std::expected<std::size_t, ErrorIOS> leer(std::span<char> lugar);

private:
    CanalTLS(Canal &canal, std::optional<std::string> esperado)
        : m_enlace{&canal, {}}, m_esperado(std::move(esperado))
    {
    }

    std::optional<ErrorIOS> configurar(const IdentidadTemporal &identidad, const char *cifrados);
    std::optional<ErrorIOS> saludar();
    bool esElEsperado(X509 *certificado) const;
    static int comprobar(X509_STORE_CTX *tienda, void *canal);
    ErrorIOS fallo(const char *paso, int resultado, const ColaDeErrores &cola) const;

    EnlaceDeCanal m_enlace;
    std::optional<std::string> m_esperado;
    bool m_ajeno = false; ///< the certificate that came is another one
    bool m_viva = false;
    Contexto m_contexto;
    Sesion m_sesion;
};

} // namespace ovanta
