#include "ui/MenuViewEstado.h"

#include "app/Interfaz.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "monitors/TextoTermico.h"
#include "ui/AsegurarSimuladores.h"
#include "ui/Ovanta.h"
#include "ui/TextosPanel.h"

#include <cmath>

namespace ovanta {

namespace {

QString numero(std::uint64_t cuantos)
{
    return Formato::delUsuario().entero(cuantos);
}

QList<double> lista(const std::vector<double> &valores)
{
    return {valores.begin(), valores.end()};
}

} // namespace

MenuViewEstado::MenuViewEstado(QObject *parent)
    : QObject(parent), m_app(Ovanta::app()), m_interfaz(Ovanta::interfaz())
{
    for (const auto senal :
         {&DiskMonitor::lecturaChanged, &DiskMonitor::nivelChanged, &DiskMonitor::ajustesChanged})
        connect(&m_app.disco(), senal, this, &MenuViewEstado::discoChanged);
    for (const auto senal : {&SystemStatsMonitor::muestraChanged, &SystemStatsMonitor::bateriaChanged})
        connect(&m_app.stats(), senal, this, &MenuViewEstado::vivoChanged);
    connect(&m_app.mem(), &MemoryMonitor::lecturaChanged, this, &MenuViewEstado::memoriaChanged);
    for (const auto senal : {&SimulatorStore::simuladoresChanged, &SimulatorStore::estadoChanged})
        connect(&m_app.sims(), senal, this, &MenuViewEstado::simuladoresChanged);
}

QString MenuViewEstado::libres() const
{
    return Formato::delUsuario().bytes(m_app.disco().libre()) + QStringLiteral(" libres");
}

QString MenuViewEstado::usado() const
{
    return QStringLiteral("Usado ") + Formato::delUsuario().bytes(m_app.disco().usado());
}

QString MenuViewEstado::umbrales() const
{
    return QStringLiteral("Avisa a %1 GB · crítico %2 GB")
        .arg(std::llround(m_app.disco().umbralAviso()))
        .arg(std::llround(m_app.disco().umbralCritico()));
}

QString MenuViewEstado::ultimaLectura() const
{
    return QStringLiteral("Última lectura: ") + Formato::delUsuario().hora(m_app.disco().ultimaLectura());
}

QString MenuViewEstado::cpu() const
{
    return textoPorcentaje(m_app.stats().cpu());
}

Tinte MenuViewEstado::tinteCPU() const
{
    return tinteProcesador(m_app.stats().cpu());
}

QList<double> MenuViewEstado::historialCPU() const
{
    return lista(m_app.stats().historialCPU());
}

QString MenuViewEstado::memoria() const
{
    return textoPresion(m_app.mem().estado());
}

Tinte MenuViewEstado::tinteMemoria() const
{
    return tintePresion(m_app.mem().estado());
}

Tinte MenuViewEstado::tinteCurvaMemoria() const
{
    return tinteCurvaPresion(m_app.mem().estado());
}

QString MenuViewEstado::ram() const
{
    return textoPorcentaje(m_app.stats().ram());
}

QList<double> MenuViewEstado::historialRAM() const
{
    return lista(m_app.stats().historialRAM());
}

QString MenuViewEstado::bajada() const
{
    return QStringLiteral("↓ ") + textoVelocidad(m_app.stats().bajada());
}

QString MenuViewEstado::subida() const
{
    return QStringLiteral("↑ ") + textoVelocidad(m_app.stats().subida());
}

QList<double> MenuViewEstado::historialRed() const
{
    return lista(m_app.stats().historialRed());
}

QString MenuViewEstado::termico() const
{
    return mostrar(textoTermico(m_app.stats().termico()));
}

QString MenuViewEstado::bateria() const
{
    const auto &bateria = m_app.stats().bateria();
    return bateria ? textoBateria(*bateria) : QString();
}

QString MenuViewEstado::simboloBateria() const
{
    const auto &bateria = m_app.stats().bateria();
    return bateria ? ovanta::simboloBateria(*bateria) : QString();
}

Tinte MenuViewEstado::tinteBateria() const
{
    const auto &bateria = m_app.stats().bateria();
    return bateria ? ovanta::tinteBateria(*bateria) : Tinte::Secundario;
}

QString MenuViewEstado::salud() const
{
    const auto &bateria = m_app.stats().bateria();
    return bateria ? textoSalud(*bateria) : QString();
}

Tinte MenuViewEstado::tinteSalud() const
{
    const auto &bateria = m_app.stats().bateria();
    return bateria ? ovanta::tinteSalud(*bateria) : Tinte::Secundario;
}

bool MenuViewEstado::hayLista() const
{
    return !consultando() && !m_app.sims().simuladores().empty();
}

QString MenuViewEstado::simuladores() const
{
    if (consultando()) return QStringLiteral("Consultando…");
    if (!hayLista()) return QStringLiteral("Sin datos todavía.");
    return numero(m_app.sims().simuladores().size()) + QStringLiteral(" en total · ") +
           Formato::delUsuario().bytes(m_app.sims().bytesTotales());
}

bool MenuViewEstado::hayNuevos() const
{
    return hayLista() && !m_app.sims().nuevos().empty();
}

QString MenuViewEstado::nuevos() const
{
    if (!hayLista()) return {};
    const std::vector<Simulador> nuevos = m_app.sims().nuevos();
    if (nuevos.empty())
        return QStringLiteral("Ninguno creado en los últimos %1 días").arg(m_app.sims().diasNuevo());
    return numero(nuevos.size()) + QStringLiteral(" nuevos ocupan ") +
           Formato::delUsuario().bytes(SimulatorStore::sumaDeBytes(nuevos));
}

void MenuViewEstado::alMostrar()
{
    asegurarSimuladores(m_app.sims());
}

void MenuViewEstado::revisarSimuladores()
{
    // The selection comes first: a window that is opened now starts on it.
    m_app.navegacion().seleccionar(Seccion::simuladores);
    abrirOvanta();
}

void MenuViewEstado::abrirOvanta()
{
    if (!m_interfaz.enfocarVentanaExistente()) m_interfaz.abrirVentana();
    m_interfaz.cerrarPanel();
}

void MenuViewEstado::actualizarAhora()
{
    m_app.disco().medir();
    m_app.sims().cargar();
}

void MenuViewEstado::salir()
{
    Q_EMIT m_interfaz.salirPedido();
}

} // namespace ovanta
