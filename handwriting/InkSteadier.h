#pragma once

#include "StrokePath.h"

/// Steadies a finished stroke before it is judged: the points a trembling hand, a finger or a
/// cheap pen reports jitter around the line the learner meant, which lengthens the stroke and
/// bends its direction from point to point. The stroke is resampled at an even spacing and
/// smoothed along its length, piece by piece between its corners, so that a hook or a turn stays
/// sharp; its first and last points stay where they were drawn. The canvas keeps showing the ink
/// as drawn; the checker, the coach and the own frame see the steadied stroke.
namespace InkSteadier {

/// Chosen from `copy_simulation DATABASE 5 --steady` (Grade 1 and 2 written exactly along their
/// paths on the 298 px canvas, points every 2 px, every point jittered, own frame on): over 8 px
/// a jitter of σ 1.5 px leaves 99.9 % of characters accepted whole (84 % unsteadied) and one of
/// σ 3 px, a finger, 97.6 % (none unsteadied), while a stroke moved by 15 % of the width is still
/// refused in 99.3 % of the characters and one drawn backwards in 100 % of exact ones. Over 6 px
/// a finger's jitter is left too long; over 12 px hooks start to round off.
///
/// The spacing the stroke is resampled at, px.
constexpr float Spacing = 2.0f;
/// How far along the stroke the smoothing reaches (the Gaussian's σ is half of it), px.
constexpr float Width = 8.0f;
/// How far the points as drawn are evened out before the corners are looked for (the Gaussian's
/// σ, in points).
constexpr float CalmPoints = 2.0f;
/// A turn sharper than this, measured over the smoothing width on either side, is a corner.
constexpr float CornerDegrees = 65.0f;

/// The steadied stroke; a stroke too short to steady (under two spacings) is returned as drawn.
StrokePath Steady(const StrokePath& ink, float width = Width);

} // namespace InkSteadier
