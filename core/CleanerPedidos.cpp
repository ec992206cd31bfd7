#include "core/CleanerPedidos.h"

#include "core/Enlaces.h"
#include "core/Rutas.h"

#include <exception>
#include <stdexcept>

namespace ovanta {

namespace {

std::string nombreDe(const std::string &ruta)
{
    return std::string(ultimoComponente(ruta));
}

std::function<Papelera::Medida()> validarYMedir(const Puerta &puerta, const std::string &ruta)
{
    return [puerta, ruta] {
        const std::string validada = puerta.seguridad->validar(ruta);
        auto medida = medirDentro(*puerta.papelera, validada, puerta.seguridad->hogar());
        // A link on the way may lead, inside home, to a protected place: where the item really lies
        // has to pass the gate as well.
        puerta.seguridad->validar(medida.rutaReal());
        return medida;
    };
}

std::function<void(const Papelera::Medida &)> queRechace(const UltimaMirada &mirada)
{
    if (!mirada) return {};
    return [mirada](const Papelera::Medida &medida) {
        if (const auto vista = mirada(medida); !vista) throw std::runtime_error(vista.error());
    };
}

/// Where the folder of a validated path must really lie. Applications have a place outside home.
std::string raizDe(const Seguridad &seguridad, const std::string &ruta)
{
    if (yaceEn(ruta, seguridad.hogar())) return seguridad.hogar();
    const std::string carpeta(carpetaContenedora(ruta));
    return resolverEnlaces(carpeta).value_or(carpeta);
}

} // namespace

Pedido pedidoDeRegla(const Puerta &puerta, const Regla &regla, const std::string &ruta)
{
    return {.medir = validarYMedir(puerta, ruta),
            .etiqueta = regla.id,
            .progreso = {},
            .alRechazar = regla.name + ": ruta rechazada " + ruta,
            .nombre = regla.name};
}

Pedido pedidoDeRuta(const Puerta &puerta, const std::string &ruta, const std::string &etiqueta,
                    const UltimaMirada &mirada)
{
    return {.medir = validarYMedir(puerta, ruta),
            .antesDeMover = queRechace(mirada),
            .etiqueta = etiqueta,
            .progreso = "Moviendo " + nombreDe(ruta) + "…",
            .alRechazar = "Ruta rechazada: " + ruta,
            .nombre = nombreDe(ruta)};
}

Pedido pedidoDeSeleccion(const Puerta &puerta, const std::string &ruta, const Seleccion &seleccion,
                         const std::string &etiqueta)
{
    auto medir = [puerta, ruta, seleccion] {
        const std::string validada = puerta.seguridad->validarDentroDeSeleccion(ruta, seleccion.carpeta);
        return medirDentro(*puerta.papelera, validada, seleccion.real);
    };
    return {.medir = std::move(medir),
            .etiqueta = etiqueta,
            .progreso = "Preparando " + nombreDe(ruta) + "…",
            .alRechazar = "Ruta no permitida: " + nombreDe(ruta),
            .nombre = nombreDe(ruta)};
}

Pedido pedidoValidado(const Puerta &puerta, const std::string &ruta, const std::string &etiqueta)
{
    std::function<Papelera::Medida()> medir;
    try {
        const auto medida = medirDentro(*puerta.papelera, ruta, raizDe(*puerta.seguridad, ruta));
        medir = [medida] { return medida; };
    } catch (const std::exception &) {
        // The batch reports it in its turn.
        medir = [fallo = std::current_exception()]() -> Papelera::Medida { std::rethrow_exception(fallo); };
    }
    return {.medir = std::move(medir),
            .etiqueta = etiqueta,
            .progreso = {},
            .alRechazar = {},
            .nombre = nombreDe(ruta)};
}

} // namespace ovanta
