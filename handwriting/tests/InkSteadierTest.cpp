#include "InkSteadier.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

/// Points `spacing` apart along the polyline through `corners`, each moved by a jitter of σ
/// `jitter` px (the same seed, the same jitter).
StrokePath Jittered(const std::vector<Point>& corners, float spacing, float jitter, std::uint32_t seed = 7)
{
    std::mt19937 random(seed);
    std::normal_distribution<float> normal(0.0f, jitter);
    StrokePath path;
    for (std::size_t k = 0; k + 1 < corners.size(); ++k) {
        const Point a = corners[k], b = corners[k + 1];
        const float length = std::hypot(b.x - a.x, b.y - a.y);
        const int steps = std::max(1, static_cast<int>(std::lround(length / spacing)));
        for (int i = (k == 0 ? 0 : 1); i <= steps; ++i) {
            const float t = static_cast<float>(i) / static_cast<float>(steps);
            path.Append({a.x + (b.x - a.x) * t + normal(random), a.y + (b.y - a.y) * t + normal(random)});
        }
    }
    return path;
}

float Distance(Point a, Point b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

/// The root mean square distance of the path's points from the line y = `y`.
float DeviationFromRow(const StrokePath& path, float y)
{
    float sum = 0;
    for (const Point& p : path.Points())
        sum += (p.y - y) * (p.y - y);
    return std::sqrt(sum / static_cast<float>(path.Count()));
}

} // namespace

TEST(InkSteadier, AJitteredStraightLineComesOutNearStraightAndOfItsLength)
{
    const StrokePath drawn = Jittered({{20, 100}, {220, 100}}, 2, 1.5f);
    // The jitter lengthens the drawn line by a quarter or more.
    ASSERT_GT(drawn.Length(), 240.0f);
    const StrokePath steadied = InkSteadier::Steady(drawn);
    EXPECT_NEAR(steadied.Length(), 200.0f, 16.0f);
    EXPECT_LT(DeviationFromRow(steadied, 100), DeviationFromRow(drawn, 100) * 0.6f);
    // Start and end stay where the hand put them, within the jitter.
    EXPECT_LT(Distance(steadied.Points().front(), {20, 100}), 3.0f);
    EXPECT_LT(Distance(steadied.Points().back(), {220, 100}), 3.0f);
}

TEST(InkSteadier, CornersAndHooksStaySharp)
{
    // A horizontal line turning sharply down (a corner of 口), and a long vertical stroke with a
    // short hook up-left at its end (亅).
    const StrokePath corner = InkSteadier::Steady(Jittered({{40, 40}, {200, 40}, {200, 200}}, 2, 0.5f));
    float nearest = 1e9f;
    for (const Point& p : corner.Points())
        nearest = std::min(nearest, Distance(p, {200, 40}));
    EXPECT_LT(nearest, 3.0f); // the corner is not cut
    const StrokePath hook = InkSteadier::Steady(Jittered({{150, 20}, {150, 240}, {128, 222}}, 2, 0.5f));
    EXPECT_LT(Distance(hook.Points().back(), {128, 222}), 3.0f);
    float lowest = 0;
    for (const Point& p : hook.Points())
        lowest = std::max(lowest, p.y);
    EXPECT_GT(lowest, 236.0f); // the hook's turn is kept, not rounded off
}

TEST(InkSteadier, InkWithoutJitterStaysAsDrawn)
{
    const StrokePath drawn = Jittered({{30, 60}, {250, 90}}, 2, 0.0f);
    const StrokePath steadied = InkSteadier::Steady(drawn);
    EXPECT_NEAR(steadied.Length(), drawn.Length(), 0.5f);
    for (const Point& p : steadied.Points())
        EXPECT_NEAR(p.y, 60 + (p.x - 30) * 30.0f / 220.0f, 0.2f);
}

TEST(InkSteadier, ShortStrokesAreLeftAsDrawn)
{
    const StrokePath two({{10, 10}, {40, 12}});
    EXPECT_EQ(InkSteadier::Steady(two).Points(), two.Points());
    const StrokePath dot({{10, 10}, {11, 10}, {11, 11}});
    EXPECT_EQ(InkSteadier::Steady(dot).Points(), dot.Points());
    const StrokePath one({{5, 5}});
    EXPECT_EQ(InkSteadier::Steady(one).Points(), one.Points());
    EXPECT_TRUE(InkSteadier::Steady(StrokePath()).Points().empty());
}
