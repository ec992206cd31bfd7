#include "platform/linux/AccesoArchivosLinux.h"

#include "core/AbrirCamino.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace ovanta {

namespace {

constexpr int soloLeer = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

// Not in every kernel's <linux/magic.h>.
constexpr unsigned magiaConfigfs = 0x62656570;
constexpr unsigned magiaMqueue = 0x19800202;
constexpr unsigned magiaFusectl = 0x65735543;

constexpr std::array<unsigned, 20> sinArchivosDeNadie{
    PROC_SUPER_MAGIC, SYSFS_MAGIC,        DEVPTS_SUPER_MAGIC, CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC,
    DEBUGFS_MAGIC,    TRACEFS_MAGIC,      SECURITYFS_MAGIC,   PSTOREFS_MAGIC,     BPF_FS_MAGIC,
    BINFMTFS_MAGIC,   EFIVARFS_MAGIC,     HUGETLBFS_MAGIC,    NSFS_MAGIC,         SELINUX_MAGIC,
    SMACK_MAGIC,      AUTOFS_SUPER_MAGIC, magiaConfigfs,      magiaMqueue,        magiaFusectl,
};

} // namespace

int AccesoArchivosLinux::abrir(const char *ruta)
{
    // Only the owner may leave the access time alone.
    const int abierto = abrirCamino(ruta, soloLeer | O_NOATIME);
    return abierto >= 0 || errno != EPERM ? abierto : abrirCamino(ruta, soloLeer);
}

ssize_t AccesoArchivosLinux::leer(int descriptor, void *destino, std::size_t bytes)
{
    ssize_t leidos = 0;
    do
        leidos = ::read(descriptor, destino, bytes);
    while (leidos < 0 && errno == EINTR);
    return leidos;
}

void AccesoArchivosLinux::anticipar(int descriptor, std::uint64_t bytes)
{
    ::posix_fadvise(descriptor, 0, static_cast<off_t>(bytes), POSIX_FADV_WILLNEED);
}

bool AccesoArchivosLinux::esVirtual(int carpeta)
{
    struct statfs sistema = {};
    if (::fstatfs(carpeta, &sistema) != 0) return false;
    return std::ranges::find(sinArchivosDeNadie, static_cast<unsigned>(sistema.f_type)) !=
           sinArchivosDeNadie.end();
}

} // namespace ovanta
