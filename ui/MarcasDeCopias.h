#pragma once

#include "analysis/GrupoDuplicados.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace ovanta {

/// Which copies the user marked to go. The original of a group and its hard links can never be marked;
/// all names of one physical file are marked together and count once.
class MarcasDeCopias
{
public:
    const std::unordered_set<std::string> &marcadas() const { return m_marcadas; }
    bool marcada(const ArchivoHallado &copia) const { return m_marcadas.contains(copia.ruta); }
    /// The running figure of the foot: of each physical file once, however often it was added.
    std::uint64_t bytes() const { return m_bytes; }

    static bool marcable(const GrupoDuplicados &grupo, const ArchivoHallado &copia);

    void marcar(const GrupoDuplicados &grupo, const ArchivoHallado &copia);
    void desmarcar(const GrupoDuplicados &grupo, const ArchivoHallado &copia);
    void marcarTodasMenosLaOriginal(const GrupoDuplicados &grupo);
    void desmarcarTodo();

private:
    bool algunaMarcada(const std::vector<ArchivoHallado> &copias) const;

    std::unordered_set<std::string> m_marcadas; ///< paths
    std::uint64_t m_bytes = 0;
};

} // namespace ovanta
