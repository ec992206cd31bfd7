#include "platform/linux/LineasProc.h"
#include "tests/platform/FixturasProc.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

std::string statDe(const std::string &comm, const std::string &estado = "S")
{
    return "77 (" + comm + ") " + estado + " 5 77 77 0 -1 4194304 1 2 3 4 30 12 -5 -6 20 0 1 0 999 8 9 10 11";
}

} // namespace

TEST(InterpretarLineaStat, readsTheLineOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        LineaStat linea;
    } casos[] = {
        {"3.10", {"gnome-shell", 'S', 1899, false, 59357, 4412}},
        {"4.19", {"Web Content", 'S', 1650, false, 140882, 66120}},
        {"5.10", {"(sd-pam)", 'S', 930, false, 0, 1204}},
        {"6.1", {"tmux: server", 'S', 1, false, 5432, 2201847}},
        {"6.18", {"sleep", 'S', 25294, false, 0, 185931}},
    };
    for (const auto &[kernel, linea] : casos) {
        const std::string texto = fixturaProc(kernel, "stat");
        EXPECT_EQ(interpretarLineaStat(texto), linea) << kernel;
    }
}

TEST(InterpretarLineaStat, aNameMayHoldSpacesParenthesesAndNewlines)
{
    for (const std::string comm : {"a b", "a) R 1 2 (b", "(", ")", "", "uno\ndos", ") S 9 9", "\xff\xfe\x80",
                                   "(((((((((((((((", ")))))))))))))))"}) {
        const std::string texto = statDe(comm);
        EXPECT_EQ(interpretarLineaStat(texto), (LineaStat{comm, 'S', 5, false, 42, 999})) << comm;
    }
}

TEST(InterpretarLineaStat, knowsThreadsOfTheKernelAndWhatHasEnded)
{
    const auto hilo = interpretarLineaStat(
        "2 (kthreadd) S 0 0 0 0 -1 2129984 0 0 0 0 0 7 0 0 20 0 1 0 3 0 0 18446744073709551615 0 0 0\n");
    ASSERT_TRUE(hilo);
    EXPECT_TRUE(hilo->delNucleo);
    for (const char *estado : {"Z", "X", "x"}) {
        const std::string texto = statDe("a", estado);
        EXPECT_TRUE(interpretarLineaStat(texto)->acabado()) << estado;
    }
    for (const char *estado : {"R", "S", "D", "T", "t", "I"}) {
        const std::string texto = statDe("a", estado);
        EXPECT_FALSE(interpretarLineaStat(texto)->acabado()) << estado;
    }
}

TEST(InterpretarLineaStat, refusesALineCutAnywhereBeforeTheStartTime)
{
    const std::string texto = statDe("a");
    const std::size_t hastaInicio = texto.find(" 999") + 1;
    for (std::size_t largo = 0; largo <= hastaInicio; ++largo)
        EXPECT_FALSE(interpretarLineaStat(std::string_view(texto).substr(0, largo))) << largo;
    EXPECT_TRUE(interpretarLineaStat(std::string_view(texto).substr(0, hastaInicio + 3)));
}

TEST(InterpretarLineaStat, refusesWhatIsNoSuchLine)
{
    for (const char *texto :
         {"", ")", "(", ")(", "1 a S 2", "1 (a) S x 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1",
          "1 (a) S -1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1",
          "1 (a) S 99999999999 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1",
          "1 (a) S 1 1 1 1 1 1 1 1 1 1 -1 1 1 1 1 1 1 1 1"})
        EXPECT_FALSE(interpretarLineaStat(texto)) << texto;
}

TEST(InterpretarLineaStat, timesThatDoNotFitStopAtTheLargest)
{
    const auto linea = interpretarLineaStat(
        "1 (a) S 1 1 1 1 1 1 1 1 1 1 18446744073709551615 5 0 0 20 0 1 0 18446744073709551615");
    ASSERT_TRUE(linea);
    EXPECT_EQ(linea->ticks, UINT64_MAX);
    EXPECT_EQ(linea->inicio, UINT64_MAX);
}

