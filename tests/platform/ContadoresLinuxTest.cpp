#include "platform/linux/ContadoresLinux.h"
#include "tests/platform/ArbolDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

std::string interfaz(const std::string &nombre, int entrada, int salida)
{
    return nombre + ": " + std::to_string(entrada) + " 0 0 0 0 0 0 0 " + std::to_string(salida) +
           " 0 0 0 0 0 0 0\n";
}

} // namespace

TEST(ContadoresLinux, readsTheMachineItRunsOn)
{
    ContadoresLinux contadores;
    const auto ticks = contadores.procesador();
    ASSERT_TRUE(ticks);
    EXPECT_GT(ticks->user + ticks->system + ticks->idle, 0);
    const auto memoria = contadores.memoria();
    ASSERT_TRUE(memoria);
    EXPECT_GT(memoria->apps, 0);
    EXPECT_LT(memoria->apps + memoria->wired + memoria->comprimida, memoria->fisica);
}

TEST(ContadoresLinux, seesTheCountersMoveThroughTheSameDescriptor)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/stat", "cpu  1 2 3 4 5 6 7 8 9 10\n");
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.procesador()->user, 1);
    arbol.poner("proc/stat", "cpu  11 2 3 4 5 6 7 8 9 10\n");
    EXPECT_EQ(contadores.procesador()->user, 11);
}

TEST(ContadoresLinux, aMachineWithoutProcTellsNothing)
{
    const ArbolDePrueba arbol;
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.procesador(), std::nullopt);
    EXPECT_EQ(contadores.red(), Contadores::Red{});
    EXPECT_FALSE(contadores.memoria());
}

TEST(ContadoresLinux, countsOnlyCardsWithADeviceBehindThem)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/net/dev", "cabecera\n" + interfaz("lo", 1, 1) + interfaz("enp3s0", 10, 20) +
                                    interfaz("wlp2s0", 100, 200) + interfaz("ethernet0", 1000, 2000) +
                                    interfaz("docker0", 10000, 20000));
    for (const char *tarjeta : {"lo", "enp3s0", "wlp2s0", "docker0"})
        arbol.poner(std::string("sys/class/net/") + tarjeta + "/device/uevent", "");
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.red(), (Contadores::Red{110, 220}));
}

TEST(ContadoresLinux, anInterfaceThatGoesAwayTakesItsBytesWithIt)
{
    const ArbolDePrueba arbol;
    arbol.poner("sys/class/net/eth0/device/uevent", "");
    arbol.poner("proc/net/dev", interfaz("eth0", 500, 600));
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.red(), (Contadores::Red{500, 600}));
    arbol.quitar("sys/class/net/eth0");
    EXPECT_EQ(contadores.red(), Contadores::Red{});
}

TEST(ContadoresLinux, readsHundredsOfInterfaces)
{
    const ArbolDePrueba arbol;
    std::string texto;
    for (int i = 0; i < 600; ++i)
        texto += interfaz("veth" + std::to_string(i), 1, 1);
    arbol.poner("proc/net/dev", texto + interfaz("eth0", 5, 6));
    arbol.poner("sys/class/net/eth0/device/uevent", "");
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.red(), (Contadores::Red{5, 6}));
}

TEST(ContadoresLinux, compressedMemoryIsThatOfZswapAndOfEveryZramDevice)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/meminfo", "MemTotal: 1000 kB\nZswap: 1 kB\n");
    arbol.poner("sys/block/zram0/mm_stat", "9000 4000 100 0 0\n");
    arbol.poner("sys/block/zram1/mm_stat", "9000 4000 20 0 0\n");
    arbol.poner("sys/block/sda/size", "5\n");
    ContadoresLinux contadores{arbol.raiz()};
    EXPECT_EQ(contadores.memoria()->comprimida, 1144);
}

TEST(LecturaRepetida, opensAFileAnewThatWasNotThereBefore)
{
    const ArbolDePrueba arbol;
    LecturaRepetida lectura{arbol.raiz() + "/tarde"};
    std::string lugar;
    EXPECT_EQ(lectura.leerEntero(lugar), "");
    arbol.poner("tarde", "ya");
    EXPECT_EQ(lectura.leerEntero(lugar), "ya");
    std::array<char, 1> corto;
    EXPECT_EQ(lectura.leer(corto), "y");
}
