#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace ovanta {

/// Follows who owns one well-known bus name. Never waits for the bus: until the first answer has
/// come the service counts as absent. Without a bus it stays so.
class VigiaDeServicio : public QObject
{
    Q_OBJECT

public:
    VigiaDeServicio(const QDBusConnection &bus, const QString &nombre);

    /// The connection that owns the name (":1.42"), empty where nobody does.
    const QString &dueno() const { return m_dueno; }
    bool presente() const { return !m_dueno.isEmpty(); }
    /// Whether a message to the name would be received: by its owner, or by a service that the bus
    /// starts for it.
    bool alcanzable() const { return presente() || m_activable; }
    /// The bus tried to start the service and could not: don't count on that any more.
    void activacionFallida();

Q_SIGNALS:
    /// The owner, or whether there can be one, is another than before.
    void cambiado();

private:
    void preguntar(QDBusConnection bus);
    void fijarDueno(const QString &dueno);
    void fijarActivable(bool activable);

    QString m_nombre;
    QString m_dueno;
    bool m_activable = false;
    QDBusServiceWatcher m_vigia;
};

} // namespace ovanta
