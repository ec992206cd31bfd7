#include "ui/Ovanta.h"

namespace ovanta {

namespace {
OvantaApp *appEnUso = nullptr;
Aspecto *aspectoEnUso = nullptr;
Interfaz *interfazEnUso = nullptr;
} // namespace

void Ovanta::usar(OvantaApp *app, Aspecto *aspecto, Interfaz *interfaz)
{
    appEnUso = app;
    aspectoEnUso = aspecto;
    interfazEnUso = interfaz;
}

OvantaApp &Ovanta::app()
{
    Q_ASSERT(appEnUso);
    return *appEnUso;
}

Interfaz &Ovanta::interfaz()
{
    Q_ASSERT(interfazEnUso);
    return *interfazEnUso;
}

Aspecto *Ovanta::aspecto() const
{
    return aspectoEnUso;
}

Ovanta *Ovanta::create(QQmlEngine *, QJSEngine *)
{
    return new Ovanta;
}

} // namespace ovanta
