#pragma once

#include "platform/AnfitrionBandeja.h"
#include "platform/Oyentes.h"
#include "platform/linux/VigiaDeServicio.h"

namespace ovanta {

/// A host of the StatusNotifierItem protocol: the watcher runs and a host has made itself known there.
class AnfitrionBandejaLinux final : public QObject, public AnfitrionBandeja
{
    Q_OBJECT

public:
    explicit AnfitrionBandejaLinux(const QDBusConnection &sesion);

    bool presente() const override { return m_presente; }
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

private Q_SLOTS:
    void preguntar();

private:
    void fijarPresente(bool presente);

    QDBusConnection m_bus;
    VigiaDeServicio m_vigia;
    bool m_presente = false;
    Oyentes m_oyentes;
};

} // namespace ovanta
