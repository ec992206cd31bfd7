#pragma once

#include "analysis/GrupoDuplicados.h"

#include <expected>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ovanta {

/// Whether the path still names the very file that was compared: same device, inode, size and
/// modification time, and a regular file. Asks the file system; any thread.
bool sigueIgual(const ArchivoHallado &archivo);

/// Keeps the last copy of a content from being moved away. Whatever moves found files asks here right
/// before each move. One for the whole program, so that batches see each other's moves. Any thread.
class GuardianDeCopias
{
public:
    /// One batch of moves. While it lives, the copies that it counts on cannot move.
    class Lote
    {
    public:
        /// Of marked copies: one may go only while another copy of its group stays behind that was
        /// compared with it, is unchanged, is not marked and is not on its way out.
        Lote(std::shared_ptr<GuardianDeCopias> guardian, std::vector<GrupoDuplicados> grupos,
             const std::vector<std::string> &marcadas);
        /// Of anything else, which may go unless another batch counts on it.
        explicit Lote(std::shared_ptr<GuardianDeCopias> guardian);
        Lote(const Lote &) = delete;
        Lote &operator=(const Lote &) = delete;
        ~Lote();

        /// To be called right before `ruta` moves. A text for the user where it must stay.
        std::expected<void, std::string> permitir(const std::string &ruta);

    private:
        struct Lugar
        {
            std::size_t grupo;
            std::size_t copia;
        };

        std::expected<void, std::string> permitirCopia(const std::string &ruta);
        const ArchivoHallado *copiaQueQueda(const GrupoDuplicados &grupo) const;

        std::shared_ptr<GuardianDeCopias> m_guardian;
        bool m_deCopias;
        std::vector<GrupoDuplicados> m_grupos;
        std::unordered_map<std::string, Lugar> m_marcadas;
        std::vector<std::string> m_reservadas;
        std::vector<std::string> m_salientes;
    };

private:
    std::mutex m_cerrojo;
    std::map<std::string, int> m_reservadas; ///< how many moves of living batches count on each
    std::multiset<std::string> m_salientes;  ///< what living batches moved or are about to
};

} // namespace ovanta
