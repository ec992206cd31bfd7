#include "core/qt/Calendario.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace std::chrono_literals;

TEST(DiasEntre, countsWholeDaysOnly)
{
    constexpr Fecha alguna{1'795'238'316s};
    EXPECT_EQ(diasEntre(alguna, alguna), 0);
    EXPECT_EQ(diasEntre(alguna, alguna + 24h - 1s), 0);
    EXPECT_EQ(diasEntre(alguna, alguna + 24h), 1);
    EXPECT_EQ(diasEntre(alguna, alguna + 24h * 400 + 23h), 400);
}

TEST(DiasEntre, isNothingBackwards)
{
    constexpr Fecha alguna{1'795'238'316s};
    EXPECT_EQ(diasEntre(alguna, alguna - 1s), 0);
    EXPECT_EQ(diasEntre(alguna, alguna - 24h * 30), 0);
}
