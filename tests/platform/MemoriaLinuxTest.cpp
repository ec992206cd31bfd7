#include "platform/linux/MemoriaLinux.h"
#include "platform/linux/ContadoresLinux.h"
#include "tests/platform/ArbolDePrueba.h"
#include "tests/platform/FixturasProc.h"

#include <gtest/gtest.h>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

constexpr std::uint64_t mega = 1 << 20;

std::string blockStat(std::uint64_t sectoresEscritos)
{
    return "0 0 0 0 5 0 " + std::to_string(sectoresEscritos) + " 0 0 0 0\n";
}

} // namespace

TEST(MemoriaLinux, readsTheMachineItRunsOn)
{
    MemoriaLinux memoria;
    const auto lectura = memoria.leer();
    EXPECT_GT(memoria.fisica(), 0);
    EXPECT_GT(lectura.apps, 0);
    EXPECT_GT(lectura.cache, 0);
    EXPECT_LT(lectura.apps + lectura.wired + lectura.comprimida, memoria.fisica());
    ASSERT_TRUE(lectura.arranque);
    std::array<char, 100> lugar;
    const double encendido = std::stod(std::string(LecturaRepetida("/proc/uptime").leer(lugar)));
    const auto desde = std::chrono::duration<double>(std::chrono::system_clock::now() - *lectura.arranque);
    EXPECT_NEAR(desde.count(), encendido, 30);
}

TEST(MemoriaLinux, readsTheTableOfEveryKernelAsTheCountersDo)
{
    for (const char *kernel : {"3.10", "4.19", "5.10", "6.1", "6.18"}) {
        const ArbolDePrueba arbol;
        arbol.poner("proc/meminfo", fixturaProc(kernel, "meminfo"));
        arbol.poner("proc/vmstat", fixturaProc(kernel, "vmstat"));
        arbol.poner("sys/block/zram0/mm_stat", "9000 4000 12288 0 0\n");
        MemoriaLinux memoria{arbol.raiz()};
        const auto lectura = memoria.leer();
        const auto contadores = ContadoresLinux{arbol.raiz()}.memoria();
        ASSERT_TRUE(contadores) << kernel;
        EXPECT_EQ(lectura.apps, contadores->apps) << kernel;
        EXPECT_EQ(lectura.wired, contadores->wired) << kernel;
        EXPECT_EQ(lectura.comprimida, contadores->comprimida) << kernel;
        EXPECT_GE(lectura.comprimida, 12288) << kernel;
        EXPECT_EQ(memoria.fisica(), contadores->fisica) << kernel;
        EXPECT_GT(lectura.libre, 0) << kernel;
    }
}

TEST(MemoriaLinux, swapThatOnlyCompressesIsNoSwap)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/meminfo", "MemTotal: 1000000 kB\nMemAvailable: 900000 kB\n"
                                "SwapTotal: 12288 kB\nSwapFree: 7168 kB\n");
    arbol.poner("proc/swaps", "Filename Type Size Used Priority\n/dev/sda2 partition 8192 2048 -2\n"
                              "/dev/zram0 partition 4096 3072 100\n");
    arbol.poner("proc/vmstat", "pswpout 1000\n");
    const auto pagina = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    arbol.poner("sys/block/zram0/stat", blockStat(600 * pagina / 512));
    MemoriaLinux memoria{arbol.raiz()};
    const auto lectura = memoria.leer();
    EXPECT_EQ(lectura.swapTotal, 8 * mega);
    EXPECT_EQ(lectura.swapUsado, 2 * mega);
    EXPECT_EQ(lectura.swapouts, 400);
}

TEST(MemoriaLinux, aCompressedDiskThatIsNoSwapTakesNothingFromTheCounter)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/vmstat", "pswpout 1000\n");
    arbol.poner("sys/block/zram0/stat", blockStat(800000));
    MemoriaLinux memoria{arbol.raiz()};
    EXPECT_EQ(memoria.leer().swapouts, 1000);
}

TEST(MemoriaLinux, moreWrittenToZramThanCountedIsNone)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/swaps", "/dev/zram0 partition 4096 3072 100\n");
    arbol.poner("proc/vmstat", "pswpout 1\n");
    arbol.poner("sys/block/zram0/stat", blockStat(800000));
    MemoriaLinux memoria{arbol.raiz()};
    const auto lectura = memoria.leer();
    EXPECT_EQ(lectura.swapouts, 0);
    EXPECT_EQ(lectura.swapTotal, 0);
    EXPECT_EQ(lectura.swapUsado, 0);
}

TEST(MemoriaLinux, theLevelFollowsThePressureFromReadingToReading)
{
    const ArbolDePrueba arbol;
    const auto nivelCon = [&arbol](MemoriaLinux &memoria, const char *presion) {
        arbol.poner("proc/pressure/memory", presion);
        return memoria.leer().nivel;
    };
    arbol.poner("proc/meminfo", "MemTotal: 1000 kB\nMemAvailable: 900 kB\n");
    MemoriaLinux memoria{arbol.raiz()};
    using enum MemoriaSistema::Nivel;
    EXPECT_EQ(nivelCon(memoria, "some avg10=0.00\nfull avg10=0.00\n"), normal);
    EXPECT_EQ(nivelCon(memoria, "some avg10=34.20\nfull avg10=12.05\n"), critico);
    EXPECT_EQ(nivelCon(memoria, "some avg10=9.00\nfull avg10=4.00\n"), tension);
    EXPECT_EQ(nivelCon(memoria, "some avg10=4.00\nfull avg10=0.00\n"), normal);
}

TEST(MemoriaLinux, withoutAPressureFileTheAvailableMemoryDecides)
{
    const ArbolDePrueba arbol;
    arbol.poner("proc/meminfo", fixturaProc("5.10", "meminfo"));
    MemoriaLinux memoria{arbol.raiz()};
    EXPECT_EQ(memoria.leer().nivel, MemoriaSistema::Nivel::tension);
    arbol.poner("proc/meminfo", fixturaProc("6.1", "meminfo"));
    EXPECT_EQ(memoria.leer().nivel, MemoriaSistema::Nivel::normal);
}

TEST(MemoriaLinux, everySourceFailsByItself)
{
    const ArbolDePrueba arbol;
    MemoriaLinux memoria{arbol.raiz()};
    auto lectura = memoria.leer();
    EXPECT_EQ(memoria.fisica(), 0);
    EXPECT_TRUE(lectura.arranque);
    lectura.arranque.reset();
    EXPECT_EQ(lectura, MemoriaSistema::Lectura{});
    arbol.poner("proc/meminfo", "MemTotal: 1000 kB\nMemFree: 5 kB\n");
    EXPECT_EQ(memoria.leer().libre, 5120);
    EXPECT_EQ(memoria.fisica(), 1000 * 1024);
}
