#include "analysis/Duplicados.h"

#include "analysis/AperturaAdelantada.h"
#include "analysis/CompararContenido.h"
#include "analysis/Criba.h"
#include "analysis/Minusculas.h"
#include "core/Hexadecimal.h"
#include "core/OrdenEstable.h"

#include <memory>
#include <span>
#include <unordered_map>
#include <utility>

namespace ovanta {

namespace {

using Numero = ListaArchivos::Numero;

/// Files that are compared at once, all of them open.
constexpr std::size_t porComparacion = 64;
/// How much of a large file is asked of the disk before its turn.
constexpr std::uint64_t adelantoDeGrandes = 1 << 20;

std::string enHexadecimal(const Digesto &digesto)
{
    return minusculas(aHexadecimal({reinterpret_cast<const char *>(digesto.data()), digesto.size()}));
}

/// The large files come first: their digests are what takes long where the processor has no instructions for
/// them, and the small files are sifted in the meantime.
class Embudo
{
public:
    Embudo(const ListaArchivos &archivos, AccesoArchivos &acceso, const BanderaCancelacion *cancelacion)
        : m_archivos(archivos), m_acceso(acceso), m_cancelacion(cancelacion),
          m_cribaDeGrandes(archivos, acceso, {.desde = bytesDeCabeza + 1}),
          m_cribaDeCortos(archivos, acceso, {.hasta = bytesDeCabeza}),
          m_digestos([this] { return cribarUnCorto(); })
    {
    }

    std::vector<ContenidoIgual> pasar()
    {
        compararGrandes();
        nombrarCortos();
        if (cancelada(m_cancelacion)) return {};
        m_digestos.esperar();
        anotarTodos();
        std::vector<ContenidoIgual> iguales;
        // Piece by piece, or the memory of all groups would be needed twice.
        while (!m_iguales.empty()) {
            auto igual = m_iguales.extract(m_iguales.begin());
            if (igual.mapped().size() < 2) continue;
            std::ranges::sort(igual.mapped());
            iguales.push_back({std::move(igual.key()), std::move(igual.mapped())});
        }
        return iguales;
    }

private:
    /// What there is to do while the digests lag behind the reading.
    bool cribarUnCorto() { return !cancelada(m_cancelacion) && m_cribaDeCortos.avanzar(); }

    /// Small files are done with their head: one digest of the first of each set is the name of all.
    void nombrarCortos()
    {
        while (cribarUnCorto()) {
        }
        if (cancelada(m_cancelacion)) return;
        m_cortos = m_cribaDeCortos.conjuntos();
        std::vector<Numero> primeros;
        for (const Conjunto &corto : m_cortos)
            primeros.push_back(corto.archivos.front());
        AperturaAdelantada abiertos(m_archivos, m_cribaDeCortos.enlaces(), m_acceso, primeros, bytesDeCabeza);
        const auto leido = std::make_unique_for_overwrite<char[]>(bytesDeCabeza);
        for (Conjunto &corto : m_cortos) {
            if (cancelada(m_cancelacion)) return;
            const Descriptor primero = abiertos.siguiente();
            if (!primero.abierto()) continue;
            const DigestosAparte::EnCurso digesto = m_digestos.empezar();
            const std::uint64_t bytes = m_archivos.bytes(corto.archivos.front());
            m_digestos.agregar(digesto, leido.get(),
                               leerCabeza(m_acceso, primero.numero(), leido.get(), bytes));
            corto.digesto = m_digestos.terminar(digesto);
        }
    }

    void compararGrandes()
    {
        while (!cancelada(m_cancelacion) && m_cribaDeGrandes.avanzar()) {
        }
        if (cancelada(m_cancelacion)) return;
        const std::vector<Conjunto> grandes = m_cribaDeGrandes.conjuntos();
        std::vector<Numero> orden;
        for (const Conjunto &grande : grandes)
            orden.insert(orden.end(), grande.archivos.begin(), grande.archivos.end());
        AperturaAdelantada abiertos(m_archivos, m_cribaDeGrandes.enlaces(), m_acceso, orden,
                                    adelantoDeGrandes);
        for (const Conjunto &grande : grandes) {
            std::span<const Numero> quedan = grande.archivos;
            while (!quedan.empty() && !cancelada(m_cancelacion)) {
                const auto juntos = quedan.first(std::min(quedan.size(), porComparacion));
                comparar(juntos, grande, abiertos);
                quedan = quedan.subspan(juntos.size());
            }
        }
    }

