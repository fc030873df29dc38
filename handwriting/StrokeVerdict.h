#pragma once

#include "StrokeChecker.h"
#include "StrokePath.h"

#include <cstdint>
#include <string>

/// Why a learner's stroke was refused, or that it was accepted, worked out with the checker's
/// own tests. Pages switch on the kind and show its text; the checker's decision is unchanged:
/// a stroke that StrokeChecker::Score accepts is always Accepted.
struct StrokeVerdict {
    enum class Kind {
        Accepted,
        WrongOrder, ///< it is a later stroke of the character
        WrongDirection, ///< it is the expected stroke drawn from its other end
        WrongPlace, ///< the place test fails
        TooShort, ///< the size test fails, drawn shorter than expected
        TooLong, ///< the size test fails, drawn longer than expected
        WrongShape, ///< place and size fit, the shape does not
        CharacterComplete, ///< every stroke is already written
    };

    Kind kind = Kind::Accepted;
    std::uint16_t expected = 0; ///< index of the stroke expected, from 0
    std::uint16_t drawnAs = 0; ///< WrongOrder: index of the later stroke it matches
    float fromX = 0; ///< WrongPlace: the drawn stroke's box centre, canvas pixels
    float fromY = 0;
    float dx = 0; ///< WrongPlace: from there to the expected stroke's box centre
    float dy = 0;
};

/// Judges ink drawn as stroke `index`, checking in this order: accepted; a later stroke (the
/// first that accepts it); the expected stroke reversed; place; size; shape. An index past the
/// last stroke is CharacterComplete. Scores up to every later stroke, so it is for refused
/// strokes what Score is for accepted ones.
StrokeVerdict JudgeStroke(const StrokeChecker& checker, const StrokePath& ink, std::uint16_t index);

/// Where a misplaced stroke belongs, seen from where it was drawn (y grows downwards): "left",
/// "right", "up" or "down" when one axis is more than twice the other, otherwise "up and to the
/// left", "down and to the right" and so on.
std::string PlaceDirection(float dx, float dy);

/// The verdict in words, as the learner reads it. Without `direction` a misplaced stroke says
/// only "Wrong place." (the drawing test gives nothing away). Accepted has no text.
std::string VerdictText(const StrokeVerdict& verdict, bool direction = true);
