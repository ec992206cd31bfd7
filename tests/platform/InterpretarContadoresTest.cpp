#include "platform/linux/InterpretarContadores.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

constexpr std::string_view netDev =
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo colls "
    "carrier compressed\n"
    "    lo: 1000 10 0 0 0 0 0 0 2000 10 0 0 0 0 0 0\n"
    "enp0s31f6: 300 3 0 0 0 0 0 0 30 3 0 0 0 0 0 0\n"
    "wlp2s0:18446744073709551615 3 0 0 0 0 0 0 7 3 0 0 0 0 0 0\n"
    "docker0: 5000 3 0 0 0 0 0 0 5000 3 0 0 0 0 0 0\n";

bool todas(std::string_view)
{
    return true;
}

bool tarjetas(std::string_view interfaz)
{
    return nombreDeTarjeta(interfaz);
}

} // namespace

TEST(InterpretarStat, readsTheFirstLineOfEveryKernel)
{
    const struct
    {
        const char *kernel;
        const char *texto;
        Contadores::Ticks ticks;
    } casos[] = {
        {"2.4",
         "cpu  2255 34 2290 22625563\ncpu0 1132 34 1441 11311718\n",
         {.user = 2255, .system = 2290, .idle = 22625563, .nice = 34}},
        {"2.6.16", "cpu  10 20 30 40 50 60 70 80\n", {.user = 10, .system = 160, .idle = 90, .nice = 20}},
        {"2.6.33",
         "cpu  10 20 30 40 50 60 70 80 5 6\ncpu0 1 2 3 4 5 6 7 8 5 6\nintr 1 2\n",
         {.user = 10, .system = 160, .idle = 90, .nice = 20}},
        {"6.1",
         "cpu  205158 11106 83386 482176 1007 0 297 285 0 0\ncpu0 1 1 1 1 1 1 1 1 1 1\n",
         {.user = 205158, .system = 83683, .idle = 483183, .nice = 11106}},
        {"cut in the middle", "cpu  1 2 3 4 5", {.user = 1, .system = 3, .idle = 9, .nice = 2}},
    };
    for (const auto &caso : casos)
        EXPECT_EQ(interpretarStat(caso.texto), caso.ticks) << caso.kernel;
}

TEST(InterpretarStat, refusesWhatIsNotThatLine)
{
    for (const char *texto :
         {"", "\n", "cpu0 1 2 3 4\n", "cpu\n", "cpu  1 2 3\n", "cpu  1 2 x 4\n", "cpu  -1 2 3 4\n",
          "cpu  99999999999999999999 2 3 4\n", "intr 1 2 3 4\ncpu  1 2 3 4\n"})
        EXPECT_EQ(interpretarStat(texto), std::nullopt) << texto;
}

TEST(InterpretarNetDev, sumsTheInterfacesThatCount)
{
    EXPECT_EQ(interpretarNetDev(netDev, [](std::string_view i) { return i == "lo" || i == "docker0"; }),
              (Contadores::Red{6000, 7000}));
    EXPECT_EQ(interpretarNetDev(netDev, [](std::string_view) { return false; }), Contadores::Red{});
}

TEST(InterpretarNetDev, readsANumberThatTouchesItsNameAndWrapsLikeTheCounters)
{
    EXPECT_EQ(interpretarNetDev(netDev, tarjetas), (Contadores::Red{299, 37}));
}

TEST(InterpretarNetDev, leavesOutLinesThatAreCutOrGarbage)
{
    EXPECT_EQ(interpretarNetDev("eth0: 5 0 0 0 0 0 0 0 7", todas), (Contadores::Red{5, 7}));
    EXPECT_EQ(interpretarNetDev("eth0: 5 0 0 0 0 0 0 0", todas), Contadores::Red{});
    EXPECT_EQ(interpretarNetDev("eth0: x\n:\n\n\0\n", todas), Contadores::Red{});
    EXPECT_EQ(interpretarNetDev("", todas), Contadores::Red{});
}

TEST(NombreDeTarjeta, isOneThatTheSystemGivesToRealCards)
{
    for (const char *nombre : {"en0", "enp3s0", "eno1", "eth0", "wlan0", "wlp2s0", "wwan0", "wwp0s20u4"})
        EXPECT_TRUE(nombreDeTarjeta(nombre)) << nombre;
    for (const char *nombre :
         {"lo", "docker0", "virbr0", "veth1a2b", "tun0", "tailscale0", "bond0", "br-12", "ifb0", ""})
        EXPECT_FALSE(nombreDeTarjeta(nombre)) << nombre;
}
