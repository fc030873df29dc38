#include "StrokePath.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(StrokePath, AppendCountAndRangeCheckedAccess)
{
    StrokePath path;
    EXPECT_EQ(path.Count(), 0u);
    path.Append({1, 2});
    EXPECT_EQ(path.Count(), 1u);
    EXPECT_EQ(path.At(0), (Point{1, 2}));
    EXPECT_THROW(path.At(1), std::out_of_range);
}

TEST(StrokePath, Length)
{
    EXPECT_EQ(StrokePath().Length(), 0.0f);
    EXPECT_EQ(StrokePath({{5, 5}}).Length(), 0.0f);
    EXPECT_FLOAT_EQ(StrokePath({{0, 0}, {3, 4}, {3, 10}}).Length(), 11.0f);
}

TEST(StrokePath, ScaleAndOffset)
{
    StrokePath path({{1, 2}, {3, 4}});
    path.ScaleAndOffset(2, 3, 10, 20);
    EXPECT_EQ(path.At(0), (Point{12, 26}));
    EXPECT_EQ(path.At(1), (Point{16, 32}));
}

TEST(StrokePath, BoundsRoundToNearest)
{
    const StrokePath path({{10.4f, 20.6f}, {30.5f, 5.2f}});
    const CanvasRect b = path.Bounds();
    EXPECT_EQ(b.x, 10);
    EXPECT_EQ(b.y, 5);
    EXPECT_EQ(b.width, 20); // 20.1
    EXPECT_EQ(b.height, 15); // 15.4
    EXPECT_EQ(StrokePath({{7, 9}}).Bounds(), (CanvasRect{7, 9, 0, 0}));
    EXPECT_EQ(StrokePath().Bounds(), CanvasRect{});
}

TEST(StrokePath, CentreMovesTheMeanToTheOrigin)
{
    StrokePath path({{0, 0}, {10, 0}, {20, 30}});
    path.Centre();
    EXPECT_FLOAT_EQ(path.At(0).x, -10);
    EXPECT_FLOAT_EQ(path.At(2).y, 20);
    StrokePath empty;
    empty.Centre();
    EXPECT_EQ(empty.Count(), 0u);
}

TEST(StrokePath, StraightStrokeResampledTo128PointsIsEvenlySpaced)
{
    const float length = 254.0f;
    StrokePath line({{0, 0}, {length, 0}});
    StrokePath out;
    line.Resample(128, out);
    ASSERT_EQ(out.Count(), 128u);
    for (std::uint32_t i = 1; i < out.Count(); ++i)
        EXPECT_NEAR(out.At(i).x - out.At(i - 1).x, length / 127.0f, 1e-3f) << i;
    EXPECT_NEAR(out.At(127).x, length, 1e-3f);
}

TEST(StrokePath, EndPointAppendedOnlyWhileFewerThanNPoints)
{
    // A length whose step does not add up exactly in single precision.
    StrokePath line({{0, 0}, {100.3f, 0}});
    for (std::uint32_t n : {2u, 3u, 7u, 64u, 128u, 300u}) {
        StrokePath out;
        line.Resample(n, out);
        EXPECT_EQ(out.Count(), n) << n;
        EXPECT_NEAR(out.At(n - 1).x, 100.3f, 1e-2f) << n;
    }
}

TEST(StrokePath, ResamplingNeedsTwoPointsAndLength)
{
    StrokePath out({{1, 1}});
    StrokePath({{3, 3}}).Resample(128, out);
    EXPECT_EQ(out.Count(), 0u);
    StrokePath({{3, 3}, {3, 3}}).Resample(128, out);
    EXPECT_EQ(out.Count(), 0u);
    StrokePath dot({{3, 3}, {3, 3}});
    dot.ResampleInPlace(10);
    EXPECT_EQ(dot.Count(), 0u);
}

TEST(StrokePath, EarlyBreakRuleGathersBreaksAtTheStart)
{
    // Thirty spans of one unit; the segments begin at points 0, 10 and 20.
    StrokePath path;
    for (int i = 0; i <= 30; ++i)
        path.Append({static_cast<float>(i), 0});
    path.AppendBreak(0);
    path.AppendBreak(10);
    path.AppendBreak(20);
    StrokePath out;
    path.Resample(11, out);
    ASSERT_EQ(out.Count(), 11u);
    // Recorded at the first span change after each emitted point, not where the segments begin.
    EXPECT_EQ(out.Breaks(), (std::vector<std::uint32_t>{0, 1, 2}));
}

TEST(StrokePath, BreaksOnLongSpansFallAtSpanChanges)
{
    StrokePath path({{0, 0}, {10, 0}, {20, 0}, {30, 0}});
    path.AppendBreak(0);
    path.AppendBreak(1);
    path.AppendBreak(2);
    StrokePath out;
    path.Resample(31, out);
    ASSERT_EQ(out.Count(), 31u);
    EXPECT_EQ(out.Breaks(), (std::vector<std::uint32_t>{0, 10, 20}));
}

TEST(StrokePath, ResampleInPlaceHasNoBreaks)
{
    StrokePath path({{0, 0}, {10, 0}, {10, 10}});
    path.AppendBreak(0);
    path.AppendBreak(1);
    path.ResampleInPlace(21);
    EXPECT_EQ(path.Count(), 21u);
    EXPECT_TRUE(path.Breaks().empty());
    EXPECT_NEAR(path.At(10).x, 10, 1e-4f);
    EXPECT_NEAR(path.At(20).y, 10, 1e-4f);
}
