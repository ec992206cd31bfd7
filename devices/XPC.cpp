#include "devices/XPC.h"

#include "core/LittleEndian.h"
#include "core/Utf8.h"

#include <bit>
#include <utility>

namespace ovanta::XPC {

namespace {

constexpr std::uint32_t magiaDeEnvoltura = 0x29B00B92;
constexpr std::uint32_t magiaDeCuerpo = 0x42133742;
constexpr std::uint32_t versionDeCuerpo = 5;
/// What small messages may tell beyond their own length (see `valor`).
constexpr std::size_t holgura = 1024;

enum Tipo : std::uint32_t {
    nulo = 0x1000,
    booleano = 0x2000,
    entero = 0x3000,
    enteroSinSigno = 0x4000,
    doble = 0x5000,
    fecha = 0x7000,
    datos = 0x8000,
    cadena = 0x9000,
    uuid = 0xA000,
    lista = 0xE000,
    diccionario = 0xF000,
};

template <typename Entero>
std::optional<Entero> leerEntero(std::string_view bytes, std::size_t posicion)
{
    if (posicion > bytes.size() || bytes.size() - posicion < sizeof(Entero)) return std::nullopt;
    return static_cast<Entero>(leerLittleEndian(bytes.substr(posicion, sizeof(Entero))));
}

class Decodificador
{
public:
    Decodificador(std::string_view bytes, std::size_t &posicion)
        : m_bytes(bytes), m_posicion(posicion), m_quedan(bytes.size() + holgura)
    {
    }

    std::optional<ValorXPC> valor(int profundidad)
    {
        const auto tipo = u32(m_bytes, m_posicion);
        if (!tipo || !cobrar(4)) return std::nullopt;
        m_posicion += 4;
        switch (*tipo) {
        case nulo:
            return ValorXPC{nullptr};
        case booleano:
            return numero<std::uint32_t>([](std::uint32_t n) { return n != 0; });
        case entero:
        case fecha:
            return numero<std::uint64_t>([](std::uint64_t n) { return std::bit_cast<std::int64_t>(n); });
        case enteroSinSigno:
            return numero<std::uint64_t>([](std::uint64_t n) { return n; });
        case doble:
            return numero<std::uint64_t>([](std::uint64_t n) { return std::bit_cast<double>(n); });
        case datos:
            return conLargo(comoDatos);
        case cadena:
            return conLargo(comoTexto);
        case uuid:
            return identificador();
        case lista:
            return contenedor(profundidad, &Decodificador::elementos);
        case diccionario:
            return contenedor(profundidad, &Decodificador::entradas);
        default:
            return std::nullopt;
        }
    }

private:
    using Cuerpo = std::optional<ValorXPC> (Decodificador::*)(std::uint32_t, int);

    /// Whether `cuantos` more bytes may be told.
    bool cobrar(std::size_t cuantos)
    {
        if (cuantos > m_quedan) return false;
        m_quedan -= cuantos;
        return true;
    }

    template <typename Entero, typename Conversion>
    std::optional<ValorXPC> numero(Conversion conversion)
    {
        const auto leido = leerEntero<Entero>(m_bytes, m_posicion);
        m_posicion += sizeof(Entero);
        if (!leido || !cobrar(sizeof(Entero))) return std::nullopt;
        return ValorXPC{conversion(*leido)};
    }

    static ValorXPC comoDatos(std::string_view trozo)
    {
        return ValorXPC{ValorXPC::Datos(trozo.begin(), trozo.end())};
    }

    static ValorXPC comoTexto(std::string_view trozo)
    {
        return ValorXPC{repararUtf8(trozo.substr(0, trozo.find('\0')))};
    }

    std::optional<ValorXPC> conLargo(ValorXPC (*convertir)(std::string_view))
    {
        const auto largo = u32(m_bytes, m_posicion);
        if (!largo || m_bytes.size() - m_posicion - 4 < *largo || !cobrar(*largo)) return std::nullopt;
        const std::string_view trozo = m_bytes.substr(m_posicion + 4, *largo);
        m_posicion += 4 + ((std::uint64_t{*largo} + 3) & 0x1FFFFFFFC);
        return convertir(trozo);
    }

    std::optional<ValorXPC> identificador()
    {
        constexpr std::size_t largo = 16;
        const std::size_t desde = std::exchange(m_posicion, m_posicion + largo);
        if (m_posicion > m_bytes.size() || !cobrar(largo)) return std::nullopt;
        return comoDatos(m_bytes.substr(desde, largo));
    }

    std::optional<ValorXPC> contenedor(int profundidad, Cuerpo cuerpo)
    {
        const auto largo = u32(m_bytes, m_posicion);
        const auto cuantos = u32(m_bytes, m_posicion + 4);
        if (!largo || !cuantos || profundidad >= profundidadMaxima) return std::nullopt;
        const std::size_t fin = m_posicion + 4 + *largo;
        m_posicion += 8;
        auto leido = (this->*cuerpo)(*cuantos, profundidad + 1);
        if (leido) m_posicion = fin;
        return leido;
    }

    std::optional<ValorXPC> elementos(std::uint32_t cuantos, int profundidad)
    {
        ValorXPC::Lista leidos;
        for (std::uint32_t i = 0; i < cuantos; ++i) {
            auto uno = valor(profundidad);
            if (!uno) return std::nullopt;
            leidos.push_back(*std::move(uno));
        }
        return ValorXPC{std::move(leidos)};
    }

    std::optional<ValorXPC> entradas(std::uint32_t cuantas, int profundidad)
    {
        ValorXPC::Mapa leidas;
        for (std::uint32_t i = 0; i < cuantas; ++i) {
            auto nombre = clave();
            if (!nombre) return std::nullopt;
            auto uno = valor(profundidad);
            if (!uno) return std::nullopt;
            leidas.insert_or_assign(*std::move(nombre), *std::move(uno));
        }
        return ValorXPC{std::move(leidas)};
    }

    std::optional<std::string> clave()
    {
        const std::size_t fin = m_bytes.find('\0', m_posicion);
        if (fin == std::string_view::npos || !cobrar(fin - m_posicion)) return std::nullopt;
        const std::string_view nombre = m_bytes.substr(m_posicion, fin - m_posicion);
        m_posicion = (fin + 4) & ~std::size_t{3};
        return repararUtf8(nombre);
    }

    std::string_view m_bytes;
    std::size_t &m_posicion;
    std::size_t m_quedan;
};

} // namespace

std::string envoltura(std::uint32_t flags, bool cargaVacia)
{
    std::string cuerpo;
    if (cargaVacia)
        for (const std::uint32_t palabra : {magiaDeCuerpo, versionDeCuerpo, std::uint32_t{diccionario},
                                            std::uint32_t{4}, std::uint32_t{0}}) // length and entries
            cuerpo += aLittleEndian(palabra, 4);
    const std::uint64_t mensaje = 0;
    return aLittleEndian(magiaDeEnvoltura, 4) + aLittleEndian(flags, 4) + aLittleEndian(cuerpo.size(), 8) +
           aLittleEndian(mensaje, 8) + cuerpo;
}

std::optional<std::uint32_t> u32(std::string_view bytes, std::size_t posicion)
{
    return leerEntero<std::uint32_t>(bytes, posicion);
}

std::optional<std::uint64_t> u64(std::string_view bytes, std::size_t posicion)
{
    return leerEntero<std::uint64_t>(bytes, posicion);
}

std::optional<ValorXPC> valor(std::string_view bytes, std::size_t &posicion)
{
    return Decodificador(bytes, posicion).valor(0);
}

} // namespace ovanta::XPC
