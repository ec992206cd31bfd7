#include "core/RegistroPrevio.h"

#include "core/EscrituraAtomica.h"
#include "core/Historial.h"
#include "core/LeerJson.h"
#include "core/MovimientoJson.h"
#include "core/Uuid.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <unordered_map>
#include <utility>

namespace ovanta {

namespace {

constexpr std::string_view prefijo = "historial.pendiente-";
constexpr const char *claveIntento = "intento";
constexpr const char *claveIdentidad = "identidad";
constexpr const char *claveHecho = "hecho";
constexpr const char *claveFecha = "fecha";

std::optional<Identidad> identidadDeJson(const nlohmann::json &objeto)
{
    const auto lista = objeto.find(claveIdentidad);
    if (lista == objeto.end() || !lista->is_array() || lista->size() != 3) return std::nullopt;
    for (const auto &numero : *lista)
        if (!numero.is_number_unsigned()) return std::nullopt;
    return Identidad{lista->at(0).get<std::uint64_t>(), lista->at(1).get<std::uint64_t>(),
                     lista->at(2).get<std::uint32_t>()};
}

class Interprete
{
public:
    void linea(std::string_view texto)
    {
        const auto objeto = leerJson(texto);
        if (!objeto || !objeto->is_object()) return;
        if (objeto->contains(claveIntento)) anotarIntento(*objeto);
        if (objeto->contains(claveHecho)) anotarHecho(*objeto);
    }

    std::vector<MovimientoPrevio> terminar() && { return std::move(m_previos); }

private:
    void anotarIntento(const nlohmann::json &objeto)
    {
        auto movimiento = movimientoDeJson(objeto.at(claveIntento));
        const auto identidad = identidadDeJson(objeto);
        if (!movimiento || !identidad || !m_posiciones.emplace(movimiento->id, m_previos.size()).second)
            return;
        m_previos.push_back({std::move(*movimiento), *identidad, false});
    }

    void anotarHecho(const nlohmann::json &objeto)
    {
        const auto &id = objeto.at(claveHecho);
        const auto momento = objeto.find(claveFecha);
        if (!id.is_string() || momento == objeto.end() || !momento->is_string()) return;
        const auto posicion = m_posiciones.find(id.get<std::string>());
        const auto fecha = leerISO8601(momento->get<std::string>());
        if (posicion == m_posiciones.end() || !fecha) return;
        auto &previo = m_previos[posicion->second];
        previo.movimiento.fecha = *fecha;
        previo.hecho = true;
    }

    std::vector<MovimientoPrevio> m_previos;
    std::unordered_map<std::string, std::size_t> m_posiciones;
};

} // namespace

RegistroPrevio::RegistroPrevio(const std::string &carpeta)
    : m_archivo(carpeta + "/" + std::string(prefijo) + uuidNuevo())
{
}

bool RegistroPrevio::abrir()
{
    if (m_fd.abierto()) return true;
    const int modo = O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    m_fd = Descriptor{::open(m_archivo.c_str(), modo, S_IRUSR | S_IWUSR)};
    return m_fd.abierto();
}

void RegistroPrevio::agregar(const std::string &linea)
{
    const off_t antes = ::lseek(m_fd.numero(), 0, SEEK_END);
    // Half a line would swallow the next one.
    if (escribirTodo(m_fd.numero(), linea + "\n") != 0 && ::ftruncate(m_fd.numero(), antes) != 0)
        m_fd.cerrar();
}

void RegistroPrevio::intento(const Movimiento &movimiento, const Identidad &identidad)
{
    if (m_hechos >= maximoHistorial || !abrir()) return;
    m_antesDelIntento = ::lseek(m_fd.numero(), 0, SEEK_END);
    const auto partes =
        nlohmann::ordered_json::array({identidad.dispositivo, identidad.inodo, identidad.tipo});
    agregar(nlohmann::ordered_json{{claveIntento, aJson(movimiento)}, {claveIdentidad, partes}}.dump());
}

void RegistroPrevio::hecho(const Movimiento &movimiento)
{
    if (m_hechos >= maximoHistorial || !m_fd.abierto()) return;
    ++m_hechos;
    agregar(nlohmann::ordered_json{{claveHecho, movimiento.id}, {claveFecha, textoISO8601(movimiento.fecha)}}
                .dump());
}

void RegistroPrevio::fallo()
{
    if (m_hechos >= maximoHistorial || !m_fd.abierto()) return;
    if (::ftruncate(m_fd.numero(), m_antesDelIntento) != 0) m_fd.cerrar();
}

std::vector<std::string> registrosPrevios(const std::string &carpeta)
{
    std::vector<std::string> archivos;
    std::error_code fallo;
    for (std::filesystem::directory_iterator i(carpeta, fallo), fin; !fallo && i != fin; i.increment(fallo))
        if (i->path().filename().native().starts_with(prefijo)) archivos.push_back(i->path().native());
    std::ranges::sort(archivos);
    return archivos;
}

std::vector<MovimientoPrevio> interpretarRegistro(std::string_view bytes)
{
    Interprete interprete;
    while (!bytes.empty()) {
        const auto linea = bytes.substr(0, bytes.find('\n'));
        interprete.linea(linea);
        bytes.remove_prefix(std::min(linea.size() + 1, bytes.size()));
    }
    return std::move(interprete).terminar();
}

} // namespace ovanta
