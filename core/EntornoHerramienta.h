#pragma once

#include <string>
#include <vector>

namespace ovanta {

/// The environment ("NAME=value") for the tool `binario`, an absolute path: that of this process,
/// with its PATH led by the tool's folder, so that a tool in a node version's folder finds its own
/// interpreter there. An empty PATH counts as none: it would mean the current folder.
std::vector<std::string> entornoHerramienta(const std::string &binario);

} // namespace ovanta
