#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The names in a folder that begin with `principio`, in order; none where it cannot be read.
std::vector<std::string> entradasDeCarpeta(const std::string &carpeta, std::string_view principio = {});

} // namespace ovanta
