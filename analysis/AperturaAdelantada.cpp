#include "analysis/AperturaAdelantada.h"

#include <algorithm>

namespace ovanta {

AperturaAdelantada::AperturaAdelantada(const ListaArchivos &archivos, const EnlacesFisicos &enlaces,
                                       AccesoArchivos &acceso, std::span<const ListaArchivos::Numero> orden,
                                       std::uint64_t primeros)
    : m_archivos(archivos), m_enlaces(enlaces), m_acceso(acceso), m_orden(orden), m_primeros(primeros)
{
}

Descriptor AperturaAdelantada::abrir(ListaArchivos::Numero archivo)
{
    m_archivos.escribirRuta(archivo, m_ruta);
    Descriptor abierto{m_acceso.abrir(m_ruta.c_str())};
    for (const ListaArchivos::Numero otro : m_enlaces.otrosNombres(archivo)) {
        if (abierto.abierto()) break;
        m_archivos.escribirRuta(otro, m_ruta);
        abierto = Descriptor{m_acceso.abrir(m_ruta.c_str())};
    }
    return abierto;
}

void AperturaAdelantada::abrirHasta(std::size_t fin)
{
    for (; m_abiertosHasta < std::min(fin, m_orden.size()); ++m_abiertosHasta) {
        const ListaArchivos::Numero archivo = m_orden[m_abiertosHasta];
        Descriptor abierto = abrir(archivo);
        if (abierto.abierto())
            m_acceso.anticipar(abierto.numero(), std::min(m_primeros, m_archivos.bytes(archivo)));
        m_abiertos[m_abiertosHasta % adelanto] = std::move(abierto);
    }
}

Descriptor AperturaAdelantada::siguiente()
{
    abrirHasta(m_turno + adelanto);
    return std::move(m_abiertos[m_turno++ % adelanto]);
}

} // namespace ovanta
