#include "app/MostrarEnDock.h"

namespace ovanta {

namespace {
constexpr std::string_view clave = "mostrarEnDock";
}

bool mostrarEnDock(const Preferencias &preferencias)
{
    return preferencias.booleanoSiHay(clave).value_or(true);
}

void fijarMostrarEnDock(Plataforma &plataforma, bool mostrar)
{
    plataforma.preferencias().fijar(clave, mostrar);
    aplicarMostrarEnDock(plataforma);
}

void aplicarMostrarEnDock(Plataforma &plataforma)
{
    using enum PoliticaActivacion::Politica;
    plataforma.politicaActivacion().fijar(mostrarEnDock(plataforma.preferencias()) ? regular : accesoria);
}

} // namespace ovanta
