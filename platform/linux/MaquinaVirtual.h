#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What its user calls the virtual machine that a program with these words runs: qemu's -name and -avd,
/// the --comment of VirtualBox, the .vmx of VMware. Nothing where none of them tells.
std::optional<std::string> nombreDeMaquina(const std::vector<std::string> &palabras);

} // namespace ovanta
