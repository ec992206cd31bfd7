#include "platform/linux/AccesoArchivosLinux.h"

#include "core/AbrirCamino.h"
#include "core/Descriptor.h"
#include "core/Tamano.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <span>
#include <sys/ioctl.h>
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

int AccesoArchivosLinux::abrirEn(int carpeta, const char *nombre)
{
    const auto abrirlo = [&](int opciones) {
        return nombre[0] == '/' ? abrirCamino(nombre, opciones) : ::openat(carpeta, nombre, opciones);
    };
    // Only the owner may leave the access time alone.
    Descriptor abierto{abrirlo(soloLeer | O_NOATIME)};
    if (!abierto.abierto() && errno == EPERM) abierto = Descriptor{abrirlo(soloLeer)};
    struct stat atributos = {};
    if (!abierto.abierto() || ::fstat(abierto.numero(), &atributos) != 0) return -1;
    if (S_ISREG(atributos.st_mode)) return abierto.soltar();
    errno = EINVAL;
    return -1;
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

std::uint64_t AccesoArchivosLinux::bytesCompartidos(int descriptor)
{
    // Documentation/filesystems/fiemap.rst; the extents follow the request in one buffer.
    constexpr std::size_t porPregunta = 64;
    alignas(fiemap) std::array<std::byte, sizeof(fiemap) + porPregunta * sizeof(fiemap_extent)> memoria;
    auto *const pregunta = reinterpret_cast<fiemap *>(memoria.data());
    std::uint64_t compartidos = 0;
    for (std::uint64_t desde = 0;;) {
        memoria.fill({});
        pregunta->fm_start = desde;
        pregunta->fm_length = FIEMAP_MAX_OFFSET - desde;
        pregunta->fm_extent_count = porPregunta;
        if (::ioctl(descriptor, FS_IOC_FIEMAP, pregunta) != 0) return compartidos;
        const std::span extensiones(pregunta->fm_extents,
                                    std::min<std::size_t>(pregunta->fm_mapped_extents, porPregunta));
        for (const fiemap_extent &extension : extensiones)
            if (extension.fe_flags & FIEMAP_EXTENT_SHARED)
                compartidos = sumarConTope(compartidos, extension.fe_length);
        if (extensiones.empty() || (extensiones.back().fe_flags & FIEMAP_EXTENT_LAST)) return compartidos;
        const std::uint64_t fin = extensiones.back().fe_logical + extensiones.back().fe_length;
        if (fin <= desde) return compartidos;
        desde = fin;
    }
}

bool AccesoArchivosLinux::esVirtual(int carpeta)
{
    struct statfs sistema = {};
    if (::fstatfs(carpeta, &sistema) != 0) return false;
    return std::ranges::find(sinArchivosDeNadie, static_cast<unsigned>(sistema.f_type)) !=
           sinArchivosDeNadie.end();
}

} // namespace ovanta
