#include "core/qt/Formato.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

// The tests run in UTC.
const Fecha momento = *leerISO8601("2026-11-21T05:08:36Z");

const QLocale ingles{QLocale::English, QLocale::UnitedStates};

} // namespace

TEST(Formato, anotherLanguageGetsTheSpanishOfSpain)
{
    for (const QLocale &sistema : {ingles, QLocale::c(), QLocale{QLocale::Japanese}}) {
        const Formato formato{sistema};
        EXPECT_EQ(formato.locale().name(), QStringLiteral("es_ES"));
        EXPECT_EQ(formato.bytes(12'345'670'000'000), QStringLiteral("12.345,67 GB"));
    }
}

TEST(Formato, aSpanishUserKeepsTheHabitsOfTheirCountry)
{
    const Formato formato{QLocale{QLocale::Spanish, QLocale::Mexico}};
    EXPECT_EQ(formato.locale().territory(), QLocale::Mexico);
    EXPECT_EQ(formato.bytes(1'500'000'000), QStringLiteral("1.5 GB"));
    EXPECT_EQ(formato.entero(1234567), QStringLiteral("1,234,567"));
}

TEST(Formato, spainGroupsFromFiveDigitsOn)
{
    const Formato formato{QLocale{QLocale::Spanish, QLocale::Spain}};
    EXPECT_EQ(formato.entero(1234), QStringLiteral("1234"));
    EXPECT_EQ(formato.entero(12345), QStringLiteral("12.345"));
    EXPECT_EQ(formato.bytes(3'221'225'472, EstiloBytes::memoria), QStringLiteral("3 GB"));
}

TEST(Formato, datesAreAbbreviatedAndTimesShort)
{
    const Formato formato{ingles};
    EXPECT_EQ(formato.fecha(momento), QStringLiteral("21 nov 2026"));
    EXPECT_EQ(formato.hora(momento), QStringLiteral("5:08"));
    EXPECT_EQ(formato.fechaYHora(momento), QStringLiteral("21 nov 2026, 5:08"));
}

TEST(Formato, aMomentReachesQtWithItsMilliseconds)
{
    const Fecha conFraccion = momento + std::chrono::microseconds{123'456};
    EXPECT_EQ(enQt(conFraccion).toMSecsSinceEpoch(), 1'795'237'716'123);
}
