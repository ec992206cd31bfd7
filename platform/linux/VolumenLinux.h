#pragma once

#include "platform/Volumen.h"

#include <QCoroTask>
#include <QObject>

namespace ovanta {

/// The volume that holds the user's home.
class VolumenLinux final : public Volumen
{
public:
    /// `mountinfo` is the text of /proc/self/mountinfo. Home is not looked at before the first `leer`.
    VolumenLinux(std::string hogar, std::string_view mountinfo);

    std::string nombre() const override { return m_nombre; }
    void leer(std::function<void(std::optional<Espacio>)> listo) override;

private:
    QCoro::Task<> leerAparte(std::function<void(std::optional<Espacio>)> listo);

    std::string m_hogar;
    std::string m_nombre = "/";
    bool m_puedeBloquear = false;
    bool m_leyendo = false;
    QObject m_vida; ///< what comes back after its end is dropped
};

} // namespace ovanta
