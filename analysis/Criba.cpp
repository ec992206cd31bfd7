#include "analysis/Criba.h"

#include "analysis/LeerTrozo.h"
#include "analysis/MarcaRapida.h"

#include <cstring>
#include <unordered_map>
#include <utility>

namespace ovanta {

namespace {

/// Up to here looking at the mark first costs more than it spares.
constexpr std::uint64_t leidosDeUnaVez = 4096;

} // namespace

std::size_t leerCabeza(AccesoArchivos &acceso, int descriptor, char *destino, std::uint64_t esperados)
{
    std::size_t leidos = 0;
    while (leidos < bytesDeCabeza) {
        const ssize_t n = acceso.leer(descriptor, destino + leidos, bytesDeCabeza - leidos);
        if (n <= 0) break;
        leidos += static_cast<std::size_t>(n);
        // A read that comes short just where the file should end has met its end.
        if (leidos == esperados) break;
    }
    return leidos;
}

Criba::Criba(const ListaArchivos &archivos, AccesoArchivos &acceso, IntervaloDeTamano tamanos)
    : m_archivos(archivos), m_acceso(acceso), m_candidatos(archivos, tamanos),
      m_leido(std::make_unique_for_overwrite<char[]>(bytesDeCabeza))
{
    empezar(Etapa::marca);
}

bool Criba::toca(ListaArchivos::Numero archivo) const
{
    return m_etapa == Etapa::cabeza || m_archivos.bytes(archivo) > leidosDeUnaVez;
}

void Criba::empezar(Etapa etapa)
{
    m_etapa = etapa;
    m_turno = 0;
    m_claves.assign(m_candidatos.todos().size(), Clave{});
    m_orden.clear();
    for (const Candidato &candidato : m_candidatos.todos())
        if (toca(candidato.archivo)) m_orden.push_back(candidato.archivo);
    m_abiertos.emplace(m_archivos, m_candidatos.enlaces(), m_acceso, m_orden,
                       etapa == Etapa::marca ? bytesDeMarca : bytesDeCabeza);
}

bool Criba::avanzar()
{
    if (m_etapa == Etapa::acabada) return false;
    const std::vector<Candidato> &todos = m_candidatos.todos();
    while (m_turno < todos.size() && !toca(todos[m_turno].archivo))
        ++m_turno;
    if (m_turno == todos.size()) {
        acabar();
        return true;
    }
    const Descriptor abierto = m_abiertos->siguiente();
    m_claves[m_turno].reset();
    if (abierto.abierto()) m_claves[m_turno] = leerClave(todos[m_turno].archivo, abierto.numero());
    ++m_turno;
    return true;
}

Criba::Clave Criba::leerClave(ListaArchivos::Numero archivo, int descriptor)
{
    char *const leido = m_leido.get();
    Clave clave;
    if (m_etapa == Etapa::marca) {
        const std::uint64_t marca =
            marcaRapida({leido, leerTrozo(m_acceso, descriptor, leido, bytesDeMarca)});
        std::memcpy(clave.marca.data(), &marca, sizeof marca);
    } else {
        const std::size_t leidos = leerCabeza(m_acceso, descriptor, leido, m_archivos.bytes(archivo));
        clave = {m_marca.de(leido, leidos), leidos == bytesDeCabeza};
    }
    return clave;
}

void Criba::acabar()
{
    const std::vector<std::uint32_t> antes = m_candidatos.separar(m_claves);
    if (m_etapa == Etapa::marca) return empezar(Etapa::cabeza);
    m_etapa = Etapa::acabada;
    m_abiertos.reset();
    for (std::size_t i = 0; i < antes.size(); ++i)
        m_claves[i] = m_claves[antes[i]];
    m_claves.resize(antes.size());
    m_claves.shrink_to_fit();
}

std::vector<Conjunto> Criba::conjuntos()
{
    std::vector<Conjunto> conjuntos;
    const std::vector<std::optional<Clave>> claves = std::exchange(m_claves, {});
    m_orden = {};
    std::unordered_map<std::uint32_t, std::size_t> lugares;
    for (std::size_t i = 0; i < claves.size(); ++i) {
        const auto [archivo, conjunto] = m_candidatos.todos()[i];
        const auto [lugar, nuevo] = lugares.try_emplace(conjunto, conjuntos.size());
        if (nuevo) conjuntos.push_back({.cabezaEntera = claves[i]->entera});
        conjuntos[lugar->second].archivos.push_back(archivo);
    }
    return conjuntos;
}

} // namespace ovanta
