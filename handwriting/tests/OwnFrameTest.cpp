// The frame of the learner's own character: fitted from accepted strokes' places, within limits.

#include "OwnFrame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const CanvasRect Canvas{0, 0, 298, 298};
constexpr float Centre = 149;

/// Where the learner puts a model point with this scale and offset.
Point Placed(Point model, float scale, float dx, float dy)
{
    return {Centre + scale * (model.x - Centre) + dx, Centre + scale * (model.y - Centre) + dy};
}

/// A whole character's strokes: twelve places spread over the canvas.
std::vector<OwnFrame::Pair> Character(float scale, float dx, float dy)
{
    std::vector<OwnFrame::Pair> pairs;
    for (int i = 0; i < 12; ++i) {
        const Point model{40.0f + 218.0f * float(i % 4) / 3, 40.0f + 218.0f * float(i / 4) / 2};
        pairs.push_back({model, Placed(model, scale, dx, dy)});
    }
    return pairs;
}

} // namespace

TEST(OwnFrame, AWholeCharacterGivesItsOffsetAndScaleExactly)
{
    const OwnFrame frame = OwnFrame::Fit(Character(0.9f, 12, -8), Canvas);
    EXPECT_NEAR(frame.Scale(), 0.9f, 1e-5f);
    EXPECT_NEAR(frame.OffsetX(), 12.0f, 1e-3f);
    EXPECT_NEAR(frame.OffsetY(), -8.0f, 1e-3f);
    // A point of the learner's character maps back onto the model and forth again.
    const Point model{100, 200};
    const Point learner = frame.ToLearner(model);
    EXPECT_NEAR(learner.x, Centre + 0.9f * (100 - Centre) + 12, 1e-3f);
    EXPECT_NEAR(frame.ToModel(learner).x, 100.0f, 1e-3f);
    EXPECT_NEAR(frame.ToModel(learner).y, 200.0f, 1e-3f);
}

TEST(OwnFrame, NoStrokeIsTheModelsPlaceAndOneStrokeAnOffsetOnly)
{
    EXPECT_TRUE(OwnFrame::Fit({}, Canvas).IsIdentity());
    const OwnFrame one = OwnFrame::Fit({{{60, 80}, {75, 71}}}, Canvas);
    EXPECT_EQ(one.Scale(), 1.0f);
    EXPECT_FLOAT_EQ(one.OffsetX(), 15.0f);
    EXPECT_FLOAT_EQ(one.OffsetY(), -9.0f);
}

TEST(OwnFrame, FewCloseStrokesHoldTheScaleNearOne)
{
    // Two strokes 30 px apart drawn 20 % apart: too close to say the character is smaller.
    const OwnFrame frame = OwnFrame::Fit({{{140, 100}, {140, 100}}, {{170, 100}, {164, 100}}}, Canvas);
    EXPECT_GT(frame.Scale(), 0.97f);
    EXPECT_LE(frame.Scale(), 1.0f);
}

TEST(OwnFrame, TheLimitsHold)
{
    // Half size: the scale stops at 0.75. Twice the size: at 1.33.
    EXPECT_FLOAT_EQ(OwnFrame::Fit(Character(0.5f, 0, 0), Canvas).Scale(), OwnFrame::MinScale);
    EXPECT_FLOAT_EQ(OwnFrame::Fit(Character(2.0f, 0, 0), Canvas).Scale(), OwnFrame::MaxScale);
    // Moved by 30 % of the width: the offset stops at 15 % (44.7 px), in the same direction.
    const OwnFrame far = OwnFrame::Fit(Character(1.0f, 0.3f * 298 * 0.6f, 0.3f * 298 * 0.8f), Canvas);
    EXPECT_NEAR(std::hypot(far.OffsetX(), far.OffsetY()), 0.15f * 298, 1e-3f);
    EXPECT_NEAR(far.OffsetX() / far.OffsetY(), 0.75f, 1e-4f);
}

TEST(OwnFrame, TheFirstStrokeHasAtMostItsRoom)
{
    // 8 px off: all of it. 40 px off: 12 px of it (4 % of 298), towards where it was drawn.
    const OwnFrame near = OwnFrame::ForFirstStroke({{100, 100}, {108, 100}}, Canvas);
    EXPECT_FLOAT_EQ(near.OffsetX(), 8.0f);
    EXPECT_EQ(near.Scale(), 1.0f);
    const OwnFrame far = OwnFrame::ForFirstStroke({{100, 100}, {100, 60}}, Canvas);
    EXPECT_FLOAT_EQ(far.OffsetX(), 0.0f);
    EXPECT_NEAR(far.OffsetY(), -0.04f * 298, 1e-4f);
}

TEST(OwnFrame, TheStrokesSizesHoldTheScaleWhileTheirPlacesCannot)
{
    // Two strokes 30 px apart, each drawn at 86 % of the model's length and where the model has
    // it: the places, spread 2 x 15^2 = 450 px^2, say 1; the sizes say 0.86, held with the
    // weight of (0.25 x 298)^2 = 5550 px^2: (450 + 5550 x 0.86) / (450 + 5550) = 0.8705.
    const OwnFrame held = OwnFrame::Fit({{{140, 100}, {140, 100}, 0.86f}, {{170, 100}, {170, 100}, 0.86f}}, Canvas);
    EXPECT_NEAR(held.Scale(), 0.8705f, 0.0005f);
    // Sizes alone never take the scale past their limits; a first stroke's alone, past 8 %.
    const OwnFrame small = OwnFrame::Fit({{{140, 100}, {140, 100}, 0.5f}}, Canvas);
    EXPECT_FLOAT_EQ(small.Scale(), OwnFrame::MinSizeScale);
    const OwnFrame first = OwnFrame::ForFirstStroke({{100, 100}, {100, 100}, 0.7f}, Canvas);
    EXPECT_FLOAT_EQ(first.Scale(), OwnFrame::FirstStrokeMinScale);
}
