#pragma once

#include "analysis/BanderaCancelacion.h"
#include "analysis/GrupoDuplicados.h"
#include "analysis/ListaArchivos.h"
#include "platform/AccesoArchivos.h"

#include <string>
#include <vector>

namespace ovanta {

/// Files of one content by their numbers, in the order of the walk.
struct ContenidoIgual
{
    std::string clave; ///< becomes `GrupoDuplicados::id`
    std::vector<ListaArchivos::Numero> archivos;
};

/// Finds the files with the same content by a funnel whose stages read ever more of ever fewer files:
/// equal size, equal first KiB, equal first 64 KiB, equal SHA-256 of all. A file that
/// cannot be opened drops out; a read error ends a content as its end would. In no particular order;
/// empty where it was stopped. Blocking, one file after another, with one thread more for their digests;
/// any thread.
std::vector<ContenidoIgual> contenidosIguales(const ListaArchivos &archivos, AccesoArchivos &acceso,
                                              const BanderaCancelacion *cancelacion);

/// The same as the screens show it.
std::vector<GrupoDuplicados> buscarDuplicados(const ListaArchivos &archivos, AccesoArchivos &acceso,
                                              const BanderaCancelacion *cancelacion);

} // namespace ovanta
