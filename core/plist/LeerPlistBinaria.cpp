#include "core/BigEndian.h"
#include "core/Utf8.h"
#include "core/plist/PresupuestoPlist.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace ovanta {

namespace {

// The layout is that of Apple's CFBinaryPList.c: "bplist00", the objects, a table of their offsets, and a
// trailer of 32 bytes. All numbers are big-endian; the high half of a marker tells the type.
constexpr std::size_t tamanoCabecera = 8;
constexpr std::size_t tamanoCola = 32;

/// The first moment of 2001 in UTC, from which dates count their seconds.
constexpr double origenDeFechas = 978'307'200;

bool esAlta(std::uint32_t unidad)
{
    return (unidad & 0xFC00) == 0xD800;
}

bool esBaja(std::uint32_t unidad)
{
    return (unidad & 0xFC00) == 0xDC00;
}

/// A surrogate without its other half becomes U+FFFD: it has no form in UTF-8.
std::string deUtf16(std::string_view bytes)
{
    std::string texto;
    texto.reserve(bytes.size() / 2 * 3);
    const auto unidad = [bytes](std::size_t lugar) {
        return lugar + 1 < bytes.size() ? static_cast<std::uint32_t>(leerBigEndian(bytes.substr(lugar, 2)))
                                        : 0;
    };
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        const auto primera = unidad(i), segunda = unidad(i + 2);
        if (esAlta(primera) && esBaja(segunda)) {
            anadirUtf8(texto, 0x10000 + ((primera & 0x3FF) << 10) + (segunda & 0x3FF));
            i += 2;
        } else {
            anadirUtf8(texto, esAlta(primera) || esBaja(primera) ? 0xFFFD : primera);
        }
    }
    return texto;
}

Fecha fechaDe(double segundos)
{
    const double micros = (segundos + origenDeFechas) * 1e6;
    constexpr double limite = 9.2e18; // what 64 bits hold, with some room
    if (!(std::abs(micros) < limite)) rechazarPlist("fecha imposible");
    return Fecha{std::chrono::microseconds{std::llround(micros)}};
}

class LectorBinario
{
public:
    LectorBinario(std::string_view bytes, PresupuestoPlist &presupuesto);

    ValorPlist leer() { return leerObjeto(m_raiz); }

private:
    /// The rest of an object behind its marker.
    struct Cuerpo
    {
        unsigned tipo;
        unsigned nibble;
        std::size_t lugar;
    };

    std::string_view tramo(std::size_t lugar, std::uint64_t cuantos) const;
    Cuerpo abrir(std::uint64_t referencia) const;
    std::uint64_t cuenta(Cuerpo &cuerpo) const;
    std::string_view contenido(Cuerpo cuerpo, std::size_t porUnidad) const;
    std::uint64_t referencia(std::string_view referencias, std::size_t cual) const;

    ValorPlist leerObjeto(std::uint64_t referencia);
    ValorPlist leerSimple(Cuerpo cuerpo);
    ValorPlist leerEntero(Cuerpo cuerpo) const;
    double leerReal(Cuerpo cuerpo) const;
    ValorPlist leerUid(Cuerpo cuerpo) const;
    std::string leerTexto(Cuerpo cuerpo);
    ListaPlist leerLista(Cuerpo cuerpo);
    DiccionarioPlist leerDiccionario(Cuerpo cuerpo);

    std::string_view m_bytes;
    PresupuestoPlist &m_presupuesto;
    std::string_view m_tabla;
    std::size_t m_finDeObjetos = 0;
    std::size_t m_anchoDeSalto = 0;
    std::size_t m_anchoDeReferencia = 0;
    std::uint64_t m_cuantos = 0;
    std::uint64_t m_raiz = 0;
    std::vector<std::uint64_t> m_abiertos; ///< the containers around the current object
};

