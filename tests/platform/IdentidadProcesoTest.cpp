#include "platform/linux/IdentidadProceso.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ovanta;

namespace {

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
    std::uint64_t inicio() const { return inicioDe("/proc", m_pid).value_or(0); }

private:
    pid_t m_pid;
};

} // namespace

TEST(IdentidadProceso, aProcessKnowsItsParentAndItsStart)
{
    const Durmiente hijo;
    EXPECT_EQ(padreDe("/proc", hijo.pid()), ::getpid());
    EXPECT_GE(hijo.inicio(), inicioDe("/proc", ::getpid()).value_or(0));
    EXPECT_EQ(padreDe("/no/hay", hijo.pid()), 0);
    EXPECT_EQ(inicioDe("/no/hay", hijo.pid()), std::nullopt);
    EXPECT_FALSE(sigueVivo("/proc", 0, 0));
}

TEST(IdentidadProceso, aProcessThatOnlyWaitsToBeReapedIsGone)
{
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
