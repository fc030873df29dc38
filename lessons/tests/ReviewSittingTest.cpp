// A review sitting: which due characters it takes and in what order, what each answer records,
// and where the memories stand afterwards.

#include "ProgressRecorder.h"
#include "ReviewSitting.h"

#include <gtest/gtest.h>

namespace {

using Codes = std::vector<std::uint16_t>;
using Item = ReviewSitting::Item;
using G = MemoryModel::Grade;

const int Day0 = DayOfDate(2026, 11, 1);
const MemoryModel Model(0.90, 365);

std::string DayTime(int day)
{
    return DayText(Day0 + day) + "T18:00:00+01:00";
}

LearnerEvent Passed(int day, std::uint16_t category, std::uint16_t id, int mistakes = 0)
{
    return {DayTime(day), LearnerEvent::Passed, category, id, mistakes};
}

/// A learner who learned these (category, id) pairs.
User Learned(std::initializer_list<std::pair<std::uint16_t, std::uint16_t>> learned)
{
    User user;
    for (auto [category, id] : learned)
        user.GetProgress(category).AddLearned(id);
    return user;
}

std::vector<std::pair<int, int>> Keys(const std::vector<Item>& items)
{
    std::vector<std::pair<int, int>> out;
    for (const Item& i : items)
        out.emplace_back(i.categoryId, i.id);
    return out;
}

} // namespace

TEST(ReviewSitting, TakesTheDueCharactersOfEveryCategoryTheLeastLikelyRecalledFirst)
{
    // Passed once (Good): due two days later. Grade 1's 10 passed on day 0, 11 on day 4 (due
    // day 6); Grade 2's 20 on day 2, 21 on day 9 (not due on day 8); Grade 3's 30 on day 1.
    const User learner = Learned({{0, 10}, {0, 11}, {1, 20}, {1, 21}, {2, 30}});
    const LearnerMemories memories = MemoryLedger::Fold(
        {Passed(0, 0, 10), Passed(4, 0, 11), Passed(2, 1, 20), Passed(9, 1, 21), Passed(1, 2, 30)});
    const ReviewSchedule reviews(learner, memories, Model, Day0 + 8);
    ASSERT_EQ(reviews.DueTotal(), 4);

    const std::vector<Item> due = ReviewSitting::DueList(reviews, 50);
    // The longest ago the least likely recalled: 10 (day 0), 30 (day 1), 20 (day 2), 11 (day 4).
    EXPECT_EQ(Keys(due), (std::vector<std::pair<int, int>>{{0, 10}, {2, 30}, {1, 20}, {0, 11}}));
    for (std::size_t i = 1; i < due.size(); ++i)
        EXPECT_LE(due[i - 1].recall, due[i].recall);
    EXPECT_DOUBLE_EQ(due[0].recall, reviews.Find(0, 10)->recall);

    // The cap keeps the least likely recalled.
    EXPECT_EQ(Keys(ReviewSitting::DueList(reviews, 2)), (std::vector<std::pair<int, int>>{{0, 10}, {2, 30}}));
    EXPECT_TRUE(ReviewSitting::DueList(reviews, 0).empty());
    // Nothing due on day 1 (everything was passed on day 0 or is not yet known).
    EXPECT_TRUE(ReviewSitting::DueList(ReviewSchedule(learner, memories, Model, Day0 + 1), 50).empty());
}

TEST(ReviewSitting, EqualRecallsGoByCategoryThenId)
{
    const User learner = Learned({{1, 5}, {0, 9}, {0, 3}});
    const LearnerMemories memories = MemoryLedger::Fold({Passed(0, 1, 5), Passed(0, 0, 9), Passed(0, 0, 3)});
    const std::vector<Item> due = ReviewSitting::DueList(ReviewSchedule(learner, memories, Model, Day0 + 5), 50);
    EXPECT_EQ(Keys(due), (std::vector<std::pair<int, int>>{{0, 3}, {0, 9}, {1, 5}}));
}

TEST(ReviewSitting, TalliesEachAnswerAndEndsAfterTheLast)
{
    ReviewSitting sitting({{0, 1, 0.5}, {0, 2, 0.6}, {1, 3, 0.7}, {1, 4, 0.8}});
    EXPECT_EQ(sitting.Current(), (Item{0, 1, 0.5}));
    sitting.Answer(ReviewSitting::Judge(true, 0));
    sitting.Answer(ReviewSitting::Judge(true, 2));
    EXPECT_EQ(sitting.AnsweredCount(), 2u);
    EXPECT_EQ(sitting.Current(), (Item{1, 3, 0.7}));
    sitting.Answer(ReviewSitting::Judge(false, 2));
    sitting.Answer(ReviewSitting::Judge(true, 1));
    EXPECT_FALSE(sitting.Current());
    sitting.Answer(ReviewSitting::Outcome::Forgotten); // nothing left to answer: ignored
    EXPECT_EQ(sitting.AnsweredCount(), 4u);
    EXPECT_EQ(sitting.Remembered(), 1);
    EXPECT_EQ(sitting.RememberedWithMistakes(), 2);
    EXPECT_EQ(sitting.Forgotten(), (std::vector<Item>{{1, 3, 0.7}}));
    EXPECT_EQ(ReviewSitting::Judge(false, 0), ReviewSitting::Outcome::Forgotten);
}

