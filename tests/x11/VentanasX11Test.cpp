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
    const std::vector<VentanaVista> ninguna;
    EXPECT_EQ(VentanasX11{std::nullopt}.listar(), ninguna);
    EXPECT_EQ(VentanasX11{":4999"}.listar(), ninguna);
    EXPECT_EQ(VentanasX11{"no es una pantalla"}.listar(), ninguna);
}

TEST_F(VentanasX11Test, aServerThatHangsBlocksNobodyAndIsUsedAgainAfterwards)
{
    auto programa = abrir("cierra", "paciente");
    VentanasX11 ventanas{pantalla().nombre()};
    esperarVentanas(ventanas, programa->pid());
    ASSERT_EQ(::kill(pantalla().servidor().pid(), SIGSTOP), 0);
    EXPECT_EQ(ventanas.listar(), std::nullopt);
    EXPECT_EQ(ventanas.listar(), std::nullopt) << "a new connection is not to be had either";
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
    EXPECT_EQ(ventanas.listar(), std::vector<VentanaVista>{});
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
