#include "platform/linux/BarridoProc.h"
#include "tests/platform/ArbolDePrueba.h"
#include "tests/platform/FixturasProc.h"

#include <gtest/gtest.h>
#include <map>
#include <unistd.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

struct Fingido
{
    std::string comm = "prog";
    std::string exe = "/usr/bin/prog"; ///< no link where empty
    std::string cmdline = {};
    char estado = 'S';
    unsigned marcas = 4194304;
    std::uint64_t ticks = 10;
    std::uint64_t inicio = 500;
    std::uint64_t paginas = 3; ///< of its own
    std::uint64_t swapKB = 0;
};

/// A folder that stands for /proc.
class ProcSintetico
{
public:
    ProcSintetico() { std::filesystem::create_directories(raiz()); }

    std::string raiz() const { return m_arbol.raiz() + "/proc"; }
    void poner(const std::string &ruta, std::string_view texto) const
    {
        m_arbol.poner("proc/" + ruta, texto);
    }
    void quitar(const std::string &ruta) const { m_arbol.quitar("proc/" + ruta); }

    void proceso(int pid, const Fingido &p = {}) const
    {
        const std::string n = std::to_string(pid);
        poner(n + "/stat", n + " (" + p.comm + ") " + p.estado + " 1 1 1 0 -1 " + std::to_string(p.marcas) +
                               " 0 0 0 0 " + std::to_string(p.ticks) + " 0 0 0 20 0 1 0 " +
                               std::to_string(p.inicio) + " 4096 9 0\n");
        poner(n + "/statm", "900 " + std::to_string(p.paginas + 7) + " 7 5 0 0 0\n");
        poner(n + "/status", "Name:\tprog\nVmSwap:\t" + std::to_string(p.swapKB) + " kB\n");
        poner(n + "/cmdline", p.cmdline);
        quitar(n + "/exe");
        if (!p.exe.empty()) std::filesystem::create_symlink(p.exe, raiz() + "/" + n + "/exe");
    }

private:
    ArbolDePrueba m_arbol;
};

const auto pagina = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
const auto nanosPorTick = 1'000'000'000 / static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));

std::string exeDe(const Fingido &fingido)
{
    const ProcSintetico proc;
    proc.proceso(7, fingido);
    const auto vistos = BarridoProc(proc.raiz()).barrer();
    return vistos.empty() ? "none" : *vistos.front().exe;
}

} // namespace

TEST(BarridoProc, tellsAllOfAProcess)
{
    const ProcSintetico proc;
    proc.proceso(7, {.comm = "a) b (c", .exe = "/opt/x/prog", .ticks = 250, .inicio = 42, .paginas = 11});
    const auto vistos = BarridoProc(proc.raiz()).barrer();
    ASSERT_EQ(vistos.size(), 1);
    const ProcesoVisto &visto = vistos.front();
    EXPECT_EQ(visto.pid, 7);
    EXPECT_EQ(visto.padre, 1);
    EXPECT_EQ(visto.uid, ::getuid());
    EXPECT_EQ(visto.inicio, 42);
    EXPECT_EQ(visto.comm, "a) b (c");
    EXPECT_EQ(*visto.exe, "/opt/x/prog");
    EXPECT_EQ(visto.huella, 11 * pagina);
    EXPECT_EQ(visto.tiempoCPU, 250 * nanosPorTick);
}

TEST(BarridoProc, listsByPidAndOnlyWhatIsAProcess)
{
    const ProcSintetico proc;
    for (const int pid : {300, 20, 1, 4194304})
        proc.proceso(pid);
    for (const char *ajeno : {"sys/stat", "12x/stat", "-5/stat", "0/stat", "99999999999/stat"})
        proc.poner(ajeno, "1 (a) S 1 1 1 0 -1 0 0 0 0 0 1 0 0 0 20 0 1 0 5\n");
    std::vector<std::int32_t> pids;
    for (const auto &visto : BarridoProc(proc.raiz()).barrer())
        pids.push_back(visto.pid);
    EXPECT_EQ(pids, (std::vector<std::int32_t>{1, 20, 300, 4194304}));
}

TEST(BarridoProc, leavesOutKernelThreadsTheEndedAndWhatTakesNothing)
{
    const ProcSintetico proc;
    proc.proceso(2, {.marcas = 0x00208040});
    proc.proceso(3, {.estado = 'Z'});
    proc.proceso(4, {.paginas = 0});
    proc.proceso(5);
    BarridoProc barrido{proc.raiz()};
    for (int i = 0; i < 3; ++i) {
        const auto vistos = barrido.barrer();
        ASSERT_EQ(vistos.size(), 1);
        EXPECT_EQ(vistos.front().pid, 5);
    }
}

