#pragma once

#include <QString>

namespace ovanta {

/// Makes the embedded fonts known to the process; later calls do nothing.
void cargarFuentes();

QString familiaDeTexto();
QString familiaDeSimbolos();

} // namespace ovanta
