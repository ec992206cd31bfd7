#pragma once

#include "core/Descriptor.h"
#include "platform/simulada/dispositivos/FallosSimulados.h"

#include <span>
#include <string>
#include <string_view>

namespace ovanta {

/// Thrown inside a conversation of a simulated service: the peer has gone, the service ends or a fault
/// asked for it. The server that runs the conversation catches it and closes the socket.
struct FinDeConversacion
{
};

/// Tells every thread of a simulated service that it ends. Any thread.
class Parada
{
public:
    void pedir();
    /// Becomes readable, for good, once `pedir` was called.
    int descriptor() const { return m_tuberia.lectura.numero(); }

private:
    Tuberia m_tuberia = Tuberia::crear();
};

/// The bytes of one conversation. Both calls block until done and throw `FinDeConversacion`.
class CanalSimulado
{
public:
    virtual ~CanalSimulado() = default;
    virtual std::string leer(std::size_t cuantos) = 0;
    virtual void escribir(std::string_view bytes) = 0;
};

/// An accepted socket of a simulated service. Every wait ends with `Parada`. One thread.
class EnchufeSimulado final : public CanalSimulado
{
public:
    /// Takes the socket over; `parada` outlives this object.
    EnchufeSimulado(Descriptor enchufe, const Parada &parada);
    /// Closes in order: a peer that still reads gets all that was sent, and then the end.
    ~EnchufeSimulado() override;
    EnchufeSimulado(const EnchufeSimulado &) = delete;
    EnchufeSimulado &operator=(const EnchufeSimulado &) = delete;

    std::string leer(std::size_t cuantos) override;
    void escribir(std::string_view bytes) override;

    /// At least one byte; returns how many came.
    std::size_t leerAlgo(std::span<char> destino);
    /// From now on these faults hold, and the bytes that leave are counted anew.
    void fijarFallos(const FallosSimulados &fallos);
    /// Sends nothing more until the peer or the service ends: throws `FinDeConversacion` then.
    [[noreturn]] void callar();

private:
    void esperar(short sucesos);
    void pausar();
    void escribirTrozo(std::string_view trozo);

    Descriptor m_enchufe;
    const Parada &m_parada;
    FallosSimulados m_fallos;
    std::size_t m_salidos = 0;
};

} // namespace ovanta
