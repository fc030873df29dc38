#include "WritingQuiz.h"
#include "FileCharacterDatabase.h"
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

namespace {

/// A Grade 1 or 2 character of the standard database, found by the start of its meaning.
std::unique_ptr<Element> StandardGlyph(FileCharacterDatabase& db, const char* meaningStart)
{
    for (std::uint16_t grade : {0, 1}) {
        const auto category = db.LoadCategory(grade);
        for (std::uint16_t id : category->Characters()) {
            const auto character = db.LoadCharacter(id);
            if (character->Meaning() && std::string(character->Meaning()).rfind(meaningStart, 0) == 0)
                return db.LoadElement(character->ElementId());
        }
    }
    return nullptr;
}

/// Stroke `k` written as a hand copies beside the model: `right` px right and `scale` times the
/// size (about the canvas's centre); 12 px and 0.92 by default, a careful hand.
StrokePath OffAndSmall(const WritingQuiz& quiz, std::uint16_t k, float right = 12, float scale = 0.92f)
{
    StrokePath ink = LearnerInk(quiz.Glyph()->GetStroke(k), *quiz.Glyph(), 300);
    ink.ScaleAndOffset(scale, scale, 150 - scale * 150 + right, 150 - scale * 150);
    return ink;
}

} // namespace

TEST(WritingQuiz, ACharacterWrittenOffCentreAndSmallIsJudgedAgainstItself)
{
    FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    // 国 (country, Grade 2): its outer strokes lie far from the centre, where size tells most.
    // 12 px right and 8 % small, a careful hand: accepted stroke by stroke with the own frame.
    // 20 px right and 14 % small: the checker alone refuses strokes for place, the own frame
    // none.
    const struct {
        float right, scale;
        bool refusedWithout;
    } hands[] = {{12, 0.92f, false}, {20, 0.86f, true}};
    for (const auto& hand : hands) {
        for (bool own : {false, true}) {
            WritingQuiz quiz;
            quiz.SetOwnFrame(own);
            quiz.Start(StandardGlyph(db, "country"), Canvas);
            ASSERT_GT(quiz.StrokeCount(), 6);
            int placeRefusals = 0;
            for (std::uint16_t k = 0; k < quiz.StrokeCount(); ++k) {
                const StrokePath ink = OffAndSmall(quiz, k, hand.right, hand.scale);
                const StrokeVerdict verdict = quiz.Judge(ink);
                EXPECT_EQ(verdict.kind == StrokeVerdict::Kind::Accepted, quiz.Accepts(ink)) << k;
                placeRefusals += verdict.kind == StrokeVerdict::Kind::WrongPlace ? 1 : 0;
                if (own) {
                    EXPECT_EQ(verdict.kind, StrokeVerdict::Kind::Accepted) << hand.right << " px, stroke " << k + 1;
                }
                quiz.StrokeKept(ink); // as if it had been accepted, to go on
            }
            if (!own && hand.refusedWithout) {
                EXPECT_GT(placeRefusals, 0); // the checker alone refuses some of it for place
            }
        }
    }
}

TEST(WritingQuiz, AStrokeOutOfPlaceInTheLearnersCharacterIsToldTheWayThere)
{
    FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    WritingQuiz quiz;
    quiz.SetOwnFrame(true);
    quiz.Start(StandardGlyph(db, "country"), Canvas);
    for (std::uint16_t k = 0; k < 3; ++k)
        quiz.StrokeKept(OffAndSmall(quiz, k));
    // The fourth stroke, 45 px too high in the learner's character: refused, and the way goes
    // down to where it belongs there (12 px right of the model's place, 8 % nearer the centre).
    StrokePath high = OffAndSmall(quiz, 3);
    high.ScaleAndOffset(1, 1, 0, -45);
    const StrokeVerdict verdict = quiz.Judge(high);
    ASSERT_EQ(verdict.kind, StrokeVerdict::Kind::WrongPlace);
    EXPECT_EQ(verdict.Direction(), PlaceDirection::Down);
    const OwnFrame frame = quiz.FrameFor(high);
    const StrokePath placed = OffAndSmall(quiz, 3);
    const auto bounds = placed.Bounds();
    // The arrow ends at the learner's own place of the stroke, within a few pixels.
    EXPECT_NEAR(verdict.fromX + verdict.dx, bounds.x + bounds.width * 0.5f, 4.0f);
    EXPECT_NEAR(verdict.fromY + verdict.dy, bounds.y + bounds.height * 0.5f, 4.0f);
    EXPECT_LT(frame.Scale(), 1.0f);
}

