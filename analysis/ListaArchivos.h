#pragma once

#include "analysis/ArchivoHallado.h"
#include "analysis/Bloques.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The files of a walk in the order it met them, small enough for millions: about 40 bytes a file and
/// its name, the folders' paths once each. A file's number is its place in the list.
class ListaArchivos
{
public:
    using Numero = std::uint32_t;

    struct Atributos
    {
        std::uint64_t bytes = 0;
        std::int64_t modificadoNs = 0; ///< since 1970
        std::uint64_t dispositivo = 0;
        std::uint64_t inodo = 0;
    };

    std::size_t size() const { return m_registros.size(); }
    bool empty() const { return size() == 0; }

    /// The number of a folder whose files follow. `ruta` without a trailing slash.
    std::uint32_t agregarCarpeta(std::string_view ruta);
    void agregar(std::uint32_t carpeta, std::string_view nombre, const Atributos &atributos);

    std::uint64_t bytes(Numero i) const { return m_registros[i].bytes; }
    std::int64_t modificadoNs(Numero i) const { return m_registros[i].modificadoNs; }
    /// Whole seconds.
    Fecha modificado(Numero i) const;
    std::uint64_t inodo(Numero i) const { return m_registros[i].inodo; }
    std::uint64_t dispositivo(Numero i) const { return m_dispositivos[m_registros[i].dispositivo]; }
    /// Ends with NUL.
    std::string_view nombre(Numero i) const;
    /// The number of its folder.
    std::uint32_t carpeta(Numero i) const { return m_registros[i].carpeta; }
    const std::string &rutaDeCarpeta(std::uint32_t carpeta) const { return m_carpetas[carpeta]; }
    /// Writes the whole path into `ruta`, whose memory is used again.
    void escribirRuta(Numero i, std::string &ruta) const;
    std::string ruta(Numero i) const;

    /// The record that the screens show.
    ArchivoHallado hallado(Numero i) const;

private:
    struct Registro
    {
        std::uint64_t bytes;
        std::int64_t modificadoNs;
        std::uint64_t inodo;
        std::uint32_t carpeta;
        std::uint32_t dispositivo; ///< place in `m_dispositivos`
        const char *nombre;        ///< ends with NUL
    };

    std::uint32_t numeroDeDispositivo(std::uint64_t dispositivo);
    const char *guardarNombre(std::string_view nombre);

    Bloques<Registro, 4096> m_registros;
    std::vector<std::string> m_carpetas;
    std::vector<std::uint64_t> m_dispositivos;
    std::vector<std::unique_ptr<char[]>> m_nombres;
    char *m_finDeNombres = nullptr;   ///< where the next name goes
    std::size_t m_libreEnNombres = 0; ///< bytes left there
};

} // namespace ovanta
