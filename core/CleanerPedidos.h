#pragma once

#include "core/CleanerTraslado.h"
#include "core/Regla.h"
#include "core/Seguridad.h"

#include <expected>
#include <functional>
#include <memory>
#include <string>

namespace ovanta {

/// What the items of a batch pass on their way out: validation and measuring.
struct Puerta
{
    std::shared_ptr<const Seguridad> seguridad;
    Papelera *papelera;
};

/// An item that a rule of the catalogue names.
Pedido pedidoDeRegla(const Puerta &puerta, const Regla &regla, const std::string &ruta);

/// What a caller wants to see once more about an item right before it moves: a text for the user keeps
/// it where it is. Called on a background thread.
using UltimaMirada = std::function<std::expected<void, std::string>(const Papelera::Medida &)>;

/// A path under the home directory. `mirada` may be empty.
Pedido pedidoDeRuta(const Puerta &puerta, const std::string &ruta, const std::string &etiqueta,
                    const UltimaMirada &mirada);

/// The folder that the user chose for a batch, and where it really lay when the batch began.
struct Seleccion
{
    std::string carpeta;
    std::string real;
};

/// A path inside a folder that the user chose.
Pedido pedidoDeSeleccion(const Puerta &puerta, const std::string &ruta, const Seleccion &seleccion,
                         const std::string &etiqueta);

/// A path that the caller has just validated; it is measured by this call.
Pedido pedidoValidado(const Puerta &puerta, const std::string &ruta, const std::string &etiqueta);

} // namespace ovanta
