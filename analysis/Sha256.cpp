#include "analysis/Sha256.h"

#include <new>
#include <openssl/evp.h>

namespace ovanta {

namespace {

/// Looking the algorithm up costs more than the digest of a small file: it is done once.
const EVP_MD *algoritmo()
{
    static EVP_MD *const sha256 = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    return sha256;
}

/// These calls fail only without memory.
void exigir(int resultado)
{
    if (resultado != 1) throw std::bad_alloc{};
}

} // namespace

struct Sha256::Contexto
{
    Contexto() : evp(EVP_MD_CTX_new())
    {
        if (!evp) throw std::bad_alloc{};
    }
    Contexto(const Contexto &) = delete;
    Contexto &operator=(const Contexto &) = delete;
    ~Contexto() { EVP_MD_CTX_free(evp); }

    EVP_MD_CTX *evp;
};

Sha256::Sha256() : m_contexto(std::make_unique<Contexto>())
{
    empezar();
}

Sha256::Sha256(Sha256 &&) noexcept = default;
Sha256 &Sha256::operator=(Sha256 &&) noexcept = default;
Sha256::~Sha256() = default;

void Sha256::empezar()
{
    exigir(EVP_DigestInit_ex2(m_contexto->evp, algoritmo(), nullptr));
}

void Sha256::agregar(const void *datos, std::size_t bytes)
{
    exigir(EVP_DigestUpdate(m_contexto->evp, datos, bytes));
}

Digesto Sha256::terminar()
{
    Digesto digesto;
    exigir(EVP_DigestFinal_ex(m_contexto->evp, digesto.data(), nullptr));
    return digesto;
}

void Sha256::copiar(const Sha256 &otra)
{
    exigir(EVP_MD_CTX_copy_ex(m_contexto->evp, otra.m_contexto->evp));
}

} // namespace ovanta
