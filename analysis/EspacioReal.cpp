#include "analysis/EspacioReal.h"

#include "core/AbrirCamino.h"
#include "core/Descriptor.h"
#include "core/Tamano.h"

#include <algorithm>
#include <map>
#include <utility>

namespace ovanta {

namespace {

constexpr std::uint64_t bytesPorBloque = 512; // of st_blocks, stat(2)

/// A file by its device and inode.
using Fisico = std::pair<dev_t, ino_t>;

struct Visto
{
    struct stat atributos;
    std::string ruta;
    nlink_t nombres; ///< of it that are among the paths
};

std::uint64_t bytesPropios(const Visto &visto, AccesoArchivos &acceso)
{
    if (visto.nombres < visto.atributos.st_nlink) return 0;
    const std::uint64_t ocupa =
        multiplicar(static_cast<std::uint64_t>(visto.atributos.st_blocks), bytesPorBloque);
    const Descriptor abierto{acceso.abrir(visto.ruta.c_str())};
    const std::uint64_t compartidos = abierto.abierto() ? acceso.bytesCompartidos(abierto.numero()) : 0;
    return ocupa - std::min(ocupa, compartidos);
}

} // namespace

std::uint64_t espacioReal(const std::vector<std::string> &rutas, AccesoArchivos &acceso)
{
    std::map<Fisico, Visto> vistos;
    for (const std::string &ruta : rutas) {
        struct stat atributos = {};
        if (describirCamino(ruta.c_str(), &atributos) != 0 || !S_ISREG(atributos.st_mode)) continue;
        ++vistos.try_emplace({atributos.st_dev, atributos.st_ino}, Visto{atributos, ruta, 0})
              .first->second.nombres;
    }
    std::uint64_t bytes = 0;
    for (const auto &[fisico, visto] : vistos)
        bytes = sumar(bytes, bytesPropios(visto, acceso));
    return bytes;
}

} // namespace ovanta
