#include "ui/Ovanta.h"

namespace ovanta {

namespace {
OvantaApp *enUso = nullptr;
}

void Ovanta::usar(OvantaApp *app)
{
    enUso = app;
}

OvantaApp &Ovanta::app()
{
    Q_ASSERT(enUso);
    return *enUso;
}

Ovanta *Ovanta::create(QQmlEngine *, QJSEngine *)
{
    return new Ovanta;
}

} // namespace ovanta
