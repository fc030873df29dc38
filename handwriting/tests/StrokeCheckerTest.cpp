#include "StrokeChecker.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const CanvasRect Canvas{0, 0, 300, 300};

/// A 100 x 100 form with the given strokes.
Form MakeForm(std::initializer_list<Stroke> strokes)
{
    Form form(100, 100);
    for (const Stroke& s : strokes)
        form.AppendStroke(s);
    return form;
}

Stroke LineStroke(Point from, Point to)
{
    Stroke s(from);
    s.AppendSegment(Segment(SegmentType::Line, to));
    return s;
}

Stroke CurveStroke(Point from, Point c1, Point c2, Point to)
{
    Stroke s(from);
    s.AppendSegment(Segment(SegmentType::Bezier, c1, c2, to));
    return s;
}

/// Ink along a straight line in canvas pixels, one point per pixel or so.
StrokePath Ink(Point from, Point to, int points = 100)
{
    StrokePath ink;
    for (int i = 0; i < points; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(points - 1);
        ink.Append({from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t});
    }
    return ink;
}

} // namespace

TEST(StrokeChecker, OnePointStrokeGivesEmptyTemplateAndZeroBox)
{
    const StrokeChecker checker(MakeForm({Stroke(Point{50, 20})}), Canvas);
    ASSERT_EQ(checker.StrokeCount(), 1);
    EXPECT_EQ(checker.Template(0).Count(), 0u);
    EXPECT_EQ(checker.StrokeBounds(0), (CanvasRect{150, 60, 0, 0}));
}

TEST(StrokeChecker, TemplatesAreCentredWhereverTheStrokeLies)
{
    const StrokeChecker checker(
        MakeForm({LineStroke({5, 5}, {95, 5}), CurveStroke({10, 80}, {30, 20}, {70, 20}, {90, 80}),
            LineStroke({80, 10}, {80, 90})}),
        CanvasRect{17, 23, 300, 300});
    for (std::uint16_t i = 0; i < checker.StrokeCount(); ++i) {
        const StrokePath& t = checker.Template(i);
        ASSERT_EQ(t.Count(), 128u);
        float sx = 0, sy = 0;
        for (const Point& p : t.Points()) {
            sx += p.x;
            sy += p.y;
        }
        EXPECT_NEAR(sx, 0.0f, 0.05f) << i;
        EXPECT_NEAR(sy, 0.0f, 0.05f) << i;
    }
    // The position survives only in the bounds.
    EXPECT_EQ(checker.StrokeBounds(0), (CanvasRect{32, 38, 270, 0}));
    EXPECT_EQ(checker.SampleCount(), 128u);
    EXPECT_EQ(checker.FormWidth(), 100);
    EXPECT_EQ(checker.Canvas(), (CanvasRect{17, 23, 300, 300}));
}

TEST(StrokeChecker, FormWithoutStrokesRefusesEverything)
{
    const StrokeChecker checker(Form(100, 100), Canvas);
    EXPECT_EQ(checker.StrokeCount(), 0);
    EXPECT_EQ(checker.Score(Ink({0, 0}, {100, 100}), 0), -1.0f);
}

TEST(StrokeChecker, IndexNotBelowTheStrokeCountIsRefused)
{
    const StrokeChecker checker(MakeForm({LineStroke({10, 50}, {90, 50})}), Canvas);
    EXPECT_EQ(checker.Score(Ink({30, 150}, {270, 150}), 0), 1.0f);
    EXPECT_EQ(checker.Score(Ink({30, 150}, {270, 150}), 1), -1.0f);
}

TEST(StrokeChecker, MisplacedStrokeIsRefused)
{
    const StrokeChecker checker(MakeForm({LineStroke({10, 50}, {90, 50})}), Canvas);
    // Bounding-box centre 0.1 x canvas width away.
    EXPECT_EQ(checker.Score(Ink({30, 180}, {270, 180}), 0), -1.0f);
    // Exactly 0.09 x width (27 px) still passes the position test.
    EXPECT_EQ(checker.Score(Ink({30, 177}, {270, 177}), 0), 1.0f);
    EXPECT_EQ(checker.Score(Ink({30, 178}, {270, 178}), 0), -1.0f);
}

