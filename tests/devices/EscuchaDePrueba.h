#pragma once

#include "core/Descriptor.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ovanta::pruebas {

/// A listening socket of the test's own. Everything blocks; what the system refuses throws.
class EscuchaDePrueba
{
public:
    /// On a path of at most 107 bytes.
    explicit EscuchaDePrueba(const std::string &ruta);
    /// On a free TCP port of the loopback ::1.
    EscuchaDePrueba();
    ~EscuchaDePrueba();

    std::uint16_t puerto() const;
    /// The other end of the next connection; it stays open with this object, or until `cerrar`.
    int aceptar();
    std::string leer(int conexion, std::size_t cuantos) const;
    /// What has come, at least one byte; nothing at the end.
    std::string leerAlgo(int conexion) const;
    /// Whatever still goes.
    void escribir(int conexion, std::string_view bytes) const;
    void cerrar(int conexion);

private:
    Descriptor m_escucha;
    int m_conexion = -1;
};

} // namespace ovanta::pruebas
