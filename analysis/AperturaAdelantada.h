#pragma once

#include "analysis/EnlacesFisicos.h"
#include "analysis/ListaArchivos.h"
#include "core/Descriptor.h"
#include "platform/AccesoArchivos.h"

#include <array>
#include <optional>
#include <span>
#include <string>

namespace ovanta {

/// Opens files in a given order, some of them ahead of their turn with their first bytes asked of the
/// disk, so that a slow disk works while the processor digests. One thread.
class AperturaAdelantada
{
public:
    /// `primeros`: how much of each file will be read at first. All arguments must outlive this object.
    AperturaAdelantada(const ListaArchivos &archivos, const EnlacesFisicos &enlaces, AccesoArchivos &acceso,
                       std::span<const ListaArchivos::Numero> orden, std::uint64_t primeros);

    /// The next file of the order, by whichever of its names; not open where none could be opened.
    Descriptor siguiente();

private:
    static constexpr std::size_t adelanto = 32;

    void abrirHasta(std::size_t fin);
    void prepararCarpeta(std::size_t lugar);
    Descriptor abrir(ListaArchivos::Numero archivo);
    Descriptor abrirPorRuta(ListaArchivos::Numero archivo);

    const ListaArchivos &m_archivos;
    const EnlacesFisicos &m_enlaces;
    AccesoArchivos &m_acceso;
    std::span<const ListaArchivos::Numero> m_orden;
    std::uint64_t m_primeros;
    std::array<Descriptor, adelanto> m_abiertos; ///< a ring
    std::size_t m_abiertosHasta = 0;
    std::size_t m_turno = 0;
    Descriptor m_carpeta; ///< of the file that was opened last, where the next lies there too
    std::optional<std::uint32_t> m_numeroDeCarpeta;
    std::string m_ruta;
};

} // namespace ovanta
