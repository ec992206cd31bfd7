#include "ui/AspectoNivel.h"

namespace ovanta {

AspectoNivel aspectoDe(NivelDisco nivel)
{
    switch (nivel) {
    case NivelDisco::ok:
        return {QStringLiteral("internaldrive"), Tinte::Verde, QStringLiteral("Espacio suficiente")};
    case NivelDisco::aviso:
        return {QStringLiteral("exclamationmark.triangle.fill"), Tinte::Naranja,
                QStringLiteral("Queda poco espacio")};
    case NivelDisco::critico:
        return {QStringLiteral("exclamationmark.octagon.fill"), Tinte::Rojo,
                QStringLiteral("Espacio crítico")};
    }
    Q_UNREACHABLE();
}

} // namespace ovanta