TEST(BarridoProc, doesNotReadAKernelThreadAgainUntilItsTurn)
{
    const ProcSintetico proc;
    proc.proceso(2, {.marcas = 0x00208040});
    BarridoProc barrido{proc.raiz()};
    barrido.barrer();
    proc.proceso(2);
    EXPECT_TRUE(barrido.barrer().empty());
    std::size_t vistos = 0;
    for (std::uint32_t i = 0; i < BarridoProc::barridosPorRenovacion; ++i)
        vistos += barrido.barrer().size();
    EXPECT_GT(vistos, 0);
}

TEST(BarridoProc, withHiddenProcessesShowsTheOthers)
{
    const ProcSintetico proc;
    proc.proceso(5);
    proc.proceso(6);
    proc.quitar("5/stat");
    std::filesystem::create_directory(proc.raiz() + "/8");
    std::filesystem::create_directories(proc.raiz() + "/9/stat");
    const auto vistos = BarridoProc(proc.raiz()).barrer();
    ASSERT_EQ(vistos.size(), 1);
    EXPECT_EQ(vistos.front().pid, 6);
}

TEST(BarridoProc, aProcessThatVanishesBetweenTwoOfItsFilesIsLeftOut)
{
    const ProcSintetico proc;
    proc.proceso(5);
    proc.quitar("5/statm");
    EXPECT_TRUE(BarridoProc(proc.raiz()).barrer().empty());
}

TEST(BarridoProc, forgetsWhatVanishedAndReadsAnewWhoeverGetsItsNumber)
{
    const ProcSintetico proc;
    proc.proceso(5, {.exe = "/a", .inicio = 1});
    BarridoProc barrido{proc.raiz()};
    barrido.barrer();
    const std::weak_ptr<const std::string> exe = barrido.barrer().front().exe;
    EXPECT_FALSE(exe.expired());
    proc.quitar("5");
    EXPECT_TRUE(barrido.barrer().empty());
    barrido.barrer();
    EXPECT_TRUE(exe.expired());
    proc.proceso(5, {.exe = "/b", .inicio = 2});
    const auto vistos = barrido.barrer();
    ASSERT_EQ(vistos.size(), 1);
    EXPECT_EQ(*vistos.front().exe, "/b");
    EXPECT_EQ(vistos.front().inicio, 2);
}

TEST(BarridoProc, sharesOneTextForTheProgramFromSweepToSweep)
{
    const ProcSintetico proc;
    proc.proceso(5);
    BarridoProc barrido{proc.raiz()};
    const auto primero = barrido.barrer().front().exe;
    for (std::uint32_t i = 0; i < 2 * BarridoProc::barridosPorRenovacion; ++i)
        ASSERT_EQ(barrido.barrer().front().exe, primero) << i;
}

TEST(BarridoProc, aProgramThatMayNotBeReadIsNamedByItsCommandLineAndElseByTheKernel)
{
    using namespace std::string_literals;
    EXPECT_EQ(exeDe({.exe = "", .cmdline = "/usr/sbin/demonio\0-f\0"s}), "/usr/sbin/demonio");
    EXPECT_EQ(exeDe({.comm = "dem (x)", .exe = "", .cmdline = ""}), "dem (x)");
    EXPECT_EQ(exeDe({.exe = "", .cmdline = "\0\0"s}), "prog");
}

TEST(BarridoProc, aDeletedProgramKeepsItsPath)
{
    EXPECT_EQ(exeDe({.exe = "/usr/bin/prog (deleted)"}), "/usr/bin/prog");
}

TEST(BarridoProc, aRelativeOrOverlongPathIsNotTakenForOne)
{
    const std::string relativa = "(unreachable)/usr/bin/prog";
    EXPECT_EQ(exeDe({.exe = relativa, .cmdline = "/bin/x"}), "/bin/x");
    EXPECT_EQ(exeDe({.exe = relativa}), "prog");
    const std::string larga = "/" + std::string(4094, 'a'); // the longest link there is
    EXPECT_EQ(exeDe({.exe = larga}), larga);
    EXPECT_EQ(exeDe({.exe = "", .cmdline = "/" + std::string(5000, 'a')}), "prog");
    EXPECT_EQ(exeDe({.exe = "", .cmdline = std::string(4096, 'a')}), "prog");
}

