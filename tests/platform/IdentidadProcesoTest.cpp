#include "platform/linux/IdentidadProceso.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ovanta;

namespace {

std::string linea(const std::string &nombre, char estado = 'S', const std::string &inicio = "777")
{
    return "12 (" + nombre + ") " + estado + " 5 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 " + inicio + " 4096 2\n";
}

/// A child that only waits.
class Durmiente
{
public:
    Durmiente() : m_pid(::fork())
    {
        if (m_pid != 0) return;
        ::alarm(60);
        ::pause();
        ::_exit(0);
    }
    ~Durmiente()
    {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    std::int32_t pid() const { return m_pid; }
    std::uint64_t inicio() const { return leerSenas(leerDeProceso("/proc", m_pid, "stat"))->inicio; }

private:
    pid_t m_pid;
};

} // namespace

TEST(IdentidadProceso, theLineIsReadWhateverTheNameHolds)
{
    for (const char *nombre : {"sleep", "a b", ") S 1 2", "((", "", "x\ny"})
        EXPECT_EQ(leerSenas(linea(nombre)), (SenasProceso{'S', 5, 777})) << nombre;
}

TEST(IdentidadProceso, malformedLinesTellNothing)
{
    for (const std::string &texto :
         {std::string{}, std::string{"12 (x"}, std::string{"12 (x)"}, std::string{"12 (x) S 5 0 0"},
          linea("x", 'S', "-1"), linea("x", 'S', "99999999999999999999999"), linea("x", 'S', "7a")})
        EXPECT_FALSE(leerSenas(texto)) << texto;
}

TEST(IdentidadProceso, aProcessThatOnlyWaitsToBeReapedIsGone)
{
    EXPECT_FALSE(leerSenas(linea("x", 'Z'))->vive());
    const Durmiente hijo;
    const auto inicio = hijo.inicio();
    EXPECT_TRUE(sigueVivo("/proc", hijo.pid(), inicio));
    ::kill(hijo.pid(), SIGKILL);
    siginfo_t suceso{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(hijo.pid()), &suceso, WEXITED | WNOWAIT), 0);
    EXPECT_FALSE(sigueVivo("/proc", hijo.pid(), inicio));
}

TEST(IdentidadProceso, aSignalReachesOnlyTheProcessThatWasMeant)
{
    const Durmiente hijo;
    const auto inicio = hijo.inicio();
    EXPECT_FALSE(senalarSiEs("/proc", hijo.pid(), inicio + 1, SIGKILL)) << "the pid has another owner now";
    EXPECT_TRUE(sigueVivo("/proc", hijo.pid(), inicio));
    EXPECT_TRUE(senalarSiEs("/proc", hijo.pid(), inicio, SIGKILL));
    int estado = 0;
    EXPECT_EQ(::waitpid(hijo.pid(), &estado, 0), hijo.pid());
    EXPECT_TRUE(WIFSIGNALED(estado));
}

TEST(IdentidadProceso, theFirstProcessAndGroupsAreNeverSignalled)
{
    for (const std::int32_t pid : {1, 0, -1, -::getpid()})
        EXPECT_FALSE(senalarSiEs("/proc", pid, 0, 0)) << pid;
}
