#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantList>
#include <QtTest/QTest>
#include <memory>

namespace ovanta::pruebas {

/// Runs the event loop until `condicion` holds; false where it does not for a long time.
template <typename F>
bool esperarA(F condicion)
{
    return QTest::qWaitFor(condicion, 20'000);
}

/// Runs the event loop for a moment, for what must not happen.
inline void dejarPasar()
{
    QTest::qWait(150);
}

/// A connection to no bus at all.
inline QDBusConnection sinBus()
{
    return QDBusConnection{QStringLiteral("no hay tal bus")};
}

/// A message bus of the test's own.
class BusDePrueba
{
public:
    BusDePrueba();
    ~BusDePrueba();

    QString direccion() const { return m_direccion; }

    /// A connection of its own at every call, closed with the bus.
    QDBusConnection conectar();

    /// Makes the bus start `orden` when somebody calls `nombre`.
    void hacerActivable(const QString &nombre, const QString &orden);

private:
    QTemporaryDir m_carpeta;
    QProcess m_proceso;
    QString m_direccion;
    QStringList m_conexiones;
};

/// A service of python-dbusmock on such a bus.
class ServidorSimulado
{
public:
    /// `argumentos` as on the command line: a template, or name, path and interface.
    ServidorSimulado(BusDePrueba &bus, QString nombre, QString ruta, const QStringList &argumentos);
    ~ServidorSimulado();

    static std::unique_ptr<ServidorSimulado> sencillo(BusDePrueba &bus, const QString &nombre,
                                                      const QString &ruta, const QString &interfaz);
    static std::unique_ptr<ServidorSimulado> notificaciones(BusDePrueba &bus, const QString &parametros = {});

    void agregarMetodo(const QString &interfaz, const QString &nombre, const QString &entrada,
                       const QString &salida, const QString &codigo);
    void agregarPropiedad(const QString &interfaz, const QString &nombre, const QVariant &valor);
    void cambiarPropiedad(const QString &interfaz, const QString &nombre, const QVariant &valor);
    void emitir(const QString &interfaz, const QString &nombre, const QString &firma,
                const QVariantList &argumentos);

    /// The arguments of every call of a method so far.
    QList<QVariantList> llamadas(const QString &metodo);

    /// Ends the service at once.
    void matar();

private:
    QVariantList controlar(const QString &metodo, const QVariantList &argumentos);

    QString m_nombre;
    QString m_ruta;
    QDBusConnection m_control;
    QProcess m_proceso;
};

} // namespace ovanta::pruebas
