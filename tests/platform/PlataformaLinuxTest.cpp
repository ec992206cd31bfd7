#include "platform/linux/PlataformaLinux.h"

#include "tests/platform/BusDePrueba.h"

#include <fstream>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

// The test program runs in a home of its own, on a session bus of its own.

TEST(PlataformaLinux, standsOnTheUsersHomeAndVolume)
{
    PlataformaLinux plataforma;
    EXPECT_EQ(plataforma.lugares().hogar, std::filesystem::canonical(std::getenv("HOME")));
    std::optional<Volumen::Espacio> espacio;
    plataforma.volumen().leer([&](auto leido) { espacio = leido; });
    EXPECT_TRUE(esperarA([&] { return espacio.has_value(); }));
    EXPECT_TRUE(plataforma.lugares().hogar.starts_with(plataforma.volumen().nombre()));
}

TEST(PlataformaLinux, keepsSettingsInTheUsersConfiguration)
{
    PlataformaLinux plataforma;
    plataforma.preferencias().fijar("umbralAviso", 12.5);
    EXPECT_TRUE(std::filesystem::exists(plataforma.lugares().hogar + "/.config/Ovanta/ajustes.ini"));
    EXPECT_EQ(PlataformaLinux{}.preferencias().real("umbralAviso"), 12.5);
    plataforma.preferencias().quitar("umbralAviso");
}

TEST(PlataformaLinux, movesAFileToTheTrashOfItsHome)
{
    PlataformaLinux plataforma;
    const std::string ruta = plataforma.lugares().hogar + "/sobra.txt";
    std::ofstream{ruta} << "x";
    const auto medida = plataforma.papelera().medir(ruta);
    ASSERT_TRUE(medida) << medida.error();
    const auto reciclado = plataforma.papelera().reciclar(*medida);
    ASSERT_TRUE(reciclado) << reciclado.error();
    EXPECT_FALSE(std::filesystem::exists(ruta));
    EXPECT_TRUE(std::filesystem::exists(plataforma.lugares().hogar + "/.local/share/Trash/files/sobra.txt"));
}

TEST(PlataformaLinux, runsRealTools)
{
    PlataformaLinux plataforma;
    EXPECT_EQ(plataforma.herramientas().ejecutar("/bin/echo", {"hola"}, 10, false), "hola\n");
    EXPECT_EQ(plataforma.herramientas().buscarBinario("no-hay-tal-programa"), std::nullopt);
    EXPECT_FALSE(plataforma.aplicaciones().enEjecucion("com.belmora.Ovanta"));
    EXPECT_EQ(plataforma.aplicaciones().identificadorDePaquete("/"), "");
}

TEST(PlataformaLinux, isTheOneInstanceAndWasStartedByTheUser)
{
    PlataformaLinux plataforma;
    EXPECT_TRUE(plataforma.instanciaUnica().adquirir([] {}));
    EXPECT_FALSE(plataforma.instanciaUnica().iniciadaPorLaSesion());
}

TEST(PlataformaLinux, anEmptyDesktopIsPlain)
{
    PlataformaLinux plataforma;
    dejarPasar();
    EXPECT_EQ(plataforma.apariencia().actual(), Apariencia::Estado{});
    EXPECT_FALSE(plataforma.anfitrionBandeja().presente());
}
