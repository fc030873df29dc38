#include "WritingQuiz.h"
#include "LearnerInk.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const CanvasRect Canvas{0, 0, 300, 300};

/// A character of two strokes: a line across, then a line down.
std::unique_ptr<Element> TwoStrokes()
{
    auto element = std::make_unique<Element>(7);
    Form form(109, 109);
    Stroke across(Point{10, 50});
    across.AppendSegment(Segment(SegmentType::Line, Point{99, 50}));
    Stroke down(Point{54, 10});
    down.AppendSegment(Segment(SegmentType::Line, Point{54, 99}));
    form.AppendStroke(across);
    form.AppendStroke(down);
    element->AppendForm(form);
    return element;
}

/// Stroke `k` of the quiz's glyph as a learner would draw it.
StrokePath Ink(const WritingQuiz& quiz, std::uint16_t k, float shiftX = 0)
{
    return LearnerInk(quiz.Glyph()->GetStroke(k), *quiz.Glyph(), 300, shiftX);
}

} // namespace

TEST(WritingQuiz, WithoutACharacterNothingIsAccepted)
{
    WritingQuiz quiz;
    EXPECT_EQ(quiz.Glyph(), nullptr);
    EXPECT_EQ(quiz.StrokeCount(), 0);
    EXPECT_FALSE(quiz.IsComplete());
    EXPECT_FALSE(quiz.Accepts(StrokePath(std::vector<Point>{{0, 0}, {100, 0}})));
    quiz.Reveal();
    EXPECT_FALSE(quiz.Revealed());
}

TEST(WritingQuiz, AcceptsTheStrokesInOrderOnly)
{
    WritingQuiz quiz;
    quiz.Start(TwoStrokes(), Canvas);
    ASSERT_EQ(quiz.StrokeCount(), 2);
    EXPECT_TRUE(quiz.Accepts(Ink(quiz, 0)));
    EXPECT_FALSE(quiz.Accepts(Ink(quiz, 1))); // the second stroke first
    EXPECT_FALSE(quiz.Accepts(Ink(quiz, 0, 60))); // in the wrong place
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    EXPECT_EQ(quiz.Kept(), 1);
    EXPECT_TRUE(quiz.Accepts(Ink(quiz, 1)));
    EXPECT_FALSE(quiz.Accepts(Ink(quiz, 0)));
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    EXPECT_TRUE(quiz.IsComplete());
    // Past the last stroke nothing more is accepted.
    EXPECT_FALSE(quiz.Accepts(Ink(quiz, 1)));
}

TEST(WritingQuiz, AHintLastsUntilTheStrokeIsKeptOrTakenBack)
{
    WritingQuiz quiz;
    quiz.Start(TwoStrokes(), Canvas);
    quiz.ShowHint();
    EXPECT_TRUE(quiz.HintShown());
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    EXPECT_FALSE(quiz.HintShown());
    quiz.ShowHint();
    quiz.StrokeUndone();
    EXPECT_FALSE(quiz.HintShown());
    EXPECT_EQ(quiz.Kept(), 0);
    quiz.StrokeUndone(); // nothing left to take back
    EXPECT_EQ(quiz.Kept(), 0);
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.ShowHint();
    quiz.Restart();
    EXPECT_EQ(quiz.Kept(), 0);
    EXPECT_FALSE(quiz.HintShown());
}

TEST(WritingQuiz, RevealingBeforeTheEndIsPeeking)
{
    WritingQuiz quiz;
    quiz.Start(TwoStrokes(), Canvas);
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.Reveal();
    EXPECT_TRUE(quiz.Revealed());
    EXPECT_TRUE(quiz.Peeked());

    quiz.Start(TwoStrokes(), Canvas);
    EXPECT_FALSE(quiz.Revealed());
    EXPECT_FALSE(quiz.Peeked());
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.Reveal();
    EXPECT_TRUE(quiz.Revealed());
    EXPECT_FALSE(quiz.Peeked());
}

TEST(WritingQuiz, StartingAgainForgetsTheLastCharacter)
{
    WritingQuiz quiz;
    quiz.Start(TwoStrokes(), Canvas);
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.ShowHint();
    quiz.Start(nullptr, Canvas);
    EXPECT_EQ(quiz.Glyph(), nullptr);
    EXPECT_EQ(quiz.Kept(), 0);
    EXPECT_FALSE(quiz.HintShown());
}

TEST(WritingQuiz, MissesCountRefusalsOfTheStrokeExpectedNext)
{
    WritingQuiz quiz;
    quiz.Start(TwoStrokes(), Canvas);
    EXPECT_EQ(quiz.Judge(Ink(quiz, 1)).kind, StrokeVerdict::Kind::WrongOrder);
    EXPECT_EQ(quiz.Judge(Ink(quiz, 0)).kind, StrokeVerdict::Kind::Accepted);
    quiz.StrokeRefused();
    quiz.StrokeRefused();
    EXPECT_EQ(quiz.Misses(), 2);
    EXPECT_FALSE(quiz.NeedsHelp());
    quiz.StrokeRefused();
    EXPECT_TRUE(quiz.NeedsHelp()); // three misses
    quiz.ShowHint();
    EXPECT_FALSE(quiz.NeedsHelp()); // shown already
    quiz.StrokeUndone();
    quiz.StrokeRefused();
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    EXPECT_EQ(quiz.Misses(), 0); // a new stroke is expected
    quiz.StrokeRefused();
    quiz.Restart();
    EXPECT_EQ(quiz.Misses(), 0);
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    quiz.StrokeKept(Ink(quiz, quiz.Kept()));
    EXPECT_EQ(quiz.Judge(Ink(quiz, 1)).kind, StrokeVerdict::Kind::CharacterComplete);
    quiz.Start(nullptr, Canvas);
    EXPECT_EQ(
        quiz.Judge(StrokePath(std::vector<Point>{{1, 1}, {50, 50}})).kind, StrokeVerdict::Kind::CharacterComplete);
}
