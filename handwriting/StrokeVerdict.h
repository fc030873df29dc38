#pragma once

#include "StrokeChecker.h"
#include "StrokePath.h"

#include <cstdint>
#include <string>

/// The way from where a stroke was drawn to where it belongs (y grows downwards).
enum class PlaceDirection { Left, Right, Up, Down, UpLeft, UpRight, DownLeft, DownRight };

/// Why a learner's stroke was refused, or that it was accepted, worked out with the checker's
/// own evaluation. Pages switch on the kind and show its sentence; the checker's decision is
/// unchanged: a stroke that StrokeChecker accepts is always Accepted.
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
    /// Accepted: the stroke is right in another stroke order than the one being written (the
    /// quiz follows that order once the stroke is kept).
    bool otherOrder = false;

    /// WrongPlace: which way the stroke belongs.
    PlaceDirection Direction() const;
};

/// Judges ink drawn as stroke `index`, checking in this order: accepted; a later stroke (the
/// first that accepts it); the expected stroke reversed; place; size; shape. An index past the
/// last stroke is CharacterComplete. Evaluates up to every later stroke, so it is for refused
/// strokes what the checker's acceptance is for accepted ones.
StrokeVerdict JudgeStroke(const StrokeChecker& checker, const StrokePath& ink, std::uint16_t index);

/// The way of a move by (dx, dy): straight left, right, up or down when one axis is more than
/// twice the other, otherwise diagonal.
PlaceDirection DirectionOf(float dx, float dy);

/// The sentence the learner reads for a verdict, in English, as the interface translates it
/// (context "WritingCoach"); a WrongOrder sentence holds %1 (the stroke drawn) and %2 (the
/// stroke expected), counted from 1. Without `direction` a misplaced stroke says only "Wrong
/// place." (the drawing test gives nothing away). Accepted has no sentence (empty).
const char* VerdictSentence(const StrokeVerdict& verdict, bool direction = true);

/// The verdict's sentence in English with its numbers filled in, as the command-line tool
/// prints it.
std::string VerdictText(const StrokeVerdict& verdict, bool direction = true);
