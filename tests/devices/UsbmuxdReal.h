#pragma once

#include <string>
#include <sys/types.h>

namespace ovanta::pruebas {

/// The usbmuxd of the system, in a mount namespace of its own: it sees neither the sockets nor the pair
/// records of this machine, and leaves nothing behind.
class UsbmuxdReal
{
public:
    UsbmuxdReal();
    UsbmuxdReal(const UsbmuxdReal &) = delete;
    UsbmuxdReal &operator=(const UsbmuxdReal &) = delete;
    ~UsbmuxdReal();

    /// Whether it listens. It does not where namespaces are forbidden.
    bool escucha() const { return m_escucha; }
    std::string socket() const { return raiz() + "/run/usbmuxd"; }
    /// Where it looks for the pair record of a device.
    std::string fichaDe(const std::string &udid) const
    {
        return raiz() + "/var/lib/lockdown/" + udid + ".plist";
    }

private:
    std::string raiz() const { return "/proc/" + std::to_string(m_pid) + "/root"; }

    pid_t m_pid = -1;
    bool m_escucha = false;
};

} // namespace ovanta::pruebas
