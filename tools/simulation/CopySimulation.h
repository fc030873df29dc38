#pragma once

#include "CharacterDatabase.h"
#include "StrokePath.h"

#include <random>

#include <cstdint>
#include <string>
#include <vector>

/// A simulated learner copying characters freehand onto the 298 px writing canvas, stroke by
/// stroke through WritingQuiz as the lesson page does (a refused stroke is tried again, with a
/// fresh hand, up to five times), with the own-frame aid on or off. What it measures is what the
/// learner meets: strokes accepted at the first try, characters with a refusal for place.
namespace copysimulation {

/// How the learner's hand departs from the model.
struct Hand {
    float characterOffset = 12; ///< the whole character's offset, σ per axis, px
    float characterScale = 0.07f; ///< its size, σ of the scale about the canvas's centre
    float strokeOffset = 5; ///< each stroke's own further offset, σ per axis, px
    float wobble = 3; ///< a smooth sideways waver along each stroke, amplitude px
    float pointNoise = 0; ///< independent noise on each point, σ px (a hand tracing)
    float pointSpacing = 3; ///< how far apart the pointer reports points, px
};

/// What is done on purpose, on top of the hand.
enum class Mistake {
    None,
    OneStrokeMoved, ///< one stroke (at random) moved by 15 % of the width, any direction that
    ///< keeps it on the canvas
    CharacterMoved, ///< the whole character moved by 30 % of the width, any direction
    HalfSizeInACorner, ///< the whole character at half size, shrunk into a corner
    OneStrokeReversed, ///< one stroke (at random) drawn from its other end
};

struct Figures {
    int characters = 0;
    int strokes = 0; ///< strokes expected
    int firstTry = 0; ///< strokes accepted at their first try
    int cleanCharacters = 0; ///< characters with no refusal for place
    int wholeCharacters = 0; ///< characters with every stroke accepted at its first try
    int placeRefusals = 0;
    int shapeRefusals = 0;
    int otherRefusals = 0;
    int mistakesCaught = 0; ///< Mistake cases refused for place where it should be
    int mistakesRefused = 0; ///< Mistake cases refused there at all (for place, or as a later stroke)
    int mistakes = 0; ///< Mistake cases tried

    double FirstTryShare() const { return strokes ? double(firstTry) / strokes : 0; }
    double CleanShare() const { return characters ? double(cleanCharacters) / characters : 0; }
    double WholeShare() const { return characters ? double(wholeCharacters) / characters : 0; }
    double CaughtShare() const { return mistakes ? double(mistakesCaught) / mistakes : 0; }
    double RefusedShare() const { return mistakes ? double(mistakesRefused) / mistakes : 0; }
};

/// One freehand copy of the whole character on the 298 px canvas, every stroke drawn once by
/// `hand` (the character placed, scaled and each stroke moved and wavering as in Run).
std::vector<StrokePath> FreehandCopy(const Form& form, const Hand& hand, std::mt19937& random);

/// Copies every character of `categories` once per seed; each stroke is steadied
/// (InkSteadier) over `steadyWidth` px before it is judged, unless that is 0.
Figures Run(CharacterDatabase& database, const std::vector<std::uint16_t>& categories, const Hand& hand,
    Mistake mistake, bool ownFrame, const std::vector<std::uint32_t>& seeds, float steadyWidth = 0);

/// How the other stroke orders are judged: characters written exactly along their paths, points
/// every 2 px, through WritingQuiz with the other orders accepted or not.
struct OrderFigures {
    int variants = 0; ///< other orders written in their own order
    int variantStrokes = 0;
    int variantStrokesAccepted = 0; ///< accepted with the other orders on
    int variantsWholeWithout = 0; ///< other orders accepted whole with them off
    int standardStrokes = 0; ///< strokes of the standard order written
    int standardSameVerdicts = 0; ///< judged alike with the other orders on and off
    int swaps = 0; ///< two consecutive strokes swapped, where no other order has that swap
    int swapsRefusedOn = 0; ///< the first of them refused with the other orders on
    int swapsRefusedOff = 0; ///< and with them off
};

/// Writes every other order of the characters of `categories`, and each character in the
/// standard order, and up to `swaps` swaps of two consecutive strokes (chosen with `seed`).
OrderFigures RunOrders(
    CharacterDatabase& database, const std::vector<std::uint16_t>& categories, int swaps, std::uint32_t seed);

/// The figures on one line, for reports.
std::string Describe(const Figures& figures, Mistake mistake);

} // namespace copysimulation
