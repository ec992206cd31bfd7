#include "platform/linux/TermicoLinux.h"

#include "platform/linux/EntradasDeCarpeta.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

namespace ovanta {

namespace {

std::string_view sinFinal(std::string_view texto)
{
    return texto.substr(0, texto.find('\n'));
}

template <typename Entero>
std::optional<Entero> leerEntero(LecturaRepetida &archivo)
{
    std::array<char, 32> lugar;
    const std::string_view texto = sinFinal(archivo.leer(lugar));
    Entero valor = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (error != std::errc{} || fin != texto.data() + texto.size()) return std::nullopt;
    return valor;
}

PuntosTermicos leerPuntos(const std::string &zona)
{
    PuntosTermicos puntos;
    for (int i = 0;; ++i) {
        const std::string punto = zona + "/trip_point_" + std::to_string(i);
        std::array<char, 32> lugar;
        LecturaRepetida clase(punto + "_type");
        LecturaRepetida temperatura(punto + "_temp");
        const std::string_view nombre = sinFinal(clase.leer(lugar));
        if (nombre.empty()) return puntos;
        if (const auto valor = leerEntero<int>(temperatura)) puntos.anotar(nombre, *valor);
    }
}

} // namespace

TermicoLinux::TermicoLinux(const std::string &raiz)
{
    buscarZonas(raiz + "/sys/class/thermal/");
    buscarFrenos(raiz + "/sys/devices/system/cpu/");
    m_frenadas = frenadas();
}

void TermicoLinux::buscarZonas(const std::string &carpeta)
{
    for (const std::string &nombre : entradasDeCarpeta(carpeta, "thermal_zone")) {
        const PuntosTermicos puntos = leerPuntos(carpeta + nombre);
        if (puntos.alguno()) m_zonas.push_back({puntos, LecturaRepetida(carpeta + nombre + "/temp")});
    }
}

void TermicoLinux::buscarFrenos(const std::string &carpeta)
{
    // All processors of a package show the same count for it.
    std::set<std::string> paquetes;
    for (const std::string &cpu : entradasDeCarpeta(carpeta, "cpu")) {
        const std::string frenos = carpeta + cpu + "/thermal_throttle";
        if (entradasDeCarpeta(frenos).empty()) continue;
        m_frenos.emplace_back(frenos + "/core_throttle_count");
        std::array<char, 32> lugar;
        LecturaRepetida paquete(carpeta + cpu + "/topology/physical_package_id");
        if (paquetes.emplace(paquete.leer(lugar)).second)
            m_frenos.emplace_back(frenos + "/package_throttle_count");
    }
}

std::uint64_t TermicoLinux::frenadas()
{
    std::uint64_t suma = 0;
    for (LecturaRepetida &freno : m_frenos)
        suma += leerEntero<std::uint64_t>(freno).value_or(0);
    return suma;
}

EstadoTermico TermicoLinux::estado()
{
    std::optional<EstadoTermico> peor;
    for (Zona &zona : m_zonas) {
        const std::optional<int> temperatura = leerEntero<int>(zona.temperatura);
        if (!temperatura) continue;
        const EstadoTermico estado = estadoDeZona(*temperatura, zona.puntos);
        peor = std::max(peor.value_or(EstadoTermico::nominal), estado);
    }
    const std::uint64_t antes = std::exchange(m_frenadas, frenadas());
    if (m_frenadas > antes) peor = std::max(peor.value_or(EstadoTermico::nominal), EstadoTermico::serious);
    return peor.value_or(EstadoTermico::desconocido);
}

} // namespace ovanta
