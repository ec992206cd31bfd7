#include "analysis/MarcaSecreta.h"

#include <cerrno>
#include <new>
#include <openssl/evp.h>
#include <sys/random.h>
#include <system_error>

namespace ovanta {

struct MarcaSecreta::Contexto
{
    struct Liberar
    {
        void operator()(EVP_MAC *algoritmo) const { EVP_MAC_free(algoritmo); }
        void operator()(EVP_MAC_CTX *evp) const { EVP_MAC_CTX_free(evp); }
    };

    std::array<unsigned char, 32> llave{};
    std::unique_ptr<EVP_MAC, Liberar> algoritmo{EVP_MAC_fetch(nullptr, "POLY1305", nullptr)};
    std::unique_ptr<EVP_MAC_CTX, Liberar> evp{algoritmo ? EVP_MAC_CTX_new(algoritmo.get()) : nullptr};
};

MarcaSecreta::MarcaSecreta() : m_contexto(std::make_unique<Contexto>())
{
    if (!m_contexto->evp) throw std::bad_alloc{};
    if (::getentropy(m_contexto->llave.data(), m_contexto->llave.size()) != 0)
        throw std::system_error(errno, std::generic_category());
}

MarcaSecreta::~MarcaSecreta() = default;

MarcaSecreta::Marca MarcaSecreta::de(const void *datos, std::size_t bytes)
{
    EVP_MAC_CTX *evp = m_contexto->evp.get();
    Marca marca{};
    std::size_t largo = 0;
    if (EVP_MAC_init(evp, m_contexto->llave.data(), m_contexto->llave.size(), nullptr) != 1 ||
        EVP_MAC_update(evp, static_cast<const unsigned char *>(datos), bytes) != 1 ||
        EVP_MAC_final(evp, marca.data(), &largo, marca.size()) != 1)
        throw std::bad_alloc{};
    return marca;
}

} // namespace ovanta
