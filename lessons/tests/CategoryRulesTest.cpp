#include "CategoryRules.h"

#include <gtest/gtest.h>

#include <set>

using Codes = std::vector<std::uint16_t>;

TEST(CategoryRules, ButtonsWithUntestedCountsAround5And10)
{
    for (std::size_t untested : {0u, 4u, 5u, 9u, 10u}) {
        CategoryProgress p;
        for (std::uint16_t i = 0; i < untested; ++i)
            p.AddUntested(i);
        for (std::uint16_t i = 100; i < 106; ++i)
            p.AddLearned(i);
        const CategoryControlState s = DecideCategoryControls(80, p, false);
        EXPECT_EQ(s.testEnabled, untested > 0) << untested;
        EXPECT_EQ(s.testIsDefault, untested > 0) << untested;
        EXPECT_EQ(s.retestEnabled, untested < 5) << untested;
        EXPECT_EQ(s.lessonEnabled, untested < 10) << untested;
        EXPECT_FALSE(s.forgetEnabled);
    }
    CategoryProgress few;
    few.AddLearned(1);
    EXPECT_FALSE(DecideCategoryControls(80, few, true).retestEnabled);
    EXPECT_TRUE(DecideCategoryControls(80, few, true).forgetEnabled);
}

TEST(CategoryRules, CompleteCategoryAllowsNoLesson)
{
    CategoryProgress p;
    for (std::uint16_t i = 0; i < 6; ++i)
        p.AddLearned(i);
    p.AddUntested(6);
    p.AddUntested(7);
    EXPECT_FALSE(DecideCategoryControls(8, p, false).lessonEnabled);
    EXPECT_TRUE(DecideCategoryControls(9, p, false).lessonEnabled);
}

TEST(CategoryRules, LessonTakesFiveOrFewerAndNeverPassesTenUntested)
{
    const Codes category{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    CategoryProgress p;
    p.AddLearned(0);
    p.AddUntested(2);
    EXPECT_EQ(PickLessonCharacters(category, p, 1, 5), (Codes{1, 3, 4, 5, 6}));
    CategoryProgress nine;
    for (std::uint16_t i = 0; i < 9; ++i)
        nine.AddUntested(i);
    EXPECT_EQ(PickLessonCharacters(category, nine, 9, 5), Codes{9});
    EXPECT_TRUE(PickLessonCharacters(category, nine, 10, 5).empty());
    EXPECT_EQ(PickLessonCharacters({3, 4}, CategoryProgress(), 0, 5), (Codes{3, 4}));
}

TEST(CategoryRules, RetestSendsTheDueFirstAndDrawsTheRestFromTheOthers)
{
    for (std::uint32_t seed = 1; seed < 50; ++seed) {
        CategoryProgress p;
        for (std::uint16_t i = 10; i < 30; ++i)
            p.AddLearned(i);
        p.AddUntested(0);
        Random15 random(seed);
        // 99 is not learned and 12 is named twice: neither is sent twice or at all.
        const auto sent = Retest(p, random, {25, 12, 99, 17, 12});
        ASSERT_EQ(sent.size(), 5u);
        EXPECT_EQ((std::vector<std::uint16_t>(sent.begin(), sent.begin() + 3)), (std::vector<std::uint16_t>{25, 12, 17}));
        // Tested first, in that order; then the two drawn, other learned ones; then the list as it was.
        EXPECT_EQ((std::vector<std::uint16_t>(p.Untested().begin(), p.Untested().begin() + 3)),
            (std::vector<std::uint16_t>{25, 12, 17}));
        for (std::size_t i = 3; i < 5; ++i) {
            EXPECT_TRUE(p.UntestedAt(i) >= 10 && p.UntestedAt(i) < 30);
            EXPECT_TRUE(p.UntestedAt(i) != 25 && p.UntestedAt(i) != 12 && p.UntestedAt(i) != 17);
        }
        EXPECT_EQ(p.UntestedAt(5), 0);
        EXPECT_EQ(p.LearnedCount(), 15u);
    }
    // More than five due: the first five only, nothing drawn.
    CategoryProgress p;
    for (std::uint16_t i = 0; i < 10; ++i)
        p.AddLearned(i);
    Random15 random(7);
    EXPECT_EQ(Retest(p, random, {9, 8, 7, 6, 5, 4}), (std::vector<std::uint16_t>{9, 8, 7, 6, 5}));
    EXPECT_EQ(p.Untested(), (std::vector<std::uint16_t>{9, 8, 7, 6, 5}));
}

TEST(CategoryRules, RetestMovesFiveDifferentLearnedCharactersToTheFront)
{
    for (std::uint32_t seed = 1; seed < 50; ++seed) {
        CategoryProgress p;
        for (std::uint16_t i = 10; i < 15; ++i)
            p.AddLearned(i);
        for (std::uint16_t i = 0; i < 4; ++i)
            p.AddUntested(i);
        Random15 random(seed);
        Retest(p, random);
        EXPECT_EQ(p.LearnedCount(), 0u);
        EXPECT_EQ(p.UntestedCount(), 9u);
        EXPECT_EQ(std::set<std::uint16_t>(p.Untested().begin(), p.Untested().begin() + 5),
            (std::set<std::uint16_t>{10, 11, 12, 13, 14}));
        EXPECT_EQ(p.UntestedAt(5), 0);
    }
}
