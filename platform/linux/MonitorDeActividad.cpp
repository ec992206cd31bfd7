#include "platform/linux/MonitorDeActividad.h"

#include "platform/linux/Renglones.h"

#include <QProcess>
#include <QStringList>
#include <utility>

namespace ovanta {

namespace {

struct MonitorDe
{
    std::string_view escritorio;
    std::string_view id;
};

constexpr MonitorDe monitores[] = {
    {"GNOME", "org.gnome.SystemMonitor"},
    {"GNOME", "gnome-system-monitor"},
    {"GNOME", "net.nokyan.Resources"},
    {"GNOME", "io.missioncenter.MissionCenter"},
    {"KDE", "org.kde.plasma-systemmonitor"},
    {"KDE", "org.kde.ksysguard"},
    {"XFCE", "xfce4-taskmanager"},
    {"MATE", "mate-system-monitor"},
    {"LXQt", "qps"},
    {"LXDE", "lxtask"},
    {"Pantheon", "io.elementary.monitor"},
    {"Pantheon", "com.github.stsdc.monitor"},
    {"Deepin", "deepin-system-monitor"},
    {"X-Cinnamon", "gnome-system-monitor"},
};

bool nombra(std::string_view lista, std::string_view escritorio)
{
    while (!lista.empty())
        if (cortar(lista, ':') == escritorio) return true;
    return false;
}

} // namespace

std::vector<std::string> monitoresDeActividad(std::string_view escritorio)
{
    std::vector<std::string> ids;
    for (const bool propios : {true, false})
        for (const auto &[suyo, id] : monitores)
            if (nombra(escritorio, suyo) == propios) ids.emplace_back(id);
    return ids;
}

bool abrirEntrada(const EntradaEscritorio &entrada)
{
    QStringList palabras;
    for (const std::string &palabra : ordenSinArgumentos(entrada))
        palabras << QString::fromStdString(palabra);
    if (palabras.isEmpty()) return false;
    QProcess proceso;
    proceso.setProgram(palabras.takeFirst());
    proceso.setArguments(palabras);
    proceso.setStandardOutputFile(QProcess::nullDevice());
    proceso.setStandardErrorFile(QProcess::nullDevice());
    return proceso.startDetached();
}

} // namespace ovanta
