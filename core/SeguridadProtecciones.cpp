#include "core/Enlaces.h"
#include "core/Seguridad.h"

namespace ovanta {

ConjuntoRutas Seguridad::proteccionesUsuario() const
{
    const auto lista = m_preferencias.lista(claveProtecciones);
    return {lista.begin(), lista.end()};
}

bool Seguridad::cruzaListaDelUsuario(std::string_view ruta) const
{
    return cruzaProteccionPersonalizada(ruta, proteccionesUsuario());
}

bool Seguridad::cruzaProteccionPersonalizada(std::string_view ruta, const ConjuntoRutas &rutas) const
{
    return cruzaAlguna(normalizar(ruta), rutas);
}

std::string Seguridad::proteger(std::string_view ruta)
{
    std::string limpia = validar(ruta);
    if (limpia == hogar() || !existe(limpia))
        throw Rechazo("Elige un archivo o carpeta existente dentro de tu usuario.");
    auto rutas = proteccionesUsuario();
    rutas.insert(limpia);
    guardarProtecciones(rutas);
    return limpia;
}

void Seguridad::quitarProteccion(std::string_view ruta)
{
    auto rutas = proteccionesUsuario();
    if (const auto guardada = rutas.find(ruta); guardada != rutas.end()) rutas.erase(guardada);
    guardarProtecciones(rutas);
}

void Seguridad::guardarProtecciones(const ConjuntoRutas &rutas)
{
    m_preferencias.fijar(claveProtecciones, std::vector<std::string>(rutas.begin(), rutas.end()));
}

} // namespace ovanta
