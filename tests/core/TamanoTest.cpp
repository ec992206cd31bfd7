#include "core/Tamano.h"

#include <gtest/gtest.h>

using namespace ovanta;

TEST(Tamano, sumsAndProductsBelowTheLimitAreExact)
{
    EXPECT_EQ(sumar(UINT64_MAX - 1, 1), UINT64_MAX);
    EXPECT_EQ(multiplicar(std::uint64_t{1} << 32, (std::uint64_t{1} << 32) - 1), 18446744069414584320U);
}

TEST(Tamano, figuresOfAnOutsideToolStopAtTheLargest)
{
    EXPECT_EQ(sumarConTope(1, 2), 3u);
    EXPECT_EQ(sumarConTope(UINT64_MAX - 1, 1), UINT64_MAX);
    EXPECT_EQ(sumarConTope(UINT64_MAX, UINT64_MAX), UINT64_MAX);
    EXPECT_EQ(multiplicarConTope(3, 4), 12u);
    EXPECT_EQ(multiplicarConTope(UINT64_MAX / 2 + 1, 2), UINT64_MAX);
}

TEST(Tamano, takingAwayMoreThanThereIsLeavesNothing)
{
    EXPECT_EQ(restarHastaCero(5, 3), 2u);
    EXPECT_EQ(restarHastaCero(3, 3), 0u);
    EXPECT_EQ(restarHastaCero(3, UINT64_MAX), 0u);
}

TEST(TamanoDeathTest, anOverflowEndsTheProcessWithAMessage)
{
    EXPECT_DEATH(sumar(UINT64_MAX, 1), "size arithmetic overflowed");
    EXPECT_DEATH(multiplicar(UINT64_MAX, 2), "size arithmetic overflowed");
}
