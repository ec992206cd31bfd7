#include "platform/linux/ProgramasConocidos.h"

#include "core/Rutas.h"

#include <algorithm>
#include <span>

namespace ovanta {

namespace {

using Nombres = std::span<const std::string_view>;

bool esUno(std::string_view nombre, Nombres nombres)
{
    return std::ranges::find(nombres, nombre) != nombres.end();
}

bool empiezaPorUno(std::string_view nombre, Nombres principios)
{
    return std::ranges::any_of(principios, [&](std::string_view p) { return nombre.starts_with(p); });
}

/// "python3.11" and "gjs-console" are what "python" and "gjs" are.
std::string_view sinVersion(std::string_view nombre)
{
    nombre = nombre.substr(0, nombre.find("-console"));
    while (!nombre.empty() &&
           (nombre.back() == '.' || nombre.back() == '-' || (nombre.back() >= '0' && nombre.back() <= '9')))
        nombre.remove_suffix(1);
    return nombre;
}

constexpr std::string_view consolas[] = {
    "sh", "bash", "dash", "zsh", "fish", "ksh", "mksh", "csh", "tcsh", "busybox", "rbash",
};

constexpr std::string_view interpretes[] = {
    "python", "perl", "ruby",  "node", "nodejs", "gjs", "lua",
    "mono",   "php",  "tclsh", "wish", "guile",  "qml", "cjs",
};

constexpr std::string_view lanzadores[] = {
    "env",         "java",         "javaw",  "wine",       "wine64",    "wine-preloader",
    "pkexec",      "sudo",         "su",     "gksu",       "gksudo",    "kdesu",
    "flatpak",     "snap",         "gio",    "gtk-launch", "xdg-open",  "exo-open",
    "dbus-send",   "dbus-launch",  "gdbus",  "busctl",     "systemctl", "loginctl",
    "systemd-run", "gapplication", "AppRun", "main",       "launcher",  "x-terminal-emulator",
};

constexpr std::string_view partesDeSesion[] = {
    // display servers, compositors and window managers
    "Xorg",
    "Xorg.bin",
    "Xwayland",
    "Xvfb",
    "Xephyr",
    "Xvnc",
    "Xtigervnc",
    "X",
    "weston",
    "sway",
    "labwc",
    "wayfire",
    "river",
    "Hyprland",
    "niri",
    "cosmic-comp",
    "mutter",
    "muffin",
    "metacity",
    "marco",
    "xfwm4",
    "openbox",
    "i3",
    "bspwm",
    "awesome",
    "fluxbox",
    "icewm",
    "compiz",
    "picom",
    "compton",
    "gala",
    // shells of the desktop
    "gnome-shell",
    "plasmashell",
    "cinnamon",
    "xfdesktop",
    "lxpanel",
    "lxqt-panel",
    "mate-panel",
    "waybar",
    "budgie-panel",
    "budgie-wm",
    "krunner",
    "polkitd",
    "wrapper-2.0",
    "nautilus-desktop",
    // logins and sessions
    "gdm3",
    "gdm",
    "sddm",
    "sddm-helper",
    "lightdm",
    "lxdm",
    "login",
    "startplasma-x11",
    "startplasma-wayland",
    "ksmserver",
    "startx",
    "xinit",
    "lxsession",
    "systemd",
    "(sd-pam)",
    "elogind",
    "sshd",
    // buses, sound, accessibility
    "dbus-daemon",
    "dbus-broker",
    "dbus-broker-launch",
    "pipewire",
    "pipewire-pulse",
    "pulseaudio",
};

constexpr std::string_view familiasDeSesion[] = {
    "gnome-session",
    "gnome-keyring",
    "gnome-screensaver",
    "gdm-",
    "gsd-",
    "mutter-",
    "gnome-shell-",
    "xfce4-session",
    "xfce4-panel",
    "xfce4-notifyd",
    "xfce4-power-manager",
    "xfce4-screensaver",
    "xfsettingsd",
    "xfconfd",
    "mate-session",
    "mate-settings-daemon",
    "mate-screensaver",
    "mate-power-manager",
    "cinnamon-",
    "csd-",
    "lxqt-session",
    "lxqt-policykit",
    "lxqt-notificationd",
    "lxqt-powermanagement",
    "plasma_session",
    "kwin_",
    "kded",
    "kscreen",
    "kactivitymanagerd",
    "org_kde_powerdevil",
    "polkit-",
    "xdg-desktop-portal",
    "xdg-document-portal",
    "xdg-permission-store",
    "gvfs",
    "at-spi",
    "wireplumber",
};

constexpr std::string_view otrasFamiliasDeSesion[] = {
    "kwalletd",
    "ksecretd",
    "kglobalaccel",
    "xembedsniproxy",
    "gmenudbusmenuproxy",
    "baloo_file",
    "speech-dispatcher",
    "flatpak-portal",
    "flatpak-session-helper",
    "i3lock",
    "swaylock",
    "light-locker",
    "xss-lock",
    "mako",
    "swaync",
    "swaybg",
    "polybar",
    "tint2",
    "herbstluftwm",
    "enlightenment",
    "ibus-",
    "fcitx",
    "dconf-service",
    "goa-",
    "evolution-",
    "tracker-",
    "tracker3",
    "systemd-",
    "ssh-agent",
    "gpg-agent",
    "dunst",
    "xscreensaver",
};

constexpr std::string_view ayudantes[] = {
    "WebKitWebProcess",   "WebKitNetworkProcess",
    "WebKitGPUProcess",   "WebKitPluginProcess",
    "QtWebEngineProcess", "bwrap",
    "xdg-dbus-proxy",     "chrome_crashpad_handler",
    "chrome-sandbox",     "crashpad_handler",
    "crashhelper",        "zypak-helper",
    "zypak-sandbox",      "glycin-image-rs",
};

constexpr std::string_view sostenes[] = {
    "conmon",
    "containerd-shim",
    "containerd-shim-runc-v2",
    "catatonit",
    "tini",
    "dumb-init",
    "docker-init",
    "crun",
    "runc",
    "pause",
    "lxc-start",
};

/// Folders that hold the programs of many.
constexpr std::string_view nombresCompartidos[] = {
    "bin", "sbin", "games", "libexec", "lib", "lib64", "program",
};

constexpr std::string_view carpetasCompartidas[] = {
    "/", "/opt", "/usr", "/usr/local", "/usr/share", "/tmp", "/app", "/home", "/var",
};

bool esCompartida(std::string_view carpeta, std::string_view hogar)
{
    if (esUno(carpeta, carpetasCompartidas) || esUno(ultimoComponente(carpeta), nombresCompartidos))
        return true;
    // The folder of one architecture: /usr/lib/x86_64-linux-gnu.
    if (carpeta.starts_with("/usr/lib/") && carpeta.find("-linux-gnu") != carpeta.npos)
        return ultimoComponente(carpeta).find("-linux-gnu") != carpeta.npos;
    if (hogar.empty()) return false;
    return yaceEn(hogar, carpeta) || carpetaContenedora(carpeta) == hogar;
}

} // namespace

bool esInterprete(std::string_view nombre)
{
    return esConsola(nombre) || esUno(sinVersion(nombre), interpretes);
}

bool esLanzador(std::string_view nombre)
{
    return esUno(nombre, lanzadores);
}

bool esConsola(std::string_view nombre)
{
    return esUno(nombre, consolas);
}

bool esParteDeSesion(std::string_view nombre)
{
    return esUno(nombre, partesDeSesion) || empiezaPorUno(nombre, familiasDeSesion) ||
           empiezaPorUno(nombre, otrasFamiliasDeSesion);
}

bool esAyudante(std::string_view nombre)
{
    return esUno(nombre, ayudantes);
}

bool esSostenDeContenedor(std::string_view nombre)
{
    return esUno(nombre, sostenes);
}

bool esMaquinaVirtual(std::string_view nombre)
{
    return nombre.starts_with("qemu-system-") || nombre == "qemu-kvm" || nombre == "kvm" ||
           nombre == "VBoxHeadless" || nombre == "VirtualBoxVM" || nombre == "vmware-vmx";
}

std::string carpetaDeInstalacion(std::string_view programa, std::string_view hogar)
{
    if (!programa.starts_with('/')) return {};
    std::string_view carpeta = carpetaContenedora(programa);
    // An application's own tree has such a folder too: /opt/x/bin, /usr/lib/libreoffice/program.
    const bool arbolPropio =
        carpeta.starts_with("/opt/") || carpeta.starts_with("/usr/lib/") || carpeta.starts_with("/snap/");
    if (arbolPropio && esUno(ultimoComponente(carpeta), nombresCompartidos))
        carpeta = carpetaContenedora(carpeta);
    if (esCompartida(carpeta, hogar)) return {};
    return std::string{carpeta};
}

} // namespace ovanta
