#include "analysis/AperturaAdelantada.h"

#include "core/AbrirCamino.h"

#include <algorithm>

namespace ovanta {

AperturaAdelantada::AperturaAdelantada(const ListaArchivos &archivos, const EnlacesFisicos &enlaces,
                                       AccesoArchivos &acceso, std::span<const ListaArchivos::Numero> orden,
                                       std::uint64_t primeros)
    : m_archivos(archivos), m_enlaces(enlaces), m_acceso(acceso), m_orden(orden), m_primeros(primeros)
{
}

/// Files stand in the order of the walk, folder by folder: whoever opens the folder once spares the system
/// the walk of the whole path for each.
void AperturaAdelantada::prepararCarpeta(std::size_t lugar)
{
    const std::uint32_t suya = m_archivos.carpeta(m_orden[lugar]);
    if (m_numeroDeCarpeta == suya) return;
    m_numeroDeCarpeta = suya;
    m_carpeta.cerrar();
    if (lugar + 1 < m_orden.size() && m_archivos.carpeta(m_orden[lugar + 1]) == suya)
        m_carpeta = Descriptor{abrirCarpetaDePaso(m_archivos.rutaDeCarpeta(suya).c_str())};
}

Descriptor AperturaAdelantada::abrir(ListaArchivos::Numero archivo)
{
    Descriptor abierto =
        m_carpeta.abierto()
            ? Descriptor{m_acceso.abrirEn(m_carpeta.numero(), m_archivos.nombre(archivo).data())}
            : abrirPorRuta(archivo);
    if (abierto.abierto()) return abierto;
    for (const ListaArchivos::Numero otro : m_enlaces.otrosNombres(archivo)) {
        abierto = abrirPorRuta(otro);
        if (abierto.abierto()) break;
    }
    return abierto;
}

Descriptor AperturaAdelantada::abrirPorRuta(ListaArchivos::Numero archivo)
{
    m_archivos.escribirRuta(archivo, m_ruta);
    return Descriptor{m_acceso.abrir(m_ruta.c_str())};
}

void AperturaAdelantada::abrirHasta(std::size_t fin)
{
    for (; m_abiertosHasta < std::min(fin, m_orden.size()); ++m_abiertosHasta) {
        const ListaArchivos::Numero archivo = m_orden[m_abiertosHasta];
        prepararCarpeta(m_abiertosHasta);
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
