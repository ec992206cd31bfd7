#include "analysis/CompararContenido.h"

#include "analysis/LeerTrozo.h"
#include "core/Tamano.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::size_t porTrozo = 128 << 10;
/// Files that together are no larger are compared first and one of them read again for the digest, while the
/// system still has it in memory: what turns out to have no equal is then not digested at all.
constexpr std::uint64_t caben = 32 << 20;

/// Bytes that were read from one place of one file.
struct Trozo
{
    std::unique_ptr<char[]> datos = std::make_unique_for_overwrite<char[]>(porTrozo);
    std::size_t largo = 0;

    bool operator==(const Trozo &otro) const
    {
        return largo == otro.largo && std::memcmp(datos.get(), otro.datos.get(), largo) == 0;
    }
};

/// Files that were equal so far.
struct Clase
{
    DigestosAparte::EnCurso digesto;
    std::vector<std::size_t> miembros;
    Trozo trozo; ///< what its members have at the place under way
};

class Comparacion
{
public:
    Comparacion(std::vector<PorComparar> archivos, AccesoArchivos &acceso, DigestosAparte &digestos,
                const BanderaCancelacion *cancelacion)
        : m_archivos(std::move(archivos)), m_acceso(acceso), m_digestos(digestos), m_cancelacion(cancelacion)
    {
    }

    std::vector<ContenidoComparado> contenidos(std::uint64_t desde)
    {
        empezar(desde);
        while (!m_clases.empty()) {
            if (cancelada(m_cancelacion)) return {};
            avanzar();
        }
        return std::move(m_contenidos);
    }

private:
    /// The first class holds all that are open, with the equal beginning digested once.
    void empezar(std::uint64_t desde)
    {
        Clase todos;
        for (std::size_t i = 0; i < m_archivos.size(); ++i)
            if (m_archivos[i].archivo.abierto()) todos.miembros.push_back(i);
        if (todos.miembros.empty()) return;
        const std::size_t primero = todos.miembros.front();
        if (multiplicarConTope(m_archivos[primero].bytes, todos.miembros.size()) > caben)
            todos.digesto = digerir(primero, desde, todos.trozo);
        for (const std::size_t i : todos.miembros)
            ::lseek(m_archivos[i].archivo.numero(), static_cast<off_t>(desde), SEEK_SET);
        m_clases.push_back(std::move(todos));
    }

    /// The digest of what a file begins with.
    DigestosAparte::EnCurso digerir(std::size_t archivo, std::uint64_t hasta, Trozo &lugar)
    {
        DigestosAparte::EnCurso digesto = m_digestos.empezar();
        ::lseek(m_archivos[archivo].archivo.numero(), 0, SEEK_SET);
        while (hasta > 0 && !cancelada(m_cancelacion)) {
            leer(archivo, lugar, std::min<std::uint64_t>(hasta, porTrozo));
            if (lugar.largo == 0) break;
            m_digestos.agregar(digesto, lugar.datos.get(), lugar.largo);
            hasta -= lugar.largo;
        }
        return digesto;
    }

    void leer(std::size_t archivo, Trozo &trozo, std::size_t bytes = porTrozo)
    {
        trozo.largo = leerTrozo(m_acceso, m_archivos[archivo].archivo.numero(), trozo.datos.get(), bytes);
    }

    void avanzar()
    {
        std::vector<Clase> siguientes;
        for (Clase &clase : m_clases)
            for (Clase &parte : repartir(std::move(clase)))
                if (!terminada(parte)) siguientes.push_back(std::move(parte));
        m_clases = std::move(siguientes);
    }

    /// Reads one piece of each member and parts the class by what they hold.
    std::vector<Clase> repartir(Clase clase)
    {
        const std::vector<std::size_t> miembros = std::exchange(clase.miembros, {});
        leer(miembros.front(), clase.trozo);
        std::vector<Clase> partes;
        partes.push_back(std::move(clase));
        partes.front().miembros.push_back(miembros.front());
        for (std::size_t m = 1; m < miembros.size(); ++m) {
            leer(miembros[m], m_leido);
            auto suya = std::ranges::find(partes, m_leido, &Clase::trozo);
            if (suya == partes.end()) {
                Clase nueva;
                if (partes.front().digesto) nueva.digesto = m_digestos.copiar(partes.front().digesto);
                std::swap(nueva.trozo, m_leido);
                suya = partes.insert(partes.end(), std::move(nueva));
            }
            suya->miembros.push_back(miembros[m]);
        }
        return partes;
    }

    bool terminada(Clase &clase)
    {
        const bool importa = clase.miembros.size() > 1 || m_archivos[clase.miembros.front()].importaSolo;
        if (!importa) clase.digesto.reset();
        if (clase.digesto) m_digestos.agregar(clase.digesto, clase.trozo.datos.get(), clase.trozo.largo);
        if (clase.trozo.largo == porTrozo) return false;
        if (!clase.digesto && (importa || !acabaDondeDebe(clase.miembros.front())))
            clase.digesto = digerir(clase.miembros.front(), UINT64_MAX, clase.trozo);
        if (clase.digesto)
            m_contenidos.push_back({m_digestos.terminar(clase.digesto), std::move(clase.miembros)});
        return true;
    }

    /// A content that ends elsewhere than its file should may be that of a file of another size.
    bool acabaDondeDebe(std::size_t archivo) const
    {
        const off_t fin = ::lseek(m_archivos[archivo].archivo.numero(), 0, SEEK_CUR);
        return fin >= 0 && static_cast<std::uint64_t>(fin) == m_archivos[archivo].bytes;
    }

    std::vector<PorComparar> m_archivos;
    AccesoArchivos &m_acceso;
    DigestosAparte &m_digestos;
    const BanderaCancelacion *m_cancelacion;
    std::vector<Clase> m_clases;
    std::vector<ContenidoComparado> m_contenidos;
    Trozo m_leido;
};

} // namespace

std::vector<ContenidoComparado> compararContenido(std::vector<PorComparar> archivos, std::uint64_t desde,
                                                  AccesoArchivos &acceso, DigestosAparte &digestos,
                                                  const BanderaCancelacion *cancelacion)
{
    return Comparacion(std::move(archivos), acceso, digestos, cancelacion).contenidos(desde);
}

} // namespace ovanta
