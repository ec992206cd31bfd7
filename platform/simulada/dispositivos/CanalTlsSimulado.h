#pragma once

#include "platform/simulada/dispositivos/CertificadosSimulados.h"
#include "platform/simulada/dispositivos/EnchufeSimulado.h"

#include <memory>
#include <openssl/ssl.h>

namespace ovanta {

enum class VersionTls { tls10, tls12, tls13 };

/// What a device does when the client begins a TLS handshake.
enum class AlNegociar { acepta, cierra, alerta, calla, basura };

struct IdentidadDelServidor
{
    CertificadoSimulado certificado;
    ClaveSimulada clave;
    CertificadoSimulado clienteEsperado; ///< the only client certificate that is let in
};

/// The server's half of TLS over a socket. Its constructor shakes hands; it throws `FinDeConversacion`
/// where that fails, also because the client showed no certificate or another one than expected.
class CanalTlsSimulado final : public CanalSimulado
{
public:
    CanalTlsSimulado(EnchufeSimulado &enchufe, const IdentidadDelServidor &identidad, VersionTls version,
                     AlNegociar alNegociar = AlNegociar::acepta);
    ~CanalTlsSimulado() override;

    std::string leer(std::size_t cuantos) override;
    void escribir(std::string_view bytes) override;

private:
    void fingir(AlNegociar alNegociar);

    EnchufeSimulado &m_enchufe;
    IdentidadDelServidor m_identidad; ///< the verification looks into it
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> m_contexto{nullptr, &SSL_CTX_free};
    std::unique_ptr<SSL, decltype(&SSL_free)> m_tls{nullptr, &SSL_free};
};

} // namespace ovanta
