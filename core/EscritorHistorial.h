#pragma once

#include "core/Movimiento.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace ovanta {

/// Writes the history file on background threads, so that the last list asked for is the one that
/// stays, in whatever order the threads come to it. Any thread.
class EscritorHistorial
{
public:
    struct Encargo
    {
        std::uint64_t numero = 0; ///< grows with every list
        std::vector<Movimiento> historial;
        std::vector<std::string> registros; ///< files to remove once the list is on disk
    };

    explicit EscritorHistorial(std::string hogar);

    /// Writes the list, unless a later one is there already. False where it could not be written:
    /// the file and the records then stay as they were.
    bool escribir(const Encargo &encargo);

private:
    std::string m_hogar;
    std::mutex m_cerrojo;
    std::uint64_t m_escrito = 0;
};

/// Where the history of the user with this home lies; its folder is made.
std::string archivoHistorial(const std::string &hogar);

} // namespace ovanta
