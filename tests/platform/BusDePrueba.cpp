#include "tests/platform/BusDePrueba.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace ovanta::pruebas {

namespace {

void escribir(const QString &ruta, const QString &texto)
{
    QFile archivo{ruta};
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(texto.toUtf8());
}

QProcessEnvironment entornoCon(const QString &direccion)
{
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), direccion);
    entorno.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), direccion);
    return entorno;
}

} // namespace

BusDePrueba::BusDePrueba()
{
    const QString carpeta = m_carpeta.path();
    QDir{carpeta}.mkdir(QStringLiteral("servicios"));
    escribir(carpeta + QStringLiteral("/bus.conf"), QStringLiteral(R"(<busconfig>
  <type>session</type><listen>unix:path=%1/bus</listen><servicedir>%1/servicios</servicedir>
  <policy context="default">
    <allow user="*"/><allow own="*"/><allow send_destination="*"/><allow receive_sender="*"/>
  </policy>
</busconfig>)")
                                                        .arg(carpeta));
    m_direccion = QStringLiteral("unix:path=%1/bus").arg(carpeta);
    m_proceso.setProcessEnvironment(entornoCon(m_direccion));
    m_proceso.setStandardErrorFile(QProcess::nullDevice());
    // It must not outlive a test program that crashed.
    m_proceso.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_proceso.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                     QStringLiteral("--config-file=%1/bus.conf").arg(carpeta)});
    EXPECT_TRUE(m_proceso.waitForReadyRead(20'000)) << "dbus-daemon did not start";
}

BusDePrueba::~BusDePrueba()
{
    for (const QString &nombre : m_conexiones)
        QDBusConnection::disconnectFromBus(nombre);
    m_proceso.kill();
    m_proceso.waitForFinished();
}

QDBusConnection BusDePrueba::conectar()
{
    static int contador = 0;
    m_conexiones << QStringLiteral("prueba-%1").arg(++contador);
    return QDBusConnection::connectToBus(m_direccion, m_conexiones.last());
}

void BusDePrueba::hacerActivable(const QString &nombre, const QString &orden)
{
    escribir(m_carpeta.filePath(QStringLiteral("servicios/%1.service").arg(nombre)),
             QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(nombre, orden));
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    conectar().call(QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                   QStringLiteral("ReloadConfig")));
}

ServidorSimulado::ServidorSimulado(BusDePrueba &bus, QString nombre, QString ruta,
                                   const QStringList &argumentos)
    : m_nombre(std::move(nombre)), m_ruta(std::move(ruta)), m_control(bus.conectar())
{
    m_proceso.setProcessEnvironment(entornoCon(bus.direccion()));
    m_proceso.setStandardOutputFile(QProcess::nullDevice());
    m_proceso.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_proceso.start(QStringLiteral("/usr/bin/python3"),
                    QStringList{QStringLiteral("-m"), QStringLiteral("dbusmock")} + argumentos);
    EXPECT_TRUE(esperarA([this] { return m_control.interface()->isServiceRegistered(m_nombre).value(); }));
}

ServidorSimulado::~ServidorSimulado()
{
    matar();
}

std::unique_ptr<ServidorSimulado> ServidorSimulado::sencillo(BusDePrueba &bus, const QString &nombre,
                                                             const QString &ruta, const QString &interfaz)
{
    return std::make_unique<ServidorSimulado>(bus, nombre, ruta, QStringList{nombre, ruta, interfaz});
}

std::unique_ptr<ServidorSimulado> ServidorSimulado::notificaciones(BusDePrueba &bus,
                                                                   const QString &parametros)
{
    QStringList argumentos{QStringLiteral("--template"), QStringLiteral("notification_daemon")};
    if (!parametros.isEmpty()) argumentos << QStringLiteral("-p") << parametros;
    return std::make_unique<ServidorSimulado>(bus, QStringLiteral("org.freedesktop.Notifications"),
                                              QStringLiteral("/org/freedesktop/Notifications"), argumentos);
}

QVariantList ServidorSimulado::controlar(const QString &metodo, const QVariantList &argumentos)
{
    auto mensaje =
        QDBusMessage::createMethodCall(m_nombre, m_ruta, QStringLiteral("org.freedesktop.DBus.Mock"), metodo);
    mensaje.setArguments(argumentos);
    const QDBusMessage respuesta = m_control.call(mensaje);
    EXPECT_EQ(respuesta.type(), QDBusMessage::ReplyMessage) << respuesta.errorMessage().toStdString();
    return respuesta.arguments();
}

void ServidorSimulado::agregarMetodo(const QString &interfaz, const QString &nombre, const QString &entrada,
                                     const QString &salida, const QString &codigo)
{
    controlar(QStringLiteral("AddMethod"), {interfaz, nombre, entrada, salida, codigo});
}

void ServidorSimulado::agregarPropiedad(const QString &interfaz, const QString &nombre, const QVariant &valor)
{
    controlar(QStringLiteral("AddProperty"), {interfaz, nombre, QVariant::fromValue(QDBusVariant(valor))});
}

void ServidorSimulado::cambiarPropiedad(const QString &interfaz, const QString &nombre, const QVariant &valor)
{
    controlar(QStringLiteral("UpdateProperties"), {interfaz, QVariantMap{{nombre, valor}}});
}

void ServidorSimulado::emitir(const QString &interfaz, const QString &nombre, const QString &firma,
                              const QVariantList &argumentos)
{
    controlar(QStringLiteral("EmitSignal"), {interfaz, nombre, firma, QVariant::fromValue(argumentos)});
}

QList<QVariantList> ServidorSimulado::llamadas(const QString &metodo)
{
    QList<QVariantList> resultado;
    const QVariantList respuesta = controlar(QStringLiteral("GetMethodCalls"), {metodo});
    const auto lista = respuesta.value(0).value<QDBusArgument>();
    for (lista.beginArray(); !lista.atEnd();) {
        qulonglong hora = 0;
        QVariantList argumentos;
        lista.beginStructure();
        lista >> hora >> argumentos;
        lista.endStructure();
        resultado << argumentos;
    }
    lista.endArray();
    return resultado;
}

void ServidorSimulado::matar()
{
    m_proceso.kill();
    m_proceso.waitForFinished();
}

} // namespace ovanta::pruebas
