#include "ProgressRecorder.h"
#include "CategoryRules.h"

#include <gtest/gtest.h>

using Codes = std::vector<std::uint16_t>;

namespace {

const char* const Now = "2026-11-22T09:08:07+01:00";

std::string Clock()
{
    return Now;
}

/// The actions handed over to be kept, each as its number of events.
std::vector<std::size_t> g_actions;

/// Keeps an action's events with the learner's record, noting the action.
void KeepInRecord(User& learner, const std::vector<LearnerEvent>& events)
{
    g_actions.push_back(events.size());
    for (const LearnerEvent& e : events)
        learner.AddEvent(e);
}

/// A learner's events as "kind id mistakes" lines, for comparing.
std::vector<std::string> Events(const User& user)
{
    std::vector<std::string> out;
    for (const LearnerEvent& e : user.History()) {
        EXPECT_EQ(e.at, Now);
        out.push_back(e.kind + " " + std::to_string(e.categoryId) + "/" + std::to_string(e.id)
            + (e.mistakes >= 0 ? " " + std::to_string(e.mistakes) : ""));
    }
    return out;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(ProgressRecorder, ALessonAddsEveryTaughtCharacterToTheUntestedListInOrder)
{
    User user;
    user.GetProgress(3).AddUntested(4);
    ProgressRecorder(user, 3, Clock, KeepInRecord).LessonFinished({9, 4, 2});
    EXPECT_EQ(user.GetProgress(3).Untested(), (Codes{4, 9, 4, 2})); // as it is: 4 twice
    EXPECT_TRUE(user.GetProgress(3).Learned().empty());
    EXPECT_EQ(Events(user), (Lines{"lesson 3/9", "lesson 3/4", "lesson 3/2"}));
}

TEST(ProgressRecorder, ATestTakesTheFirstUntestedCharactersUpToTheLessonSize)
{
    User user;
    for (std::uint16_t id = 1; id <= 7; ++id)
        user.GetProgress(0).AddUntested(id);
    EXPECT_EQ(ProgressRecorder(user, 0, Clock, KeepInRecord).TestCharacters().size(), LessonSize);
    EXPECT_EQ(ProgressRecorder(user, 0, Clock, KeepInRecord).TestCharacters(), (Codes{1, 2, 3, 4, 5}));
    user.GetProgress(1).AddUntested(8);
    EXPECT_EQ(ProgressRecorder(user, 1, Clock, KeepInRecord).TestCharacters(), (Codes{8}));
    EXPECT_TRUE(ProgressRecorder(user, 2, Clock, KeepInRecord).TestCharacters().empty());
    EXPECT_TRUE(user.History().empty()); // asking records nothing
}

TEST(ProgressRecorder, PassedBecomeLearnedAndFailedAreNotLearnedAgain)
{
    User user;
    CategoryProgress& progress = user.GetProgress(0);
    progress.AddLearned(1);
    for (std::uint16_t id : {2, 3, 4})
        progress.AddUntested(id);
    auto mistakes = [](std::uint16_t code) { return code == 3 ? 2 : (code == 4 ? 1 : 0); };
    ProgressRecorder(user, 0, Clock, KeepInRecord).TestTaken({2, 4}, {3}, mistakes);
    EXPECT_EQ(progress.Learned(), (Codes{1, 2, 4}));
    EXPECT_TRUE(progress.Untested().empty());
    EXPECT_EQ(Events(user), (Lines{"passed 0/2 0", "passed 0/4 1", "failed 0/3 2"}));
    // A passed character that was not untested stays where it was.
    ProgressRecorder(user, 0, Clock, KeepInRecord).TestTaken({9}, {}, mistakes);
    EXPECT_EQ(progress.Learned(), (Codes{1, 2, 4}));
}

TEST(ProgressRecorder, ForgetRemovesLearnedCharactersAndSaysWhichLeft)
{
    User user;
    for (std::uint16_t id : {7, 8, 9})
        user.GetProgress(5).AddLearned(id);
    user.GetProgress(5).AddUntested(4);
    ProgressRecorder recorder(user, 5, Clock, KeepInRecord);
    EXPECT_EQ(recorder.Forget({9, 4, 7}), (Codes{9, 7})); // 4 was not learned: it stays untested
    EXPECT_EQ(user.GetProgress(5).Learned(), (Codes{8}));
    EXPECT_EQ(user.GetProgress(5).Untested(), (Codes{4}));
    recorder.LearnOne(10);
    EXPECT_EQ(Events(user), (Lines{"forget 5/9", "forget 5/7", "learn 5/10"}));
}

TEST(ProgressRecorder, RetestSendsFiveLearnedCharactersBackAndSaysWhich)
{
    User user;
    for (std::uint16_t id = 20; id < 27; ++id)
        user.GetProgress(1).AddLearned(id);
    // Draws of the standard generator seeded with 1: 41, 18467, 6334, 26500, 19169, that is
    // indexes 0 of 7, 3 of 6, 0 of 5, 3 of 4 and 1 of 3 in the list as it stands.
    Random15 random(1);
    ProgressRecorder recorder(user, 1, Clock, KeepInRecord);
    const Codes sent = recorder.Retest(random);
    EXPECT_EQ(sent, (Codes{20, 24, 21, 26, 23}));
    EXPECT_EQ(user.GetProgress(1).Learned(), (Codes{22, 25}));
    EXPECT_EQ(user.GetProgress(1).Untested().size(), 5u);
    EXPECT_EQ(Events(user), (Lines{"retest 1/20", "retest 1/24", "retest 1/21", "retest 1/26", "retest 1/23"}));
}

TEST(ProgressRecorder, OneCharacterAlreadyTaughtIsAReview)
{
    User user;
    user.GetProgress(2).AddLearned(7);
    user.GetProgress(2).AddUntested(8);
    ProgressRecorder recorder(user, 2, Clock, KeepInRecord);
    recorder.LearnOne(7);
    recorder.LearnOne(8);
    recorder.LearnOne(9);
    EXPECT_EQ(Events(user), (Lines{"review 2/7", "review 2/8", "learn 2/9"}));
    // Nothing moves: the lesson's end decides that.
    EXPECT_EQ(user.GetProgress(2).Learned(), (Codes{7}));
    EXPECT_EQ(user.GetProgress(2).Untested(), (Codes{8}));
}

TEST(ProgressRecorder, EachActionIsKeptInOnePieceAndNothingIsKeptForNoChange)
{
    g_actions.clear();
    User user;
    ProgressRecorder recorder(user, 0, Clock, KeepInRecord);
    recorder.LessonFinished({1, 2, 3, 4, 5});
    recorder.TestTaken({1, 2, 3}, {4, 5}, {});
    recorder.Forget({9}); // not learned: no change, nothing to keep
    recorder.LearnOne(1);
    EXPECT_EQ(g_actions, (std::vector<std::size_t>{5, 5, 1}));
    EXPECT_EQ(user.History().size(), 11u);
}
