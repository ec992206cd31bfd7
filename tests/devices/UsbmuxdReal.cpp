#include "tests/devices/UsbmuxdReal.h"

#include "platform/ConexionesPosix.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace ovanta::pruebas {

namespace {

constexpr const char *guion = R"(
dentro='mount -t tmpfs tmpfs /run && mount -t tmpfs tmpfs /var/lib && mkdir /var/lib/lockdown &&
        exec /usr/sbin/usbmuxd --foreground --no-preflight --disable-hotplug'
exec >/dev/null 2>&1
if unshare -rm true; then exec unshare -rm sh -c "$dentro"; else exec unshare -m sh -c "$dentro"; fi
)";

bool vive(pid_t pid)
{
    return ::waitpid(pid, nullptr, WNOHANG) == 0;
}

/// Before the process has moved its root, the same path leads to the machine's own daemon.
pid_t pidEn(const std::string &ruta)
{
    pid_t pid = -1;
    std::ifstream(ruta) >> pid;
    return pid;
}

} // namespace

UsbmuxdReal::UsbmuxdReal()
{
    using namespace std::chrono_literals;
    std::array<char *, 4> argumentos{const_cast<char *>("sh"), const_cast<char *>("-c"),
                                     const_cast<char *>(guion), nullptr};
    if (::posix_spawn(&m_pid, "/bin/sh", nullptr, nullptr, argumentos.data(), environ) != 0) {
        m_pid = -1;
        return;
    }
    ConexionesPosix conexiones;
    for (const Plazo plazo{10s}; !plazo.vencido() && !m_escucha; std::this_thread::sleep_for(20ms)) {
        if (!vive(m_pid)) {
            m_pid = -1;
            return;
        }
        if (pidEn(raiz() + "/run/usbmuxd.pid") == m_pid)
            m_escucha = conexiones.abrirUnix(socket(), Plazo{1s}).has_value();
    }
}

UsbmuxdReal::~UsbmuxdReal()
{
    if (m_pid <= 0) return;
    ::kill(m_pid, SIGTERM);
    ::waitpid(m_pid, nullptr, 0);
}

} // namespace ovanta::pruebas
