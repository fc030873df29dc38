#pragma once

// A glyph's stroke as a learner's mouse would deliver it: flattened onto a square canvas of
// `side` pixels, shifted, and re-sampled to points about 3 px apart.

#include "Flattening.h"
#include "Form.h"
#include "StrokePath.h"

#include <algorithm>
#include <cmath>
#include <vector>

inline StrokePath LearnerInk(const Stroke& stroke, const Form& form, float side, float shiftX = 0, float shiftY = 0)
{
    StrokePath ink(FlattenStroke(stroke));
    ink.ScaleAndOffset(side / form.Width(), side / form.Height(), shiftX, shiftY);
    const float length = ink.Length();
    ink.ResampleInPlace(std::max<std::uint32_t>(2, static_cast<std::uint32_t>(std::lround(length / 3.0f)) + 1));
    return ink;
}

/// The same points, from the other end.
inline StrokePath Reversed(const StrokePath& path)
{
    return StrokePath(std::vector<Point>(path.Points().rbegin(), path.Points().rend()));
}
