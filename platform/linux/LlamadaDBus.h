#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <chrono>
#include <utility>

namespace ovanta {

/// Long enough for the bus to start a service, short enough that nothing waits for ever.
inline constexpr std::chrono::milliseconds esperaDBus{10'000};

/// Sends a call and hands its answer, the error included, to `alResponder` on the main thread. Never
/// waits. After the end of `contexto` the answer is dropped.
template <typename F>
void llamarDBus(QDBusConnection bus, const QDBusMessage &llamada, QObject *contexto, F alResponder)
{
    if (!bus.isConnected()) {
        // Qt would never answer.
        const auto error = QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("sin bus"));
        QMetaObject::invokeMethod(
            contexto, [alResponder = std::move(alResponder), error] { alResponder(error); },
            Qt::QueuedConnection);
        return;
    }
    auto *vigia =
        new QDBusPendingCallWatcher(bus.asyncCall(llamada, static_cast<int>(esperaDBus.count())), contexto);
    QObject::connect(vigia, &QDBusPendingCallWatcher::finished, contexto,
                     [alResponder = std::move(alResponder)](QDBusPendingCallWatcher *hecha) {
                         hecha->deleteLater();
                         alResponder(hecha->reply());
                     });
}

/// Connects a slot to a signal of the object at `ruta`, whoever sends it: given a sender's name, Qt would
/// wait for the bus to tell who owns it.
inline void escucharDBus(QDBusConnection bus, const QString &ruta, const QString &interfaz,
                         const QString &senal, QObject *receptor, const char *ranura)
{
    bus.connect({}, ruta, interfaz, senal, receptor, ranura);
}

} // namespace ovanta
