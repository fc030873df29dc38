// The own frame on the simulated learner, one seed, Grade 1 and 2: what a careful hand writes is
// accepted far more often than by the checker alone, and what is wrong is still refused. The
// margins are generous; the figures themselves are printed by copy_simulation.

#include "CopySimulation.h"
#include "FileCharacterDatabase.h"

#include <gtest/gtest.h>

#include <iostream>

using namespace copysimulation;

namespace {

FileCharacterDatabase& Database()
{
    static FileCharacterDatabase database(ZAVOREN_STANDARD_DATABASE);
    return database;
}

Figures Simulate(const Hand& hand, Mistake mistake, bool ownFrame)
{
    const Figures f = Run(Database(), {0, 1}, hand, mistake, ownFrame, {7});
    std::cout << (ownFrame ? "own frame: " : "checker:   ") << Describe(f, mistake) << '\n';
    return f;
}

} // namespace

TEST(CopySimulation, ACarefulFreehandCopyIsJudgedAgainstItself)
{
    const Figures checker = Simulate(Hand{}, Mistake::None, false);
    const Figures own = Simulate(Hand{}, Mistake::None, true);
    EXPECT_GT(own.FirstTryShare(), 0.96);
    EXPECT_GT(own.CleanShare(), 0.92);
    EXPECT_GT(own.FirstTryShare(), checker.FirstTryShare() + 0.04);
    EXPECT_GT(own.CleanShare(), checker.CleanShare() + 0.2);
    EXPECT_LT(own.placeRefusals * 5, checker.placeRefusals);
}

TEST(CopySimulation, WhatIsOutOfPlaceIsStillRefused)
{
    Hand inPlace;
    inPlace.characterOffset = 0;
    inPlace.characterScale = 0;
    EXPECT_GT(Simulate(inPlace, Mistake::OneStrokeMoved, true).RefusedShare(), 0.93);
    EXPECT_GT(Simulate(Hand{}, Mistake::CharacterMoved, true).CaughtShare(), 0.92);
    EXPECT_GT(Simulate(Hand{}, Mistake::HalfSizeInACorner, true).CaughtShare(), 0.92);
}

TEST(CopySimulation, TracingOverTheModelIsAcceptedAsBefore)
{
    Hand tracing;
    tracing.characterOffset = 0;
    tracing.characterScale = 0;
    tracing.strokeOffset = 2;
    tracing.wobble = 2;
    const Figures checker = Simulate(tracing, Mistake::None, false);
    const Figures own = Simulate(tracing, Mistake::None, true);
    EXPECT_GT(own.FirstTryShare(), 0.99);
    EXPECT_GE(own.firstTry, checker.firstTry - checker.strokes / 1000);
}
