#include "ui/Ovanta.h"

namespace ovanta {

namespace {
OvantaApp *appEnUso = nullptr;
Aspecto *aspectoEnUso = nullptr;
} // namespace

void Ovanta::usar(OvantaApp *app, Aspecto *aspecto)
{
    appEnUso = app;
    aspectoEnUso = aspecto;
}

OvantaApp &Ovanta::app()
{
    Q_ASSERT(appEnUso);
    return *appEnUso;
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
