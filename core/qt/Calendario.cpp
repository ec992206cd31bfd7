#include "core/qt/Calendario.h"

#include "core/qt/Formato.h"

#include <QDateTime>
#include <algorithm>

namespace ovanta {

int diasEntre(Fecha desde, Fecha hasta)
{
    const QDateTime principio = enQt(desde);
    const QDateTime fin = enQt(hasta);
    qint64 dias = principio.daysTo(fin);
    if (principio.addDays(dias) > fin) --dias;
    return static_cast<int>(std::max<qint64>(dias, 0));
}

} // namespace ovanta
