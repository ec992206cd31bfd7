#include "core/LeerArchivo.h"
#include "platform/linux/BarridoProc.h"
#include "tests/OtroProceso.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <map>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace ovanta;
using namespace std::chrono_literals;

namespace {

std::string textoDe(const std::string &ruta)
{
    std::array<char, 4096> lugar;
    return std::string(LecturaRepetida(ruta).leer(lugar));
}

/// Waits for what the system does at its own pace; false after ten seconds.
bool hasta(auto condicion)
{
    for (int i = 0; i < 1000; ++i) {
        if (condicion()) return true;
        std::this_thread::sleep_for(10ms);
    }
    return false;
}

/// A shell that runs a script; what is written to it goes to the script's input. Killed at the end.
class Guion
{
public:
    explicit Guion(std::string guion)
    {
        Tuberia tuberia = Tuberia::crear();
        posix_spawn_file_actions_t acciones;
        posix_spawn_file_actions_init(&acciones);
        posix_spawn_file_actions_adddup2(&acciones, tuberia.lectura.numero(), 0);
        std::string shell = "/bin/sh", opcion = "-c";
        char *argumentos[] = {shell.data(), opcion.data(), guion.data(), nullptr};
        EXPECT_EQ(::posix_spawn(&m_pid, shell.c_str(), &acciones, nullptr, argumentos, environ), 0);
        posix_spawn_file_actions_destroy(&acciones);
        m_entrada = std::move(tuberia.escritura);
    }
    Guion(const Guion &) = delete;
    Guion &operator=(const Guion &) = delete;
    ~Guion() { acabar(); }

    void acabar()
    {
        if (m_pid == 0) return;
        ::kill(m_pid, SIGKILL);
        ::waitpid(std::exchange(m_pid, 0), nullptr, 0);
    }
    pid_t pid() const { return m_pid; }
    void seguir() { EXPECT_EQ(::write(m_entrada.numero(), "\n", 1), 1); }
    bool espera(const std::string &comm) const
    {
        return hasta([&] {
            return textoDe("/proc/" + std::to_string(m_pid) + "/comm") == comm + "\n" &&
                   textoDe("/proc/" + std::to_string(m_pid) + "/stat").contains(") S ");
        });
    }

private:
    pid_t m_pid = 0;
    Descriptor m_entrada;
};

std::optional<ProcesoVisto> buscar(const std::vector<ProcesoVisto> &vistos, pid_t pid)
{
    const auto visto = std::ranges::find(vistos, pid, &ProcesoVisto::pid);
    return visto == vistos.end() ? std::nullopt : std::optional(*visto);
}

/// Sweeps until nothing of a process is read that it need not.
void calentar(BarridoProc &barrido)
{
    for (int i = 0; i < 3; ++i)
        barrido.barrer();
}

} // namespace

TEST(BarridoVivo, seesItselfAndNoThreadOfTheKernel)
{
    BarridoProc barrido;
    for (int i = 0; i < 3; ++i) {
        const auto vistos = barrido.barrer();
        const auto nosotros = buscar(vistos, ::getpid());
        ASSERT_TRUE(nosotros);
        EXPECT_EQ(nosotros->padre, ::getppid());
        EXPECT_EQ(nosotros->uid, ::geteuid());
        EXPECT_EQ(*nosotros->exe, std::filesystem::read_symlink("/proc/self/exe").native());
        EXPECT_GT(nosotros->huella, 0);
        EXPECT_GT(nosotros->tiempoCPU, 0);
        if (textoDe("/proc/2/comm") == "kthreadd\n") EXPECT_FALSE(buscar(vistos, 2));
    }
}

TEST(BarridoVivo, countsWhatTheKernelCallsAnonymous)
{
    const Guion guion{"read x; :"};
    ASSERT_TRUE(guion.espera("sh"));
    BarridoProc barrido;
    calentar(barrido);
    const auto visto = buscar(barrido.barrer(), guion.pid());
    ASSERT_TRUE(visto);
    const std::string status = textoDe("/proc/" + std::to_string(guion.pid()) + "/status");
    const std::size_t donde = status.find("RssAnon:");
    if (donde == std::string::npos) GTEST_SKIP() << "a kernel before 4.5";
    EXPECT_EQ(visto->huella, std::stoull(status.substr(donde + 8)) * 1024);
}