LectorBinario::LectorBinario(std::string_view bytes, PresupuestoPlist &presupuesto)
    : m_bytes(bytes), m_presupuesto(presupuesto)
{
    if (!bytes.starts_with("bplist0") || bytes.size() < tamanoCabecera + tamanoCola)
        rechazarPlist("formato desconocido");
    const auto cola = bytes.substr(bytes.size() - tamanoCola);
    m_anchoDeSalto = static_cast<std::uint8_t>(cola[6]);
    m_anchoDeReferencia = static_cast<std::uint8_t>(cola[7]);
    m_cuantos = leerBigEndian(cola.substr(8, 8));
    m_raiz = leerBigEndian(cola.substr(16, 8));
    const auto tabla = leerBigEndian(cola.substr(24, 8));
    const auto fin = bytes.size() - tamanoCola;
    const auto anchoValido = [](std::size_t ancho) { return ancho >= 1 && ancho <= 8; };
    if (!anchoValido(m_anchoDeSalto) || !anchoValido(m_anchoDeReferencia) || tabla < tamanoCabecera ||
        tabla > fin || m_cuantos > (fin - tabla) / m_anchoDeSalto)
        rechazarPlist("índice dañado");
    m_finDeObjetos = tabla;
    m_tabla = bytes.substr(tabla, m_cuantos * m_anchoDeSalto);
}

std::string_view LectorBinario::tramo(std::size_t lugar, std::uint64_t cuantos) const
{
    if (lugar > m_finDeObjetos || cuantos > m_finDeObjetos - lugar) rechazarPlist("valor cortado");
    return m_bytes.substr(lugar, cuantos);
}

LectorBinario::Cuerpo LectorBinario::abrir(std::uint64_t referencia) const
{
    if (referencia >= m_cuantos) rechazarPlist("referencia a un valor que no existe");
    const auto lugar = leerBigEndian(m_tabla.substr(referencia * m_anchoDeSalto, m_anchoDeSalto));
    if (lugar < tamanoCabecera || lugar >= m_finDeObjetos) rechazarPlist("valor fuera de sitio");
    const auto marca = static_cast<std::uint8_t>(m_bytes[lugar]);
    return {marca / 16U, marca % 16U, lugar + 1};
}

/// How many units the object has: in its marker, or in an integer behind it.
std::uint64_t LectorBinario::cuenta(Cuerpo &cuerpo) const
{
    if (cuerpo.nibble != 15) return cuerpo.nibble;
    const auto marca = static_cast<std::uint8_t>(tramo(cuerpo.lugar, 1).front());
    if (marca / 16 != 1 || marca % 16 > 3) rechazarPlist("longitud ilegible");
    const std::size_t ancho = std::size_t{1} << marca % 16;
    const auto numero = leerBigEndian(tramo(cuerpo.lugar + 1, ancho));
    cuerpo.lugar += 1 + ancho;
    return numero;
}

std::string_view LectorBinario::contenido(Cuerpo cuerpo, std::size_t porUnidad) const
{
    const auto cuantas = cuenta(cuerpo);
    if (cuantas > m_bytes.size() / porUnidad) rechazarPlist("valor cortado");
    return tramo(cuerpo.lugar, cuantas * porUnidad);
}

std::uint64_t LectorBinario::referencia(std::string_view referencias, std::size_t cual) const
{
    return leerBigEndian(referencias.substr(cual * m_anchoDeReferencia, m_anchoDeReferencia));
}

ValorPlist LectorBinario::leerObjeto(std::uint64_t referencia)
{
    m_presupuesto.cobrarObjetos(1);
    const Cuerpo cuerpo = abrir(referencia);
    if (cuerpo.tipo != 0xA && cuerpo.tipo != 0xD) return leerSimple(cuerpo);
    const PresupuestoPlist::Nivel nivel{m_presupuesto};
    if (std::ranges::find(m_abiertos, referencia) != m_abiertos.end())
        rechazarPlist("valor que se contiene a sí mismo");
    m_abiertos.push_back(referencia);
    ValorPlist valor =
        cuerpo.tipo == 0xA ? ValorPlist{leerLista(cuerpo)} : ValorPlist{leerDiccionario(cuerpo)};
    m_abiertos.pop_back();
    return valor;
}

