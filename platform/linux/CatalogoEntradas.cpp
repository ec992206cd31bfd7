#include "platform/linux/CatalogoEntradas.h"

#include "core/LeerArchivo.h"
#include "core/Rutas.h"
#include "platform/linux/EntradasDeCarpeta.h"
#include "platform/linux/ProgramasConocidos.h"
#include "platform/linux/Renglones.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <tuple>

namespace ovanta {

namespace {

constexpr int honduraMaxima = 4;
constexpr std::size_t entradasMaximas = 20'000;
constexpr std::string_view terminacion = ".desktop";

std::string variable(const char *nombre, std::string_view siFalta = {})
{
    const char *valor = std::getenv(nombre);
    return valor && *valor ? valor : std::string{siFalta};
}

std::vector<std::string> partir(std::string_view lista)
{
    std::vector<std::string> partes;
    while (!lista.empty()) {
        const std::string_view parte = cortar(lista, ':');
        if (parte.starts_with('/')) partes.emplace_back(parte);
    }
    return partes;
}

void agregar(std::vector<std::string> &carpetas, std::string carpeta)
{
    carpeta = estandarizar(carpeta);
    if (std::ranges::find(carpetas, carpeta) == carpetas.end()) carpetas.push_back(std::move(carpeta));
}

std::string enMinusculas(std::string_view texto)
{
    std::string minusculas{texto};
    std::ranges::transform(minusculas, minusculas.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return minusculas;
}

/// When a folder last changed, in nanoseconds; 0 where it is not there.
std::int64_t cambioDe(const std::string &carpeta)
{
    struct stat datos{};
    if (::stat(carpeta.c_str(), &datos) != 0) return 0;
    return std::int64_t{datos.st_mtim.tv_sec} * 1'000'000'000 + datos.st_mtim.tv_nsec;
}

/// The word of an order that names the program: behind "env" and its assignments, or the script of an
/// interpreter. Empty where the order only passes something on.
std::string_view palabraDelPrograma(const std::vector<std::string> &orden)
{
    bool trasInterprete = false;
    for (const std::string &palabra : orden) {
        const std::string_view nombre = ultimoComponente(palabra);
        if (palabra.starts_with('-')) {
            if (trasInterprete && palabra != "-u") return {};
            continue;
        }
        if (nombre == "env" || (palabra.find('=') != palabra.npos && !palabra.starts_with('/'))) continue;
        if (!trasInterprete && esInterprete(nombre)) {
            trasInterprete = true;
            continue;
        }
        return esLanzador(nombre) ? std::string_view{} : std::string_view{palabra};
    }
    return {};
}

/// Where a program really lies, links followed; empty where it is not there.
std::string caminoReal(std::string_view programa, const std::vector<std::string> &carpetas)
{
    std::error_code error;
    if (programa.starts_with('/')) return std::filesystem::canonical(programa, error).native();
    if (programa.empty() || programa.find('/') != programa.npos) return {};
    for (const std::string &carpeta : carpetas) {
        if (auto real = std::filesystem::canonical(unir(carpeta, programa), error); !error) return real;
    }
    return {};
}

bool estaInstalada(const EntradaEscritorio &entrada, const std::vector<std::string> &carpetas)
{
    return !entrada.orden.empty() && !caminoReal(entrada.orden.front(), carpetas).empty() &&
           (entrada.probar.empty() || !caminoReal(entrada.probar, carpetas).empty());
}

/// The entry among several that an application without any more signs is meant by: one that shows itself,
/// and of those the plainest order.
bool vaAntes(const EntradaRef &una, const EntradaRef &otra)
{
    const auto clave = [](const EntradaRef &e) {
        return std::tuple(e->entrada.oculta, e->deInicio, e->entrada.orden.size(), std::string_view{e->id});
    };
    return clave(una) < clave(otra);
}

template <typename Indice>
EntradaRef mejorDe(const Indice &indice, std::string_view clave)
{
    EntradaRef mejor;
    for (auto [i, fin] = indice.equal_range(clave); i != fin; ++i)
        if (!mejor || vaAntes(i->second, mejor)) mejor = i->second;
    return mejor;
}

} // namespace

LugaresEntradas LugaresEntradas::delEntorno()
{
    LugaresEntradas lugares;
    lugares.hogar = variable("HOME");
    const std::string datos = variable("XDG_DATA_HOME", lugares.hogar + "/.local/share");
    std::vector<std::string> carpetas{datos};
    for (std::string &carpeta : partir(variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share")))
        carpetas.push_back(std::move(carpeta));
    // Sessions that were not told of them by their login scripts.
    carpetas.push_back(datos + "/flatpak/exports/share");
    carpetas.push_back("/var/lib/flatpak/exports/share");
    carpetas.push_back("/var/lib/snapd/desktop");
    for (const std::string &carpeta : carpetas)
        agregar(lugares.aplicaciones, unir(carpeta, "applications"));
    std::vector<std::string> configuracion{variable("XDG_CONFIG_HOME", lugares.hogar + "/.config")};
    for (std::string &carpeta : partir(variable("XDG_CONFIG_DIRS", "/etc/xdg")))
        configuracion.push_back(std::move(carpeta));
    for (const std::string &carpeta : configuracion)
        agregar(lugares.inicio, unir(carpeta, "autostart"));
    lugares.programas = partir(variable("PATH", "/usr/local/bin:/usr/bin:/bin"));
    lugares.idiomas = idiomasDeEntrada(variable("LC_ALL", variable("LC_MESSAGES", variable("LANG"))));
    return lugares;
}

CatalogoEntradas::CatalogoEntradas(LugaresEntradas lugares) : m_lugares(std::move(lugares)) {}

bool CatalogoEntradas::refrescar()
{
    if (!m_marcas.empty() && marcasDe(m_marcas) == m_marcas) return false;
    leerTodo();
    return true;
}

std::vector<CatalogoEntradas::Marca> CatalogoEntradas::marcasDe(const std::vector<Marca> &carpetas) const
{
    std::vector<Marca> marcas = carpetas;
    for (auto &[carpeta, cambio] : marcas)
        cambio = cambioDe(carpeta);
    return marcas;
}

void CatalogoEntradas::leerTodo()
{
    m_marcas.clear();
    m_porId.clear();
    m_porRuta.clear();
    m_porClase.clear();
    m_porPrograma.clear();
    m_porCarpeta.clear();
    for (const std::string &carpeta : m_lugares.aplicaciones)
        leerCarpeta(carpeta, {}, false, 0);
    for (const std::string &carpeta : m_lugares.inicio)
        leerCarpeta(carpeta, {}, true, honduraMaxima);
    for (const auto &[id, entrada] : m_porId)
        if (entrada) indexar(entrada);
}

void CatalogoEntradas::leerCarpeta(const std::string &raiz, const std::string &relativa, bool deInicio,
                                   int hondura)
{
    const std::string carpeta = unir(raiz, relativa);
    // Taken before reading: a change in between is seen the next time.
    m_marcas.emplace_back(carpeta, cambioDe(carpeta));
    for (const std::string &nombre : entradasDeCarpeta(carpeta)) {
        if (m_porId.size() >= entradasMaximas) return;
        const std::string ruta = relativa.empty() ? nombre : unir(relativa, nombre);
        std::error_code error;
        if (nombre.ends_with(terminacion))
            leerArchivoDe(raiz, ruta, deInicio);
        else if (hondura < honduraMaxima && std::filesystem::is_directory(unir(raiz, ruta), error))
            leerCarpeta(raiz, ruta, deInicio, hondura + 1);
    }
}

void CatalogoEntradas::leerArchivoDe(const std::string &raiz, const std::string &relativa, bool deInicio)
{
    std::string id = relativa.substr(0, relativa.size() - terminacion.size());
    std::ranges::replace(id, '/', '-');
    if (id.empty() || m_porId.contains(id)) return;
    const std::string ruta = unir(raiz, relativa);
    try {
        auto leida = leerEntrada(leerArchivo(ruta, limiteEntrada, EnlaceFinal::seguir), m_lugares.idiomas);
        if (!leida) return;
        if (leida->borrada) {
            m_porId.emplace(std::move(id), nullptr);
            return;
        }
        auto entrada = std::make_shared<EntradaCatalogada>(
            EntradaCatalogada{id, ruta, std::move(*leida), deInicio, {}, {}, {}, false});
        if (const auto programa = palabraDelPrograma(entrada->entrada.orden); !programa.empty()) {
            entrada->programa = ultimoComponente(programa);
            entrada->real = caminoReal(programa, m_lugares.programas);
            entrada->carpeta = carpetaDeInstalacion(entrada->real, m_lugares.hogar);
        }
        entrada->instalada = estaInstalada(entrada->entrada, m_lugares.programas);
        m_porId.emplace(std::move(id), std::move(entrada));
    } catch (const ErrorDeLectura &) {
        // Gone, unreadable or too large: as if it were not there.
    }
}

void CatalogoEntradas::indexar(const EntradaRef &entrada)
{
    m_porRuta.emplace(entrada->ruta, entrada);
    if (!entrada->entrada.claseVentana.empty())
        m_porClase.emplace(enMinusculas(entrada->entrada.claseVentana), entrada);
    m_porClase.emplace(enMinusculas(entrada->id), entrada);
    // What runs in a terminal has no window of its own and is no application to the user.
    if (entrada->entrada.enTerminal) return;
    if (!entrada->programa.empty()) m_porPrograma.emplace(entrada->programa, entrada);
    if (!entrada->carpeta.empty()) m_porCarpeta.emplace(entrada->carpeta, entrada);
}

EntradaRef CatalogoEntradas::porId(std::string_view id) const
{
    const auto hallada = m_porId.find(id);
    return hallada == m_porId.end() ? nullptr : hallada->second;
}

EntradaRef CatalogoEntradas::porRuta(std::string_view ruta) const
{
    const auto hallada = m_porRuta.find(ruta);
    return hallada == m_porRuta.end() ? nullptr : hallada->second;
}

EntradaRef CatalogoEntradas::porClaseVentana(std::string_view clase) const
{
    if (clase.empty()) return nullptr;
    const std::string texto = enMinusculas(clase);
    if (auto entrada = mejorDe(m_porClase, texto)) return entrada;
    // Toolkits name windows after the program where nobody says otherwise.
    return mejorDe(m_porPrograma, texto);
}

EntradaRef CatalogoEntradas::porPrograma(std::string_view exe, std::string_view nombre) const
{
    if (esLanzador(nombre) || esInterprete(nombre)) return nullptr;
    if (auto entrada = mejorDe(m_porPrograma, nombre)) return entrada;
    if (!exe.starts_with('/')) return nullptr;
    for (std::string_view carpeta = carpetaContenedora(exe); carpeta != "/";
         carpeta = carpetaContenedora(carpeta))
        if (auto entrada = mejorDe(m_porCarpeta, carpeta)) return entrada;
    return nullptr;
}

} // namespace ovanta
