#include "devices/DerPem.h"

#include "core/Base64.h"
#include "core/Utf8.h"

#include <cstdint>
#include <limits>

namespace ovanta {

namespace {

constexpr char marcaSecuencia = 0x30;
constexpr char marcaEntero = 0x02;
constexpr char marcaOctetos = 0x04;

/// Walks DER from element to element. Once something is wrong it stays so.
class Caminante
{
public:
    explicit Caminante(std::string_view der) : m_der(der) {}

    /// Goes into the next element.
    void entrar(char marca)
    {
        if (byte() != static_cast<unsigned char>(marca)) m_sano = false;
        m_largo = byte();
        if (m_largo >= 0x80) leerLargo(m_largo & 0x7F);
        if (m_lugar >= m_der.size()) m_sano = false;
    }
    /// Goes behind the element that it is in.
    void saltar() { m_lugar += contenido().size(); }

    /// What the element holds; empty once something was wrong.
    std::string_view contenido()
    {
        if (!m_sano || m_largo > m_der.size() - m_lugar) m_sano = false;
        return m_sano ? m_der.substr(m_lugar, m_largo) : std::string_view{};
    }
    bool sano() const { return m_sano; }

private:
    unsigned char byte()
    {
        if (m_lugar >= m_der.size()) m_sano = false;
        return m_sano ? static_cast<unsigned char>(m_der[m_lugar++]) : 0;
    }
    void leerLargo(std::size_t cuantos)
    {
        m_largo = 0;
        for (; cuantos > 0 && m_sano; --cuantos) {
            // What no longer fits is longer than any input; further bytes don't make it shorter.
            if (m_largo > std::numeric_limits<std::size_t>::max() >> 8)
                m_largo = std::numeric_limits<std::size_t>::max();
            else
                m_largo <<= 8;
            m_largo |= byte();
        }
    }

    std::string_view m_der;
    std::size_t m_lugar = 0;
    std::size_t m_largo = 0;
    bool m_sano = true;
};

} // namespace

std::optional<std::string> derDesdePem(std::string_view pem)
{
    if (!esUtf8(pem)) return std::nullopt;
    std::string base64;
    while (!pem.empty()) {
        const auto linea = pem.substr(0, pem.find('\n'));
        if (!linea.starts_with("-----")) base64 += linea;
        pem.remove_prefix(std::min(linea.size() + 1, pem.size()));
    }
    return deBase64(base64);
}

std::optional<std::string> pkcs1DesdePkcs8(std::string_view der)
{
    Caminante caminante{der};
    caminante.entrar(marcaSecuencia);
    caminante.entrar(marcaEntero); // the version
    caminante.saltar();
    caminante.entrar(marcaSecuencia); // the algorithm
    caminante.saltar();
    caminante.entrar(marcaOctetos);
    const auto clave = caminante.contenido();
    if (!caminante.sano()) return std::nullopt;
    return std::string{clave};
}

} // namespace ovanta
