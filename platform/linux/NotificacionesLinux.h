#pragma once

#include "platform/Notificaciones.h"
#include "platform/Oyentes.h"
#include "platform/linux/VigiaDeServicio.h"

#include <QDBusMessage>
#include <map>
#include <optional>

namespace ovanta {

/// org.freedesktop.Notifications on the session bus. A server that runs, or that the bus can start,
/// counts as permission granted.
class NotificacionesLinux final : public QObject, public Notificaciones
{
    Q_OBJECT

public:
    explicit NotificacionesLinux(const QDBusConnection &sesion);

    bool disponible() const override { return m_disponible; }
    void pedirPermiso(std::function<void(std::expected<bool, std::string>)> respuesta) override;
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }
    void enviar(const Aviso &aviso) override;

private Q_SLOTS:
    void alCerrarse(uint id, uint motivo, const QDBusMessage &mensaje);

private:
    /// What the server knows of the notices with one of our ids.
    struct Mostrado
    {
        uint id = 0;                    ///< the server's number
        bool enCamino = false;          ///< sent, and the number not here yet
        std::optional<Aviso> siguiente; ///< to follow as soon as it is
    };

    void alCambiarDueno();
    void preguntarCapacidades();
    void mandar(const Aviso &aviso, Mostrado &mostrado);
    void recibirNumero(const std::string &clave, const QDBusMessage &respuesta);

    QDBusConnection m_bus;
    VigiaDeServicio m_vigia;
    QString m_servidor; ///< the connection whose numbers `m_mostrados` holds
    bool m_disponible = false;
    bool m_marcado = true; ///< whether the server reads bodies as markup; most do
    std::map<std::string, Mostrado> m_mostrados;
    Oyentes m_oyentes;
};

} // namespace ovanta
