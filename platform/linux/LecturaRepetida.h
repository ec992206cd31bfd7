#pragma once

#include "core/Descriptor.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ovanta {

/// A short file of the kernel that is read again and again from its start, through one descriptor that
/// stays open. After a failure the next reading opens the file anew: a device can come back.
class LecturaRepetida
{
public:
    explicit LecturaRepetida(std::string ruta) : m_ruta(std::move(ruta)) {}

    /// What one read gives, at most as much as fits; nothing on failure. The view is into `lugar`.
    std::string_view leer(std::span<char> lugar);

    /// The whole file, at most 1 MiB; nothing on failure. `lugar` grows as needed.
    std::string_view leerEntero(std::string &lugar);

private:
    /// Bytes read from `desde` on, 0 at the end, -1 on failure.
    std::ptrdiff_t leerDesde(std::size_t desde, std::span<char> lugar);

    std::string m_ruta;
    Descriptor m_descriptor;
};

} // namespace ovanta