TEST(ReviewSitting, EachAnswerIsOneActionWithTheTestsEvent)
{
    User learner = Learned({{0, 10}, {0, 11}, {0, 12}});
    learner.GetProgress(0).AddUntested(12); // sent back by a Retest meanwhile
    std::vector<std::vector<LearnerEvent>> actions;
    ProgressRecorder recorder(
        learner, 0, [] { return DayTime(8); },
        [&](User&, const std::vector<LearnerEvent>& events) { actions.push_back(events); });
    recorder.Reviewed(10, true, 0);
    recorder.Reviewed(11, true, 2);
    recorder.Reviewed(12, false, 3);
    ASSERT_EQ(actions.size(), 3u);
    const char* kinds[] = {LearnerEvent::Passed, LearnerEvent::Passed, LearnerEvent::Failed};
    const int mistakes[] = {0, 2, 3};
    for (std::size_t i = 0; i < 3; ++i) {
        ASSERT_EQ(actions[i].size(), 1u);
        EXPECT_EQ(actions[i][0].kind, kinds[i]);
        EXPECT_EQ(actions[i][0].id, 10 + i);
        EXPECT_EQ(actions[i][0].categoryId, 0);
        EXPECT_EQ(actions[i][0].mistakes, mistakes[i]);
        EXPECT_EQ(actions[i][0].at, DayTime(8));
    }
    // Passed: still learned, once; failed: neither learned nor untested, to be taught again.
    EXPECT_EQ(learner.GetProgress(0).Learned(), (Codes{10, 11}));
    EXPECT_TRUE(learner.GetProgress(0).Untested().empty());
}

TEST(ReviewSitting, APassedCharacterSentBackByRetestIsLearnedOnceAgain)
{
    User learner = Learned({});
    learner.GetProgress(0).AddUntested(7);
    ProgressRecorder(learner, 0, [] { return DayTime(0); }, nullptr).Reviewed(7, true, 0);
    EXPECT_EQ(learner.GetProgress(0).Learned(), (Codes{7}));
    EXPECT_TRUE(learner.GetProgress(0).Untested().empty());
}

TEST(ReviewSitting, TheMemoriesMoveOnAfterAPassAPassWithMistakesAndAFailure)
{
    // Three characters passed Good on day 0 and reviewed on day 5.
    User learner = Learned({{0, 1}, {0, 2}, {0, 3}});
    std::vector<LearnerEvent> history{Passed(0, 0, 1), Passed(0, 0, 2), Passed(0, 0, 3)};
    ProgressRecorder recorder(
        learner, 0, [] { return DayTime(5); },
        [&](User&, const std::vector<LearnerEvent>& events) { history.insert(history.end(), events.begin(), events.end()); });
    const ReviewSchedule before(learner, MemoryLedger::Fold(history), Model, Day0 + 5);
    ASSERT_EQ(ReviewSitting::DueList(before, 50).size(), 3u);
    recorder.Reviewed(1, true, 0);
    recorder.Reviewed(2, true, 1);
    recorder.Reviewed(3, false, 2);

    const LearnerMemories after = MemoryLedger::Fold(history);
    const MemoryModel::Memory first = Model.First(G::Good);
    MemoryLedger ledger;
    ledger.Load(after.memories);
    const auto memoryOf = [&](std::uint16_t id) { return ledger.Find({0, id}); };
    ASSERT_TRUE(memoryOf(1) && memoryOf(2) && memoryOf(3));
    EXPECT_DOUBLE_EQ(memoryOf(1)->memory.stability, Model.Next(first, 5, G::Good).stability);
    EXPECT_DOUBLE_EQ(memoryOf(2)->memory.stability, Model.Next(first, 5, G::Hard).stability);
    EXPECT_DOUBLE_EQ(memoryOf(3)->memory.stability, Model.Next(first, 5, G::Again).stability);
    for (std::uint16_t id : {1, 2, 3})
        EXPECT_EQ(memoryOf(id)->lastDay, Day0 + 5);
    // Good lasts longer than Hard; the failed character is no longer learned, so no longer due.
    EXPECT_GT(memoryOf(1)->memory.stability, memoryOf(2)->memory.stability);
    const ReviewSchedule afterwards(learner, after, Model, Day0 + 5);
    EXPECT_EQ(afterwards.DueTotal(), 0);
    EXPECT_FALSE(afterwards.Find(0, 3));
    EXPECT_GT(afterwards.Find(0, 1)->dueDay, afterwards.Find(0, 2)->dueDay);
}
