#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The user's own folders by the text of user-dirs.dirs, relative to `hogar`, the one for downloads
/// left out. Entries outside home, home itself (which means that there is none), and anything that
/// is not understood are left out too.
/// Source: https://www.freedesktop.org/wiki/Software/xdg-user-dirs/
std::vector<std::string> carpetasDelUsuario(std::string_view userDirs, std::string_view hogar);

/// The folder that the same text gives for `clave`, for example "XDG_DOWNLOAD_DIR", under the same terms.
std::optional<std::string> carpetaDelUsuario(std::string_view userDirs, std::string_view hogar,
                                             std::string_view clave);

} // namespace ovanta
