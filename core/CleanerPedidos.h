#pragma once

#include "core/CleanerTraslado.h"
#include "core/Regla.h"
#include "core/Seguridad.h"

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

/// A path under the home directory.
Pedido pedidoDeRuta(const Puerta &puerta, const std::string &ruta, const std::string &etiqueta);

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
