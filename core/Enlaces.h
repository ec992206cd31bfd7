#pragma once

#include <optional>
#include <string>

/// What the file system says about links. A text that no item can have as its path here (a relative
/// one, which would depend on the working directory, or one with a NUL byte, which the system would
/// cut short) is answered as one where nothing exists. There is no limit to the length of a path.
/// Blocking; any thread.
namespace ovanta {

/// Whether the item itself is a symbolic link; a final link is not followed.
/// Throws `std::system_error`, whose what() is a text for the user, where its attributes cannot be read.
bool esEnlace(const std::string &ruta);

/// The path with every link in it followed, or nothing where nothing can be reached through it: no
/// such item, a dangling link, a loop of links, a folder that may not be searched.
std::optional<std::string> resolverEnlaces(const std::string &ruta);

/// Whether something can be reached through the path, links followed.
bool existe(const std::string &ruta);

} // namespace ovanta
