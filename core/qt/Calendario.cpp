#include "core/qt/Calendario.h"

#include "core/qt/Formato.h"

#include <QDateTime>

namespace ovanta {

long diasDeCalendario(Fecha desde, Fecha hasta)
{
    if (hasta < desde) return -diasDeCalendario(hasta, desde);
    const QDateTime principio = enQt(desde);
    const QDateTime fin = enQt(hasta);
    const qint64 dias = principio.date().daysTo(fin.date());
    return static_cast<long>(principio.addDays(dias) > fin ? dias - 1 : dias);
}

} // namespace ovanta
