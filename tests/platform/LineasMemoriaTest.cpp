#include "platform/linux/LineasMemoria.h"
#include "tests/platform/FixturasProc.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

TEST(InterpretarZram, isTheThirdNumber)
{
    EXPECT_EQ(interpretarZram("  1000  400  512 0 600 3 1 0 0\n"), 512);
    EXPECT_EQ(interpretarZram("1000 400"), 0);
    EXPECT_EQ(interpretarZram(""), 0);
}

TEST(InterpretarBytesEscritos, isTheSeventhNumberInSectors)
{
    EXPECT_EQ(interpretarBytesEscritos("   10 0 80 0  20 0 160 4 0 4 4 1 0 8 0 0 0\n"), 160 * 512);
    EXPECT_EQ(interpretarBytesEscritos("10 0 80 0 20 0"), 0);
    EXPECT_EQ(interpretarBytesEscritos("1 1 1 1 1 1 18446744073709551615"), UINT64_MAX);
}

TEST(InterpretarPswpout, readsTheTableOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        std::uint64_t paginas;
    } casos[] = {{"3.10", 72047}, {"4.19", 0}, {"5.10", 10220448}, {"6.1", 5108}, {"6.18", 0}};
    for (const auto &[kernel, paginas] : casos)
        EXPECT_EQ(interpretarPswpout(fixturaProc(kernel, "vmstat")), paginas) << kernel;
}

TEST(InterpretarPswpout, isNoOtherCounterAndZeroWhereUntold)
{
    EXPECT_EQ(interpretarPswpout("thp_pswpout 5\npswpouts 6\npswpout 7\n"), 7);
    EXPECT_EQ(interpretarPswpout("pswpin 5\n"), 0);
    EXPECT_EQ(interpretarPswpout("pswpout\n"), 0);
    EXPECT_EQ(interpretarPswpout("pswpout muchas\n"), 0);
}

TEST(InterpretarSwaps, countsOnlyWhatCompressesInMemory)
{
    const SwapEnZram swap =
        interpretarSwaps("Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n"
                         "/dev/nvme0n1p3                          partition\t8388604\t\t1000\t\t-2\n"
                         "/dev/zram0                              partition\t4000\t\t300\t\t100\n"
                         "/dev/zram12                             partition\t1000\t\t50\t\t100\n"
                         "/dev/zramdisk                           partition\t1\t\t1\t\t100\n"
                         "/dev/zram0/../sda                       partition\t1\t\t1\t\t100\n"
                         "/swap\\040file                           file\t\t7\t\t7\t\t-3\n"
                         "/dev/zram3                              partition\n");
    EXPECT_EQ(swap, (SwapEnZram{{"zram0", "zram12"}, 5000 * 1024, 350 * 1024}));
    EXPECT_EQ(interpretarSwaps(""), SwapEnZram{});
}

TEST(InterpretarPresion, readsTheKernelsThatMeasureIt)
{
    EXPECT_EQ(interpretarPresion(fixturaProc("5.10", "pressure")), (PresionPSI{3420, 1205}));
    EXPECT_EQ(interpretarPresion(fixturaProc("6.1", "pressure")), PresionPSI{});
    EXPECT_EQ(interpretarPresion(fixturaProc("6.18", "pressure")), PresionPSI{});
}

TEST(InterpretarPresion, refusesWhatTellsNotBoth)
{
    for (const char *texto : {"", "some avg10=1.00 avg60=0.00\n", "full avg10=1.00\n",
                              "some avg60=1.00\nfull avg60=1.00\n", "some avg10=nan\nfull avg10=1.00\n",
                              "some avg10=-1.00\nfull avg10=1.00\n", "some avg10=\nfull avg10=\n"})
        EXPECT_EQ(interpretarPresion(texto), std::nullopt) << texto;
    EXPECT_EQ(interpretarPresion("some avg10=7\nfull avg10=0.5\n"), (PresionPSI{700, 50}));
    EXPECT_EQ(interpretarPresion("some avg10=99999999999999999999\nfull avg10=1.00\n"), std::nullopt);
    EXPECT_EQ(interpretarPresion("some avg10=0.999\nfull avg10=1.x\n"), (PresionPSI{99, 100}));
}
