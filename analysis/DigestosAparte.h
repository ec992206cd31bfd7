#pragma once

#include "analysis/Sha256.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace ovanta {

/// SHA-256 digests on a thread of their own, in the order in which they were asked for, so that whoever
/// reads goes on reading: without instructions for it the digest takes several times as long as the
/// reading and comparing. What is handed over is copied into batches, so that small texts do not wake the
/// other thread one by one; two batches stand between the threads, and a third is waited for. One thread
/// asks.
class DigestosAparte
{
public:
    /// A digest under way; touched only through this class.
    using EnCurso = std::shared_ptr<Sha256>;

    /// `mientrasTanto` is called, again and again, where the asking thread would have to wait: it does a
    /// little of something else, asks for no digest, and gives false when it has nothing left to do.
    /// `std::system_error` where there is no thread.
    explicit DigestosAparte(std::function<bool()> mientrasTanto);
    /// Drops what is still under way.
    ~DigestosAparte();
    DigestosAparte(const DigestosAparte &) = delete;
    DigestosAparte &operator=(const DigestosAparte &) = delete;

    EnCurso empezar() const { return std::make_shared<Sha256>(); }
    void agregar(const EnCurso &digesto, const void *datos, std::size_t bytes);
    /// Another that goes on from where this one stands.
    EnCurso copiar(const EnCurso &digesto);
    /// Where the digest will stand once `esperar` has returned; as long as this object lives.
    const Digesto *terminar(const EnCurso &digesto);

    /// Returns when all that was asked for is there. Throws what a digest threw.
    void esperar();

private:
    struct Paso
    {
        EnCurso digesto;
        EnCurso origen = nullptr;   ///< to copy from, or none
        std::size_t bytes = 0;      ///< that follow those of the step before in the batch
        Digesto *destino = nullptr; ///< where it ends, or none
    };
    struct Lote
    {
        std::unique_ptr<unsigned char[]> datos;
        std::size_t ocupados = 0;
        std::vector<Paso> pasos;
    };

    Lote &conLugar();
    bool espera();
    void entregar();
    void servir(const std::stop_token &alto);
    static void digerir(const Lote &lote);

    std::function<bool()> m_mientrasTanto;
    std::deque<Digesto> m_digestos; ///< a deque, whose members stay where they are
    Lote m_abierto;                 ///< of the thread that asks
    std::mutex m_cerrojo;
    std::condition_variable_any m_cambio;
    Lote m_entregado; ///< under the lock, as what follows
    bool m_hayEntregado = false;
    bool m_ocupado = false; ///< whether one is being digested
    std::exception_ptr m_fallo;
    std::jthread m_hilo;
};

} // namespace ovanta
