#pragma once

#include <unistd.h>
#include <utility>

namespace ovanta {

/// Owns an open file descriptor and closes it at its end; -1 owns nothing.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int numero) noexcept : m_numero(numero) {}
    Descriptor(Descriptor &&otro) noexcept : m_numero(std::exchange(otro.m_numero, -1)) {}
    Descriptor &operator=(Descriptor &&otro) noexcept
    {
        std::swap(m_numero, otro.m_numero);
        return *this;
    }
    ~Descriptor() { cerrar(); }

    int numero() const noexcept { return m_numero; }
    bool abierto() const noexcept { return m_numero >= 0; }
    /// Gives the descriptor away: somebody else closes it.
    int soltar() noexcept { return std::exchange(m_numero, -1); }
    void cerrar() noexcept
    {
        if (abierto()) ::close(std::exchange(m_numero, -1));
    }

private:
    int m_numero = -1;
};

/// Both ends of a pipe; no launched program inherits them. `std::system_error` where there is none left.
struct Tuberia
{
    Descriptor lectura;
    Descriptor escritura;

    static Tuberia crear();
};

} // namespace ovanta
