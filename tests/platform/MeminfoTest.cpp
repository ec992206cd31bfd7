#include "platform/linux/Meminfo.h"
#include "tests/platform/FixturasProc.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

TEST(InterpretarMeminfo, readsTheTableOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        std::uint64_t apps, wired, cache, disponible, swapUsado, zswap; ///< kB
    } casos[] = {
        {"3.10", 1928724, 97484, 1544640, 1761444, 288188, 0}, // no MemAvailable, Percpu
        {"4.19", 3222840, 156928, 3791104, 3904120, 0, 0},     // no KReclaimable
        {"5.10", 12331432, 462836, 1079332, 1201300, 6387600, 0},
        {"6.1", 8423124, 439736, 10118676, 21800432, 20432, 4096},
        {"6.18", 1226444, 66696, 1558176, 22971644, 0, 0},
    };
    for (const auto &caso : casos) {
        const auto memoria = interpretarMeminfo(fixturaProc(caso.kernel, "meminfo"));
        ASSERT_TRUE(memoria) << caso.kernel;
        EXPECT_EQ(memoria->apps(), caso.apps * 1024) << caso.kernel;
        EXPECT_EQ(memoria->wired(), caso.wired * 1024) << caso.kernel;
        EXPECT_EQ(memoria->cache(), caso.cache * 1024) << caso.kernel;
        EXPECT_EQ(memoria->memAvailable, caso.disponible * 1024) << caso.kernel;
        EXPECT_EQ(memoria->swapUsado(), caso.swapUsado * 1024) << caso.kernel;
        EXPECT_EQ(memoria->zswap, caso.zswap * 1024) << caso.kernel;
    }
}

TEST(InterpretarMeminfo, addsUpWhatCannotBeGivenAway)
{
    const auto memoria =
        interpretarMeminfo("MemTotal:       16000 kB\nMemFree: 100 kB\nAnonPages: 3000 kB\n"
                           "Shmem:  400 kB\nSUnreclaim: 50 kB\nKernelStack: 6 kB\n"
                           "PageTables: 7 kB\nPercpu: 8 kB\nMlocked: 9 kB\nZswap: 11 kB\nZswapped: 44 kB\n");
    ASSERT_TRUE(memoria);
    EXPECT_EQ(memoria->memTotal, 16000 * 1024);
    EXPECT_EQ(memoria->apps(), 3400 * 1024);
    EXPECT_EQ(memoria->wired(), 80 * 1024);
    EXPECT_EQ(memoria->zswap, 11 * 1024);
}

TEST(InterpretarMeminfo, aTextWithoutTotalIsNone)
{
    EXPECT_EQ(interpretarMeminfo("MemTotal: 10 kB\nAnonPages: 4 kB")->apps(), 4096);
    EXPECT_FALSE(interpretarMeminfo("AnonPages: 4 kB\n"));
    EXPECT_FALSE(interpretarMeminfo("MemTotal: mucho\n"));
    EXPECT_FALSE(interpretarMeminfo(""));
}

TEST(InterpretarMeminfo, whatAContainerMakesUpNeverWraps)
{
    const auto memoria = interpretarMeminfo("MemTotal: 18446744073709551615 kB\nCached: 1 kB\nShmem: 5 kB\n"
                                            "AnonPages: 18446744073709551615 kB\nSwapFree: 7 kB\n");
    ASSERT_TRUE(memoria);
    EXPECT_EQ(memoria->apps(), UINT64_MAX);
    EXPECT_EQ(memoria->cache(), 0);
    EXPECT_EQ(memoria->swapUsado(), 0);
}

TEST(InterpretarMeminfo, nothingAvailableIsNotTakenForUntold)
{
    EXPECT_EQ(interpretarMeminfo("MemTotal: 10 kB\nMemFree: 3 kB\nMemAvailable: 0 kB\n")->memAvailable, 0);
    EXPECT_EQ(interpretarMeminfo("MemTotal: 10 kB\nMemFree: 3 kB\n")->memAvailable, 3072);
}
