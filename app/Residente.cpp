#include "app/Residente.h"

#include "app/SimboloNivel.h"
#include "core/qt/Formato.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/Texto.h"
#include "monitors/FormatosCortos.h"

namespace ovanta {

namespace {

/// At login the tray may come up after us: how long before the window opens in its stead.
constexpr std::chrono::seconds esperaAnfitrion{20};

} // namespace

Residente::Residente(OvantaApp &app, QStringList bibliotecas)
    : m_app(app), m_cargador(app, std::move(bibliotecas))
{
    connect(&m_bandeja, &Bandeja::pulsada, this, &Residente::alternarPanel);
    connect(&m_bandeja, &Bandeja::panelPedido, this, &Residente::abrirPanel);
    connect(&m_bandeja, &Bandeja::abrirPedido, this, &Residente::abrirVentana);
    connect(&m_bandeja, &Bandeja::actualizarPedido, this, &Residente::actualizarDatos);
    connect(&m_bandeja, &Bandeja::salirPedido, this, &Residente::salirPedido);
    connect(&m_app.disco(), &DiskMonitor::lecturaChanged, this, &Residente::actualizarBandeja);
    connect(&m_app.disco(), &DiskMonitor::nivelChanged, this, &Residente::actualizarBandeja);
    connect(&m_app.disco(), &DiskMonitor::ajustesChanged, this, &Residente::actualizarBandeja);
    connect(&m_app.stats(), &SystemStatsMonitor::ajustesChanged, this, &Residente::actualizarBandeja);
    connect(&m_app.stats(), &SystemStatsMonitor::muestraChanged, this, [this] {
        if (m_app.stats().algoEnBarra()) actualizarBandeja();
    });
    m_app.plataforma().apariencia().alCambiar([this] { actualizarBandeja(); });
    m_app.plataforma().anfitrionBandeja().alCambiar([this] { seguirAnfitrion(); });
}

bool Residente::empezar()
{
    OVANTA_HILO_PRINCIPAL();
    InstanciaUnica &instancia = m_app.plataforma().instanciaUnica();
    if (!instancia.adquirir([this] { abrirVentana(); })) return false;
    seguirAnfitrion();
    actualizarBandeja();
    if (!instancia.iniciadaPorLaSesion()) {
        abrirVentana();
    } else {
        m_esperaAnfitrion = m_app.plataforma().reloj().unaVez(esperaAnfitrion, [this] {
            if (!m_bandeja.visible()) abrirVentana();
        });
    }
    return true;
}

void Residente::abrirVentana()
{
    OVANTA_HILO_PRINCIPAL();
    Interfaz *ventanas = interfaz();
    if (ventanas && !ventanas->enfocarVentanaExistente()) ventanas->abrirVentana();
}

void Residente::abrirPanel()
{
    OVANTA_HILO_PRINCIPAL();
    if (Interfaz *ventanas = interfaz()) ventanas->abrirPanel(m_bandeja.lugar());
}

void Residente::alternarPanel()
{
    const Interfaz *ventanas = m_cargador.interfazSiHay();
    switch (m_toques.pulsar(ventanas && ventanas->panelAbierto(), m_app.plataforma().reloj().ahora())) {
    case ToquesDelIcono::Accion::abrir:
        return abrirPanel();
    case ToquesDelIcono::Accion::cerrar:
        return m_cargador.interfazSiHay()->cerrarPanel();
    case ToquesDelIcono::Accion::nada:
        return;
    }
}

void Residente::actualizarDatos()
{
    m_app.disco().medir();
    m_app.sims().cargar();
}

/// The windows, ready to be opened; nothing where they cannot be loaded, which the user is told.
Interfaz *Residente::interfaz()
{
    if (Interfaz *cargada = m_cargador.interfazSiHay()) return cargada;
    Interfaz *nueva = m_cargador.interfaz();
    if (!nueva) {
        m_app.plataforma().dialogoCritico().mostrar("No se pudo abrir la ventana de Ovanta",
                                                    bytesDe(m_cargador.error()), "Entendido", [] {});
        return nullptr;
    }
    nueva->minimizarAlCerrar(!m_bandeja.visible());
    connect(nueva, &Interfaz::salirPedido, this, &Residente::salirPedido);
    connect(nueva, &Interfaz::panelCerrado, this, [this](bool porFoco) {
        if (porFoco) m_toques.panelPerdioElFoco(m_app.plataforma().reloj().ahora());
    });
    return nueva;
}

void Residente::seguirAnfitrion()
{
    // Without an icon a closed window could not be found again: then closing only minimises it.
    const bool hay = m_app.plataforma().anfitrionBandeja().presente();
    if (hay && !m_bandeja.visible()) m_bandeja.aparecer();
    if (!hay) m_bandeja.desaparecer();
    if (Interfaz *interfaz = m_cargador.interfazSiHay()) interfaz->minimizarAlCerrar(!hay);
}

void Residente::actualizarBandeja()
{
    m_bandeja.actualizar(estadoDeBandeja());
}

Bandeja::Estado Residente::estadoDeBandeja() const
{
    const Apariencia::Estado apariencia = m_app.plataforma().apariencia().actual();
    Bandeja::Estado estado;
    estado.nivel = m_app.disco().nivel();
    // GNOME's bar is dark whatever the windows are.
    estado.panelOscuro =
        apariencia.oscuro || qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"));
    if (m_app.stats().algoEnBarra()) {
        const EtiquetaBarra conFiguras = etiqueta();
        estado.linea = estado.texto = mostrar(conFiguras.texto());
        if (m_app.plataforma().anfitrionBandeja().muestraAnchas()) estado.etiqueta = conFiguras;
        return estado;
    }
    estado.linea = Formato::delUsuario().bytes(m_app.disco().libre()) + QStringLiteral(" libres");
    if (m_app.disco().mostrarTextoEnBarra()) estado.texto = estado.linea;
    return estado;
}

EtiquetaBarra Residente::etiqueta() const
{
    const DiskMonitor &disco = m_app.disco();
    const SystemStatsMonitor &stats = m_app.stats();
    EtiquetaBarra etiqueta;
    etiqueta.simbolo = nombreDeSimbolo(disco.nivel());
    if (disco.mostrarTextoEnBarra()) etiqueta.libre = formatearBytesCorto(disco.libre());
    if (stats.barraCPU()) etiqueta.cpu = stats.cpu();
    if (stats.barraRAM()) etiqueta.ram = stats.ram();
    if (stats.barraRed()) etiqueta.red = stats.bajada() + stats.subida();
    if (stats.barraCPU() && stats.barraGrafica()) etiqueta.grafica = stats.historialCPU();
    return etiqueta;
}

} // namespace ovanta
