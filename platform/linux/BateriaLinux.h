#pragma once

#include "platform/Bateria.h"
#include "platform/linux/CombinarBaterias.h"

#include <QDBusConnection>
#include <QObject>
#include <string>
#include <vector>

namespace ovanta {

/// The battery by UPower where it runs, else by the kernel. UPower is asked at each reading and not
/// listened to: its changes would wake the program between the readings.
class BateriaLinux final : public Bateria
{
public:
    /// `raiz` is the folder that holds "sys".
    explicit BateriaLinux(const QDBusConnection &sistema, std::string raiz = "/");

    void leer(std::function<void(std::optional<EstadoBateria>)> listo) override;

private:
    void leerDelNucleo();
    void responder(const LecturaBaterias &lectura);

    QDBusConnection m_bus;
    std::string m_raiz;
    std::vector<std::function<void(std::optional<EstadoBateria>)>> m_esperando;
    QObject m_contexto; ///< what comes back after the end of this object is dropped with it
};

} // namespace ovanta
