#include "analysis/Duplicados.h"

#include "analysis/AperturaAdelantada.h"
#include "analysis/Candidatos.h"
#include "analysis/CompararContenido.h"
#include "analysis/LeerTrozo.h"
#include "analysis/MarcaRapida.h"
#include "analysis/MarcaSecreta.h"
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
/// Up to here looking at the mark first costs more than it spares.
constexpr std::uint64_t leidosDeUnaVez = 4096;
/// Files that are compared at once, all of them open.
constexpr std::size_t porComparacion = 64;
/// How much of a large file is asked of the disk before its turn.
constexpr std::uint64_t adelantoDeGrandes = 1 << 20;

/// What tells one head from another. A short one stands for a read error or a file that shrank.
struct Cabeza
{
    MarcaSecreta::Marca marca{};
    bool entera = false;

    auto operator<=>(const Cabeza &) const = default;
};

/// Files that are equal, by their heads or as a whole.
struct Conjunto
{
    bool cabezaEntera = false;
    std::vector<Numero> archivos{};
    const Digesto *digesto = nullptr; ///< of the whole content, once it was asked for
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
        nombrarCortos();
        compararGrandes();
        if (cancelada(m_cancelacion)) return {};
        m_digestos.esperar();
        anotarTodos();
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
        const auto merece = [&](Numero archivo) { return m_archivos.bytes(archivo) > leidosDeUnaVez; };
        m_candidatos.separar(claves(bytesDeMarca, std::uint64_t{0}, merece, [&](Numero, int descriptor) {
            return marcaRapida({m_leido.get(), leerTrozo(m_acceso, descriptor, m_leido.get(), bytesDeMarca)});
        }));
    }

    /// Small files are done with this: their head is all of them.
    void separarPorCabeza()
    {
        const auto todos = [](Numero) { return true; };
        const auto cabezas = claves(cabeza, Cabeza{}, todos, [&](Numero archivo, int descriptor) {
            const std::size_t leidos = leerCabeza(descriptor, m_archivos.bytes(archivo));
            return Cabeza{m_marca.de(m_leido.get(), leidos), leidos == cabeza};
        });
        const std::vector<std::uint32_t> antes = m_candidatos.separar(cabezas);
        std::unordered_map<std::uint32_t, std::size_t> lugarDeConjunto;
        for (std::size_t i = 0; i < antes.size(); ++i) {
            const auto [archivo, conjunto] = m_candidatos.todos()[i];
            std::vector<Conjunto> &suyos = m_archivos.bytes(archivo) <= cabeza ? m_cortos : m_grandes;
            const auto [lugar, nuevo] = lugarDeConjunto.try_emplace(conjunto, suyos.size());
            if (nuevo) suyos.push_back({.cabezaEntera = cabezas[antes[i]]->entera});
            suyos[lugar->second].archivos.push_back(archivo);
        }
    }

    std::size_t leerCabeza(int descriptor, std::uint64_t esperados)
    {
        std::size_t leidos = 0;
        while (leidos < cabeza) {
            const ssize_t n = m_acceso.leer(descriptor, m_leido.get() + leidos, cabeza - leidos);
            if (n <= 0) break;
            leidos += static_cast<std::size_t>(n);
            // A read that comes short just where the file should end has met its end.
            if (leidos == esperados) break;
        }
        return leidos;
    }

    /// One digest of the first of each set is the name of all.
    void nombrarCortos()
    {
        std::vector<Numero> primeros;
        for (const Conjunto &corto : m_cortos)
            primeros.push_back(corto.archivos.front());
        AperturaAdelantada abiertos(m_archivos, m_candidatos.enlaces(), m_acceso, primeros, cabeza);
        for (Conjunto &corto : m_cortos) {
            if (cancelada(m_cancelacion)) return;
            const Descriptor primero = abiertos.siguiente();
            if (!primero.abierto()) continue;
            const DigestosAparte::EnCurso digesto = m_digestos.empezar();
            m_digestos.agregar(digesto, m_leido.get(),
                               leerCabeza(primero.numero(), m_archivos.bytes(corto.archivos.front())));
            corto.digesto = m_digestos.terminar(digesto);
        }
    }

    void compararGrandes()
    {
        std::vector<Numero> orden;
        for (const Conjunto &grande : m_grandes)
            orden.insert(orden.end(), grande.archivos.begin(), grande.archivos.end());
        AperturaAdelantada abiertos(m_archivos, m_candidatos.enlaces(), m_acceso, orden, adelantoDeGrandes);
        for (const Conjunto &grande : m_grandes) {
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
                                   !sonTodos || !m_candidatos.enlaces().otrosNombres(archivo).empty()});
        const auto contenidos = compararContenido(std::move(porComparar), suyo.cabezaEntera ? cabeza : 0,
                                                  m_acceso, m_digestos, m_cancelacion);
        for (const ContenidoComparado &contenido : contenidos) {
            Conjunto &igual = m_comparados.emplace_back();
            igual.digesto = contenido.digesto;
            for (const std::size_t i : contenido.archivos)
                igual.archivos.push_back(archivos[i]);
        }
    }

    void anotarTodos()
    {
        for (const Conjunto &corto : m_cortos) {
            const std::uint64_t bytes = m_archivos.bytes(corto.archivos.front());
            anotar("corto-" + std::to_string(bytes) + "-" +
                       (corto.digesto ? enHexadecimal(*corto.digesto) : ""),
                   corto.archivos);
        }
        for (const Conjunto &comparado : m_comparados)
            anotar(enHexadecimal(*comparado.digesto), comparado.archivos);
    }

    void anotar(const std::string &clave, const std::vector<Numero> &archivos)
    {
        std::vector<Numero> &iguales = m_iguales[clave];
        for (const Numero archivo : archivos) {
            const std::vector<Numero> nombres = m_candidatos.enlaces().nombresQueQuedan(m_archivos, archivo);
            iguales.insert(iguales.end(), nombres.begin(), nombres.end());
        }
    }

    const ListaArchivos &m_archivos;
    AccesoArchivos &m_acceso;
    const BanderaCancelacion *m_cancelacion;
    Candidatos m_candidatos;
    std::unique_ptr<char[]> m_leido;
    MarcaSecreta m_marca;
    DigestosAparte m_digestos;
    std::vector<Conjunto> m_cortos;
    std::vector<Conjunto> m_grandes;    ///< above the head's length, of equal heads
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