TEST(BarridoVivo, processorTimeGrowsAndNeverGoesBack)
{
    const Guion guion{"while :; do :; done"};
    BarridoProc barrido;
    std::uint64_t antes = 0, primero = 0;
    for (std::uint32_t i = 0; i < 2 * BarridoProc::barridosPorRenovacion; ++i) {
        const auto visto = buscar(barrido.barrer(), guion.pid());
        ASSERT_TRUE(visto);
        EXPECT_GE(visto->tiempoCPU, antes) << i;
        antes = visto->tiempoCPU;
        if (i == 0) primero = antes;
    }
    EXPECT_TRUE(
        hasta([&] { return buscar(barrido.barrer(), guion.pid())->tiempoCPU > primero + 100'000'000; }));
}

TEST(BarridoVivo, noticesThatAProcessThatRestedTakesMemory)
{
    Guion guion("read seguir; v=$(head -c 8000000 /dev/zero | tr '\\0' x); read fin");
    ASSERT_TRUE(guion.espera("sh"));
    BarridoProc barrido;
    std::uint64_t antes = 0;
    for (int i = 0; i < 5; ++i) {
        const auto visto = buscar(barrido.barrer(), guion.pid());
        ASSERT_TRUE(visto);
        antes = visto->huella;
    }
    guion.seguir();
    EXPECT_TRUE(hasta([&] {
        const auto visto = buscar(barrido.barrer(), guion.pid());
        return visto && visto->huella > antes + 4'000'000;
    }));
}

TEST(BarridoVivo, noticesThatAProcessRunsAnotherProgram)
{
    Guion guion{"read x; exec sleep 60"};
    ASSERT_TRUE(guion.espera("sh"));
    BarridoProc barrido;
    calentar(barrido);
    const auto antes = buscar(barrido.barrer(), guion.pid());
    guion.seguir();
    ASSERT_TRUE(guion.espera("sleep"));
    const auto despues = buscar(barrido.barrer(), guion.pid());
    ASSERT_TRUE(antes && despues);
    EXPECT_EQ(despues->comm, "sleep");
    EXPECT_NE(*despues->exe, *antes->exe);
    EXPECT_EQ(despues->inicio, antes->inicio);
}

TEST(BarridoVivo, noticesThatAParentIsGone)
{
    Guion guion{"sleep 60 & read x; exit"};
    ASSERT_TRUE(guion.espera("sh"));
    BarridoProc barrido;
    calentar(barrido);
    const auto vistos = barrido.barrer();
    const auto hijo = std::ranges::find(vistos, guion.pid(), &ProcesoVisto::padre);
    ASSERT_NE(hijo, vistos.end());
    guion.acabar();
    const auto despues = buscar(barrido.barrer(), hijo->pid);
    ::kill(hijo->pid, SIGKILL);
    ASSERT_TRUE(despues);
    EXPECT_NE(despues->padre, hijo->padre);
}

TEST(BarridoVivo, leavesOutWhatHasEndedThoughNobodyCollectedIt)
{
    Guion guion{"read x"};
    ASSERT_TRUE(guion.espera("sh"));
    BarridoProc barrido;
    calentar(barrido);
    ASSERT_TRUE(buscar(barrido.barrer(), guion.pid()));
    guion.seguir();
    siginfo_t datos;
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(guion.pid()), &datos, WEXITED | WNOWAIT), 0);
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(buscar(barrido.barrer(), guion.pid()));
}

TEST(BarridoVivo, keepsNoDescriptorOfAProcessOpen)
{
    BarridoProc barrido;
    const auto abiertos = [] {
        return std::ranges::distance(std::filesystem::directory_iterator("/proc/self/fd"));
    };
    barrido.barrer();
    const auto antes = abiertos();
    calentar(barrido);
    EXPECT_EQ(abiertos(), antes);
}

TEST(BarridoVivo, DISABLED_asAnotherUser)
{
    const auto vistos = BarridoProc().barrer();
    const auto primero = buscar(vistos, 1);
    ASSERT_TRUE(primero);
    EXPECT_EQ(primero->uid, 0);
    EXPECT_FALSE(primero->exe->empty());
    std::error_code error;
    EXPECT_EQ(std::filesystem::read_symlink("/proc/1/exe", error), "");
    EXPECT_TRUE(error);
}

TEST(BarridoVivo, namesWhatBelongsToOthersWithoutReadingTheirLinks)
{
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    pruebas::correrEnOtroProceso("BarridoVivo.DISABLED_asAnotherUser",
                                 {"setpriv", "--reuid=65534", "--clear-groups"});
}
