#include "ReadingJudge.h"

#include <gtest/gtest.h>

using Set = ReadingJudge::Set;
using Outcome = ReadingJudge::Outcome;

namespace {

ReadingJudge Question()
{
    ReadingJudge judge;
    judge.Start("ニチ", "ひ", {"ニチ", "ゲツ", "カ"}, {"つき", "", "ひ"});
    return judge;
}

} // namespace

TEST(ReadingJudge, RightPicksInBothSetsAnswerPerfectly)
{
    ReadingJudge judge = Question();
    EXPECT_FALSE(judge.IsAnswered());
    EXPECT_EQ(judge.Pick(Set::On, 0), Outcome::Right);
    EXPECT_TRUE(judge.IsRight(Set::On));
    EXPECT_FALSE(judge.IsAnswered());
    EXPECT_EQ(judge.Pick(Set::Kun, 2), Outcome::Right);
    EXPECT_TRUE(judge.IsAnswered());
    EXPECT_TRUE(judge.IsPerfect());
    EXPECT_EQ(judge.Selected(Set::Kun), 2);
}

TEST(ReadingJudge, AWrongPickMakesTheAnswerImperfectButTheSetStaysOpen)
{
    ReadingJudge judge = Question();
    EXPECT_EQ(judge.Pick(Set::Kun, 1), Outcome::Wrong); // "" is no reading, not "ひ"
    EXPECT_FALSE(judge.IsPerfect());
    EXPECT_EQ(judge.Selected(Set::Kun), 1);
    EXPECT_EQ(judge.Pick(Set::Kun, 2), Outcome::Right);
    EXPECT_EQ(judge.Pick(Set::On, 0), Outcome::Right);
    EXPECT_TRUE(judge.IsAnswered());
    EXPECT_FALSE(judge.IsPerfect());
}

TEST(ReadingJudge, AnAnsweredSetAndMissingChoicesIgnorePicks)
{
    ReadingJudge judge = Question();
    EXPECT_EQ(judge.Pick(Set::On, 0), Outcome::Right);
    EXPECT_EQ(judge.Pick(Set::On, 1), Outcome::Ignored);
    EXPECT_TRUE(judge.IsPerfect());
    EXPECT_EQ(judge.Selected(Set::On), 0);
    EXPECT_EQ(judge.Pick(Set::Kun, 3), Outcome::Ignored);
    EXPECT_EQ(judge.Selected(Set::Kun), -1);
}

TEST(ReadingJudge, NoReadingIsPickedAsTheEmptyChoice)
{
    ReadingJudge judge;
    judge.Start("", "ひ", {"ゲツ", ""}, {"ひ"});
    EXPECT_EQ(judge.Pick(Set::On, 1), Outcome::Right);
    judge.Start("", "ひ", {"ゲツ", ""}, {"ひ"});
    EXPECT_FALSE(judge.IsRight(Set::On)); // a new question starts afresh
    EXPECT_TRUE(judge.IsPerfect());
}
