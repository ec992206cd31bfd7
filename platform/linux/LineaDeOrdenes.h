#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The words of /proc/<pid>/cmdline, each ended by a zero byte. Any bytes; at most 1000 of them.
std::vector<std::string> palabrasDeLinea(std::string_view cmdline);

/// The script that an interpreter was started with: its first word that is a path and no option. Empty
/// where it runs something else.
std::string guionDe(const std::vector<std::string> &palabras);

/// The value of a variable in the bytes of /proc/<pid>/environ.
std::optional<std::string_view> variableDe(std::string_view environ, std::string_view nombre);

} // namespace ovanta
