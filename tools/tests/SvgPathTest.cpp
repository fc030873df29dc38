#include "SvgPath.h"

#include <gtest/gtest.h>

namespace {
void ExpectPoint(Point p, float x, float y)
{
    EXPECT_FLOAT_EQ(p.x, x);
    EXPECT_FLOAT_EQ(p.y, y);
}
} // namespace

TEST(SvgPath, KanjiVgStrokeWithRelativeCurves)
{
    const Stroke s = ParseSvgPath("M52.77,15.08c1.08,1.08,1.67,2.49,1.76,5.52c0.4,14.55-0.26,62.16-0.26,67.12");
    ExpectPoint(s.Start(), 52.77f, 15.08f);
    ASSERT_EQ(s.SegmentCount(), 2);
    EXPECT_EQ(s.GetSegment(0).Type(), SegmentType::Bezier);
    ExpectPoint(s.GetSegment(0).P1(), 53.85f, 16.16f);
    ExpectPoint(s.GetSegment(0).P3(), 54.53f, 20.60f);
    // Relative to the end of the previous curve; "14.55-0.26" holds two numbers.
    ExpectPoint(s.GetSegment(1).P2(), 54.53f - 0.26f, 20.60f + 62.16f);
}

TEST(SvgPath, ImplicitRepetitionOfCurveParameters)
{
    const Stroke s = ParseSvgPath("M0,0 C1,1 2,2 3,3 4,4 5,5 6,6");
    ASSERT_EQ(s.SegmentCount(), 2);
    ExpectPoint(s.GetSegment(1).P3(), 6, 6);
}

TEST(SvgPath, SmoothCurveReflectsThePreviousControlPoint)
{
    const Stroke s = ParseSvgPath("M10,10 C20,0 30,0 40,10 S60,20 70,10 s10,0 10,10");
    ASSERT_EQ(s.SegmentCount(), 3);
    ExpectPoint(s.GetSegment(1).P1(), 50, 20); // reflection of (30, 0) about (40, 10)
    ExpectPoint(s.GetSegment(1).P3(), 70, 10);
    ExpectPoint(s.GetSegment(2).P1(), 80, 0); // reflection of (60, 20) about (70, 10)
    ExpectPoint(s.GetSegment(2).P2(), 80, 10);
    ExpectPoint(s.GetSegment(2).P3(), 80, 20);
    // After a non-curve, S uses the current point as its first control point.
    const Stroke t = ParseSvgPath("M0,0 L5,5 S10,10 20,20");
    ExpectPoint(t.GetSegment(1).P1(), 5, 5);
}

TEST(SvgPath, LinesHorizontalsVerticalsAndClose)
{
    const Stroke s = ParseSvgPath("M1 1 L5 1 l0 4 H10 h-2 V2 v3 Z");
    ASSERT_EQ(s.SegmentCount(), 7);
    ExpectPoint(s.GetSegment(0).P1(), 5, 1);
    ExpectPoint(s.GetSegment(1).P1(), 5, 5);
    ExpectPoint(s.GetSegment(2).P1(), 10, 5);
    ExpectPoint(s.GetSegment(3).P1(), 8, 5);
    ExpectPoint(s.GetSegment(4).P1(), 8, 2);
    ExpectPoint(s.GetSegment(5).P1(), 8, 5);
    EXPECT_EQ(s.GetSegment(6).Type(), SegmentType::Line);
    ExpectPoint(s.GetSegment(6).P1(), 1, 1);
}

TEST(SvgPath, PathStartingWithRelativeMoveAndImplicitLines)
{
    const Stroke s = ParseSvgPath("m10,20 5,0 0,5");
    ExpectPoint(s.Start(), 10, 20);
    ASSERT_EQ(s.SegmentCount(), 2);
    EXPECT_EQ(s.GetSegment(0).Type(), SegmentType::Line);
    ExpectPoint(s.GetSegment(0).P1(), 15, 20);
    ExpectPoint(s.GetSegment(1).P1(), 15, 25);
}

TEST(SvgPath, LaterMovetoBecomesMoveSegment)
{
    const Stroke s = ParseSvgPath("M0,0 L1,1 M5,5 L6,6 m1,1 z");
    ASSERT_EQ(s.SegmentCount(), 5);
    EXPECT_EQ(s.GetSegment(1).Type(), SegmentType::Move);
    ExpectPoint(s.GetSegment(1).P1(), 5, 5);
    EXPECT_EQ(s.GetSegment(3).Type(), SegmentType::Move);
    ExpectPoint(s.GetSegment(3).P1(), 7, 7);
    ExpectPoint(s.GetSegment(4).P1(), 7, 7); // closes to the last subpath's start
}

TEST(SvgPath, NumbersWithoutSeparators)
{
    const Stroke s = ParseSvgPath("M.5.5L1e1-2E-1");
    ExpectPoint(s.Start(), 0.5f, 0.5f);
    ExpectPoint(s.GetSegment(0).P1(), 10, -0.2f);
}

TEST(SvgPath, BadDataIsRefusedWithAReason)
{
    EXPECT_THROW(ParseSvgPath(""), SvgPathError);
    EXPECT_THROW(ParseSvgPath("L1,1"), SvgPathError);
    EXPECT_THROW(ParseSvgPath("M1"), SvgPathError);
    EXPECT_THROW(ParseSvgPath("M1,1 Q1,2 3,4"), SvgPathError);
    EXPECT_THROW(ParseSvgPath("M1,1 L1,x"), SvgPathError);
    try {
        ParseSvgPath("M1,1 A1,1");
        FAIL();
    } catch (const SvgPathError& e) {
        EXPECT_NE(std::string(e.what()).find("'A'"), std::string::npos);
    }
}
