#include "ui/AspectoMemoria.h"

namespace ovanta {

AspectoMemoria aspectoDe(EstadoMemoria estado)
{
    switch (estado) {
    case EstadoMemoria::normal:
        return {QStringLiteral("memorychip"), Tinte::Verde, QStringLiteral("Presión normal")};
    case EstadoMemoria::tension:
        return {QStringLiteral("exclamationmark.triangle.fill"), Tinte::Naranja,
                QStringLiteral("Presión alta")};
    case EstadoMemoria::critico:
        return {QStringLiteral("exclamationmark.octagon.fill"), Tinte::Rojo,
                QStringLiteral("Presión crítica")};
    }
    Q_UNREACHABLE();
}

QString explicacionDe(EstadoMemoria estado, std::uint64_t swapUsado)
{
    constexpr std::uint64_t swapNotable = 2ULL << 30;
    switch (estado) {
    case EstadoMemoria::normal:
        return swapUsado >= swapNotable
                   ? QStringLiteral("Ahora hay RAM de sobra. El swap que ves es de un pico anterior.")
                   : QStringLiteral("La memoria va holgada.");
    case EstadoMemoria::tension:
        return QStringLiteral(
            "macOS está comprimiendo memoria y escribiendo swap. Cerrar lo que no uses lo alivia ya.");
    case EstadoMemoria::critico:
        return QStringLiteral("La RAM no alcanza: el sistema escribe swap continuamente en el SSD y todo se "
                              "vuelve lento.");
    }
    Q_UNREACHABLE();
}

} // namespace ovanta
