#include "analysis/Scanner.h"

#include "core/qt/HiloPrincipal.h"

namespace ovanta {

namespace {

constexpr std::string_view claveMinimo = "minimoMB";
constexpr std::string_view claveDias = "diasDescargas";

/// Beyond these a stored number is no setting of anyone: a tebibyte, and a century of days.
constexpr double maximoMB = 1024.0 * 1024.0;
constexpr std::int64_t maximoDias = 36'525;

bool esMinimo(double mebibytes)
{
    return mebibytes > 0 && mebibytes <= maximoMB;
}

bool sonDias(std::int64_t dias)
{
    return dias > 0 && dias <= maximoDias;
}

} // namespace

Scanner::Scanner(Plataforma &plataforma, QObject *parent) : QObject(parent), m_plataforma(plataforma)
{
    OVANTA_HILO_PRINCIPAL();
    leerPreferencias();
}

void Scanner::leerPreferencias()
{
    Preferencias &preferencias = m_plataforma.preferencias();
    preferencias.registrar(claveMinimo, m_minimoMB);
    preferencias.registrar(claveDias, std::int64_t{m_diasDescargas});
    const double minimo = preferencias.real(claveMinimo);
    const std::int64_t dias = preferencias.entero(claveDias);
    if (esMinimo(minimo)) m_minimoMB = minimo;
    if (sonDias(dias)) m_diasDescargas = static_cast<int>(dias);
}

void Scanner::fijarMinimoMB(double mebibytes)
{
    OVANTA_HILO_PRINCIPAL();
    if (mebibytes == m_minimoMB || !esMinimo(mebibytes)) return;
    m_minimoMB = mebibytes;
    m_plataforma.preferencias().fijar(claveMinimo, mebibytes);
    Q_EMIT ajustesChanged();
}

void Scanner::fijarDiasDescargas(int dias)
{
    OVANTA_HILO_PRINCIPAL();
    if (dias == m_diasDescargas || !sonDias(dias)) return;
    m_diasDescargas = dias;
    m_plataforma.preferencias().fijar(claveDias, std::int64_t{dias});
    Q_EMIT ajustesChanged();
}

} // namespace ovanta
