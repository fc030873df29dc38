#include "TestSchedule.h"

#include <gtest/gtest.h>

#include <stdexcept>

using Codes = std::vector<std::uint16_t>;
using State = TestSchedule::State;

namespace {
constexpr std::uint16_t Reading = 0;
constexpr std::uint16_t Drawing = 1;
} // namespace

TEST(TestSchedule, OneCharacterAnsweredCleanlyAlternatesFourQuestions)
{
    TestSchedule s;
    s.Start({42});
    std::vector<std::uint16_t> asked;
    int questions = 0;
    do {
        ASSERT_TRUE(s.HasQuestion());
        EXPECT_EQ(s.CurrentCode(), 42);
        asked.push_back(s.CurrentPage());
        s.Answer(s.CurrentPage(), true);
        ++questions;
    } while (s.Next());
    EXPECT_EQ(questions, 4);
    EXPECT_EQ(asked, (Codes{Reading, Drawing, Reading, Drawing}));
    EXPECT_EQ(s.PassedCodes(), Codes{42});
    EXPECT_TRUE(s.FailedCodes().empty());
    EXPECT_FALSE(s.HasQuestion());
}

TEST(TestSchedule, TwoMissesOnTheReadingFailEvenWithTheDrawingOpen)
{
    TestSchedule s;
    s.Start({7});
    ASSERT_EQ(s.CurrentPage(), Reading);
    s.Answer(Reading, false);
    ASSERT_TRUE(s.Next());
    ASSERT_EQ(s.CurrentPage(), Drawing);
    s.Answer(Drawing, true);
    ASSERT_TRUE(s.Next());
    ASSERT_EQ(s.CurrentPage(), Reading);
    s.Answer(Reading, false);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Failed);
    EXPECT_EQ(s.EntryOf(0, Drawing).state, State::Open);
    EXPECT_EQ(s.Status(0), State::Open); // the first open entry decides while one is open
    // The drawing stays open, so it is still asked until decided; then the character fails.
    ASSERT_TRUE(s.Next());
    EXPECT_EQ(s.CurrentPage(), Drawing);
    s.Answer(Drawing, true);
    EXPECT_FALSE(s.Next());
    EXPECT_EQ(s.FailedCodes(), Codes{7});
}

TEST(TestSchedule, MissedOnceNeedsThreeCleanAnswers)
{
    TestSchedule s;
    s.Start({1});
    s.Answer(Reading, false);
    s.Answer(Reading, true);
    s.Answer(Reading, true);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Open);
    s.Answer(Reading, true);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Passed);
}

TEST(TestSchedule, AnswersToDecidedOrHiddenQuestionsChangeNothing)
{
    TestSchedule s;
    s.Start({1});
    s.Answer(Drawing, false); // not the page asked
    EXPECT_EQ(s.EntryOf(0, Drawing).mistakes, 0);
    s.Answer(Reading, true);
    s.Answer(Reading, true);
    ASSERT_EQ(s.EntryOf(0, Reading).state, State::Passed);
    s.Answer(Reading, false);
    EXPECT_EQ(s.EntryOf(0, Reading).mistakes, 0);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Passed);
}

TEST(TestSchedule, TheCharacterJustAskedWaitsForOthersWithFewerAttempts)
{
    TestSchedule s;
    s.Start({10, 20, 30});
    EXPECT_EQ(s.CurrentCode(), 10);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 20);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 30);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 10); // all equal again: the earliest
}

TEST(TestSchedule, EmptyListAsksNothing)
{
    TestSchedule s;
    s.Start({});
    EXPECT_FALSE(s.HasQuestion());
    EXPECT_FALSE(s.Next());
    EXPECT_TRUE(s.PassedCodes().empty());
    EXPECT_THROW(s.EntryOf(0, 0), std::out_of_range);
}

TEST(TestSchedule, ASkippedPageIsNeverAskedAndCountsAsPassed)
{
    TestSchedule s;
    s.Start({10}, Reading);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Passed);
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(s.HasQuestion());
        EXPECT_EQ(s.CurrentPage(), Drawing);
        s.Answer(s.CurrentPage(), i != 0); // one mistake, then the three clean answers it takes
        if (i < 3) {
            EXPECT_TRUE(s.Next());
        }
    }
    EXPECT_FALSE(s.Next());
    EXPECT_EQ(s.PassedCodes(), (std::vector<std::uint16_t>{10}));
    EXPECT_EQ(s.MistakesOf(10), 1);
    EXPECT_EQ(s.EntryOf(0, Reading).Attempts(), 0);
}