namespace {

Stroke Line(Point from, Point to)
{
    Stroke stroke(from);
    stroke.AppendSegment(Segment(SegmentType::Line, to));
    return stroke;
}

/// 王's strokes in a 109 box: the top, the vertical, the middle and the bottom horizontal in the
/// standard order (form 0), the vertical last in the other (form 1).
std::unique_ptr<Element> King()
{
    const Stroke top = Line({30, 20}, {80, 20}), vertical = Line({55, 20}, {55, 90});
    const Stroke middle = Line({32, 55}, {78, 55}), bottom = Line({15, 90}, {95, 90});
    auto element = std::make_unique<Element>(70);
    Form standard(109, 109);
    for (const Stroke& s : {top, vertical, middle, bottom})
        standard.AppendStroke(s);
    Form verticalLast(109, 109);
    for (const Stroke& s : {top, middle, bottom, vertical})
        verticalLast.AppendStroke(s);
    element->AppendForm(standard);
    element->AppendForm(verticalLast);
    return element;
}

/// Stroke `k` of form `form` of 王 as a learner draws it.
StrokePath KingInk(std::uint8_t form, std::uint16_t k)
{
    static const std::unique_ptr<Element> king = King();
    return LearnerInk(king->GetForm(form).GetStroke(k), king->GetForm(form), 300);
}

} // namespace

TEST(WritingQuiz, AnotherStrokeOrderIsTakenAtItsFirstDifferingStrokeAndFollowed)
{
    WritingQuiz quiz;
    quiz.SetOtherOrders(true);
    quiz.Start(King(), Canvas);
    quiz.StrokeKept(KingInk(1, 0)); // the top: the same in both orders
    EXPECT_FALSE(quiz.TakeOrderChange());
    // The middle horizontal second: wrong in the standard order, right in the other.
    const StrokeVerdict second = quiz.Judge(KingInk(1, 1));
    EXPECT_EQ(second.kind, StrokeVerdict::Kind::Accepted);
    EXPECT_TRUE(second.otherOrder);
    EXPECT_TRUE(quiz.Accepts(KingInk(1, 1)));
    EXPECT_EQ(quiz.FormIndex(), 0); // taken once kept
    quiz.StrokeKept(KingInk(1, 1));
    EXPECT_EQ(quiz.FormIndex(), 1);
    EXPECT_EQ(quiz.Glyph()->GetStroke(3).Start().x, 55.0f); // the vertical last: the hint and arrows follow
    EXPECT_TRUE(quiz.TakeOrderChange());
    EXPECT_FALSE(quiz.TakeOrderChange()); // told once
    // From now on judged in that order: the bottom, then the vertical last.
    const StrokeVerdict third = quiz.Judge(KingInk(1, 2));
    EXPECT_EQ(third.kind, StrokeVerdict::Kind::Accepted);
    EXPECT_FALSE(third.otherOrder);
    quiz.StrokeKept(KingInk(1, 2));
    EXPECT_EQ(quiz.Judge(KingInk(1, 3)).kind, StrokeVerdict::Kind::Accepted);
    quiz.StrokeKept(KingInk(1, 3));
    EXPECT_TRUE(quiz.IsComplete());
    EXPECT_FALSE(quiz.TakeOrderChange());
}

TEST(WritingQuiz, WithoutOtherOrdersOrInNoOrderTheVerdictIsTodays)
{
    WritingQuiz off;
    off.Start(King(), Canvas);
    off.StrokeKept(KingInk(0, 0));
    const StrokeVerdict early = off.Judge(KingInk(1, 1));
    EXPECT_EQ(early.kind, StrokeVerdict::Kind::WrongOrder);
    EXPECT_EQ(early.drawnAs, 2);
    EXPECT_FALSE(off.Accepts(KingInk(1, 1)));

    WritingQuiz on;
    on.SetOtherOrders(true);
    on.Start(King(), Canvas);
    on.StrokeKept(KingInk(0, 0));
    // The bottom horizontal second is right in no order: the standard order's verdict.
    const StrokeVerdict wrong = on.Judge(KingInk(0, 3));
    EXPECT_EQ(wrong.kind, StrokeVerdict::Kind::WrongOrder);
    EXPECT_EQ(wrong.drawnAs, 3);
    EXPECT_FALSE(wrong.otherOrder);
    // The vertical drawn upwards: backwards in every order.
    const StrokePath down = KingInk(0, 1);
    StrokePath up(std::vector<Point>(down.Points().rbegin(), down.Points().rend()));
    EXPECT_EQ(on.Judge(up).kind, StrokeVerdict::Kind::WrongDirection);
    EXPECT_EQ(on.FormIndex(), 0);
}

TEST(WritingQuiz, TheStandardOrderCanBeTakenBackAndARestartBeginsWithIt)
{
    WritingQuiz quiz;
    quiz.SetOtherOrders(true);
    quiz.Start(King(), Canvas);
    quiz.StrokeKept(KingInk(1, 0));
    quiz.StrokeKept(KingInk(1, 1)); // the other order taken
    ASSERT_EQ(quiz.FormIndex(), 1);
    quiz.StrokeUndone(); // the middle horizontal taken back
    // Now the vertical second: right in the standard order only.
    const StrokeVerdict vertical = quiz.Judge(KingInk(0, 1));
    EXPECT_EQ(vertical.kind, StrokeVerdict::Kind::Accepted);
    EXPECT_TRUE(vertical.otherOrder);
    quiz.StrokeKept(KingInk(0, 1));
    EXPECT_EQ(quiz.FormIndex(), 0);
    quiz.StrokeKept(KingInk(1, 1));
    quiz.Restart();
    EXPECT_EQ(quiz.FormIndex(), 0);
    EXPECT_EQ(quiz.Kept(), 0);
}
