#include "ui/componentes/Fuentes.h"

#include <QFontDatabase>

namespace ovanta {

void cargarFuentes()
{
    static const bool cargadas = [] {
        for (const char *archivo : {"Regular", "Medium", "SemiBold", "Bold"})
            QFontDatabase::addApplicationFont(
                QStringLiteral(":/ovanta/fuentes/OvantaTexto-%1.otf").arg(QLatin1String(archivo)));
        QFontDatabase::addApplicationFont(QStringLiteral(":/ovanta/fuentes/simbolos.ttf"));
        return true;
    }();
    Q_UNUSED(cargadas);
}

QString familiaDeTexto()
{
    return QStringLiteral("Ovanta Texto");
}

QString familiaDeSimbolos()
{
    return QStringLiteral("Material Icons");
}

} // namespace ovanta
