#include "platform/linux/PapeleraLinux.h"

#include "core/Rutas.h"
#include "platform/linux/BuscarEnPapelera.h"
#include "platform/linux/InfoPapelera.h"
#include "platform/linux/SinEnlaces.h"
#include "platform/linux/TamanosPapelera.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace ovanta {

namespace {

constexpr const char *carpetaCambiada = "la carpeta que lo contiene cambió desde que se midió";

struct Partes
{
    std::string carpeta;
    std::string nombre;
};

/// The folder and the last component of `ruta`, which must be absolute and name something.
Partes partir(const std::string &ruta)
{
    const std::string nombre = ruta.substr(ruta.rfind('/') + 1);
    if (!ruta.starts_with('/') || ruta.contains('\0') || nombre.empty() || nombre == "." || nombre == "..")
        throw RechazoPapelera("esa ruta no se puede mover a la Papelera");
    return {.carpeta = std::string(carpetaContenedora(ruta)), .nombre = nombre};
}

/// The folder that was measured, open; the way there must still be free of links.
Descriptor abrirLaMedida(const Papelera::Medida &medida)
try {
    Descriptor carpeta = abrirCarpetaReal(medida.carpetaReal);
    if (identidadDe(estadoDe(carpeta.numero())) != medida.carpeta) throw RechazoPapelera(carpetaCambiada);
    return carpeta;
} catch (const std::system_error &error) {
    const int codigo = error.code().value();
    if (codigo != ELOOP && codigo != ENOTDIR && codigo != ENOENT) throw;
    throw RechazoPapelera(carpetaCambiada);
}

} // namespace

PapeleraLinux::PapeleraLinux(Entorno entorno, AlPaso alPaso)
    : m_entorno(std::move(entorno)), m_alPaso(std::move(alPaso))
{
}

std::expected<Papelera::Medida, std::string> PapeleraLinux::medir(const std::string &ruta)
try {
    const auto [carpeta, nombre] = partir(ruta);
    const CarpetaReal real = abrirSiguiendo(carpeta);
    return Medida{.ruta = ruta,
                  .carpetaReal = real.ruta,
                  .identidad = identidadDe(estadoDe(real.carpeta.numero(), nombre)),
                  .carpeta = identidadDe(estadoDe(real.carpeta.numero()))};
} catch (const std::exception &fallo) {
    return std::unexpected(fallo.what());
}

std::expected<void, std::string> PapeleraLinux::reciclar(const Medida &medida)
try {
    mover(medida);
    return {};
} catch (const std::exception &fallo) {
    return std::unexpected(fallo.what());
}

void PapeleraLinux::mover(const Medida &medida)
{
    const std::string nombre = partir(medida.ruta).nombre;
    const std::string real = medida.rutaReal();
    const Descriptor carpeta = abrirLaMedida(medida);
    if (identidadDe(estadoDe(carpeta.numero(), nombre)) != medida.identidad)
        throw RechazoPapelera("cambió desde que se midió");
    const CarpetaPapelera papelera = papeleraPara(m_entorno.lugar, real, SiFalta::crear);
    const std::string info = escribirInfo({.ruta = papelera.rutaEnInfo(real), .fecha = m_entorno.ahora()});
    const ObjetoATrasladar objeto{
        .carpeta = carpeta.numero(), .nombre = nombre, .identidad = medida.identidad};
    const std::string enPapelera = trasladar(papelera, objeto, info, m_alPaso);
    if (medida.identidad.tipo == S_IFDIR) anotarTamano(papelera, enPapelera, m_alPaso);
}

bool PapeleraLinux::contiene(const std::string &ruta, Fecha desde)
try {
    const auto [carpeta, nombre] = partir(ruta);
    const std::string real = unir(abrirSiguiendo(carpeta).ruta, nombre);
    return buscarEnPapelera(papeleraPara(m_entorno.lugar, real, SiFalta::fallar), real, desde);
} catch (const std::exception &) {
    return false;
}

} // namespace ovanta
