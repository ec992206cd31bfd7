#include "core/Descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <system_error>

namespace ovanta {

Tuberia Tuberia::crear()
{
    int extremos[2];
    if (::pipe2(extremos, O_CLOEXEC) != 0) throw std::system_error(errno, std::system_category());
    return {Descriptor(extremos[0]), Descriptor(extremos[1])};
}

} // namespace ovanta
