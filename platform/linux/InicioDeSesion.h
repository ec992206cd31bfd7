#pragma once

#include <string_view>

namespace ovanta {

/// Whether the session started this process by itself, at login or for a message on its bus, and not
/// the user. Told by the text of /proc/self/cgroup, whose last part is the systemd unit, and by the
/// short name of the parent process. What is not recognised counts as started by the user. No
/// environment variable says it reliably: terminals hand on what they were started with.
bool laSesionInicio(std::string_view cgroup, std::string_view comandoPadre);

} // namespace ovanta
