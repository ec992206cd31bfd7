#include "ui/Riesgo.h"

namespace ovanta {

Riesgo riesgoVisible(std::string_view risk)
{
    if (risk == "safe") return {QStringLiteral("Seguro"), Tinte::Verde};
    if (risk == "review") return {QStringLiteral("Revisar"), Tinte::Naranja};
    return {QStringLiteral("Manual"), Tinte::Gris};
}

} // namespace ovanta
