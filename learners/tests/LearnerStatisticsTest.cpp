#include "LearnerStatistics.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int Today = 20779; // 2026-11-22, a Sunday

std::string At(int day, const char* time = "T19:00:00+01:00")
{
    return DayText(day) + time;
}

TEST(EventDays, DatesAndDayNumbers)
{
    EXPECT_EQ(EventDay("1970-01-01T00:00:00+00:00"), 0);
    EXPECT_EQ(EventDay("2026-11-22T23:59:59-05:00"), Today); // the local date, whatever the offset
    EXPECT_EQ(EventDay("2024-02-29T12:00:00+09:00"), DayOfDate(2024, 3, 1) - 1);
    EXPECT_EQ(EventDay("2026-02-29T12:00:00+09:00"), -1); // no such date
    EXPECT_EQ(EventDay("2026-13-01T12:00:00+09:00"), -1);
    EXPECT_EQ(EventDay("yesterday"), -1);
    EXPECT_EQ(DayText(Today), "2026-11-22");
    EXPECT_EQ(DayText(DayOfDate(2000, 12, 31)), "2000-12-31");
}

TEST(LearnerStatistics, WithoutHistoryTheChartsAreTodayAlone)
{
    User user;
    user.GetProgress(0).AddLearned(1);
    user.GetProgress(0).AddLearned(2);
    const LearnerStatistics stats(user, user.History(), {80, 160}, Today);
    EXPECT_EQ(stats.FirstDay(), Today);
    EXPECT_EQ(stats.LearnedPerDay(), std::vector<int>{2});
    ASSERT_EQ(stats.TestsPerWeek().size(), 1u);
    EXPECT_EQ(stats.TestsPerWeek()[0].monday, Today - 6);
    EXPECT_TRUE(stats.TroubleCharacters(10).empty());
}

TEST(LearnerStatistics, AYearOfWorkGivesAPointADayAndABarAWeek)
{
    User user;
    int passed = 0, failed = 0;
    for (int day = Today - 365; day <= Today; day += 2) {
        const std::uint16_t id = static_cast<std::uint16_t>(day % 1000);
        user.AddEvent({At(day), LearnerEvent::Lesson, 0, id, -1});
        const bool fails = day % 10 == 0;
        user.AddEvent({At(day, "T19:10:00+01:00"), fails ? LearnerEvent::Failed : LearnerEvent::Passed, 0, id, 0});
        if (fails) {
            ++failed;
        } else {
            user.GetProgress(0).AddLearned(id);
            ++passed;
        }
    }
    const LearnerStatistics stats(user, user.History(), {1000}, Today);
    EXPECT_EQ(stats.FirstDay(), Today - 365);
    const std::vector<int> learned = stats.LearnedPerDay();
    ASSERT_EQ(learned.size(), 366u);
    EXPECT_EQ(learned.front(), 1);
    EXPECT_EQ(learned.back(), passed);
    EXPECT_TRUE(std::is_sorted(learned.begin(), learned.end()));
    const auto weeks = stats.TestsPerWeek();
    // From Monday 2025-11-17 (a year ago was a Saturday) to Monday 2026-11-16: 52 weeks apart.
    EXPECT_EQ(weeks.size(), 53u);
    EXPECT_EQ(weeks.front().monday, Today - 365 - 5);
    int sumPassed = 0, sumFailed = 0;
    for (const auto& w : weeks)
        sumPassed += w.passed, sumFailed += w.failed;
    EXPECT_EQ(sumPassed, passed);
    EXPECT_EQ(sumFailed, failed);
}

TEST(LearnerStatistics, CharactersLearnedBeforeTheHistoryCountFromItsFirstDay)
{
    User user;
    for (std::uint16_t id : {1, 2, 3})
        user.GetProgress(0).AddLearned(id);
    user.AddEvent({At(Today - 2), LearnerEvent::Passed, 0, 3, 0}); // 3 is learned in the history
    user.AddEvent({At(Today - 1), LearnerEvent::Forget, 0, 9, -1}); // 9 was learned before, then forgotten
    const LearnerStatistics stats(user, user.History(), {80}, Today);
    EXPECT_EQ(stats.LearnedPerDay(), (std::vector<int>{4, 3, 3}));
}