TEST(BarridoProc, countersThatGoBackAreToldAsTheyStand)
{
    const ProcSintetico proc;
    BarridoProc barrido{proc.raiz()};
    for (const std::uint64_t ticks : {900, 100, 0}) {
        proc.proceso(5, {.ticks = ticks, .paginas = 1 + ticks});
        const auto vistos = barrido.barrer();
        ASSERT_EQ(vistos.size(), 1);
        EXPECT_EQ(vistos.front().tiempoCPU, ticks * nanosPorTick);
        EXPECT_EQ(vistos.front().huella, (1 + ticks) * pagina);
    }
}

TEST(BarridoProc, figuresThatDoNotFitStopAtTheLargest)
{
    const ProcSintetico proc;
    proc.proceso(5, {.ticks = UINT64_MAX});
    proc.poner("5/statm", "1 18446744073709551615 0 1 0 0 0\n");
    const auto vistos = BarridoProc(proc.raiz()).barrer();
    ASSERT_EQ(vistos.size(), 1);
    EXPECT_EQ(vistos.front().tiempoCPU, UINT64_MAX);
    EXPECT_EQ(vistos.front().huella, UINT64_MAX);
}

TEST(BarridoProc, countsSwappedMemoryOnlyWhileTheMachineUsesSwap)
{
    const ProcSintetico proc;
    proc.proceso(5, {.paginas = 2, .swapKB = 100});
    proc.proceso(6, {.paginas = 0, .swapKB = 8});
    BarridoProc barrido{proc.raiz()};
    ASSERT_EQ(barrido.barrer().size(), 1);
    EXPECT_EQ(barrido.barrer().front().huella, 2 * pagina);
    proc.poner("meminfo", "MemTotal: 9 kB\nSwapTotal: 900 kB\nSwapFree: 800 kB\n");
    const auto vistos = barrido.barrer();
    ASSERT_EQ(vistos.size(), 2);
    EXPECT_EQ(vistos[0].huella, 2 * pagina + 100 * 1024);
    EXPECT_EQ(vistos[1].huella, 8 * 1024);
    proc.poner("meminfo", "MemTotal: 9 kB\nSwapTotal: 900 kB\nSwapFree: 900 kB\n");
    EXPECT_EQ(barrido.barrer().front().huella, 2 * pagina);
}

TEST(BarridoProc, readsTheProcessOfEveryKernel)
{
    const ProcSintetico proc;
    proc.poner("meminfo", fixturaProc("5.10", "meminfo"));
    std::map<std::string, std::uint64_t> huellas;
    for (int pid = 10; const char *kernel : {"3.10", "4.19", "5.10", "6.1", "6.18"}) {
        for (const char *archivo : {"stat", "statm", "status"})
            proc.poner(std::to_string(pid) + "/" + archivo, fixturaProc(kernel, archivo));
        ++pid;
    }
    for (const auto &visto : BarridoProc(proc.raiz()).barrer())
        huellas[visto.comm] = visto.huella;
    EXPECT_EQ(huellas, (std::map<std::string, std::uint64_t>{{"gnome-shell", 56400 * pagina + 18244 * 1024},
                                                             {"Web Content", 67002 * pagina},
                                                             {"(sd-pam)", 612 * pagina + 2204 * 1024},
                                                             {"tmux: server", 408 * pagina + 96 * 1024},
                                                             {"sleep", 27 * pagina}}));
}

TEST(BarridoProc, sweepsTwentyThousandProcesses)
{
    const ProcSintetico proc;
    constexpr int cuantos = 20'000;
    proc.proceso(1);
    for (int pid = 2; pid <= cuantos; ++pid)
        std::filesystem::create_symlink("1", proc.raiz() + "/" + std::to_string(pid));
    BarridoProc barrido{proc.raiz()};
    for (int i = 0; i < 2; ++i) {
        const auto vistos = barrido.barrer();
        ASSERT_EQ(vistos.size(), cuantos);
        EXPECT_EQ(vistos.front().pid, 1);
        EXPECT_EQ(vistos.back().pid, cuantos);
    }
}

TEST(BarridoProc, aMachineWithoutTheFolderHasNoProcessesUntilItAppears)
{
    const ArbolDePrueba arbol;
    BarridoProc barrido{arbol.raiz() + "/proc"};
    EXPECT_TRUE(barrido.barrer().empty());
    arbol.poner("proc/5/stat", "5 (a) S 1 1 1 0 -1 0 0 0 0 0 1 0 0 0 20 0 1 0 5\n");
    arbol.poner("proc/5/statm", "9 9 1 1\n");
    EXPECT_EQ(barrido.barrer().size(), 1);
}
