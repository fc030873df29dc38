#include "StrokeAnimation.h"

#include <gtest/gtest.h>

#include <cmath>


TEST(StrokeAnimation, OnePointPerPixelAndAPauseAfterEachStroke)
{
    Form form(100, 100);
    Stroke a(Point{0, 50});
    a.AppendSegment(Segment(SegmentType::Line, {100, 50}));
    Stroke b(Point{50, 0});
    b.AppendSegment(Segment(SegmentType::Line, {50, 1}));
    Stroke dot(Point{10, 10});
    form.AppendStroke(a);
    form.AppendStroke(b);
    form.AppendStroke(dot);
    StrokeAnimation anim(form, 200, 200);
    ASSERT_EQ(anim.Strokes().size(), 3u);
    EXPECT_EQ(anim.Strokes()[0].size(), 200u); // 200 px long
    EXPECT_EQ(anim.Strokes()[1].size(), 2u); // exactly 2 px: resampled to 2 points
    EXPECT_EQ(anim.Strokes()[2].size(), 1u); // shorter than 2 px keeps its points
    int ticks = 0;
    while (anim.CurrentStroke() == 0) {
        EXPECT_TRUE(anim.Step());
        ++ticks;
    }
    EXPECT_EQ(ticks, 200);
    EXPECT_EQ(anim.Pause(), StrokeAnimation::PauseTicks);
    EXPECT_EQ(anim.PointsShown(), 0u);
    for (int i = 0; i < StrokeAnimation::PauseTicks; ++i)
        EXPECT_TRUE(anim.Step());
    EXPECT_EQ(anim.Pause(), 0);
    EXPECT_TRUE(anim.Step());
    EXPECT_TRUE(anim.Step()); // second stroke done, pause begins
    EXPECT_EQ(anim.CurrentStroke(), 2u);
    for (int i = 0; i < StrokeAnimation::PauseTicks; ++i)
        EXPECT_TRUE(anim.Step());
    // The last stroke's one point: the animation ends at once, without a pause.
    EXPECT_FALSE(anim.Step());
}

TEST(StrokeAnimation, KeepAspectCentresTheGlyph)
{
    Form form(100, 50);
    Stroke a(Point{0, 0});
    a.AppendSegment(Segment(SegmentType::Line, {100, 50}));
    form.AppendStroke(a);
    StrokeAnimation anim(form, 200, 200, true);
    EXPECT_FLOAT_EQ(anim.Strokes()[0].front().y, 50.0f);
    EXPECT_NEAR(anim.Strokes()[0].back().y, 150.0f, 0.01f);
}
