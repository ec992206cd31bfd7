#include "ApoyoEjecutar.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ovanta;

namespace {

std::ptrdiff_t descriptoresAbiertos()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

bool quedaAlgunHijo()
{
    siginfo_t fin{};
    return ::waitid(P_ALL, 0, &fin, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

/// Leaves this process with exactly `libres` descriptors to open, until its end.
class DescriptoresEscasos
{
public:
    explicit DescriptoresEscasos(int libres)
    {
        ::getrlimit(RLIMIT_NOFILE, &m_antes);
        rlim_t tope = 0;
        for (; libres > 0; ++tope) {
            if (::fcntl(static_cast<int>(tope), F_GETFD) < 0) --libres;
        }
        const rlimit escaso{tope, m_antes.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &escaso);
    }
    DescriptoresEscasos(const DescriptoresEscasos &) = delete;
    DescriptoresEscasos &operator=(const DescriptoresEscasos &) = delete;
    ~DescriptoresEscasos() { ::setrlimit(RLIMIT_NOFILE, &m_antes); }

private:
    rlimit m_antes{};
};

/// Ends a death test's process: well, or with what went wrong.
[[noreturn]] void acabar(const std::string &fallo)
{
    ::write(STDERR_FILENO, fallo.data(), fallo.size());
    std::_Exit(fallo.empty() ? 0 : 1);
}

} // namespace

TEST(EjecutarConcurrencia, twoHundredCallsAtOnceGetEachItsOwnOutput)
{
    sh(":");
    const std::ptrdiff_t antes = descriptoresAbiertos();
    std::vector<std::string> salidas(200);
    std::vector<std::thread> hilos;
    for (std::size_t i = 0; i < salidas.size(); ++i) {
        hilos.emplace_back([&salidas, i] {
            const std::string guion =
                "echo error >&2; echo " + std::to_string(i) + "; exit " + std::to_string(i % 2);
            salidas[i] = sh(guion, deSobra, true);
        });
    }
    for (std::thread &hilo : hilos)
        hilo.join();
    for (std::size_t i = 0; i < salidas.size(); ++i)
        EXPECT_EQ(salidas[i], std::to_string(i) + "\n");
    EXPECT_EQ(descriptoresAbiertos(), antes);
    EXPECT_FALSE(quedaAlgunHijo());
}

TEST(EjecutarConcurrencia, withoutDescriptorsLeftTheCallFailsAndTheToolIsEnded)
{
    sh(":");
    // The undefined-behaviour sanitizer needs a pipe the first time that it sees a type: not later.
    EXPECT_FALSE(std::system_error(EMFILE, std::system_category()).code().message().empty());
    const std::ptrdiff_t antes = descriptoresAbiertos();
    // With none and with two there are no pipes; with four the tool starts and cannot be watched.
    for (const int libres : {0, 2, 4}) {
        std::error_code error;
        {
            const DescriptoresEscasos escasez(libres);
            error = errorSistemaDe([] { ejecutar("/bin/sleep", {"1000"}, deSobra, false); });
        }
        EXPECT_EQ(error, std::errc::too_many_files_open) << libres;
        EXPECT_TRUE(esperarHasta([] { return !quedaAlgunHijo(); })) << libres;
    }
    EXPECT_EQ(descriptoresAbiertos(), antes);
}

/// Each of these ends or alters the whole program, so each runs in a process of its own.
class DetenerHerramientasDeathTest : public testing::Test
{
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(DetenerHerramientasDeathTest, runningToolsEndWithTheirGroupsAndTheirCallersAreFreed)
{
    const auto escena = [] {
        const CarpetaTemporal carpeta;
        std::error_code errorGrupo;
        std::error_code errorAjena;
        const auto correr = [&carpeta](const std::string &nombre, const std::string &guion) {
            return errorSistemaDe(
                [&] { ejecutar("/bin/sh", {"-c", guion, carpeta.ruta(nombre)}, 1e6, false); });
        };
        std::thread grupo(
            [&] { errorGrupo = correr("grupo", "trap '' TERM; sleep 1000 & echo $! > \"$0\"; wait"); });
        std::thread ajena(
            [&] { errorAjena = correr("ajena", "setsid sleep 1000 & echo $! > \"$0\"; wait"); });
        const pid_t nieta = carpeta.pidEscritoEn("grupo");
        const pid_t fuera = carpeta.pidEscritoEn("ajena");
        detenerHerramientas();
        grupo.join();
        ajena.join();
        ::kill(fuera, SIGKILL);
        if (errorGrupo != std::errc::operation_canceled) acabar("the caller of a tool was not told");
        if (errorAjena != std::errc::operation_canceled)
            acabar("the caller of a tool with a daemon was not told");
        if (!termina(nieta)) acabar("a grandchild survived");
        if (!esperarHasta([] { return !quedaAlgunHijo(); })) acabar("a tool survived");
        acabar("");
    };
    EXPECT_EXIT(escena(), testing::ExitedWithCode(0), "");
}

TEST_F(DetenerHerramientasDeathTest, laterCallsFailAtOnceAndStartNothing)
{
    const auto escena = [] {
        const CarpetaTemporal carpeta;
        detenerHerramientas();
        detenerHerramientas();
        const auto error =
            errorSistemaDe([&] { ejecutar("/bin/mkdir", {carpeta.ruta("nueva")}, 1e6, false); });
        if (error != std::errc::operation_canceled) acabar("the call was not refused");
        if (quedaAlgunHijo() || std::filesystem::exists(carpeta.ruta("nueva")))
            acabar("the tool was started");
        acabar("");
    };
    EXPECT_EXIT(escena(), testing::ExitedWithCode(0), "");
}

TEST_F(DetenerHerramientasDeathTest, inAStormOfLaunchesNoToolSlipsThrough)
{
    const auto escena = [] {
        std::atomic<int> lanzadas = 0;
        std::atomic<int> canceladas = 0;
        std::vector<std::thread> hilos;
        for (int i = 0; i < 16; ++i) {
            hilos.emplace_back([&] {
                const auto error = errorSistemaDe([&] {
                    for (;; ++lanzadas)
                        ejecutar("/bin/true", {}, deSobra, false);
                });
                if (error == std::errc::operation_canceled) ++canceladas;
            });
        }
        esperarHasta([&] { return lanzadas > 100; });
        detenerHerramientas();
        for (std::thread &hilo : hilos)
            hilo.join();
        if (canceladas != 16) acabar("a call ended in another way");
        if (!esperarHasta([] { return !quedaAlgunHijo(); })) acabar("a tool survived");
        acabar("");
    };
    EXPECT_EXIT(escena(), testing::ExitedWithCode(0), "");
}

TEST_F(DetenerHerramientasDeathTest, aProgramStartedWithChildSignalsIgnoredStillLearnsExitCodes)
{
    const auto escena = [] {
        std::signal(SIGCHLD, SIG_IGN);
        const auto error = errorDe([] { sh("exit 7"); });
        acabar(error && error->codigo() == 7 ? "" : "the exit code was lost");
    };
    EXPECT_EXIT(escena(), testing::ExitedWithCode(0), "");
}
