#include "platform/linux/BateriasUPower.h"

#include "platform/linux/LlamadaDBus.h"

#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <algorithm>
#include <climits>
#include <memory>
#include <utility>

namespace ovanta {

namespace {

constexpr uint claseBateria = 2;
constexpr uint cargando = 1;
constexpr uint descargando = 2;

QDBusMessage mensaje(const QString &ruta, const QString &interfaz, const QString &metodo)
{
    QDBusMessage llamada =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.UPower"), ruta, interfaz, metodo);
    llamada.setAutoStartService(false);
    return llamada;
}

QDBusMessage pedirPropiedades(const QString &ruta, const QString &interfaz)
{
    return mensaje(ruta, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"))
           << interfaz;
}

/// The properties that came, or none where the call failed or the answer is something else.
QVariantMap propiedades(const QDBusMessage &respuesta)
{
    const QDBusPendingReply<QVariantMap> leida = respuesta;
    return leida.isValid() ? leida.value() : QVariantMap();
}

bool alimentaLaMaquina(const QVariantMap &aparato)
{
    return aparato.value(QStringLiteral("Type")).toUInt() == claseBateria &&
           aparato.value(QStringLiteral("PowerSupply")).toBool() &&
           aparato.value(QStringLiteral("IsPresent"), true).toBool();
}

LecturaBateria lecturaDe(const QVariantMap &aparato)
{
    LecturaBateria lectura;
    lectura.contenido = aparato.value(QStringLiteral("Energy")).toDouble();
    lectura.lleno = aparato.value(QStringLiteral("EnergyFull")).toDouble();
    lectura.deFabrica = aparato.value(QStringLiteral("EnergyFullDesign")).toDouble();
    lectura.ritmo = aparato.value(QStringLiteral("EnergyRate")).toDouble();
    if (const QVariant porcentaje = aparato.value(QStringLiteral("Percentage")); porcentaje.isValid())
        lectura.porcentaje = porcentaje.toDouble();
    if (const qlonglong segundos = aparato.value(QStringLiteral("TimeToEmpty")).toLongLong(); segundos > 0)
        lectura.segundos = static_cast<int>(std::min<qlonglong>(segundos, INT_MAX));
    lectura.ciclos = aparato.value(QStringLiteral("ChargeCycles")).toInt();
    const uint estado = aparato.value(QStringLiteral("State")).toUInt();
    lectura.cargando = estado == cargando;
    lectura.descargando = estado == descargando;
    return lectura;
}

/// One reading on its way: the service itself, its list of devices, then each of them. It lives as
/// long as an answer is awaited.
class Peticion : public std::enable_shared_from_this<Peticion>
{
public:
    Peticion(QDBusConnection bus, QObject *contexto,
             std::function<void(std::optional<LecturaBaterias>)> listo)
        : m_bus(std::move(bus)), m_contexto(contexto), m_listo(std::move(listo))
    {
    }

    void empezar()
    {
        const QString servicio = QStringLiteral("org.freedesktop.UPower");
        llamar(pedirPropiedades(ruta, servicio), [](Peticion &yo, const QDBusMessage &respuesta) {
            const QVariant enBateria = propiedades(respuesta).value(QStringLiteral("OnBattery"));
            if (!enBateria.isValid()) return yo.fallar();
            yo.m_lectura.enCorriente = !enBateria.toBool();
            yo.pedirLista();
        });
    }

private:
    template <typename F>
    void llamar(const QDBusMessage &llamada, F alResponder)
    {
        llamarDBus(m_bus, llamada, m_contexto,
                   [yo = shared_from_this(), alResponder](const QDBusMessage &respuesta) {
                       if (!yo->m_listo) return;
                       if (respuesta.type() == QDBusMessage::ReplyMessage)
                           alResponder(*yo, respuesta);
                       else
                           yo->fallar();
                   });
    }

    void pedirLista()
    {
        const QString servicio = QStringLiteral("org.freedesktop.UPower");
        llamar(mensaje(ruta, servicio, QStringLiteral("EnumerateDevices")),
               [](Peticion &yo, const QDBusMessage &respuesta) {
                   const QDBusPendingReply<QList<QDBusObjectPath>> lista = respuesta;
                   if (!lista.isValid()) return yo.fallar();
                   yo.pedirAparatos(lista.value());
               });
    }

    void pedirAparatos(const QList<QDBusObjectPath> &aparatos)
    {
        m_pendientes = aparatos.size();
        if (m_pendientes == 0) return acabar();
        for (const QDBusObjectPath &aparato : aparatos)
            llamar(pedirPropiedades(aparato.path(), QStringLiteral("org.freedesktop.UPower.Device")),
                   [](Peticion &yo, const QDBusMessage &respuesta) {
                       const QVariantMap datos = propiedades(respuesta);
                       if (alimentaLaMaquina(datos)) yo.m_lectura.baterias.push_back(lecturaDe(datos));
                       if (--yo.m_pendientes == 0) yo.acabar();
                   });
    }

    void acabar() { std::exchange(m_listo, nullptr)(std::move(m_lectura)); }
    void fallar() { std::exchange(m_listo, nullptr)(std::nullopt); }

    const QString ruta = QStringLiteral("/org/freedesktop/UPower");
    QDBusConnection m_bus;
    QObject *m_contexto;
    std::function<void(std::optional<LecturaBaterias>)> m_listo; ///< empty once it was called
    LecturaBaterias m_lectura;
    qsizetype m_pendientes = 0;
};

} // namespace

void leerBateriasUPower(const QDBusConnection &sistema, QObject *contexto,
                        std::function<void(std::optional<LecturaBaterias>)> listo)
{
    std::make_shared<Peticion>(sistema, contexto, std::move(listo))->empezar();
}

} // namespace ovanta
