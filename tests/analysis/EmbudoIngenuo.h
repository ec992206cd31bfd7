#pragma once

#include "analysis/ListaArchivos.h"
#include "platform/AccesoArchivos.h"

#include <map>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// The search for equal files in its plainest form: every stage reads what it compares, file by file,
/// with nothing remembered. Key to the members' paths in the order of the walk. For comparing with.
std::map<std::string, std::vector<std::string>> duplicadosIngenuos(const ListaArchivos &archivos,
                                                                   AccesoArchivos &acceso);

} // namespace ovanta::pruebas
