#include "core/CleanerTraslado.h"

#include "core/InterpretarDu.h"
#include "core/Rutas.h"
#include "core/Seguridad.h"
#include "core/Uuid.h"

#include <exception>
#include <stdexcept>

namespace ovanta {

namespace {

Movimiento mover(MediosDeTraslado medios, RegistroPrevio &registro, const Pedido &pedido)
{
    const auto medida = pedido.medir();
    const auto bytes = tamano(medios.herramientas, medida.ruta);
    if (pedido.antesDeMover) pedido.antesDeMover(medida);
    Movimiento movimiento{uuidNuevo(), medida.ruta, bytes, medios.reloj.ahora(), pedido.etiqueta};
    registro.intento(movimiento, medida.identidad);
    if (const auto movido = medios.papelera.reciclar(medida); !movido) {
        registro.fallo();
        throw std::runtime_error(movido.error());
    }
    movimiento.fecha = medios.reloj.ahora();
    registro.hecho(movimiento);
    return movimiento;
}

} // namespace

std::expected<Movimiento, std::string> trasladar(MediosDeTraslado medios, RegistroPrevio &registro,
                                                 const Pedido &pedido)
{
    try {
        return mover(medios, registro, pedido);
    } catch (const Seguridad::Rechazo &) {
        return std::unexpected(pedido.alRechazar);
    } catch (const std::exception &fallo) {
        return std::unexpected(pedido.nombre + ": " + fallo.what());
    }
}

Papelera::Medida medirDentro(Papelera &papelera, const std::string &ruta, const std::string &raizReal)
{
    auto medida = papelera.medir(ruta);
    if (!medida) throw std::runtime_error(medida.error());
    if (!yaceEn(medida->carpetaReal, raizReal))
        throw std::runtime_error("la carpeta que lo contiene cambió mientras se comprobaba");
    return *medida;
}

std::uint64_t tamano(Herramientas &herramientas, const std::string &ruta)
{
    constexpr double limiteEnSegundos = 60;
    try {
        return interpretarDu(herramientas.ejecutar("/usr/bin/du", {"-sk", ruta}, limiteEnSegundos, true))
            .value_or(0);
    } catch (const std::exception &) {
        return 0;
    }
}

} // namespace ovanta
