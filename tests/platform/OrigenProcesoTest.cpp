#include "platform/linux/OrigenProceso.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace ovanta;

namespace {

using Clase = OrigenProceso::Clase;

const std::string app = "/user.slice/user-1000.slice/user@1000.service/app.slice/";
const std::string numero(64, 'a');
const std::string corto(12, 'a');

struct CasoOrigen
{
    std::string grupo;
    Clase clase;
    std::string id;
};

} // namespace

TEST(OrigenProceso, aGroupTellsWhatHoldsTheProcess)
{
    const std::vector<CasoOrigen> casos = {
        {app + "app-gnome-org.gnome.Nautilus-4321.scope", Clase::aplicacion, "org.gnome.Nautilus"},
        {app + R"(app-gnome-firefox\x2desr-4321.scope)", Clase::aplicacion, "firefox-esr"},
        {app + "app-org.kde.kate-0123456789abcdef.scope", Clase::aplicacion, "org.kde.kate"},
        {app + "app-org.kde.dolphin@0123abcd.service", Clase::aplicacion, "org.kde.dolphin"},
        {app + R"(app-nm\x2dapplet@autostart.service)", Clase::aplicacion, "nm-applet"},
        {app + "app-gnome-org.gnome.Todo.desktop-77.scope", Clase::aplicacion, "org.gnome.Todo"},
        {app + "app-flatpak-org.mozilla.firefox-1234.scope", Clase::aplicacion, "org.mozilla.firefox"},
        {app + "snap.firefox.firefox-6ec2b8a1-42e5-4f3c-8c9f-0a8e9f1c7b55.scope", Clase::aplicacion,
         "firefox_firefox"},
        {app + "snap.code.code.6ec2b8a1-42e5-4f3c-8c9f-0a8e9f1c7b55.scope", Clase::aplicacion, "code_code"},
        {app + R"(app-dbus\x2d:1.2\x2dorg.gnome.Calculator.slice/dbus-:1.2-org.gnome.Calculator@0.service)",
         Clase::aplicacion, "org.gnome.Calculator"},
        {app + "app-org.gnome.Terminal.slice/gnome-terminal-server.service", Clase::aplicacion,
         "org.gnome.Terminal"},
        {app + "app-org.gnome.Terminal.slice/vte-spawn-6ec2b8a1-42e5-4f3c-8c9f-0a8e9f1c7b55.scope",
         Clase::ninguna, ""},
        {"/system.slice/docker-" + numero + ".scope", Clase::contenedor, corto},
        {"/docker/" + numero, Clase::contenedor, corto},
        {app + "libpod-" + numero + ".scope/container", Clase::contenedor, corto},
        {"/machine.slice/libpod-conmon-" + numero + ".scope", Clase::contenedor, corto},
        {"/kubepods.slice/kubepods-burstable.slice/cri-containerd-" + numero + ".scope", Clase::contenedor,
         corto},
        {"/kubepods/besteffort/pod1234/" + numero, Clase::contenedor, corto},
        {"/system.slice/containerd.service/kubepods-pod1.slice:cri-containerd:" + numero, Clase::contenedor,
         corto},
        {"/crio-" + numero + ".scope", Clase::contenedor, corto},
        {"/lxc.payload.web/system.slice/nginx.service", Clase::contenedor, "web"},
        {"/lxc/web/init.scope", Clase::contenedor, "web"},
        {"/machine.slice/systemd-nspawn@deb.service/payload/user.slice", Clase::contenedor, "deb"},
        {"/machine.slice/machine-deb.scope", Clase::contenedor, "deb"},
        {R"(/machine.slice/machine-lxc\x2d99\x2dweb.scope)", Clase::contenedor, "web"},
        {R"(/machine.slice/machine-qemu\x2d1\x2ddebian12.scope/libvirt/emulator)", Clase::maquinaVirtual,
         "debian12"},
        {R"(/machine.slice/machine-qemu\x2d1\x2dmi\x2dred.scope)", Clase::maquinaVirtual, "mi-red"},
        {"/user.slice/user-1000.slice/user@1000.service/session.slice/org.gnome.Shell@x11.service",
         Clase::sesion, ""},
        {"/user.slice/user-1000.slice/user@1000.service/init.scope", Clase::sesion, ""},
        {"/system.slice/cups.service", Clase::sesion, ""},
        {"/system.slice/app-raro-1.scope", Clase::sesion, ""},
        {"/user.slice/user-1000.slice/session-2.scope", Clase::ninguna, ""},
        {app + "vte-spawn-6ec2b8a1-42e5-4f3c-8c9f-0a8e9f1c7b55.scope", Clase::ninguna, ""},
        {app + "gnome-terminal-server.service", Clase::ninguna, ""},
        {"/", Clase::ninguna, ""},
    };
    for (const CasoOrigen &caso : casos) {
        const auto origen = origenDe("0::" + caso.grupo + "\n");
        EXPECT_EQ(origen.clase, caso.clase) << caso.grupo;
        EXPECT_EQ(origen.id, caso.id) << caso.grupo;
    }
}

TEST(OrigenProceso, theGroupReachesAsFarAsWhatWasRecognised)
{
    const auto origen = origenDe("0::" + app + "app-flatpak-org.x.Y-12.scope/dentro/mas\n");
    EXPECT_EQ(origen.grupo, app + "app-flatpak-org.x.Y-12.scope");
    EXPECT_TRUE(origen.unificado);
}

TEST(OrigenProceso, theSessionStartsSomeByItself)
{
    EXPECT_TRUE(origenDe("0::" + app + "app-nube@autostart.service").deInicio);
    EXPECT_FALSE(origenDe("0::" + app + "app-nube@0123abcd.service").deInicio);
}

TEST(OrigenProceso, olderHierarchiesAreReadFromSystemdsOwn)
{
    const auto origen = origenDe("12:memory:/docker/" + numero + "\n1:name=systemd:" + app +
                                 "app-gnome-gedit-12.scope\n0::/\n");
    EXPECT_EQ(origen.clase, Clase::aplicacion);
    EXPECT_EQ(origen.id, "gedit");
    EXPECT_FALSE(origen.unificado);
}

TEST(OrigenProceso, whatLiesInOurOwnContainerIsLookedAtFromInside)
{
    const std::string propio = "/docker/" + numero;
    EXPECT_EQ(origenDe("0::" + propio + "\n", propio), OrigenProceso{});
    EXPECT_EQ(origenDe("0::" + propio + "/docker/" + std::string(64, 'b') + "\n", propio).id,
              std::string(12, 'b'));
}

TEST(OrigenProceso, malformedTextTellsNothing)
{
    for (const std::string texto : {"", "0", "0:", "0::", "0::sin-barra", ":::::", "0::/app-.scope",
                                    "0::/app-", "0::/snap..scope", "0::/machine-.scope", "\n\n\n"})
        EXPECT_EQ(origenDe(texto).clase, Clase::ninguna) << texto;
}

TEST(OrigenProceso, escapesOfUnitsAreUndone)
{
    EXPECT_EQ(sinEscapesDeUnidad(R"(a\x2db\x5fc)"), "a-b_c");
    EXPECT_EQ(sinEscapesDeUnidad(R"(roto\x2 \xzz\x)"), R"(roto\x2 \xzz\x)");
}
