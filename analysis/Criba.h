#pragma once

#include "analysis/AperturaAdelantada.h"
#include "analysis/BanderaCancelacion.h"
#include "analysis/Candidatos.h"
#include "analysis/MarcaSecreta.h"
#include "analysis/Sha256.h"

#include <memory>
#include <optional>
#include <vector>

namespace ovanta {

/// The head of a file that is looked at before the rest, and the largest file that it holds wholly.
constexpr std::uint64_t bytesDeCabeza = 65536;

/// Files that are equal, by their heads or as a whole.
struct Conjunto
{
    bool cabezaEntera = false; ///< whether the head could be read to its end
    std::vector<ListaArchivos::Numero> archivos{};
    const Digesto *digesto = nullptr; ///< of the whole content, once it was asked for
};

/// Reads the head of a file of `esperados` bytes; an error ends it as its end would.
std::size_t leerCabeza(AccesoArchivos &acceso, int descriptor, char *destino, std::uint64_t esperados);

/// Finds the files of equal size and equal head, file by file, so that it can be done in the pauses of
/// something else: first by a mark of their first KiB, then by a secret mark of their head. One thread.
class Criba
{
public:
    /// For files of `tamanos` bytes. The arguments must outlive this object.
    Criba(const ListaArchivos &archivos, AccesoArchivos &acceso, IntervaloDeTamano tamanos);

    /// Looks at one more file. False when there is none left.
    bool avanzar();

    /// What was found, once `avanzar` has given false. Hands it over with its memory: once.
    std::vector<Conjunto> conjuntos();
    const EnlacesFisicos &enlaces() const { return m_candidatos.enlaces(); }

private:
    /// What tells one file from another. A short one stands for a read error or a file that shrank.
    struct Clave
    {
        MarcaSecreta::Marca marca{};
        bool entera = false;

        auto operator<=>(const Clave &) const = default;
    };
    enum class Etapa { marca, cabeza, acabada };

    void empezar(Etapa etapa);
    void acabar();
    bool toca(ListaArchivos::Numero archivo) const;
    Clave leerClave(ListaArchivos::Numero archivo, int descriptor);

    const ListaArchivos &m_archivos;
    AccesoArchivos &m_acceso;
    Candidatos m_candidatos;
    Etapa m_etapa = Etapa::marca;
    std::vector<std::optional<Clave>> m_claves; ///< of the candidates, in this stage
    std::vector<ListaArchivos::Numero> m_orden; ///< of those that this stage looks at
    std::optional<AperturaAdelantada> m_abiertos;
    std::size_t m_turno = 0; ///< among the candidates
    std::unique_ptr<char[]> m_leido;
    MarcaSecreta m_marca;
};

} // namespace ovanta
