#pragma once

#include <string_view>
#include <vector>

namespace ovanta {

/// What a walk passes by. Names and extensions as they are compared: names exactly, extensions in
/// lower case.
struct NombresIgnorados
{
    std::vector<std::string_view> nombres;     ///< of files and folders
    std::vector<std::string_view> extensiones; ///< of folders that are one thing to their user

    /// Places that other programs rebuild or own, and packages that look like one file.
    static const NombresIgnorados &deAnalisis();

    bool ignoraNombre(std::string_view nombre) const;
    bool esPaquete(std::string_view nombreDeCarpeta) const;
};

} // namespace ovanta
