#pragma once

#include "Form.h"
#include "Point.h"

#include <cstdint>
#include <vector>

/// The stroke-order demonstration of a glyph: every stroke flattened with 128 samples per curve,
/// scaled onto the canvas and resampled to one point per pixel of its length, so that showing
/// one more point per tick writes every stroke at the same speed. After each stroke it pauses.
class StrokeAnimation {
public:
    /// Ticks of pause after each stroke (about half a second at 10 ms).
    static constexpr int PauseTicks = 50;

    /// Lays the glyph's strokes onto a canvas of the given size. With `keepAspect` the glyph is
    /// scaled uniformly and centred instead of filling the canvas.
    StrokeAnimation(const Form& form, int width, int height, bool keepAspect = false);

    /// Advances one tick; true while strokes remain to be shown.
    bool Step();
    /// Index of the stroke being written.
    std::size_t CurrentStroke() const { return m_stroke; }
    /// How many points of the current stroke are shown.
    std::size_t PointsShown() const { return m_shown; }
    /// Ticks of pause left.
    int Pause() const { return m_pause; }
    /// The fitted strokes, one point list each.
    const std::vector<std::vector<Point>>& Strokes() const { return m_strokes; }

private:
    std::vector<std::vector<Point>> m_strokes;
    std::size_t m_stroke = 0;
    std::size_t m_shown = 0;
    int m_pause = 0;
};
