// A newer KANJIDIC2 teaches some characters in another grade: the learner's progress and the
// memory of each follow it to the category that holds it now.

#include "MovedCharacters.h"
#include "ReviewSchedule.h"

#include <gtest/gtest.h>

namespace {
using Ids = std::vector<std::uint16_t>;

LearnerEvent Passed(int day, std::uint16_t category, std::uint16_t id)
{
    return {DayText(day) + "T18:00:00+01:00", LearnerEvent::Passed, category, id, 0};
}
} // namespace

TEST(MovedCharacters, ProgressFollowsACharacterToItsNewCategory)
{
    // Grade 4 held 10, 11 and 12; now 11 is taught in Grade 5 and 12 in Grade 6.
    const std::vector<Ids> now = {{}, {}, {}, {10}, {20, 11}, {12, 30}};
    User anna;
    anna.GetProgress(3).AddLearned(10);
    anna.GetProgress(3).AddLearned(11);
    anna.GetProgress(3).AddUntested(12);
    anna.GetProgress(4).AddLearned(20);
    anna.GetProgress(5).AddUntested(30);
    anna.GetProgress(5).AddLearned(99); // in no category: stays where it is
    EXPECT_TRUE(FollowMovedCharacters(anna, now));
    EXPECT_EQ(anna.GetProgress(3).Learned(), Ids{10});
    EXPECT_TRUE(anna.GetProgress(3).Untested().empty());
    EXPECT_EQ(anna.GetProgress(4).Learned(), (Ids{20, 11})); // learned stays learned, at the end
    EXPECT_EQ(anna.GetProgress(5).Untested(), (Ids{30, 12})); // untested stays untested
    EXPECT_EQ(anna.GetProgress(5).Learned(), Ids{99});
    // Nothing left to move: a second pass changes nothing.
    const User before = anna;
    EXPECT_FALSE(FollowMovedCharacters(anna, now));
    EXPECT_EQ(anna.GetProgress(4).Learned(), before.Progress()[1].Learned());
}

TEST(MovedCharacters, ACharacterMovesToACategoryTheRecordDidNotHaveYet)
{
    User anna;
    anna.GetProgress(1).AddLearned(5);
    anna.GetProgress(1).AddUntested(6);
    EXPECT_TRUE(FollowMovedCharacters(anna, {{5, 6}, {}}));
    EXPECT_EQ(anna.GetProgress(0).Learned(), Ids{5});
    EXPECT_EQ(anna.GetProgress(0).Untested(), Ids{6});
    EXPECT_TRUE(anna.GetProgress(1).Learned().empty());
    EXPECT_TRUE(anna.GetProgress(1).Untested().empty());
}

TEST(MovedCharacters, ACharacterAlreadyListedWhereItMovedIsNotListedTwice)
{
    User anna;
    anna.GetProgress(0).AddLearned(5);
    anna.GetProgress(1).AddLearned(5);
    EXPECT_TRUE(FollowMovedCharacters(anna, {{}, {5}}));
    EXPECT_TRUE(anna.GetProgress(0).Learned().empty());
    EXPECT_EQ(anna.GetProgress(1).Learned(), Ids{5});
}

TEST(MovedCharacters, AMovedCharacterKeepsItsMemory)
{
    // 11 was passed in Grade 4 (category 3) thirty days ago, and now sits in Grade 5.
    const int today = DayOfDate(2026, 11, 24);
    const LearnerMemories memories = MemoryLedger::Fold({Passed(today - 30, 3, 11), Passed(today - 1, 4, 20)});
    User anna;
    anna.GetProgress(3).AddLearned(11);
    FollowMovedCharacters(anna, {{}, {}, {}, {}, {20, 11}});
    anna.GetProgress(4).AddLearned(20);
    const MemoryModel model(0.90, 365);
    const ReviewSchedule schedule(anna, memories, model, today);
    const ReviewSchedule::Review* moved = schedule.Find(4, 11);
    ASSERT_NE(moved, nullptr);
    // Its memory is the one from Grade 4: due as a character passed thirty days ago is, not as
    // one never reviewed (which would be due from the history's first day).
    User stayed;
    stayed.GetProgress(3).AddLearned(11);
    const ReviewSchedule unmoved(stayed, memories, model, today);
    const ReviewSchedule::Review* there = unmoved.Find(3, 11);
    ASSERT_NE(there, nullptr);
    EXPECT_EQ(moved->dueDay, there->dueDay);
    EXPECT_DOUBLE_EQ(moved->recall, there->recall);
}
