#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

/// Paths as text. Nothing here asks the file system, and nothing here folds case or Unicode forms:
/// a path is bytes and is compared byte by byte.
namespace ovanta {

/// Paths sorted by their bytes, searchable with a `std::string_view`.
using ConjuntoRutas = std::set<std::string, std::less<>>;

/// "." and ".." resolved as text, repeated and trailing slashes dropped, links and tildes untouched.
/// ".." above the root stays at the root; above a relative path it is kept. Idempotent.
std::string estandarizar(std::string_view ruta);

/// A path whose first byte is "~" becomes `hogar` and whatever follows that byte, without a look at
/// it: "~otro" is not another user's home but `hogar` with "otro" stuck to it.
std::string expandirTilde(std::string_view ruta, std::string_view hogar);

/// Without the blanks at both ends: tab and every space of Unicode, but no line break.
std::string_view recortarBlancos(std::string_view texto);

/// `base` and `relativa` with one slash between them; `base` alone where `relativa` is empty.
std::string unir(std::string_view base, std::string_view relativa);

/// Whether `ruta` is `base` or begins with `base` and a slash. Nothing but itself lies at "/".
bool yaceEn(std::string_view ruta, std::string_view base);

/// Whether one of the two lies at or under the other.
bool cruza(std::string_view una, std::string_view otra);

/// `yaceEn` for any member of `bases`, in time that hardly grows with their number.
bool yaceEnAlguna(std::string_view ruta, const ConjuntoRutas &bases);

/// `cruza` for any member of `otras`, in time that hardly grows with their number.
bool cruzaAlguna(std::string_view ruta, const ConjuntoRutas &otras);

/// Takes the next component off the front of `resto` and gives it; empty when there is none left.
std::string_view siguienteComponente(std::string_view &resto);

/// The folder that holds a standardised absolute path; "/" holds itself.
std::string_view carpetaContenedora(std::string_view ruta);

/// The name at the end of a path, trailing slashes left aside; "/" for the root.
std::string_view ultimoComponente(std::string_view ruta);

/// What follows the last point of the last component; empty where there is no point or where the
/// name begins with its only one.
std::string_view extension(std::string_view ruta);

} // namespace ovanta