ValorPlist LectorBinario::leerSimple(Cuerpo cuerpo)
{
    switch (cuerpo.tipo) {
    case 0x0:
        if (cuerpo.nibble == 8 || cuerpo.nibble == 9) return cuerpo.nibble == 9;
        break;
    case 0x1:
        return leerEntero(cuerpo);
    case 0x2:
        return leerReal(cuerpo);
    case 0x3:
        if (cuerpo.nibble == 3) return fechaDe(leerReal(cuerpo));
        break;
    case 0x4: {
        const auto bytes = contenido(cuerpo, 1);
        m_presupuesto.cobrarBytes(bytes.size());
        return DatosPlist{std::string{bytes}};
    }
    case 0x5:
    case 0x6:
        return leerTexto(cuerpo);
    case 0x8:
        return leerUid(cuerpo);
    default:
        break;
    }
    rechazarPlist("valor de tipo desconocido");
}

/// Of 1, 2 and 4 bytes unsigned, of 8 signed; of 16 only what fits in 64 bits.
ValorPlist LectorBinario::leerEntero(Cuerpo cuerpo) const
{
    if (cuerpo.nibble > 4) rechazarPlist("número demasiado ancho");
    const auto bytes = tramo(cuerpo.lugar, std::uint64_t{1} << cuerpo.nibble);
    if (cuerpo.nibble < 3) return leerBigEndian(bytes);
    if (cuerpo.nibble == 3) return static_cast<std::int64_t>(leerBigEndian(bytes));
    const auto alto = leerBigEndian(bytes.substr(0, 8)), bajo = leerBigEndian(bytes.substr(8));
    if (alto == 0) return bajo;
    if (alto != ~std::uint64_t{0} || bajo >> 63 == 0) rechazarPlist("número demasiado grande");
    return static_cast<std::int64_t>(bajo);
}

double LectorBinario::leerReal(Cuerpo cuerpo) const
{
    if (cuerpo.nibble == 2)
        return std::bit_cast<float>(static_cast<std::uint32_t>(leerBigEndian(tramo(cuerpo.lugar, 4))));
    if (cuerpo.nibble != 3) rechazarPlist("número ilegible");
    return std::bit_cast<double>(leerBigEndian(tramo(cuerpo.lugar, 8)));
}

ValorPlist LectorBinario::leerUid(Cuerpo cuerpo) const
{
    if (cuerpo.nibble > 7) rechazarPlist("número demasiado ancho");
    return UidPlist{leerBigEndian(tramo(cuerpo.lugar, cuerpo.nibble + 1))};
}

std::string LectorBinario::leerTexto(Cuerpo cuerpo)
{
    const bool ancho = cuerpo.tipo == 0x6;
    const auto bytes = contenido(cuerpo, ancho ? 2 : 1);
    std::string texto{ancho ? deUtf16(bytes) : bytes};
    m_presupuesto.cobrarBytes(texto.size());
    if (!ancho && std::ranges::any_of(texto, [](char letra) { return (letra & 0x80) != 0; }))
        rechazarPlist("texto ilegible");
    return texto;
}

ListaPlist LectorBinario::leerLista(Cuerpo cuerpo)
{
    const auto referencias = contenido(cuerpo, m_anchoDeReferencia);
    const auto cuantos = referencias.size() / m_anchoDeReferencia;
    ListaPlist lista;
    for (std::size_t i = 0; i < cuantos; ++i)
        lista.push_back(leerObjeto(referencia(referencias, i)));
    return lista;
}

DiccionarioPlist LectorBinario::leerDiccionario(Cuerpo cuerpo)
{
    const auto referencias = contenido(cuerpo, 2 * m_anchoDeReferencia);
    const auto cuantos = referencias.size() / (2 * m_anchoDeReferencia);
    std::vector<EntradaPlist> entradas;
    for (std::size_t i = 0; i < cuantos; ++i) {
        m_presupuesto.cobrarObjetos(1);
        const Cuerpo clave = abrir(referencia(referencias, i));
        if (clave.tipo != 0x5 && clave.tipo != 0x6)
            rechazarPlist("clave que no es texto", ErrorPlist::Caso::claveSinTexto);
        std::string texto = leerTexto(clave);
        entradas.push_back({std::move(texto), leerObjeto(referencia(referencias, cuantos + i))});
    }
    return DiccionarioPlist{std::move(entradas)};
}

} // namespace

ValorPlist leerPlistBinaria(std::string_view bytes, PresupuestoPlist &presupuesto)
{
    return LectorBinario{bytes, presupuesto}.leer();
}

} // namespace ovanta
