#include "monitors/DiskMonitor.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/Texto.h"

#include <QPointer>
#include <QUuid>

namespace ovanta {

namespace {

constexpr std::chrono::minutes periodoDisco{1};
/// Nobody sees whether a figure is some seconds older: the machine may wake once for many timers.
constexpr std::chrono::seconds toleranciaDisco{5};

constexpr std::string_view claveUmbralAviso = "umbralAviso";
constexpr std::string_view claveUmbralCritico = "umbralCritico";
constexpr std::string_view claveNotificar = "notificar";
constexpr std::string_view claveMostrarTexto = "mostrarTextoEnBarra";

QString sinSolicitar()
{
    return QStringLiteral("sin solicitar");
}

QString noDisponible()
{
    return QStringLiteral("no disponible (ejecutar como .app)");
}

QString concedido()
{
    return QStringLiteral("concedido");
}

} // namespace

DiskMonitor::DiskMonitor(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma), m_ultimaLectura(plataforma.reloj().ahora()),
      m_permiso(sinSolicitar())
{
    OVANTA_HILO_PRINCIPAL();
    leerPreferencias();
    const QPointer vivo{this};
    m_plataforma.volumen().leer([vivo](const std::optional<Volumen::Espacio> &espacio) {
        if (!vivo) return;
        vivo->publicar(espacio);
        vivo->empezarConPermiso();
    });
    auto medirSiVive = [vivo] {
        if (vivo) vivo->medir();
    };
    m_temporizador = m_plataforma.reloj().cada(periodoDisco, toleranciaDisco, medirSiVive);
    m_plataforma.suspension().alDespertar(medirSiVive);
}

void DiskMonitor::leerPreferencias()
{
    Preferencias &preferencias = m_plataforma.preferencias();
    preferencias.registrar(claveUmbralAviso, m_umbrales.aviso);
    preferencias.registrar(claveUmbralCritico, m_umbrales.critico);
    preferencias.registrar(claveNotificar, m_notificar);
    preferencias.registrar(claveMostrarTexto, m_mostrarTextoEnBarra);
    m_umbrales = {preferencias.real(claveUmbralAviso), preferencias.real(claveUmbralCritico)};
    m_notificar = preferencias.booleano(claveNotificar);
    m_mostrarTextoEnBarra = preferencias.booleano(claveMostrarTexto);
}

void DiskMonitor::medir()
{
    OVANTA_HILO_PRINCIPAL();
    const QPointer vivo{this};
    m_plataforma.volumen().leer([vivo](const std::optional<Volumen::Espacio> &espacio) {
        if (vivo) vivo->publicar(espacio);
    });
}

void DiskMonitor::publicar(const std::optional<Volumen::Espacio> &espacio)
{
    if (!espacio) return;
    m_libre = multiplicar(espacio->disponibles, espacio->bloque);
    m_total = multiplicar(espacio->bloques, espacio->bloque);
    m_ultimaLectura = m_plataforma.reloj().ahora();
    Q_EMIT lecturaChanged();
    revisarNivel();
}

void DiskMonitor::revisarNivel()
{
    const NivelDisco nivel = nivelDe(m_libre, m_umbrales);
    if (nivel != m_nivel) {
        m_nivel = nivel;
        Q_EMIT nivelChanged();
    }
    // With notices off the memory of the last one neither advances nor is forgotten.
    if (!m_notificar) return;
    if (m_avisos.corresponde(nivel, m_plataforma.reloj().ahora())) avisar(nivel);
}

void DiskMonitor::probarAviso()
{
    OVANTA_HILO_PRINCIPAL();
    avisar(m_nivel == NivelDisco::ok ? NivelDisco::aviso : m_nivel);
}

void DiskMonitor::avisar(NivelDisco nivel)
{
    const std::string titulo = tituloAviso(nivel);
    const std::string cuerpo = cuerpoAviso(m_libre, m_total, Formato::delUsuario().numeros());
    const bool critico = nivel == NivelDisco::critico;
    if (puedeNotificar()) {
        const std::string id = bytesDe(QUuid::createUuid().toString(QUuid::WithoutBraces));
        const auto sonido = critico ? Notificaciones::Sonido::critico : Notificaciones::Sonido::normal;
        m_plataforma.notificaciones().enviar({id, titulo, cuerpo, sonido});
    } else if (critico) {
        mostrarDialogo(titulo, cuerpo);
    }
}

bool DiskMonitor::puedeNotificar() const
{
    return m_plataforma.notificaciones().disponible() && m_permiso == concedido();
}

void DiskMonitor::mostrarDialogo(const std::string &titulo, const std::string &cuerpo)
{
    if (m_dialogoAbierto) return;
    m_dialogoAbierto = true;
    auto mostrarlo = [this, titulo, cuerpo] {
        const QPointer vivo{this};
        m_plataforma.dialogoCritico().mostrar(titulo, cuerpo, "Entendido", [vivo] {
            if (vivo) vivo->m_dialogoAbierto = false;
        });
    };
    QMetaObject::invokeMethod(this, mostrarlo, Qt::QueuedConnection);
}

void DiskMonitor::empezarConPermiso()
{
    const QPointer vivo{this};
    m_plataforma.notificaciones().alCambiar([vivo] {
        if (vivo) vivo->pedirPermiso();
    });
    pedirPermiso();
}

void DiskMonitor::pedirPermiso()
{
    Notificaciones &notificaciones = m_plataforma.notificaciones();
    if (!notificaciones.disponible()) return fijarPermiso(noDisponible());
    const QPointer vivo{this};
    notificaciones.pedirPermiso([vivo](const std::expected<bool, std::string> &respuesta) {
        if (vivo) vivo->recibirPermiso(respuesta);
    });
}

void DiskMonitor::recibirPermiso(const std::expected<bool, std::string> &respuesta)
{
    // The service may have gone while its answer was on the way.
    if (!m_plataforma.notificaciones().disponible()) return fijarPermiso(noDisponible());
    if (!respuesta) return fijarPermiso(QStringLiteral("denegado: ") + mostrar(respuesta.error()));
    fijarPermiso(*respuesta ? concedido() : QStringLiteral("denegado"));
}

void DiskMonitor::fijarPermiso(const QString &permiso)
{
    if (permiso == m_permiso) return;
    m_permiso = permiso;
    Q_EMIT permisoNotificacionesChanged();
}

double DiskMonitor::fraccionUsada() const
{
    return m_total == 0 ? 0.0 : static_cast<double>(usado()) / static_cast<double>(m_total);
}

QDateTime DiskMonitor::ultimaLecturaQt() const
{
    return enQt(m_ultimaLectura);
}

QString DiskMonitor::nivelQt() const
{
    return mostrar(textoNivel(m_nivel));
}

void DiskMonitor::fijarUmbralAviso(double umbral)
{
    OVANTA_HILO_PRINCIPAL();
    if (umbral == m_umbrales.aviso) return;
    m_umbrales.aviso = umbral;
    m_plataforma.preferencias().fijar(claveUmbralAviso, umbral);
    Q_EMIT ajustesChanged();
    revisarNivel();
}

void DiskMonitor::fijarUmbralCritico(double umbral)
{
    OVANTA_HILO_PRINCIPAL();
    if (umbral == m_umbrales.critico) return;
    m_umbrales.critico = umbral;
    m_plataforma.preferencias().fijar(claveUmbralCritico, umbral);
    Q_EMIT ajustesChanged();
    revisarNivel();
}

void DiskMonitor::fijarNotificar(bool notificar)
{
    OVANTA_HILO_PRINCIPAL();
    if (notificar == m_notificar) return;
    m_notificar = notificar;
    m_plataforma.preferencias().fijar(claveNotificar, notificar);
    Q_EMIT ajustesChanged();
}

void DiskMonitor::fijarMostrarTextoEnBarra(bool mostrar)
{
    OVANTA_HILO_PRINCIPAL();
    if (mostrar == m_mostrarTextoEnBarra) return;
    m_mostrarTextoEnBarra = mostrar;
    m_plataforma.preferencias().fijar(claveMostrarTexto, mostrar);
    Q_EMIT ajustesChanged();
}

} // namespace ovanta
