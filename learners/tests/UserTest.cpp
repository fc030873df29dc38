#include "User.h"
#include "TextRules.h"

#include <gtest/gtest.h>

using Ids = std::vector<std::uint16_t>;

TEST(User, GetProgressAppendsAnEmptyRecordOnce)
{
    User user;
    EXPECT_EQ(user.ProgressCount(), 0u);
    CategoryProgress& first = user.GetProgress(7);
    EXPECT_EQ(first.CategoryId(), 7);
    EXPECT_EQ(first.LearnedCount(), 0u);
    EXPECT_EQ(first.UntestedCount(), 0u);
    first.AddLearned(3);
    EXPECT_EQ(user.ProgressCount(), 1u);
    EXPECT_EQ(&user.GetProgress(7), &user.Progress()[0]);
    EXPECT_EQ(user.GetProgress(7).LearnedAt(0), 3);
    EXPECT_EQ(user.ProgressCount(), 1u);
}

TEST(User, GetProgressReturnsTheFirstOfDuplicateRecords)
{
    User user;
    CategoryProgress a, b;
    a.SetCategoryId(2);
    a.AddLearned(1);
    b.SetCategoryId(2);
    b.AddLearned(9);
    user.AddProgress(a);
    user.AddProgress(b);
    EXPECT_EQ(user.ProgressCount(), 2u);
    EXPECT_EQ(user.GetProgress(2).LearnedAt(0), 1);
}

TEST(User, EmptyNameLeavesNoName)
{
    User user;
    EXPECT_EQ(user.Name(), nullptr);
    user.SetName("Anna");
    EXPECT_STREQ(user.Name(), "Anna");
    user.SetName("");
    EXPECT_EQ(user.Name(), nullptr);
}

TEST(CategoryProgress, FreshRecordHasNoCategory)
{
    EXPECT_EQ(CategoryProgress().CategoryId(), 0xFFFF);
}

TEST(CategoryProgress, MoveToUntestedOnlyWhenLearnedAndToTheFront)
{
    CategoryProgress p;
    p.AddUntested(2);
    p.MoveToUntested(5);
    EXPECT_EQ(p.Untested(), Ids{2});
    EXPECT_EQ(p.Learned(), Ids{});
    p.AddLearned(3);
    p.AddLearned(5);
    p.AddLearned(9);
    p.MoveToUntested(5);
    EXPECT_EQ(p.Learned(), (Ids{3, 9}));
    EXPECT_EQ(p.Untested(), (Ids{5, 2}));
}

TEST(CategoryProgress, MoveToLearnedOnlyWhenUntestedAndToTheEnd)
{
    CategoryProgress p;
    p.AddUntested(5);
    p.AddUntested(2);
    p.AddLearned(3);
    p.AddLearned(9);
    p.MoveToLearned(2);
    EXPECT_EQ(p.Untested(), Ids{5});
    EXPECT_EQ(p.Learned(), (Ids{3, 9, 2}));
    p.MoveToLearned(7);
    EXPECT_EQ(p.Learned(), (Ids{3, 9, 2}));
}

TEST(CategoryProgress, DuplicatesAndFirstOccurrenceRemoval)
{
    CategoryProgress p;
    p.AddLearned(4);
    p.AddLearned(1);
    p.AddLearned(4);
    EXPECT_EQ(p.LearnedCount(), 3u);
    p.RemoveLearned(4);
    EXPECT_EQ(p.Learned(), (Ids{1, 4}));
    p.RemoveLearned(8);
    EXPECT_EQ(p.Learned(), (Ids{1, 4}));
    EXPECT_TRUE(p.IsLearned(4));
    EXPECT_FALSE(p.IsUntested(4));
    p.AddUntested(6);
    p.AddUntested(6);
    p.RemoveUntested(6);
    EXPECT_EQ(p.Untested(), Ids{6});
}

TEST(CategoryProgress, PositionPastTheEndIsOutOfRange)
{
    CategoryProgress p;
    p.AddLearned(1);
    EXPECT_EQ(p.LearnedAt(0), 1);
    try {
        p.LearnedAt(p.LearnedCount());
        FAIL();
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "invalid vector<T> subscript");
    }
    EXPECT_THROW(p.UntestedAt(0), std::out_of_range);
}

TEST(CategoryProgress, CopiesDuplicateTheLists)
{
    CategoryProgress p;
    p.AddLearned(1);
    CategoryProgress copy = p;
    p.AddLearned(2);
    EXPECT_EQ(copy.Learned(), Ids{1});
}

TEST(TextRules, IdsParseLikeTheRuntimeAndAreCutTo16Bits)
{
    EXPECT_EQ(ParseId("65535"), 65535);
    EXPECT_EQ(ParseId("70000"), 4464);
    EXPECT_EQ(ParseId("-1"), 65535);
    EXPECT_EQ(ParseId("abc"), 0);
    EXPECT_EQ(ParseId(""), 0);
    EXPECT_EQ(ParseId("  \t42xyz"), 42);
    EXPECT_EQ(ParseId("+7"), 7);
    EXPECT_EQ(ParseId("- 7"), 0);
    EXPECT_EQ(ParseId("99999999999"), 65535); // saturates at 2147483647, whose low 16 bits are 65535
}

TEST(TextRules, NamesCompareWithoutAsciiCase)
{
    EXPECT_TRUE(EqualsIgnoringAsciiCase("Anna", "aNNA"));
    EXPECT_FALSE(EqualsIgnoringAsciiCase("Anna", "Anne"));
    EXPECT_FALSE(EqualsIgnoringAsciiCase("Anna", "Ann"));
    EXPECT_TRUE(EqualsIgnoringAsciiCase("Ålex", "Ålex"));
    EXPECT_FALSE(EqualsIgnoringAsciiCase("\xC3\x85", "\xC3\xA5")); // Å and å differ: not ASCII
}

TEST(TextRules, PlainNumbersAreDigitsOnlyUpTo65535)
{
    unsigned value = 0;
    EXPECT_TRUE(ParsePlainNumber("0", value));
    EXPECT_EQ(value, 0u);
    EXPECT_TRUE(ParsePlainNumber("65535", value));
    EXPECT_EQ(value, 65535u);
    for (const char* bad : {"", "65536", "123456", "-1", "+1", " 1", "1 ", "1x", "x"})
        EXPECT_FALSE(ParsePlainNumber(bad, value)) << bad;
}
