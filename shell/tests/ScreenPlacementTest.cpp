#include "ScreenPlacement.h"

#include <gtest/gtest.h>

namespace {

const QRect Left(0, 0, 1280, 1024);
const QRect Right(1280, 0, 1920, 1080);

TEST(ScreenPlacement, AFrameOnAScreenStaysWhereItIs)
{
    EXPECT_EQ(PlaceOnScreens(QRect(200, 100, 400, 500), {Left}), QPoint(200, 100));
    EXPECT_EQ(PlaceOnScreens(QRect(1500, 300, 400, 500), {Left, Right}), QPoint(1500, 300));
    // Running off the right edge with its corner visible: left alone, as the learner put it.
    EXPECT_EQ(PlaceOnScreens(QRect(1100, 100, 400, 500), {Left}), QPoint(1100, 100));
}

TEST(ScreenPlacement, AFrameFarOutsideEveryScreenComesOntoTheNearest)
{
    // Far below and left of the left screen: into its bottom-left corner, wholly visible.
    EXPECT_EQ(PlaceOnScreens(QRect(-5000, 9000, 400, 500), {Left, Right}), QPoint(0, 1024 - 500));
    // Far to the right: onto the right screen, against its right edge.
    EXPECT_EQ(PlaceOnScreens(QRect(9000, 200, 400, 500), {Left, Right}), QPoint(1280 + 1920 - 400, 200));
    // Above the right screen.
    EXPECT_EQ(PlaceOnScreens(QRect(2000, -3000, 400, 500), {Left, Right}), QPoint(2000, 0));
}

TEST(ScreenPlacement, AFrameTooBigForItsScreenShowsItsTopLeftCorner)
{
    // Centred on a small screen, its corner is off the top and left.
    EXPECT_EQ(PlaceOnScreens(QRect(-100, -150, 1000, 900), {QRect(0, 0, 800, 600)}), QPoint(0, 0));
    // Pushed past the top only: brought down, not sideways.
    EXPECT_EQ(PlaceOnScreens(QRect(300, -40, 400, 500), {Left}), QPoint(300, 0));
}

TEST(ScreenPlacement, ScreensWithAnOffsetAreRespected)
{
    // A taskbar at the top: the available area starts lower.
    const QRect available(0, 40, 1280, 984);
    EXPECT_EQ(PlaceOnScreens(QRect(100, 10, 400, 500), {available}), QPoint(100, 40));
    EXPECT_EQ(PlaceOnScreens(QRect(-900, -900, 400, 500), {available}), QPoint(0, 40));
}

TEST(ScreenPlacement, WithoutScreensNothingMoves)
{
    EXPECT_EQ(PlaceOnScreens(QRect(-5000, 9000, 400, 500), {}), QPoint(-5000, 9000));
}

} // namespace