TEST(StrokeChecker, SizeTest)
{
    // Template from 30 to 270 (240 px) centred on 150.
    const StrokeChecker checker(MakeForm({LineStroke({10, 50}, {90, 50})}), Canvas);
    EXPECT_EQ(checker.Score(Ink({90, 150}, {210, 150}), 0), -1.0f); // ratio 0.5
    EXPECT_EQ(checker.Score(Ink({77.9f, 150}, {222.1f, 150}), 0), 1.0f); // ratio 0.6 and a hair
    EXPECT_EQ(checker.Score(Ink({79, 150}, {221, 150}), 0), -1.0f); // ratio 0.59
    EXPECT_EQ(checker.Score(Ink({-50, 150}, {350, 150}), 0), -1.0f);
}

TEST(StrokeChecker, StraightStrokeDrawnBackwardsScoresZero)
{
    const StrokeChecker checker(MakeForm({LineStroke({10, 50}, {90, 50})}), Canvas);
    EXPECT_EQ(checker.Score(Ink({270, 150}, {30, 150}), 0), 0.0f);
}

TEST(StrokeChecker, CurveNeedsTheRightShape)
{
    const Form form = MakeForm({CurveStroke({10, 80}, {30, 20}, {70, 20}, {90, 80})});
    const StrokeChecker checker(form, Canvas);
    // The curve itself, densely flattened, passes.
    StrokePath exact;
    for (int i = 0; i <= 200; ++i) {
        const float t = static_cast<float>(i) / 200.0f;
        const float s = 1 - t;
        const float x = 10 * s * s * s + 3 * s * t * (30 * s + 70 * t) + 90 * t * t * t;
        const float y = 80 * s * s * s + 3 * s * t * (20 * s + 20 * t) + 80 * t * t * t;
        exact.Append({x * 3, y * 3});
    }
    EXPECT_EQ(checker.Score(exact, 0), 1.0f);
    // A straight line across the same box does not.
    const float score = checker.Score(Ink({30, 150}, {270, 150}), 0);
    EXPECT_LT(score, 1.0f);
    EXPECT_GE(score, 0.0f);
}

TEST(StrokeChecker, ClickWithoutMovementIsRefused)
{
    const StrokeChecker checker(MakeForm({LineStroke({10, 50}, {90, 50})}), Canvas);
    EXPECT_EQ(checker.Score(StrokePath({{150, 150}}), 0), -1.0f);
    EXPECT_EQ(checker.Score(StrokePath({{150, 150}, {150, 150}}), 0), -1.0f);
}

TEST(StrokeChecker, DotRules)
{
    const StrokeChecker checker(Form(100, 100), Canvas, 4);
    const StrokePath a({{1, 2}, {3, 4}, {5, 6}, {7, 8}});
    const StrokePath b({{1, 1}, {1, 1}, {1, 1}, {1, 1}});
    EXPECT_EQ(checker.Dot(a, b, 0, 4), 36.0f);
    EXPECT_EQ(checker.Dot(a, b, 1, 2), 18.0f);
    EXPECT_EQ(checker.Dot(a, b, 2, 0), 0.0f);
    EXPECT_EQ(checker.Dot(a, b, 3, 2), -1.0f); // past the sample count
    EXPECT_EQ(checker.Dot(a, StrokePath({{1, 1}}), 0, 1), -1.0f);
}

TEST(StrokeChecker, MatchWithoutBreaksAccepts)
{
    const StrokeChecker checker(Form(100, 100), Canvas, 3);
    const StrokePath a({{1, 0}, {0, 1}, {-1, -1}});
    const StrokePath b({{-1, 0}, {0, -1}, {1, 1}});
    EXPECT_EQ(checker.Match(a, b), 1.0f);
    StrokePath withBreak = a;
    withBreak.AppendBreak(0);
    EXPECT_EQ(checker.Match(withBreak, b), 0.0f);
    EXPECT_EQ(checker.Match(withBreak, a), 1.0f);
    // A similarity under 0.97 is returned as it is.
    const StrokePath c({{1, 0.6f}, {0, 1}, {-1, -1}});
    // Worked by hand: a.c = 1 + 1 + 2 = 4, |a|^2 = 4, |c|^2 = 4.36, so 4 / sqrt(17.44).
    EXPECT_NEAR(checker.Match(withBreak, c), 0.957826f, 1e-6f);
}