    void comparar(std::span<const Numero> archivos, const Conjunto &suyo, AperturaAdelantada &abiertos)
    {
        const bool sonTodos = archivos.size() == suyo.archivos.size();
        std::vector<PorComparar> porComparar;
        for (const Numero archivo : archivos)
            porComparar.push_back({abiertos.siguiente(), m_archivos.bytes(archivo),
                                   !sonTodos || !m_cribaDeGrandes.enlaces().otrosNombres(archivo).empty()});
        const auto contenidos =
            compararContenido(std::move(porComparar), suyo.cabezaEntera ? bytesDeCabeza : 0, m_acceso,
                              m_digestos, m_cancelacion);
        for (const ContenidoComparado &contenido : contenidos) {
            Conjunto &igual = m_comparados.emplace_back();
            igual.digesto = contenido.digesto;
            for (const std::size_t i : contenido.archivos)
                igual.archivos.push_back(archivos[i]);
        }
    }

    void anotarTodos()
    {
        for (Conjunto &corto : m_cortos) {
            const std::uint64_t bytes = m_archivos.bytes(corto.archivos.front());
            anotar("corto-" + std::to_string(bytes) + "-" +
                       (corto.digesto ? enHexadecimal(*corto.digesto) : ""),
                   m_cribaDeCortos.enlaces(), std::exchange(corto.archivos, {}));
        }
        for (Conjunto &comparado : m_comparados)
            anotar(enHexadecimal(*comparado.digesto), m_cribaDeGrandes.enlaces(),
                   std::exchange(comparado.archivos, {}));
    }

    void anotar(const std::string &clave, const EnlacesFisicos &enlaces, const std::vector<Numero> &archivos)
    {
        std::vector<Numero> &iguales = m_iguales[clave];
        for (const Numero archivo : archivos) {
            const std::vector<Numero> nombres = enlaces.nombresQueQuedan(m_archivos, archivo);
            iguales.insert(iguales.end(), nombres.begin(), nombres.end());
        }
    }

    const ListaArchivos &m_archivos;
    AccesoArchivos &m_acceso;
    const BanderaCancelacion *m_cancelacion;
    Criba m_cribaDeGrandes;
    Criba m_cribaDeCortos;
    DigestosAparte m_digestos;
    std::vector<Conjunto> m_cortos;
    std::vector<Conjunto> m_comparados; ///< above the head's length, of one content
    std::unordered_map<std::string, std::vector<Numero>> m_iguales;
};

GrupoDuplicados enGrupo(const ListaArchivos &archivos, const ContenidoIgual &igual)
{
    GrupoDuplicados grupo;
    grupo.id = igual.clave;
    for (const Numero archivo : igual.archivos)
        grupo.copias.push_back(archivos.hallado(archivo));
    // Equal moments keep the order of the walk.
    ordenarEstable(grupo.copias, std::less{}, &ArchivoHallado::modificado);
    grupo.bytes = grupo.copias.front().bytes;
    return grupo;
}

} // namespace

std::vector<ContenidoIgual> contenidosIguales(const ListaArchivos &archivos, AccesoArchivos &acceso,
                                              const BanderaCancelacion *cancelacion)
{
    return Embudo(archivos, acceso, cancelacion).pasar();
}

std::vector<GrupoDuplicados> buscarDuplicados(const ListaArchivos &archivos, AccesoArchivos &acceso,
                                              const BanderaCancelacion *cancelacion)
{
    std::vector<GrupoDuplicados> grupos;
    for (const ContenidoIgual &igual : contenidosIguales(archivos, acceso, cancelacion)) {
        if (cancelada(cancelacion)) return {};
        grupos.push_back(enGrupo(archivos, igual));
    }
    return grupos;
}

} // namespace ovanta
