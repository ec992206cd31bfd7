#include "platform/linux/InicioDeSesion.h"

#include <algorithm>
#include <array>

namespace ovanta {

namespace {

/// As the kernel cuts them, to 15 bytes.
constexpr std::array<std::string_view, 10> comandosDeSesion = {
    "gnome-session-b", "xfce4-session", "mate-session",   "cinnamon-sessio", "lxqt-session",
    "lxsession",       "ksmserver",     "plasma_session", "dbus-daemon",     "dbus-broker-lau",
};

std::string_view unidadDe(std::string_view cgroup)
{
    cgroup = cgroup.substr(0, cgroup.find('\n'));
    return cgroup.substr(cgroup.rfind('/') + 1);
}

bool esUnidadDeSesion(std::string_view unidad)
{
    constexpr std::string_view id = "com.belmora.Ovanta";
    if (unidad.starts_with("app-"))
        return unidad.find(id) != unidad.npos && unidad.ends_with("@autostart.service");
    return unidad.starts_with("dbus-") && unidad.find(id) != unidad.npos;
}

} // namespace

bool laSesionInicio(std::string_view cgroup, std::string_view comandoPadre)
{
    comandoPadre = comandoPadre.substr(0, comandoPadre.find('\n'));
    return esUnidadDeSesion(unidadDe(cgroup)) || std::find(comandosDeSesion.begin(), comandosDeSesion.end(),
                                                           comandoPadre) != comandosDeSesion.end();
}

} // namespace ovanta
