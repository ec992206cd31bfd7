#pragma once

#include "platform/InicioAutomatico.h"

#include <vector>

namespace ovanta {

/// Starting at login by an entry in the user's autostart folder. One of the same name for all users
/// is overridden there, never touched.
class InicioAutomaticoLinux final : public InicioAutomatico
{
public:
    struct Lugares
    {
        std::string usuario;              ///< the user's autostart folder
        std::vector<std::string> sistema; ///< those for all users, the most important first
        std::string programa;             ///< absolute path of the program to start

        /// `configuracion` is the folder of the user's settings, `dirs` the value of $XDG_CONFIG_DIRS.
        static Lugares de(const std::string &configuracion, std::string_view dirs, std::string programa);
    };

    explicit InicioAutomaticoLinux(Lugares lugares) : m_lugares(std::move(lugares)) {}

    bool activado() override;
    std::expected<void, std::string> fijar(bool activado) override;

private:
    std::string archivo() const;
    bool activadoParaTodos() const;
    std::expected<void, std::string> activar() const;
    std::expected<void, std::string> desactivar() const;
    std::expected<void, std::string> escribir(const std::string &entrada) const;

    Lugares m_lugares;
};

} // namespace ovanta
