#pragma once

#include "core/Descriptor.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace ovanta {

/// What to start: `salida` and `error` become the tool's descriptors 1 and 2; 0 is this process's.
struct Orden
{
    const std::string &binario;
    const std::vector<std::string> &args;
    const std::vector<std::string> &entorno;
    int salida;
    int error;
};

/// A running tool, leader of a process group of its own, and with it all it starts there.
/// For one thread. While it exists the group's number belongs to no other.
class GrupoProcesos
{
public:
    /// Starts the tool: no other descriptor inherited, no signal blocked or ignored. Throws
    /// `std::system_error` where the system refuses, or once the tools were stopped.
    explicit GrupoProcesos(const Orden &orden);
    GrupoProcesos(const GrupoProcesos &) = delete;
    GrupoProcesos &operator=(const GrupoProcesos &) = delete;
    /// Unless it was reaped: kills the group and leaves the reaping to the background.
    ~GrupoProcesos();

    /// A descriptor that becomes readable when the leader ends.
    Descriptor abrirFin() const;

    void senalar(int senal) const noexcept;

    /// Once, after the leader ended: its exit code, or 128 + n where signal n ended it. From here
    /// on the group cannot be signalled.
    int recoger();

private:
    pid_t m_lider;
    bool m_recogido = false;
};

} // namespace ovanta
