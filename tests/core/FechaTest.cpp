#include "core/Fecha.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace std::chrono;

TEST(Fecha, writesWholeSecondsInUtc)
{
    EXPECT_EQ(textoISO8601(Fecha{}), "1970-01-01T00:00:00Z");
    EXPECT_EQ(textoISO8601(Fecha{seconds{1795238316} + microseconds{999'999}}), "2026-11-21T05:18:36Z");
    EXPECT_EQ(textoISO8601(Fecha{microseconds{-1}}), "1969-12-31T23:59:59Z");
}

TEST(Fecha, readsWhatItWrites)
{
    for (const std::int64_t s : {0L, 1L, 951'782'400L, 4'102'444'799L, -86'400L}) {
        const Fecha fecha{seconds{s}};
        EXPECT_EQ(leerISO8601(textoISO8601(fecha)), fecha) << s;
    }
}

TEST(Fecha, readsFractionsAndOffsets)
{
    EXPECT_EQ(leerISO8601("1970-01-01T01:30:00.25+01:30"), Fecha{milliseconds{250}});
    EXPECT_EQ(leerISO8601("1969-12-31T23:00:00-01:00"), Fecha{});
    EXPECT_EQ(leerISO8601("1969-12-31T23:00:00-0100"), Fecha{});
}

TEST(Fecha, refusesWhatIsNoDate)
{
    for (const char *texto : {"", "hoy", "2026-02-30T00:00:00Z", "2026-11-21", "2026-11-21T05:18:36",
                              "2026-11-21T25:00:00Z", "2026-11-21T05:18:36Zx", "2026-11-21T05:18:36.Z",
                              "2026-13-01T00:00:00Z", "2026-11-21 05:18:36Z", "2026-11-21T05:18:36+1"})
        EXPECT_EQ(leerISO8601(texto), std::nullopt) << texto;
}
