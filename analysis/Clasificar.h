#pragma once

#include "analysis/GrupoDuplicados.h"
#include "analysis/ListaArchivos.h"

#include <string>
#include <vector>

namespace ovanta {

/// What the findings screens show of one walk. A file may stand in several lists; each is sorted by
/// size, biggest first, equals in the order of the walk.
struct Clasificados
{
    std::vector<GrupoDuplicados> duplicados; ///< by what they waste, most first
    std::vector<ArchivoHallado> grandes;     ///< the 60 biggest
    std::vector<ArchivoHallado> descargasViejas;
    std::vector<ArchivoHallado> capturas; ///< their names alone decide
    std::vector<ArchivoHallado> instaladores;
};

/// Which downloads are old.
struct CriterioDescargas
{
    std::vector<std::string> carpetas; ///< the user's folders for downloads, absolute
    Fecha ahora;
    int dias = 0; ///< a file older than this many times 24 hours is old
};

Clasificados clasificar(const ListaArchivos &archivos, std::vector<GrupoDuplicados> grupos,
                        const CriterioDescargas &criterio);

/// Whether a file name is that of a screenshot.
bool pareceCaptura(std::string_view nombre);

/// Whether a file name is that of an installer package or a disk image.
bool esInstalador(std::string_view nombre);

} // namespace ovanta
