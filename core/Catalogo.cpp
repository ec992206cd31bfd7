#include "core/Catalogo.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

namespace ovanta {

namespace {

using json = nlohmann::json;

struct Campo
{
    std::string_view clave;
    std::string Regla::*destino;
};

constexpr std::array<Campo, 8> campos{{
    {"id", &Regla::id},
    {"name", &Regla::name},
    {"path", &Regla::path},
    {"category", &Regla::category},
    {"risk", &Regla::risk},
    {"mode", &Regla::mode},
    {"why", &Regla::why},
    {"cost", &Regla::cost},
}};

enum class Estado { ausente, texto, otroTipo };

/// Takes the parser's events and builds rules, no document: an ignored value costs no memory.
/// Depth 1 is inside the list, 2 inside an entry, more inside a value that is not looked at.
class LectorDeReglas final : public nlohmann::json_sax<json>
{
public:
    explicit LectorDeReglas(std::string_view bytes) : m_bytes(bytes) {}

    std::vector<Regla> reglas() && { return std::move(m_reglas); }

    bool null() override { return escalar(); }
    bool boolean(bool) override { return escalar(); }
    bool number_integer(number_integer_t) override { return escalar(); }
    bool number_unsigned(number_unsigned_t) override { return escalar(); }
    bool number_float(number_float_t, const string_t &) override { return escalar(); }
    bool binary(binary_t &) override { return escalar(); }

    bool string(string_t &valor) override
    {
        if (m_profundidad != 2) return escalar();
        if (m_campo) {
            m_reglas.back().*campos[*m_campo].destino = std::move(valor);
            m_estados[*m_campo] = Estado::texto;
        }
        return true;
    }

    bool start_object(std::size_t) override
    {
        if (m_profundidad == 0) rechazarRaiz();
        if (m_profundidad == 1) empezarRegla();
        return bajar();
    }

    bool end_object() override
    {
        if (--m_profundidad == 1) terminarRegla();
        return true;
    }

    bool start_array(std::size_t) override
    {
        if (m_profundidad == 1) rechazarEntrada();
        return bajar();
    }

    bool end_array() override
    {
        --m_profundidad;
        return true;
    }

    bool key(string_t &clave) override
    {
        if (m_profundidad != 2) return true;
        const auto hallado = std::ranges::find(campos, std::string_view(clave), &Campo::clave);
        m_campo.reset();
        if (hallado != campos.end()) m_campo = static_cast<std::size_t>(hallado - campos.begin());
        return true;
    }

    bool parse_error(std::size_t posicion, const std::string &, const nlohmann::detail::exception &) override
    {
        if (posicion > m_bytes.size()) throw ErrorDeCatalogo("el archivo termina antes de tiempo.");
        const auto leidos = m_bytes.substr(0, posicion);
        const auto linea = 1 + std::ranges::count(leidos, '\n');
        throw ErrorDeCatalogo("no es JSON válido en la línea " + std::to_string(linea) + ".");
    }

private:
    static constexpr int profundidadMaxima = 64;

    [[noreturn]] void rechazarRaiz() const
    {
        throw ErrorDeCatalogo("el contenido no es una lista de reglas.");
    }

    [[noreturn]] void rechazarEntrada() const
    {
        throw ErrorDeCatalogo("la entrada " + std::to_string(m_reglas.size() + 1) + " no es un objeto.");
    }

    bool escalar()
    {
        if (m_profundidad == 0) rechazarRaiz();
        if (m_profundidad == 1) rechazarEntrada();
        anotarOtroTipo();
        return true;
    }

    void anotarOtroTipo()
    {
        if (m_profundidad == 2 && m_campo) m_estados[*m_campo] = Estado::otroTipo;
    }

    bool bajar()
    {
        anotarOtroTipo();
        if (++m_profundidad > profundidadMaxima) {
            throw ErrorDeCatalogo("hay más de " + std::to_string(profundidadMaxima) + " niveles anidados.");
        }
        return true;
    }

    void empezarRegla()
    {
        m_reglas.emplace_back();
        m_estados.fill(Estado::ausente);
        m_campo.reset();
    }

    // Only here, since a later key with the same name may still mend a wrong type.
    void terminarRegla() const
    {
        for (std::size_t i = 0; i < campos.size(); ++i) {
            if (m_estados[i] == Estado::texto) continue;
            const std::string clave = "la clave «" + std::string(campos[i].clave) + "»";
            throw ErrorDeCatalogo(m_estados[i] == Estado::ausente
                                      ? "falta " + clave + " en la " + entradaActual() + "."
                                      : clave + " de la " + entradaActual() + " no es un texto.");
        }
    }

    std::string entradaActual() const
    {
        const std::string numero = "entrada " + std::to_string(m_reglas.size());
        const std::string &id = m_reglas.back().id;
        return id.empty() ? numero : numero + " («" + id + "»)";
    }

    std::string_view m_bytes;
    std::vector<Regla> m_reglas;
    std::array<Estado, campos.size()> m_estados{};
    std::optional<std::size_t> m_campo;
    int m_profundidad = 0;
};

} // namespace

std::vector<Regla> decodificarCatalogo(std::string_view bytes)
{
    if (bytes.empty()) throw ErrorDeCatalogo("el archivo está vacío.");
    LectorDeReglas lector(bytes);
    json::sax_parse(bytes.begin(), bytes.end(), &lector);
    return std::move(lector).reglas();
}

} // namespace ovanta
