#include "core/LeerJson.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ovanta {

namespace {

using nlohmann::json;

/// Watches the parser: remembers the keys of every object that is still open.
class Vigilante
{
public:
    explicit Vigilante(int profundidad) : m_profundidad(profundidad) {}

    bool admite(int nivel, json::parse_event_t suceso, const json &valor)
    {
        const bool baja =
            suceso == json::parse_event_t::object_start || suceso == json::parse_event_t::array_start;
        if (baja && nivel >= m_profundidad) m_sano = false;
        if (!m_sano) return false;
        if (suceso == json::parse_event_t::object_start) m_claves.emplace_back();
        if (suceso == json::parse_event_t::object_end) m_claves.pop_back();
        if (suceso == json::parse_event_t::key)
            m_sano = m_claves.back().insert(valor.get_ref<const std::string &>()).second;
        return m_sano;
    }

    bool sano() const { return m_sano; }

private:
    int m_profundidad;
    std::vector<std::set<std::string>> m_claves;
    bool m_sano = true;
};

} // namespace

std::optional<json> leerJson(std::string_view texto, int profundidad)
{
    Vigilante vigilante{profundidad};
    const auto vigilar = [&vigilante](int nivel, json::parse_event_t suceso, const json &valor) {
        return vigilante.admite(nivel, suceso, valor);
    };
    json documento = json::parse(texto.begin(), texto.end(), vigilar, false);
    if (documento.is_discarded() || !vigilante.sano()) return std::nullopt;
    return documento;
}

} // namespace ovanta
