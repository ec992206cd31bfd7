#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// A mounted file system.
struct Montaje
{
    std::string punto; ///< where it is mounted
    std::string tipo;  ///< "ext4", "nfs4", "fuse.sshfs"…

    bool operator==(const Montaje &) const = default;
};

/// The mount that `ruta` (absolute, free of links) lies on, by the text of /proc/self/mountinfo.
/// Asks no file system, so that one that does not answer is recognised without touching it. Lines
/// that are not understood are skipped.
std::optional<Montaje> montajeDe(std::string_view mountinfo, std::string_view ruta);

/// Whether reading from a file system of this type can wait for another machine or another process.
bool puedeBloquear(std::string_view tipo);

} // namespace ovanta
