#include "analysis/Clasificar.h"

#include "analysis/Minusculas.h"
#include "core/OrdenEstable.h"
#include "core/Rutas.h"

#include <array>

namespace ovanta {

namespace {

constexpr std::size_t maximoGrandes = 60;
constexpr std::array<std::string_view, 4> palabrasDeCaptura{"screenshot", "screen shot",
                                                            "captura de pantalla", "captura"};
constexpr std::array<std::string_view, 4> extensionesDeInstalador{"dmg", "pkg", "mpkg", "iso"};

bool estaBajo(std::string_view ruta, const std::vector<std::string> &carpetas)
{
    return std::ranges::any_of(carpetas, [&](const std::string &carpeta) {
        return ruta.size() > carpeta.size() && ruta.starts_with(carpeta) && ruta[carpeta.size()] == '/';
    });
}

} // namespace

bool pareceCaptura(std::string_view nombre)
{
    const std::string bajo = minusculas(nombre);
    return std::ranges::any_of(palabrasDeCaptura,
                               [&](std::string_view palabra) { return bajo.contains(palabra); });
}

bool esInstalador(std::string_view nombre)
{
    const std::string suya = minusculas(extension(nombre));
    return std::ranges::find(extensionesDeInstalador, suya) != extensionesDeInstalador.end();
}

Clasificados clasificar(const ListaArchivos &archivos, std::vector<GrupoDuplicados> grupos,
                        const CriterioDescargas &criterio)
{
    const Fecha limite = criterio.ahora - std::chrono::days{criterio.dias};
    std::vector<ListaArchivos::Numero> orden(archivos.size());
    std::iota(orden.begin(), orden.end(), ListaArchivos::Numero{0});
    std::ranges::sort(orden, [&](ListaArchivos::Numero a, ListaArchivos::Numero b) {
        return archivos.bytes(a) != archivos.bytes(b) ? archivos.bytes(a) > archivos.bytes(b) : a < b;
    });
    ordenarEstable(grupos, std::greater{}, &GrupoDuplicados::desperdiciado);

    Clasificados clasificados;
    clasificados.duplicados = std::move(grupos);
    std::string ruta;
    for (const ListaArchivos::Numero archivo : orden) {
        const std::string_view nombre = archivos.nombre(archivo);
        archivos.escribirRuta(archivo, ruta);
        if (clasificados.grandes.size() < maximoGrandes)
            clasificados.grandes.push_back(archivos.hallado(archivo));
        if (estaBajo(ruta, criterio.carpetas) && archivos.modificado(archivo) < limite)
            clasificados.descargasViejas.push_back(archivos.hallado(archivo));
        if (pareceCaptura(nombre)) clasificados.capturas.push_back(archivos.hallado(archivo));
        if (esInstalador(nombre)) clasificados.instaladores.push_back(archivos.hallado(archivo));
    }
    return clasificados;
}

} // namespace ovanta
