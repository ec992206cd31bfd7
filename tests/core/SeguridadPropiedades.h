#pragma once

#include "core/Seguridad.h"

#include <optional>
#include <string>

namespace ovanta::pruebas {

/// Where the kernel ends up when it follows the path, links and all; nothing where it gets nowhere.
/// Another road to the answer than the one that is tested.
std::optional<std::string> segunElNucleo(const std::string &ruta);

/// What is wrong with the answer of `validar` to this text, or an empty text. An accepted path must
/// lie in home and in no protected name, be normal, be accepted again as it is, and lead nowhere out.
std::string incumplimientoDeValidar(const Seguridad &seguridad, const std::string &entrada);

/// The same for `validarDentroDeSeleccion`: an accepted item lies in the folder, by its text and by
/// where it leads, and is no link.
std::string incumplimientoDeSeleccion(const Seguridad &seguridad, const std::string &entrada,
                                      const std::string &raiz);

/// The same for `esRutaProtegidaParaAnalisis` and `cruzaProteccionPersonalizada`, against their
/// definitions spelled out member by member.
std::string incumplimientoDeAnalisis(const Seguridad &seguridad, const std::string &entrada,
                                     const ConjuntoRutas &rutas);

} // namespace ovanta::pruebas
