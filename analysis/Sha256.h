#pragma once

#include <array>
#include <cstddef>
#include <memory>

namespace ovanta {

using Digesto = std::array<unsigned char, 32>;

/// A SHA-256 (FIPS 180-4) under way; one object serves any number of digests, one after another. One
/// thread at a time.
class Sha256
{
public:
    Sha256();
    Sha256(Sha256 &&) noexcept;
    Sha256 &operator=(Sha256 &&) noexcept;
    ~Sha256();

    /// Forgets what was added.
    void empezar();
    void agregar(const void *datos, std::size_t bytes);
    /// The digest of all that was added since `empezar`, which comes next.
    Digesto terminar();
    /// Goes on from where `otra` stands.
    void copiar(const Sha256 &otra);

private:
    struct Contexto;
    std::unique_ptr<Contexto> m_contexto;
};

} // namespace ovanta
