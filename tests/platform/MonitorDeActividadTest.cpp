#include "platform/linux/MonitorDeActividad.h"

#include "platform/linux/AplicacionesEnMarchaLinux.h"
#include "tests/HogarTemporal.h"
#include "tests/platform/BusDePrueba.h"
#include "tests/platform/ProcDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class MonitorDeActividadTest : public testing::Test
{
protected:
    HogarTemporal hogar;
    EntradasDePrueba entradas{hogar.fuera()};

    bool abrir(const std::string &escritorio)
    {
        auto fotografo = std::make_shared<FotografoProcesos>(
            [] { return std::vector<ProcesoVisto>{}; }, entradas.lugares(), EntornoProcesos{}, std::nullopt);
        return AplicacionesEnMarchaLinux{fotografo, escritorio}.abrirMonitorDeActividad();
    }
    /// An entry whose program leaves a file with its words.
    void ponerMonitor(const std::string &id)
    {
        const std::string guion = hogar.fuera("bin/" + id);
        std::ofstream{guion} << "#!/bin/sh\nprintf '%s' \"$*\" > '" << senal(id) << ".parte'\nmv '"
                             << senal(id) << ".parte' '" << senal(id) << "'\n";
        std::filesystem::permissions(guion, std::filesystem::perms::owner_all);
        entradas.poner(id, id, '"' + guion + "\" --vista \"a; b\" %U");
    }
    std::string senal(const std::string &id) const { return hogar.fuera("abierto-" + id); }
};

} // namespace

TEST_F(MonitorDeActividadTest, theMonitorOfTheDesktopIsPreferred)
{
    ponerMonitor("gnome-system-monitor");
    ponerMonitor("xfce4-taskmanager");
    EXPECT_TRUE(abrir("XFCE"));
    EXPECT_TRUE(esperarA([&] { return std::filesystem::exists(senal("xfce4-taskmanager")); }));
    std::ifstream archivo{senal("xfce4-taskmanager")};
    const std::string palabras{std::istreambuf_iterator<char>{archivo}, {}};
    EXPECT_EQ(palabras, "--vista a; b") << "no shell reads them";
    EXPECT_FALSE(std::filesystem::exists(senal("gnome-system-monitor")));
}

TEST_F(MonitorDeActividadTest, anotherDesktopsMonitorServesToo)
{
    ponerMonitor("xfce4-taskmanager");
    EXPECT_TRUE(abrir("ubuntu:GNOME"));
    EXPECT_TRUE(esperarA([&] { return std::filesystem::exists(senal("xfce4-taskmanager")); }));
}

TEST_F(MonitorDeActividadTest, whereThereIsNoneNothingOpens)
{
    entradas.poner("otra", "Otra", "otra");
    EXPECT_FALSE(abrir("GNOME"));
    entradas.poner("gnome-system-monitor", "Sin programa", "/no/hay/tal");
    entradas.poner("qps", "Sin lo que pide", "/bin/true", "TryExec=no-hay-tal");
    EXPECT_FALSE(abrir("GNOME"));
    ponerMonitor("lxtask");
    EXPECT_TRUE(abrir("GNOME")) << "those that are not installed are passed over";
}

TEST(MonitoresDeActividad, everyDesktopHasItsOwnFirst)
{
    EXPECT_EQ(monitoresDeActividad("KDE").front(), "org.kde.plasma-systemmonitor");
    EXPECT_EQ(monitoresDeActividad("ubuntu:GNOME").front(), "org.gnome.SystemMonitor");
    EXPECT_EQ(monitoresDeActividad("MATE").front(), "mate-system-monitor");
    EXPECT_EQ(monitoresDeActividad("").size(), monitoresDeActividad("LXQt").size());
}
