#include "platform/linux/InfoPapelera.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

using namespace ovanta;

namespace {

Fecha segundo(long s)
{
    return Fecha{std::chrono::seconds{s}};
}

/// The local time zone for one test.
class EnZona
{
public:
    explicit EnZona(const char *zona)
    {
        if (const char *antes = std::getenv("TZ")) m_antes = antes;
        poner(zona);
    }
    EnZona(const EnZona &) = delete;
    EnZona &operator=(const EnZona &) = delete;
    ~EnZona() { poner(m_antes.c_str()); }

private:
    static void poner(const char *zona)
    {
        ::setenv("TZ", zona, 1);
        ::tzset();
    }
    std::string m_antes;
};

// Central European time with its two clock changes, spelt out so that no zone files are needed.
constexpr const char *zonaDeMadrid = "CET-1CEST,M3.5.0,M10.5.0/3";

std::string conRuta(const std::string &ruta)
{
    return "[Trash Info]\nPath=" + ruta + "\nDeletionDate=2026-11-21T05:18:36\n";
}

} // namespace

TEST(PapeleraInfo, isTheTextThatTheSpecificationShows)
{
    EXPECT_EQ(escribirInfo({.ruta = "/home/ana/Una carta.txt", .fecha = segundo(1'795'238'316)}),
              "[Trash Info]\nPath=/home/ana/Una%20carta.txt\nDeletionDate=2026-11-21T05:18:36\n");
}

TEST(PapeleraInfo, anyBytesOfANameRoundTrip)
{
    std::string todos = "/";
    for (int byte = 1; byte < 256; ++byte)
        todos += static_cast<char>(byte);
    const InfoPapelera info{.ruta = todos, .fecha = segundo(0)};
    EXPECT_EQ(leerInfo(escribirInfo(info)), info);
    EXPECT_EQ(codificarPorcentaje("á\n%\xff"), "%C3%A1%0A%25%FF");
}

TEST(PapeleraInfo, theDateIsLocalTimeAndAFractionIsCutOff)
{
    const EnZona madrid(zonaDeMadrid);
    const Fecha verano = segundo(1'782'000'000) + std::chrono::microseconds{999'999};
    const std::string texto = escribirInfo({.ruta = "/x", .fecha = verano});
    EXPECT_NE(texto.find("DeletionDate=2026-06-21T02:00:00\n"), std::string::npos) << texto;
    EXPECT_EQ(leerInfo(texto)->fecha, segundo(1'782'000'000));
}

TEST(PapeleraInfo, aYearOfFewDigitsIsPadded)
{
    const std::string texto = "[Trash Info]\nPath=/x\nDeletionDate=0006-01-02T03:04:05\n";
    ASSERT_TRUE(leerInfo(texto));
    EXPECT_EQ(escribirInfo(*leerInfo(texto)), texto);
}

TEST(PapeleraInfo, theHourThatAClockChangeRepeatsReadsAsTheLaterOne)
{
    const EnZona madrid(zonaDeMadrid);
    // 2026-10-25, 02:30 twice: first in summer time, an hour later in winter time.
    const auto primera = leerInfo(escribirInfo({.ruta = "/x", .fecha = segundo(1'792'888'200)}));
    EXPECT_EQ(primera->fecha, segundo(1'792'888'200 + 3600));
    const auto segunda = leerInfo(escribirInfo({.ruta = "/x", .fecha = segundo(1'792'888'200 + 3600)}));
    EXPECT_EQ(segunda->fecha, segundo(1'792'888'200 + 3600));
}

TEST(PapeleraInfo, anHourThatAClockChangeSkipsIsStillRead)
{
    const EnZona madrid(zonaDeMadrid);
    EXPECT_TRUE(leerInfo("[Trash Info]\nPath=/x\nDeletionDate=2026-03-29T02:30:00\n"));
}

TEST(PapeleraInfo, otherProgramsMayAddLinesGroupsAndRepetitions)
{
    const auto info =
        leerInfo("# comment\n[Other]\nPath=/no\n[Trash Info]\nX=1\nDeletionDate=2026-11-21T05:18:36\n"
                 "Path=/si\nPath=/tarde\nDeletionDate=1999-01-01T00:00:00\n[Later]\nPath=/no");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->ruta, "/si");
    EXPECT_EQ(info->fecha, segundo(1'795'238'316));
}

TEST(PapeleraInfo, anythingBrokenIsRefused)
{
    EXPECT_TRUE(leerInfo(conRuta("/bien")));
    for (const std::string ruta : {"", "/a%", "/a%2", "/a%G0", "/a%-1", "/a%00b"})
        EXPECT_FALSE(leerInfo(conRuta(ruta))) << ruta;
    EXPECT_FALSE(leerInfo(conRuta(std::string("/a\0b", 4))));
    for (const std::string fecha :
         {"", "2026-11-21", "2026-11-21 05:18:36", "2026-13-01T00:00:00", "2026-02-30T00:00:00",
          "2026-11-21T24:00:00", "2026-11-21T05:60:00", "2026-11-21T05:18:60", "2026-11-21T05:18:36Z",
          "-026-11-21T05:18:36", "2026-11-21T05:18:-6"})
        EXPECT_FALSE(leerInfo("[Trash Info]\nPath=/x\nDeletionDate=" + fecha + "\n")) << fecha;
    EXPECT_FALSE(leerInfo(""));
    EXPECT_FALSE(leerInfo("Path=/x\nDeletionDate=2026-11-21T05:18:36\n"));
    EXPECT_FALSE(leerInfo("[Trash Info]\nPath=/x\n"));
}
