#include "ui/MarcaOvanta.h"

#include <QFileInfo>

namespace ovanta {

QUrl imagenDeMarca(const QString &carpeta)
{
    for (const char *nombre : {"belmora-ovanta-icon", "sarvel-cleaner-icon"}) {
        const QString ruta = carpeta + QLatin1Char('/') + QLatin1String(nombre) + QStringLiteral(".svg");
        if (!QFileInfo::exists(ruta)) continue;
        return ruta.startsWith(QLatin1Char(':')) ? QUrl(QStringLiteral("qrc") + ruta)
                                                 : QUrl::fromLocalFile(ruta);
    }
    return {};
}

QUrl MarcaOvanta::imagen() const
{
    return imagenDeMarca(QStringLiteral(":/ovanta/imagenes"));
}

} // namespace ovanta
