#include "platform/linux/AparienciaLinux.h"

#include "platform/linux/Compositor.h"
#include "platform/linux/LlamadaDBus.h"

namespace ovanta {

namespace {

// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html

const QString nombrePortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString rutaPortal = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfazAjustes = QStringLiteral("org.freedesktop.portal.Settings");

/// One setting of the portal and what it means.
struct Ajuste
{
    QString espacio;
    QString clave;
    void (*aplicar)(const QVariant &valor, Apariencia::Estado &estado);
};

const std::vector<Ajuste> &ajustes()
{
    static const std::vector<Ajuste> lista = {
        {QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
         [](const QVariant &valor, Apariencia::Estado &estado) { estado.oscuro = valor.toUInt() == 1; }},
        {QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("enable-animations"),
         [](const QVariant &valor, Apariencia::Estado &estado) {
             estado.movimientoReducido = !valor.toBool();
         }},
        {QStringLiteral("org.gnome.desktop.a11y.interface"), QStringLiteral("high-contrast"),
         [](const QVariant &valor, Apariencia::Estado &estado) { estado.altoContraste = valor.toBool(); }},
    };
    return lista;
}

/// `Read` wraps its value twice in portals before 1.18, and no one promises that it is not thrice.
QVariant sinEnvolturas(QVariant valor)
{
    while (valor.canConvert<QDBusVariant>())
        valor = valor.value<QDBusVariant>().variant();
    return valor;
}

} // namespace

AparienciaLinux::AparienciaLinux(const QDBusConnection &sesion) : m_bus(sesion), m_vigia(sesion, nombrePortal)
{
    connect(&m_vigia, &VigiaDeServicio::cambiado, this, &AparienciaLinux::preguntarTodo);
    escucharDBus(m_bus, rutaPortal, interfazAjustes, QStringLiteral("SettingChanged"), this,
                 SLOT(alCambiarAjuste(QString, QString, QDBusVariant)));
}

bool AparienciaLinux::transparencia() const
{
    return hayCompositor();
}

void AparienciaLinux::preguntarTodo()
{
    if (!m_vigia.alcanzable()) return;
    for (const Ajuste &ajuste : ajustes()) {
        auto mensaje =
            QDBusMessage::createMethodCall(nombrePortal, rutaPortal, interfazAjustes, QStringLiteral("Read"));
        mensaje << ajuste.espacio << ajuste.clave;
        llamarDBus(m_bus, mensaje, this, [this, &ajuste](const QDBusMessage &respuesta) {
            if (respuesta.type() == QDBusMessage::ReplyMessage)
                aplicar(ajuste.espacio, ajuste.clave, respuesta.arguments().value(0));
        });
    }
}

void AparienciaLinux::alCambiarAjuste(const QString &espacio, const QString &clave, const QDBusVariant &valor)
{
    aplicar(espacio, clave, valor.variant());
}

void AparienciaLinux::aplicar(const QString &espacio, const QString &clave, const QVariant &valor)
{
    Estado nuevo = m_estado;
    for (const Ajuste &ajuste : ajustes())
        if (ajuste.espacio == espacio && ajuste.clave == clave) ajuste.aplicar(sinEnvolturas(valor), nuevo);
    if (nuevo == m_estado) return;
    m_estado = nuevo;
    m_oyentes.avisar();
}

} // namespace ovanta
