#include "LessonSession.h"

#include <gtest/gtest.h>

using Codes = std::vector<std::uint16_t>;

TEST(LessonSession, TeachesInOrderAndRecordsTheDoneList)
{
    LessonSession s;
    s.Start({4, 9, 4});
    EXPECT_EQ(s.Current(), 4);
    EXPECT_TRUE(s.Next());
    EXPECT_EQ(s.Remaining(), (Codes{9, 4}));
    EXPECT_EQ(s.Current(), 9);
    EXPECT_TRUE(s.Next());
    // The same code twice is taught twice: Next removes only its first occurrence.
    EXPECT_EQ(s.Current(), 4);
    EXPECT_FALSE(s.Next());
    EXPECT_EQ(s.Done(), (Codes{4, 9, 4}));
    EXPECT_FALSE(s.Current());
    s.Start({1});
    EXPECT_TRUE(s.Done().empty());
}

TEST(LessonSession, EmptyLessonHasNothingToTeach)
{
    LessonSession s;
    s.Start({});
    EXPECT_FALSE(s.Current());
    EXPECT_FALSE(s.Next());
    EXPECT_TRUE(s.Done().empty());
}

TEST(LessonControls, TheFiveRules)
{
    // Writing: input on, Next off (Abort default), Hint on, Clear/Undo off with nothing drawn.
    LessonControlState s = DecideLessonControls(true, 4, 0, true, false);
    EXPECT_TRUE(s.inputEnabled);
    EXPECT_FALSE(s.nextEnabled);
    EXPECT_FALSE(s.nextIsDefault);
    EXPECT_TRUE(s.hintEnabled);
    EXPECT_FALSE(s.clearAndUndoEnabled);
    // One hint per stroke.
    EXPECT_FALSE(DecideLessonControls(true, 4, 1, false, true).hintEnabled);
    EXPECT_TRUE(DecideLessonControls(true, 4, 1, false, true).clearAndUndoEnabled);
    // Complete and ticked: Next on and default, input off, Hint off.
    s = DecideLessonControls(true, 4, 4, true, false);
    EXPECT_FALSE(s.inputEnabled);
    EXPECT_TRUE(s.nextEnabled);
    EXPECT_TRUE(s.nextIsDefault);
    EXPECT_FALSE(s.hintEnabled);
    // Complete but a box unticked.
    EXPECT_FALSE(DecideLessonControls(true, 4, 4, false, false).nextEnabled);
    // No character: nothing but Abort.
    s = DecideLessonControls(false, 0, 0, true, false);
    EXPECT_FALSE(s.inputEnabled);
    EXPECT_FALSE(s.nextEnabled);
    EXPECT_FALSE(s.hintEnabled);
}
