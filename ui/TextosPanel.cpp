#include "ui/TextosPanel.h"

#include "core/qt/Formato.h"

#include <cmath>

namespace ovanta {

namespace {

constexpr int saludQueInquieta = 80; // per cent
constexpr int cargaBaja = 20;        // per cent

/// Far above any network, and within 64 bits.
constexpr double velocidadMaxima = 1e18;

bool convieneRevisarla(const EstadoBateria &bateria)
{
    return bateria.salud && *bateria.salud < saludQueInquieta;
}

} // namespace

QString textoPorcentaje(double fraccion)
{
    return QString::number(std::lround(fraccion * 100)) + QStringLiteral(" %");
}

Tinte tinteProcesador(double fraccion)
{
    if (fraccion > 0.8) return Tinte::Rojo;
    return fraccion > 0.5 ? Tinte::Naranja : Tinte::Azul;
}

QString textoPresion(EstadoMemoria estado)
{
    switch (estado) {
    case EstadoMemoria::normal:
        return QStringLiteral("Presión normal");
    case EstadoMemoria::tension:
        return QStringLiteral("Presión alta");
    case EstadoMemoria::critico:
        return QStringLiteral("Presión crítica");
    }
    Q_UNREACHABLE();
}

Tinte tintePresion(EstadoMemoria estado)
{
    switch (estado) {
    case EstadoMemoria::normal:
        return Tinte::Secundario;
    case EstadoMemoria::tension:
        return Tinte::Naranja;
    case EstadoMemoria::critico:
        return Tinte::Rojo;
    }
    Q_UNREACHABLE();
}

Tinte tinteCurvaPresion(EstadoMemoria estado)
{
    const Tinte tinte = tintePresion(estado);
    return tinte == Tinte::Secundario ? Tinte::Morado : tinte;
}

QString textoVelocidad(double bytesPorSegundo)
{
    if (!(bytesPorSegundo >= 1000)) return QStringLiteral("0 KB/s");
    const auto bytes = static_cast<std::uint64_t>(std::min(bytesPorSegundo, velocidadMaxima));
    const Formato &formato = Formato::delUsuario();
    if (bytes < 1'000'000) return formato.entero((bytes + 500) / 1000) + QStringLiteral(" KB/s");
    return formato.bytes(bytes) + QStringLiteral("/s");
}

QString textoBateria(const EstadoBateria &bateria)
{
    const QString carga = QString::number(bateria.porcentaje) + QStringLiteral(" %");
    if (bateria.cargando) return carga + QStringLiteral(" · cargando");
    if (bateria.enCorriente) return carga + QStringLiteral(" · conectado");
    if (!bateria.minutosRestantes) return carga;
    const int minutos = *bateria.minutosRestantes;
    return carga + QStringLiteral(" · %1 h %2 min").arg(minutos / 60).arg(minutos % 60);
}

QString simboloBateria(const EstadoBateria &bateria)
{
    if (bateria.cargando) return QStringLiteral("battery.100.bolt");
    const int carga = bateria.porcentaje;
    return carga < 13   ? QStringLiteral("battery.0")
           : carga < 38 ? QStringLiteral("battery.25")
           : carga < 63 ? QStringLiteral("battery.50")
           : carga < 88 ? QStringLiteral("battery.75")
                        : QStringLiteral("battery.100");
}

Tinte tinteBateria(const EstadoBateria &bateria)
{
    return bateria.porcentaje > cargaBaja || bateria.cargando ? Tinte::Secundario : Tinte::Rojo;
}

QString textoSalud(const EstadoBateria &bateria)
{
    if (!bateria.salud) return {};
    QString texto = QStringLiteral("Salud de la batería: %1 %").arg(*bateria.salud);
    if (bateria.ciclos) texto += QStringLiteral(" · %1 ciclos").arg(*bateria.ciclos);
    if (convieneRevisarla(bateria)) texto += QStringLiteral(" · conviene revisarla");
    return texto;
}

Tinte tinteSalud(const EstadoBateria &bateria)
{
    return convieneRevisarla(bateria) ? Tinte::Naranja : Tinte::Secundario;
}

} // namespace ovanta
