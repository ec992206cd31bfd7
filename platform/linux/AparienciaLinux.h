#pragma once

#include "platform/Apariencia.h"
#include "platform/Oyentes.h"
#include "platform/linux/VigiaDeServicio.h"

#include <QDBusVariant>

namespace ovanta {

/// The desktop portal's settings. Until the portal has answered, and where there is none, everything
/// is false; when it is restarted the last answers hold until the new ones come.
class AparienciaLinux final : public QObject, public Apariencia
{
    Q_OBJECT

public:
    explicit AparienciaLinux(const QDBusConnection &sesion);

    Estado actual() const override { return m_estado; }
    bool transparencia() const override;
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

private Q_SLOTS:
    void alCambiarAjuste(const QString &espacio, const QString &clave, const QDBusVariant &valor);

private:
    void preguntarTodo();
    void aplicar(const QString &espacio, const QString &clave, const QVariant &valor);

    QDBusConnection m_bus;
    VigiaDeServicio m_vigia;
    Estado m_estado;
    Oyentes m_oyentes;
};

} // namespace ovanta
