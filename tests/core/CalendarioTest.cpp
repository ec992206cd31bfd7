#include "core/qt/Calendario.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

int dias(const char *desde, const char *hasta)
{
    return diasEntre(*leerISO8601(desde), *leerISO8601(hasta));
}

/// The process's time zone, put back with the object.
class Zona
{
public:
    explicit Zona(const char *zona) : m_anterior(std::getenv("TZ") ? std::getenv("TZ") : "") { fijar(zona); }
    ~Zona() { fijar(m_anterior.c_str()); }

private:
    static void fijar(const char *zona)
    {
        ::setenv("TZ", zona, 1);
        ::tzset();
    }
    std::string m_anterior;
};

} // namespace

TEST(Calendario, aDayIsWholeWhenTheClockComesRoundToItsTime)
{
    EXPECT_EQ(dias("2026-11-14T10:00:00Z", "2026-11-21T10:00:00Z"), 7);
    EXPECT_EQ(dias("2026-11-14T10:00:01Z", "2026-11-21T10:00:00Z"), 6);
    EXPECT_EQ(dias("2026-11-20T23:00:00Z", "2026-11-21T01:00:00Z"), 0);
    EXPECT_EQ(dias("2026-11-21T10:00:00Z", "2026-11-21T10:00:00Z"), 0);
    EXPECT_EQ(dias("2024-02-28T12:00:00Z", "2024-03-01T12:00:00Z"), 2);
}

TEST(Calendario, theOtherWayRoundThereAreNone)
{
    EXPECT_EQ(dias("2026-11-21T10:00:00Z", "2026-11-14T10:00:00Z"), 0);
    EXPECT_EQ(dias("2026-11-21T10:00:00Z", "2026-11-21T09:00:00Z"), 0);
}

TEST(Calendario, aDayOf23HoursIsWholeToo)
{
    // 2026-03-29: Madrid's clocks go from 2:00 to 3:00.
    const Zona madrid("Europe/Madrid");
    EXPECT_EQ(dias("2026-03-28T12:00:00Z", "2026-03-29T11:00:00Z"), 1);
    EXPECT_EQ(dias("2026-03-28T12:00:00Z", "2026-03-29T10:59:00Z"), 0);
}
