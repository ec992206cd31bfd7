#include "analysis/Duplicados.h"

#include "analysis/AperturaAdelantada.h"
#include "analysis/Candidatos.h"
#include "analysis/CompararContenido.h"
#include "analysis/LeerTrozo.h"
#include "analysis/MarcaRapida.h"
#include "analysis/Minusculas.h"
#include "core/Hexadecimal.h"
#include "core/OrdenEstable.h"

#include <memory>
#include <span>
#include <unordered_map>

namespace ovanta {

namespace {

using Numero = ListaArchivos::Numero;

/// The head that is digested first, and the largest file that it holds wholly.
constexpr std::uint64_t cabeza = 65536;
/// Files that are compared at once, all of them open.
constexpr std::size_t porComparacion = 64;
/// How much of a large file is asked of the disk before its turn.
constexpr std::uint64_t adelantoDeGrandes = 1 << 20;

/// A short one stands for a read error or a file that shrank.
struct Cabeza
{
    Digesto digesto;
    bool entera = false;

    auto operator<=>(const Cabeza &) const = default;
};

std::string enHexadecimal(const Digesto &digesto)
{
    return minusculas(aHexadecimal({reinterpret_cast<const char *>(digesto.data()), digesto.size()}));
}

class Embudo
{
public:
    Embudo(const ListaArchivos &archivos, AccesoArchivos &acceso, const BanderaCancelacion *cancelacion)
        : m_archivos(archivos), m_acceso(acceso), m_cancelacion(cancelacion), m_candidatos(archivos),
          m_leido(std::make_unique_for_overwrite<char[]>(cabeza))
    {
    }

    std::vector<ContenidoIgual> pasar()
    {
        separarPorMarca();
        if (cancelada(m_cancelacion)) return {};
        separarPorCabeza();
        compararContenidos();
        if (cancelada(m_cancelacion)) return {};
        std::vector<ContenidoIgual> iguales;
        for (auto &[clave, archivos] : m_iguales)
            if (archivos.size() > 1) {
                std::ranges::sort(archivos);
                iguales.push_back({clave, std::move(archivos)});
            }
        return iguales;
    }

private:
    /// The key that `leer` finds in each candidate that `toca`; no key where it cannot be opened.
    template <typename Clave, typename Toca, typename Leer>
    std::vector<std::optional<Clave>> claves(std::uint64_t primeros, Clave delResto, Toca toca, Leer leer)
    {
        const std::vector<Candidato> &todos = m_candidatos.todos();
        std::vector<std::optional<Clave>> claves(todos.size(), delResto);
        std::vector<Numero> orden;
        for (const Candidato &candidato : todos)
            if (toca(candidato.archivo)) orden.push_back(candidato.archivo);
        AperturaAdelantada abiertos(m_archivos, m_candidatos.enlaces(), m_acceso, orden, primeros);
        for (std::size_t i = 0; i < todos.size(); ++i) {
            if (!toca(todos[i].archivo)) continue;
            if (cancelada(m_cancelacion)) break;
            const Descriptor abierto = abiertos.siguiente();
            claves[i].reset();
            if (abierto.abierto()) claves[i] = leer(todos[i].archivo, abierto.numero());
        }
        return claves;
    }

    void separarPorMarca()
    {
        const auto merece = [&](Numero archivo) { return m_archivos.bytes(archivo) > 2 * bytesDeMarca; };
        m_candidatos.separar(claves(bytesDeMarca, std::uint64_t{0}, merece, [&](Numero, int descriptor) {
            return marcaRapida({m_leido.get(), leerTrozo(m_acceso, descriptor, m_leido.get(), bytesDeMarca)});
        }));
    }

    /// Small files are done with this: their head is all of them.
    void separarPorCabeza()
    {
        const auto todos = [](Numero) { return true; };
        const auto cabezas = claves(cabeza, Cabeza{}, todos, [&](Numero archivo, int descriptor) {
            return leerCabeza(descriptor, m_archivos.bytes(archivo));
        });
        const std::vector<std::uint32_t> antes = m_candidatos.separar(cabezas);
        std::unordered_map<std::uint32_t, std::size_t> lugarDeConjunto;
        for (std::size_t i = 0; i < antes.size(); ++i) {
            const auto [archivo, conjunto] = m_candidatos.todos()[i];
            const Cabeza &suya = *cabezas[antes[i]];
            if (m_archivos.bytes(archivo) <= cabeza) {
                anotar("corto-" + std::to_string(m_archivos.bytes(archivo)) + "-" +
                           enHexadecimal(suya.digesto),
                       archivo);
                continue;
            }
            const auto [lugar, nuevo] = lugarDeConjunto.try_emplace(conjunto, m_grandes.size());
            if (nuevo) m_grandes.push_back({suya.entera ? cabeza : 0, {}});
            m_grandes[lugar->second].archivos.push_back(archivo);
        }
    }

    Cabeza leerCabeza(int descriptor, std::uint64_t esperados)
    {
        std::size_t leidos = 0;
        while (leidos < cabeza) {
            const ssize_t n = m_acceso.leer(descriptor, m_leido.get() + leidos, cabeza - leidos);
            if (n <= 0) break;
            leidos += static_cast<std::size_t>(n);
            // A read that comes short just where the file should end has met its end.
            if (leidos == esperados) break;
        }
        m_sha.empezar();
        m_sha.agregar(m_leido.get(), leidos);
        return {m_sha.terminar(), leidos == cabeza};
    }

    void compararContenidos()
    {
        std::vector<Numero> orden;
        for (const Grande &grande : m_grandes)
            orden.insert(orden.end(), grande.archivos.begin(), grande.archivos.end());
        AperturaAdelantada abiertos(m_archivos, m_candidatos.enlaces(), m_acceso, orden, adelantoDeGrandes);
        for (const Grande &grande : m_grandes) {
            std::span<const Numero> quedan = grande.archivos;
            while (!quedan.empty() && !cancelada(m_cancelacion)) {
                const std::size_t cuantos = std::min(quedan.size(), porComparacion);
                comparar(quedan.first(cuantos), grande.igualesHasta, abiertos);
                quedan = quedan.subspan(cuantos);
            }
        }
    }

    void comparar(std::span<const Numero> archivos, std::uint64_t igualesHasta, AperturaAdelantada &abiertos)
    {
        std::vector<Descriptor> descriptores;
        for (std::size_t i = 0; i < archivos.size(); ++i)
            descriptores.push_back(abiertos.siguiente());
        const auto digestos =
            digestosPorComparacion(std::move(descriptores), igualesHasta, m_acceso, m_cancelacion);
        for (std::size_t i = 0; i < archivos.size(); ++i)
            if (digestos[i]) anotar(enHexadecimal(*digestos[i]), archivos[i]);
    }

    void anotar(const std::string &clave, Numero archivo)
    {
        const std::vector<Numero> nombres = m_candidatos.enlaces().nombresQueQuedan(m_archivos, archivo);
        std::vector<Numero> &iguales = m_iguales[clave];
        iguales.insert(iguales.end(), nombres.begin(), nombres.end());
    }

    /// Files above the head's length whose heads are equal.
    struct Grande
    {
        std::uint64_t igualesHasta;
        std::vector<Numero> archivos;
    };

    const ListaArchivos &m_archivos;
    AccesoArchivos &m_acceso;
    const BanderaCancelacion *m_cancelacion;
    Candidatos m_candidatos;
    std::unique_ptr<char[]> m_leido;
    Sha256 m_sha;
    std::vector<Grande> m_grandes;
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
