#include "tests/x11/BancoX11.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

/// With a display of its own, which it may maltreat.
class VentanasX11Test : public BancoX11
{
};

} // namespace

TEST_F(VentanasX11Test, aWindowIsSeenWithItsProcessAndClass)
{
    auto programa = abrir("cierra", "Clase");
    VentanasX11 ventanas{pantalla().nombre()};
    const auto vistas = esperarVentanas(ventanas, programa->pid());
    ASSERT_EQ(vistas.size(), 1u);
    EXPECT_EQ(vistas[0].instancia, "Clase");
    EXPECT_EQ(vistas[0].clase, "Clase");
    EXPECT_FALSE(vistas[0].delEscritorio);
}

TEST_F(VentanasX11Test, whereNothingAnswersThereAreNoWindows)
{
    EXPECT_TRUE(VentanasX11{std::nullopt}.listar().empty());
    EXPECT_TRUE(VentanasX11{":4999"}.listar().empty());
    EXPECT_TRUE(VentanasX11{"no es una pantalla"}.listar().empty());
    EXPECT_FALSE(VentanasX11{":4999"}.pedirCierre({1}));
}

TEST_F(VentanasX11Test, aServerThatHangsBlocksNobodyAndIsUsedAgainAfterwards)
{
    auto programa = abrir("cierra", "paciente");
    VentanasX11 ventanas{pantalla().nombre()};
    esperarVentanas(ventanas, programa->pid());
    ASSERT_EQ(::kill(pantalla().servidor().pid(), SIGSTOP), 0);
    EXPECT_TRUE(ventanas.listar().empty());
    EXPECT_FALSE(ventanas.pedirCierre({1})) << "the connection is not to be had either";
    ASSERT_EQ(::kill(pantalla().servidor().pid(), SIGCONT), 0);
    esperarVentanas(ventanas, programa->pid());
}

TEST_F(VentanasX11Test, whenTheServerComesBackSoDoTheWindows)
{
    VentanasX11 ventanas{pantalla().nombre()};
    {
        auto programa = abrir("cierra", "antes");
        esperarVentanas(ventanas, programa->pid());
    }
    pantalla().apagar();
    EXPECT_TRUE(ventanas.listar().empty());
    pantalla().reencender();
    auto programa = abrir("cierra", "despues");
    esperarVentanas(ventanas, programa->pid());
}

TEST_F(VentanasX11Test, aWaylandSessionHasNoWindowsForUs)
{
    qputenv("DISPLAY", ":7");
    EXPECT_EQ(VentanasX11::pantallaDelEntorno(), ":7");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(VentanasX11::pantallaDelEntorno(), std::nullopt);
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    EXPECT_EQ(VentanasX11::pantallaDelEntorno(), std::nullopt);
}
