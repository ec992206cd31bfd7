#include "ui/HallazgosEstado.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/Ovanta.h"

#include <QPointer>

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

void HallazgosEstado::pedirConfirmacion()
{
    fijarConfirmando(hayQueMover());
}

void HallazgosEstado::confirmar()
{
    if (!m_confirmando) return;
    fijarConfirmando(false);
    if (hayQueMover()) moverMarcadas();
}

void HallazgosEstado::revisarConfirmacion()
{
    if (!hayQueMover()) fijarConfirmando(false);
}

void HallazgosEstado::fijarConfirmando(bool confirmando)
{
    if (m_confirmando == confirmando) return;
    m_confirmando = confirmando;
    Q_EMIT confirmandoChanged();
}

QCoro::Task<> HallazgosEstado::mover(std::vector<std::string> rutas, std::string etiqueta,
                                     UltimaMirada mirada)
{
    const QPointer vivo{this};
    const QPointer disco{&m_app.disco()};
    const QPointer scanner{&m_app.scanner()};
    auto limpieza = m_app.limpiador().limpiarRutas(std::move(rutas), std::move(etiqueta), std::move(mirada));
    const ResultadoLimpieza resultado = co_await limpieza;
    if (disco) disco->medir();
    if (vivo) {
        olvidarMarcas();
        publicarResultado(resultado);
    }
    if (scanner) scanner->analizar();
}

void HallazgosEstado::publicarResultado(const ResultadoLimpieza &resultado)
{
    const Formato &formato = Formato::delUsuario();
    m_resumen = textoMovidos(formato.entero(static_cast<std::uint64_t>(resultado.movidos)),
                             formato.bytes(resultado.bytes));
    m_fallos.clear();
    for (const std::string &error : resultado.errores)
        m_fallos << mostrar(error);
    Q_EMIT resultadoChanged();
}

} // namespace ovanta
