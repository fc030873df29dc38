// The checker's score, bit for bit, on the recorded fixture (tests/data/scores.txt, written by
// record_scores): every stroke of Grade 1 and Grade 2, exact, moved, scaled, shrunk, reversed
// and trembling, at its own index and the next.

#include "FileCharacterDatabase.h"
#include "ScoreCases.h"

#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <sstream>

TEST(ScoreFixture, EveryScoreAsRecorded)
{
    std::ifstream recorded(ZAVOREN_SCORE_FIXTURE);
    ASSERT_TRUE(recorded) << ZAVOREN_SCORE_FIXTURE;
    FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    std::size_t cases = 0, differing = 0;
    ForEachScoreCase(db, [&](const std::string& name, float score) {
        std::string line;
        ASSERT_TRUE(std::getline(recorded, line)) << "the fixture ends before " << name;
        const auto space = line.rfind(' ');
        ASSERT_EQ(line.substr(0, space), name);
        const auto bits = static_cast<std::uint32_t>(std::stoul(line.substr(space + 1), nullptr, 16));
        ++cases;
        if (std::bit_cast<std::uint32_t>(score) != bits) {
            ++differing;
            ADD_FAILURE() << name << ": " << score << ", recorded " << std::bit_cast<float>(bits);
        }
    });
    std::string rest;
    EXPECT_FALSE(std::getline(recorded, rest)) << "the fixture has more cases: " << rest;
    EXPECT_GT(cases, 20000u);
    EXPECT_EQ(differing, 0u);
}
