#pragma once

#include "core/Descriptor.h"

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

namespace ovanta {

/// One instance without a bus: whoever holds the lock of a file in `carpeta` is the one, and listens
/// on a socket beside it for others. The lock goes with its process, however that ends.
class CandadoDeInstancia
{
public:
    explicit CandadoDeInstancia(const std::string &carpeta);
    ~CandadoDeInstancia();

    /// False where another process holds the lock; it has then been told. True otherwise, also where
    /// the folder is of no use: a program that does not start would be worse than two of them.
    /// `alActivar` is called on the main thread for each other process that tried.
    bool tomar(std::function<void()> alActivar);

private:
    void escuchar();
    void atender();
    void llamarAlOtro() const;

    std::string m_rutaCandado;
    std::string m_rutaSocket;
    Descriptor m_candado;
    Descriptor m_oyente;
    std::unique_ptr<QSocketNotifier> m_vigia;
    std::function<void()> m_alActivar;
};

} // namespace ovanta