TEST(InterpretarLineaStatm, readsTheLineOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        LineaStatm linea;
    } casos[] = {
        {"3.10", {56400, 3}}, {"4.19", {67002, 87}}, {"5.10", {612, 202}},
        {"6.1", {408, 132}},  {"6.18", {27, 5}},
    };
    for (const auto &[kernel, linea] : casos)
        EXPECT_EQ(interpretarLineaStatm(fixturaProc(kernel, "statm")), linea) << kernel;
}

TEST(InterpretarLineaStatm, moreSharedThanResidentIsNothingOfItsOwn)
{
    EXPECT_EQ(interpretarLineaStatm("100 50 60 1 0 0 0\n"), (LineaStatm{0, 1}));
    EXPECT_EQ(interpretarLineaStatm("0 0 0 0 0 0 0\n"), LineaStatm{});
}

TEST(InterpretarLineaStatm, refusesWhatIsNoSuchLine)
{
    for (const char *texto : {"", "100", "100 50 60", "100 50 x 1", "-1 2 3 4", "1 2 3 99999999999999999999"})
        EXPECT_EQ(interpretarLineaStatm(texto), std::nullopt) << texto;
}

TEST(InterpretarVmSwap, readsTheTableOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        std::uint64_t kB;
    } casos[] = {{"3.10", 18244}, {"4.19", 0}, {"5.10", 2204}, {"6.1", 96}, {"6.18", 0}};
    for (const auto &[kernel, kB] : casos)
        EXPECT_EQ(interpretarVmSwap(fixturaProc(kernel, "status")), kB * 1024) << kernel;
}

TEST(InterpretarVmSwap, isZeroForAThreadOfTheKernelAndForGarbage)
{
    for (const char *texto : {"", "Name:\tkthreadd\nThreads:\t1\n", "Name: VmSwap:\t5 kB\n",
                              "VmSwap:", "VmSwap: mucho kB\n", "xVmSwap: 5 kB\n"})
        EXPECT_EQ(interpretarVmSwap(texto), 0) << texto;
    EXPECT_EQ(interpretarVmSwap("VmSwap:\t5"), 5120);
    EXPECT_EQ(interpretarVmSwap("VmSwap: 18446744073709551615 kB\n"), UINT64_MAX);
}

TEST(ProgramaDeCmdline, isWhatTheLineNamesFirst)
{
    const struct
    {
        std::string_view linea, programa;
    } casos[] = {
        {{"/usr/bin/less\0-R\0", 17}, "/usr/bin/less"},
        {{"/opt/Mi programa/bin\0-R\0", 24}, "/opt/Mi programa/bin"},
        {"/opt/navegador/navegador --type=renderer --lang=es", "/opt/navegador/navegador"},
        {"sshd: ana@pts/0", "sshd:"},
        {"-bash", "-bash"},
        {{"\0\0\0", 3}, ""},
        {"", ""},
        {" ", ""},
    };
    for (const auto &[linea, programa] : casos)
        EXPECT_EQ(programaDeCmdline(linea), programa);
}

TEST(RutaDeExe, isAbsoluteAndSaysNothingOfDeletion)
{
    EXPECT_EQ(rutaDeExe("/usr/bin/less"), "/usr/bin/less");
    EXPECT_EQ(rutaDeExe("/usr/bin/less (deleted)"), "/usr/bin/less");
    EXPECT_EQ(rutaDeExe("/usr/bin/less (deleted) (deleted)"), "/usr/bin/less (deleted)");
    EXPECT_EQ(rutaDeExe("/a (deleted)b"), "/a (deleted)b");
    for (const char *ajena : {"", "less", "(unreachable)/usr/bin/less", " (deleted)", "../x"})
        EXPECT_EQ(rutaDeExe(ajena), "") << ajena;
}
