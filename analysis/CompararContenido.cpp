#include "analysis/CompararContenido.h"

#include "analysis/LeerTrozo.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr std::size_t porTrozo = 128 << 10;

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
    Sha256 sha;
    std::vector<std::size_t> miembros;
    Trozo trozo; ///< what its members have at the place under way
};

class Comparacion
{
public:
    Comparacion(std::vector<Descriptor> archivos, AccesoArchivos &acceso)
        : m_archivos(std::move(archivos)), m_digestos(m_archivos.size()), m_acceso(acceso)
    {
    }

    std::vector<std::optional<Digesto>> digestos(std::uint64_t desde, const BanderaCancelacion *cancelacion)
    {
        if (!empezar(desde)) return m_digestos;
        while (!m_clases.empty()) {
            if (cancelada(cancelacion)) return std::vector<std::optional<Digesto>>(m_archivos.size());
            avanzar();
        }
        return m_digestos;
    }

private:
    /// The first class holds all that are open, with the equal beginning digested once.
    bool empezar(std::uint64_t desde)
    {
        Clase todos;
        for (std::size_t i = 0; i < m_archivos.size(); ++i)
            if (m_archivos[i].abierto()) todos.miembros.push_back(i);
        if (todos.miembros.empty()) return false;
        for (std::uint64_t quedan = desde; quedan > 0;) {
            leer(todos.miembros.front(), todos.trozo, std::min<std::uint64_t>(quedan, porTrozo));
            if (todos.trozo.largo == 0) break;
            todos.sha.agregar(todos.trozo.datos.get(), todos.trozo.largo);
            quedan -= todos.trozo.largo;
        }
        for (const std::size_t i : todos.miembros)
            ::lseek(m_archivos[i].numero(), static_cast<off_t>(desde), SEEK_SET);
        m_clases.push_back(std::move(todos));
        return true;
    }

    void leer(std::size_t archivo, Trozo &trozo, std::size_t bytes = porTrozo)
    {
        trozo.largo = leerTrozo(m_acceso, m_archivos[archivo].numero(), trozo.datos.get(), bytes);
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
                nueva.sha.copiar(partes.front().sha);
                std::swap(nueva.trozo, m_leido);
                suya = partes.insert(partes.end(), std::move(nueva));
            }
            suya->miembros.push_back(miembros[m]);
        }
        for (Clase &parte : partes)
            parte.sha.agregar(parte.trozo.datos.get(), parte.trozo.largo);
        return partes;
    }

    bool terminada(Clase &clase)
    {
        if (clase.trozo.largo == porTrozo) return false;
        const Digesto digesto = clase.sha.terminar();
        for (const std::size_t i : clase.miembros)
            m_digestos[i] = digesto;
        return true;
    }

    std::vector<Descriptor> m_archivos;
    std::vector<std::optional<Digesto>> m_digestos;
    AccesoArchivos &m_acceso;
    std::vector<Clase> m_clases;
    Trozo m_leido;
};

} // namespace

std::vector<std::optional<Digesto>> digestosPorComparacion(std::vector<Descriptor> archivos,
                                                           std::uint64_t desde, AccesoArchivos &acceso,
                                                           const BanderaCancelacion *cancelacion)
{
    return Comparacion(std::move(archivos), acceso).digestos(desde, cancelacion);
}

} // namespace ovanta
