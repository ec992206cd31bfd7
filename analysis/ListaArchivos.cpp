#include "analysis/ListaArchivos.h"

#include "core/Uuid.h"

#include <algorithm>
#include <cstring>

namespace ovanta {

namespace {

constexpr std::size_t bloqueDeNombres = 256 << 10;

} // namespace

std::uint32_t ListaArchivos::agregarCarpeta(std::string_view ruta)
{
    m_carpetas.emplace_back(ruta);
    return static_cast<std::uint32_t>(m_carpetas.size() - 1);
}

void ListaArchivos::agregar(std::uint32_t carpeta, std::string_view nombre, const Atributos &atributos)
{
    m_registros.push_back({atributos.bytes, atributos.modificadoNs, atributos.inodo, carpeta,
                           numeroDeDispositivo(atributos.dispositivo), guardarNombre(nombre)});
}

std::uint32_t ListaArchivos::numeroDeDispositivo(std::uint64_t dispositivo)
{
    // A walk meets a handful of volumes, and nearly always the one of the file before.
    const auto hallado = std::find(m_dispositivos.rbegin(), m_dispositivos.rend(), dispositivo);
    if (hallado == m_dispositivos.rend()) {
        m_dispositivos.push_back(dispositivo);
        return static_cast<std::uint32_t>(m_dispositivos.size() - 1);
    }
    return static_cast<std::uint32_t>(m_dispositivos.rend() - hallado - 1);
}

const char *ListaArchivos::guardarNombre(std::string_view nombre)
{
    const std::size_t largo = nombre.size() + 1;
    if (largo > m_libreEnNombres) {
        m_libreEnNombres = std::max(bloqueDeNombres, largo);
        m_nombres.push_back(std::make_unique_for_overwrite<char[]>(m_libreEnNombres));
        m_finDeNombres = m_nombres.back().get();
    }
    char *guardado = m_finDeNombres;
    std::memcpy(guardado, nombre.data(), nombre.size());
    guardado[nombre.size()] = '\0';
    m_finDeNombres += largo;
    m_libreEnNombres -= largo;
    return guardado;
}

Fecha ListaArchivos::modificado(Numero i) const
{
    return Fecha{std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds{modificadoNs(i)})};
}

std::string_view ListaArchivos::nombre(Numero i) const
{
    return m_registros[i].nombre;
}

void ListaArchivos::escribirRuta(Numero i, std::string &ruta) const
{
    const Registro &registro = m_registros[i];
    ruta.assign(m_carpetas[registro.carpeta]).append("/").append(registro.nombre);
}

std::string ListaArchivos::ruta(Numero i) const
{
    std::string ruta;
    escribirRuta(i, ruta);
    return ruta;
}

ArchivoHallado ListaArchivos::hallado(Numero i) const
{
    ArchivoHallado archivo;
    archivo.id = uuidNuevo();
    escribirRuta(i, archivo.ruta);
    archivo.bytes = bytes(i);
    archivo.modificado = modificado(i);
    archivo.identidadFisica = std::to_string(dispositivo(i)) + ":" + std::to_string(inodo(i));
    archivo.modificadoNs = modificadoNs(i);
    return archivo;
}

} // namespace ovanta
