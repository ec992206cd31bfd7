#include "ui/HallazgosEstado.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/Ovanta.h"

#include <algorithm>

namespace ovanta {

HallazgosEstado::HallazgosEstado(QObject *parent) : QObject(parent), m_app(Ovanta::app())
{
    connect(&m_app.scanner(), &Scanner::trabajandoChanged, this, &HallazgosEstado::analisisChanged);
    connect(&m_app.scanner(), &Scanner::avanceChanged, this, &HallazgosEstado::analisisChanged);
    connect(&m_app.limpiador(), &Cleaner::trabajandoChanged, this, &HallazgosEstado::movimientoChanged);
    connect(&m_app.limpiador(), &Cleaner::progresoChanged, this, &HallazgosEstado::movimientoChanged);
}

QString HallazgosEstado::textoAnalizar() const
{
    return yaAnalizado() ? QStringLiteral("Analizar de nuevo") : QStringLiteral("Analizar ahora");
}

void HallazgosEstado::analizar()
{
    m_app.scanner().analizar();
}

void HallazgosEstado::detener()
{
    m_app.scanner().detener();
}

void HallazgosEstado::verPapelera()
{
    m_app.plataforma().gestorArchivos().abrirPapelera();
}

void HallazgosEstado::fijarConfirmando(bool confirmando)
{
    if (m_confirmando == confirmando) return;
    m_confirmando = confirmando;
    Q_EMIT confirmandoChanged();
}

void HallazgosEstado::publicarResultado(const QString &movidos, const ResultadoLimpieza &resultado)
{
    constexpr std::size_t primeros = 3;
    QStringList lineas;
    for (std::size_t i = 0; i < std::min(primeros, resultado.errores.size()); ++i)
        lineas << mostrar(resultado.errores[i]);
    if (resultado.errores.size() > primeros)
        lineas << QStringLiteral("y %1 más")
                      .arg(Formato::delUsuario().entero(resultado.errores.size() - primeros));
    m_resumen = movidos;
    m_fallos = lineas.join(QLatin1Char('\n'));
    Q_EMIT resultadoChanged();
}

} // namespace ovanta