TEST(LearnerStatistics, ForgettingAndRetestingTakeCharactersAwayAndCategoriesAreApart)
{
    User user;
    user.AddEvent({At(Today - 3), LearnerEvent::Passed, 0, 1, 0});
    user.AddEvent({At(Today - 3), LearnerEvent::Passed, 1, 2, 0});
    user.AddEvent({At(Today - 2), LearnerEvent::Passed, 0, 3, 1});
    user.AddEvent({At(Today - 1), LearnerEvent::Retest, 0, 1, -1});
    user.AddEvent({At(Today), LearnerEvent::Forget, 1, 2, -1});
    user.GetProgress(0).AddLearned(3);
    user.GetProgress(0).AddUntested(1);
    const LearnerStatistics stats(user, user.History(), {80, 160}, Today);
    EXPECT_EQ(stats.LearnedPerDay(), (std::vector<int>{2, 3, 2, 1}));
    EXPECT_EQ(stats.LearnedPerDay(0), (std::vector<int>{1, 2, 1, 1}));
    EXPECT_EQ(stats.LearnedPerDay(1), (std::vector<int>{1, 1, 1, 0}));
    const auto rows = stats.Categories();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].learned, 1u);
    EXPECT_EQ(rows[0].untested, 1u);
    EXPECT_EQ(rows[0].total, 80u);
    EXPECT_EQ(rows[1].learned, 0u);
    EXPECT_EQ(rows[1].total, 160u);
}

TEST(LearnerStatistics, TroubleCharactersAreTheLearnedOrUntestedWithTheMostMistakesAndFailures)
{
    User user;
    for (std::uint16_t id : {1, 2, 3, 4})
        user.GetProgress(0).AddLearned(id);
    user.GetProgress(0).AddUntested(5);
    user.AddEvent({At(Today - 5), LearnerEvent::Failed, 0, 1, 2}); // 1: 2 mistakes + 1 failure = 3
    user.AddEvent({At(Today - 4), LearnerEvent::Passed, 0, 1, 0});
    user.AddEvent({At(Today - 4), LearnerEvent::Passed, 0, 2, 3}); // 2: 3 mistakes = 3, no failure
    user.AddEvent({At(Today - 4), LearnerEvent::Passed, 0, 3, 0}); // 3: no trouble
    user.AddEvent({At(Today - 3), LearnerEvent::Failed, 0, 5, 2}); // 5 (untested): 2 + 1 + 2 + 1 = 6
    user.AddEvent({At(Today - 2), LearnerEvent::Failed, 0, 5, 2});
    user.AddEvent({At(Today - 2), LearnerEvent::Failed, 0, 6, 9}); // 6: neither learned nor untested
    user.AddEvent({At(Today - 1), LearnerEvent::Passed, 0, 4, 1}); // 4: 1
    const LearnerStatistics stats(user, user.History(), {80}, Today);
    const auto trouble = stats.TroubleCharacters(10);
    ASSERT_EQ(trouble.size(), 4u);
    EXPECT_EQ(trouble[0].id, 5);
    EXPECT_EQ(trouble[0].mistakes, 4);
    EXPECT_EQ(trouble[0].failures, 2);
    EXPECT_EQ(trouble[1].id, 1); // 3, one of them a failure: before 2
    EXPECT_EQ(trouble[2].id, 2);
    EXPECT_EQ(trouble[3].id, 4);
    EXPECT_EQ(stats.TroubleCharacters(2).size(), 2u);
}

TEST(LearnerStatistics, EventsAfterTodayOrOutOfOrderDoNotBreakTheCharts)
{
    User user;
    user.AddEvent({At(Today - 1), LearnerEvent::Passed, 0, 1, 0});
    user.AddEvent({At(Today - 3), LearnerEvent::Passed, 0, 2, 0}); // the clock was set back
    user.AddEvent({At(Today + 5), LearnerEvent::Passed, 0, 3, 0}); // a clock ahead
    const LearnerStatistics stats(user, user.History(), {80}, Today);
    EXPECT_EQ(stats.LearnedPerDay(), (std::vector<int>{1, 1, 2, 2}));
    EXPECT_EQ(stats.TestsPerWeek().back().monday, Today - 6);
}

} // namespace
