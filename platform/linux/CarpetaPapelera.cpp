#include "platform/linux/CarpetaPapelera.h"

#include "core/ErrorSistema.h"
#include "core/Rutas.h"
#include "platform/linux/SinEnlaces.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

namespace ovanta {

namespace {

constexpr mode_t soloNuestra = 0700;
constexpr const char *esLaPapelera = "la Papelera no se puede mover a la Papelera";

/// Which mount a folder belongs to. Two mounts of one volume differ only in `montaje`, two
/// subvolumes of one mount only in `dispositivo`; a rename can cross neither.
struct Sitio
{
    std::uint64_t dispositivo = 0;
    std::uint64_t montaje = 0;
};

Sitio sitioDe(int carpeta)
{
    const std::uint64_t dispositivo = estadoDe(carpeta).st_dev;
    struct statx datos{};
    const int r = ::statx(carpeta, "", AT_EMPTY_PATH, STATX_MNT_ID, &datos);
    const bool sabe = r == 0 && (datos.stx_mask & STATX_MNT_ID) != 0;
    return {.dispositivo = dispositivo, .montaje = sabe ? datos.stx_mnt_id : dispositivo};
}

/// The topmost folder of the mount that the real folder `ruta` belongs to.
std::string cimaDelMontaje(std::string ruta)
{
    const std::uint64_t montaje = sitioDe(abrirCarpetaReal(ruta).numero()).montaje;
    while (ruta != "/") {
        const std::string superior = std::string(carpetaContenedora(ruta));
        if (sitioDe(abrirCarpetaReal(superior).numero()).montaje != montaje) break;
        ruta = superior;
    }
    return ruta;
}

/// The folder `nombre` in `padre`, which must be a real one and ours.
Descriptor carpetaNuestra(int padre, const std::string &nombre, SiFalta siFalta)
{
    if (siFalta == SiFalta::crear && ::mkdirat(padre, nombre.c_str(), soloNuestra) != 0 && errno != EEXIST)
        lanzarErrno(errno);
    const bool esCarpeta = S_ISDIR(estadoDe(padre, nombre).st_mode);
    Descriptor carpeta = esCarpeta ? abrirSubcarpeta(padre, nombre) : Descriptor();
    if (!carpeta.abierto() || estadoDe(carpeta.numero()).st_uid != ::geteuid())
        throw RechazoPapelera("la Papelera no es de fiar: «" + nombre + "» no es una carpeta tuya");
    return carpeta;
}

CarpetaPapelera abrirPapelera(int padre, const std::string &nombre, SiFalta siFalta)
{
    CarpetaPapelera papelera;
    papelera.raiz = carpetaNuestra(padre, nombre, siFalta);
    papelera.archivos = carpetaNuestra(papelera.raiz.numero(), "files", siFalta);
    papelera.infos = carpetaNuestra(papelera.raiz.numero(), "info", siFalta);
    return papelera;
}

void crearCarpetas(const std::string &ruta)
{
    for (std::size_t fin = 0; fin != std::string::npos;) {
        fin = ruta.find('/', fin + 1);
        ::mkdir(ruta.substr(0, fin).c_str(), soloNuestra);
    }
}

/// The folder that holds the Trash at home.
CarpetaReal carpetaDeDatos(const LugarPapelera &lugar, SiFalta siFalta)
{
    const std::string datos = lugar.datos.starts_with('/') ? lugar.datos : unir(lugar.hogar, ".local/share");
    try {
        return abrirSiguiendo(datos);
    } catch (const std::system_error &error) {
        if (siFalta == SiFalta::fallar || error.code().value() != ENOENT) throw;
    }
    crearCarpetas(datos);
    return abrirSiguiendo(datos);
}

/// "$topdir/.Trash/$uid", only where the administrator made a real and sticky ".Trash".
std::optional<CarpetaPapelera> papeleraCompartida(int cima, const std::string &usuario, SiFalta siFalta)
try {
    const Descriptor compartida = abrirSubcarpeta(cima, ".Trash");
    if ((estadoDe(compartida.numero()).st_mode & S_ISVTX) == 0) return std::nullopt;
    return abrirPapelera(compartida.numero(), usuario, siFalta);
} catch (const std::exception &) {
    // Whatever is wrong with it, the volume's other Trash serves.
    return std::nullopt;
}

CarpetaPapelera papeleraDelVolumen(const std::string &carpetaReal, SiFalta siFalta)
{
    const std::string ruta = cimaDelMontaje(carpetaReal);
    const Descriptor cima = abrirCarpetaReal(ruta);
    const std::string usuario = std::to_string(::geteuid());
    auto papelera = papeleraCompartida(cima.numero(), usuario, siFalta);
    if (!papelera) papelera = abrirPapelera(cima.numero(), ".Trash-" + usuario, siFalta);
    papelera->cima = ruta;
    return std::move(*papelera);
}

/// Whether a path from the top of a volume lies in anybody's Trash there.
bool esPapeleraDeVolumen(const std::string &relativa)
{
    const std::string primera = relativa.substr(0, relativa.find('/'));
    return primera == ".Trash" || primera.starts_with(".Trash-");
}

} // namespace

std::string CarpetaPapelera::rutaEnInfo(const std::string &rutaDelObjeto) const
{
    if (cima.empty()) return rutaDelObjeto;
    return rutaDelObjeto.substr(cima == "/" ? 1 : cima.size() + 1);
}

CarpetaPapelera papeleraPara(const LugarPapelera &lugar, const std::string &rutaDelObjeto, SiFalta siFalta)
{
    const CarpetaReal datos = carpetaDeDatos(lugar, siFalta);
    if (cruza(rutaDelObjeto, unir(datos.ruta, "Trash"))) throw RechazoPapelera(esLaPapelera);
    const std::string carpeta(carpetaContenedora(rutaDelObjeto));
    const Sitio casa = sitioDe(datos.carpeta.numero());
    const Sitio objeto = sitioDe(abrirCarpetaReal(carpeta).numero());
    // Another mount of the same volume, or a subvolume of home's mount, has no Trash that other
    // programs would look for: the rename into the one at home says why it cannot be.
    if (casa.dispositivo == objeto.dispositivo || casa.montaje == objeto.montaje)
        return abrirPapelera(datos.carpeta.numero(), "Trash", siFalta);
    CarpetaPapelera papelera = papeleraDelVolumen(carpeta, siFalta);
    if (esPapeleraDeVolumen(papelera.rutaEnInfo(rutaDelObjeto))) throw RechazoPapelera(esLaPapelera);
    return papelera;
}

} // namespace ovanta
