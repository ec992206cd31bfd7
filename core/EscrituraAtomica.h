#pragma once

#include <string>
#include <string_view>

namespace ovanta {

/// Replaces a file as a whole: whatever happens, also a power failure, readers find either the old
/// or the new contents. The new file has the permissions 0600. A link in the place of the file is
/// replaced and its target left alone; a folder there stays.
/// Gives the errno of the step that failed, 0 on success. Blocking; any thread.
int escribirAtomico(const std::string &ruta, std::string_view contenido);

/// Writes all of `contenido` to an open file. Gives an errno, 0 on success.
int escribirTodo(int fd, std::string_view contenido);

} // namespace ovanta
