#include "ui/ResumenViewEstado.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/AsegurarReglas.h"
#include "ui/AsegurarSimuladores.h"
#include "ui/AspectoNivel.h"
#include "ui/Ovanta.h"

#include <cmath>

namespace ovanta {

ResumenViewEstado::ResumenViewEstado(QObject *parent) : QObject(parent), m_app(Ovanta::app())
{
    connect(&m_app.disco(), &DiskMonitor::lecturaChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.disco(), &DiskMonitor::nivelChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.disco(), &DiskMonitor::ajustesChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.reglas(), &RuleStore::reglasChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.reglas(), &RuleStore::midiendoChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.scanner(), &Scanner::trabajandoChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.scanner(), &Scanner::duplicadosChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.scanner(), &Scanner::hallazgosChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.scanner(), &Scanner::ajustesChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.mem(), &MemoryMonitor::lecturaChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.sims(), &SimulatorStore::simuladoresChanged, this, &ResumenViewEstado::actualizar);
    connect(&m_app.sims(), &SimulatorStore::estadoChanged, this, &ResumenViewEstado::actualizar);
    actualizar();
}

void ResumenViewEstado::actualizar()
{
    m_entradas = leerEntradas(m_app);
    m_tarjetas.publicar(tarjetasResumen(m_entradas));
    Q_EMIT resumenChanged();
}

QString ResumenViewEstado::ultimoAnalisis() const
{
    return QStringLiteral("Último análisis: ") + Formato::delUsuario().hora(m_app.disco().ultimaLectura());
}

qreal ResumenViewEstado::fraccionUsada() const
{
    return m_app.disco().fraccionUsada();
}

QString ResumenViewEstado::porcentajeUsado() const
{
    return QString::number(std::lround(fraccionUsada() * 100)) + QStringLiteral(" %");
}

QString ResumenViewEstado::libres() const
{
    return Formato::delUsuario().bytes(m_app.disco().libre()) + QStringLiteral(" libres");
}

QString ResumenViewEstado::textoNivel() const
{
    return aspectoDe(m_app.disco().nivel()).texto;
}

QString ResumenViewEstado::simboloNivel() const
{
    return aspectoDe(m_app.disco().nivel()).simbolo;
}

Tinte ResumenViewEstado::tinteNivel() const
{
    return aspectoDe(m_app.disco().nivel()).tinte;
}

QString ResumenViewEstado::volumen() const
{
    return mostrar(m_app.plataforma().volumen().nombre());
}

QString ResumenViewEstado::umbrales() const
{
    return QStringLiteral("Aviso a %1 GB · crítico a %2 GB")
        .arg(std::llround(m_app.disco().umbralAviso()))
        .arg(std::llround(m_app.disco().umbralCritico()));
}

QString ResumenViewEstado::ahorro() const
{
    return Formato::delUsuario().bytes(bytesRecuperables(m_entradas));
}

QString ResumenViewEstado::textoDetener() const
{
    return m_entradas.deteniendo ? QStringLiteral("Deteniendo") : QStringLiteral("Detener");
}

QString ResumenViewEstado::textoAnalizar() const
{
    return midiendo() ? QStringLiteral("Analizando") : QStringLiteral("Analizar todo");
}

void ResumenViewEstado::alMostrar()
{
    asegurarReglas(m_app.reglas());
    asegurarSimuladores(m_app.sims());
}

void ResumenViewEstado::analizarTodo()
{
    m_app.disco().medir();
    m_app.mem().medir();
    m_app.reglas().medir();
    m_app.sims().cargar();
    m_app.scanner().analizar();
}

void ResumenViewEstado::detener()
{
    m_app.scanner().detener();
    actualizar();
}

void ResumenViewEstado::verPapelera()
{
    m_app.plataforma().gestorArchivos().abrirPapelera();
}

void ResumenViewEstado::ir(const QString &seccion)
{
    m_app.navegacion().seleccionarClave(seccion);
}

} // namespace ovanta
