#include "ProgressRecorder.h"
#include "CategoryRules.h"

#include <gtest/gtest.h>

using Codes = std::vector<std::uint16_t>;

TEST(ProgressRecorder, ALessonAddsEveryTaughtCharacterToTheUntestedListInOrder)
{
    CategoryProgress progress;
    progress.AddUntested(4);
    ProgressRecorder(progress).LessonFinished({9, 4, 2});
    EXPECT_EQ(progress.Untested(), (Codes{4, 9, 4, 2})); // as it is: 4 twice
    EXPECT_TRUE(progress.Learned().empty());
}

TEST(ProgressRecorder, ATestTakesTheFirstUntestedCharactersUpToTheLessonSize)
{
    CategoryProgress progress;
    for (std::uint16_t id = 1; id <= 7; ++id)
        progress.AddUntested(id);
    EXPECT_EQ(ProgressRecorder(progress).TestCharacters().size(), LessonSize);
    EXPECT_EQ(ProgressRecorder(progress).TestCharacters(), (Codes{1, 2, 3, 4, 5}));
    CategoryProgress few;
    few.AddUntested(8);
    EXPECT_EQ(ProgressRecorder(few).TestCharacters(), (Codes{8}));
    EXPECT_TRUE(ProgressRecorder(*std::make_unique<CategoryProgress>()).TestCharacters().empty());
}

TEST(ProgressRecorder, PassedBecomeLearnedAndFailedAreNotLearnedAgain)
{
    CategoryProgress progress;
    progress.AddLearned(1);
    for (std::uint16_t id : {2, 3, 4})
        progress.AddUntested(id);
    ProgressRecorder(progress).TestTaken({2, 4}, {3});
    EXPECT_EQ(progress.Learned(), (Codes{1, 2, 4}));
    EXPECT_TRUE(progress.Untested().empty());
    // A passed character that was not untested stays where it was.
    ProgressRecorder(progress).TestTaken({9}, {});
    EXPECT_EQ(progress.Learned(), (Codes{1, 2, 4}));
}
