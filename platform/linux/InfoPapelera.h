#pragma once

#include "core/Fecha.h"

#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

// The text of a ".trashinfo" file, by the freedesktop Trash specification 1.0.

/// The end of every info file's name.
inline constexpr std::string_view finDeInfo = ".trashinfo";

/// What is remembered of an item in the Trash.
struct InfoPapelera
{
    std::string ruta; ///< where it lay, as bytes: absolute, or relative to the volume's top
    Fecha fecha;      ///< when it was put there, whole seconds

    bool operator==(const InfoPapelera &) const = default;
};

/// Every byte but unreserved ones and "/" as "%XX".
std::string codificarPorcentaje(std::string_view bytes);
/// The reverse; nothing for a broken escape or one that stands for a zero byte.
std::optional<std::string> decodificarPorcentaje(std::string_view texto);

/// The whole file. The date is written in local time, as other programs expect it.
std::string escribirInfo(const InfoPapelera &info);
/// Reads such a file, also one of another program. Unknown lines are skipped and of repeated ones
/// the first counts; a missing or broken path or date gives nothing. A local time that a clock
/// change makes ambiguous gives the later moment.
std::optional<InfoPapelera> leerInfo(std::string_view texto);

} // namespace ovanta
