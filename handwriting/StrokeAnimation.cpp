#include "StrokeAnimation.h"

#include "Flattening.h"
#include "StrokePath.h"

#include <algorithm>
#include <cmath>

StrokeAnimation::StrokeAnimation(const Form& form, int width, int height, bool keepAspect)
{
    float sx = static_cast<float>(width) / static_cast<float>(form.Width());
    float sy = static_cast<float>(height) / static_cast<float>(form.Height());
    float ox = 0.0f, oy = 0.0f;
    if (keepAspect) {
        const float s = std::min(sx, sy);
        ox = (static_cast<float>(width) - s * form.Width()) / 2.0f;
        oy = (static_cast<float>(height) - s * form.Height()) / 2.0f;
        sx = sy = s;
    }
    for (const Stroke& stroke : form.Strokes()) {
        StrokePath path(FlattenStroke(stroke, FlatteningSamplesPerCurve));
        path.ScaleAndOffset(sx, sy, ox, oy);
        const float length = std::floor(path.Length());
        // One point per pixel of length; a path shorter than 2 pixels keeps its points.
        if (length > 1.0f)
            path.ResampleInPlace(static_cast<std::uint32_t>(length));
        m_strokes.push_back(path.Points());
    }
}

bool StrokeAnimation::Step()
{
    if (m_pause > 0) {
        --m_pause;
        return true;
    }
    ++m_shown;
    if (m_stroke < m_strokes.size() && m_shown >= m_strokes[m_stroke].size()) {
        ++m_stroke;
        m_shown = 0;
        m_pause = PauseTicks;
    }
    return m_stroke < m_strokes.size();
}
