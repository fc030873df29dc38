#include "Random15.h"

#include <gtest/gtest.h>

using Codes = std::vector<std::uint16_t>;

TEST(Random15, MatchesTheClassicGeneratorAndItsUniformFormula)
{
    Random15 r(1);
    // The first values of the classic rand() after srand(1).
    EXPECT_EQ(r.Next(), 41);
    EXPECT_EQ(r.Next(), 18467);
    EXPECT_EQ(r.Next(), 6334);
    Random15 a(12345), b(12345);
    for (int i = 0; i < 1000; ++i) {
        const int v = a.Next();
        EXPECT_GE(v, 0);
        EXPECT_LE(v, Random15::Max);
        const int u = b.Uniform(3, 7);
        EXPECT_EQ(u, 3 + v * 5 / 32768);
    }
}
