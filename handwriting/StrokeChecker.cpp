#include "StrokeChecker.h"

#include "Flattening.h"

#include <algorithm>
#include <cmath>

StrokePath StrokeChecker::MapStroke(
    const Stroke& stroke, std::uint16_t formWidth, std::uint16_t formHeight, CanvasRect canvas)
{
    const float kx = static_cast<float>(canvas.width) / static_cast<float>(formWidth);
    const float ky = static_cast<float>(canvas.height) / static_cast<float>(formHeight);
    const float ox = static_cast<float>(canvas.x);
    const float oy = static_cast<float>(canvas.y);
    auto map = [&](Point p) { return Point{p.x * kx + ox, p.y * ky + oy}; };
    StrokePath path;
    Point current = map(stroke.Start());
    path.Append(current);
    for (const Segment& segment : stroke.Segments()) {
        if (path.Count() > 0)
            path.AppendBreak(path.Count() - 1);
        switch (segment.Type()) {
        case SegmentType::Bezier: {
            const Point p1 = map(segment.P1()), p2 = map(segment.P2()), p3 = map(segment.P3());
            for (int i = 0; i < SamplesPerCurve; ++i)
                path.Append(
                    BezierPoint(current, p1, p2, p3, static_cast<float>(i) / static_cast<float>(SamplesPerCurve)));
            current = p3;
            break;
        }
        case SegmentType::Line:
        case SegmentType::Move:
            current = map(segment.P1());
            path.Append(current);
            break;
        }
    }
    return path;
}

StrokeChecker::StrokeChecker(const Form& form, CanvasRect canvas, std::uint32_t sampleCount)
    : m_sampleCount(sampleCount), m_formWidth(form.Width()), m_formHeight(form.Height()), m_canvas(canvas)
{
    m_templates.reserve(form.Strokes().size());
    m_bounds.reserve(form.Strokes().size());
    for (const Stroke& stroke : form.Strokes()) {
        const StrokePath mapped = MapStroke(stroke, m_formWidth, m_formHeight, canvas);
        StrokePath resampled;
        mapped.Resample(sampleCount, resampled);
        resampled.Centre();
        m_bounds.push_back(mapped.Bounds());
        m_templates.push_back(std::move(resampled));
    }
}

StrokeChecker::Ink StrokeChecker::Prepare(const StrokePath& ink) const
{
    Ink prepared;
    ink.Resample(m_sampleCount, prepared.centred);
    const StrokePath& drawn = prepared.centred;
    // Ink without length (a click) has no shape to compare.
    if (drawn.Count() == 0)
        return prepared;
    prepared.hasLength = true;
    prepared.bounds = drawn.Bounds();
    // The way to the expected place is measured on the points themselves: ink dragged past the
    // canvas's edge has negative coordinates, which the box cannot hold.
    float left = drawn.Points().front().x, right = left, top = drawn.Points().front().y, bottom = top;
    for (Point p : drawn.Points()) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
    }
    prepared.centreX = (left + right) * 0.5f;
    prepared.centreY = (top + bottom) * 0.5f;
    prepared.centred.Centre();
    prepared.length = prepared.centred.Length();
    return prepared;
}

StrokeChecker::Evaluation StrokeChecker::Evaluate(const Ink& ink, std::uint16_t index) const
{
    using Fit = Evaluation::Fit;
    Evaluation e;
    if (index >= m_templates.size())
        return e;
    if (!ink.hasLength) {
        e.fit = Fit::NoLength;
        return e;
    }
    const CanvasRect b = ink.bounds;
    const CanvasRect t = m_bounds[index];
    e.dx = (t.x + t.width * 0.5f) - ink.centreX;
    e.dy = (t.y + t.height * 0.5f) - ink.centreY;
    const float dx = (b.x + b.width * 0.5f) - (t.x + t.width * 0.5f);
    const float dy = (b.y + b.height * 0.5f) - (t.y + t.height * 0.5f);
    if (std::sqrt(dx * dx + dy * dy) > PositionTolerance * m_canvas.width) {
        e.fit = Fit::Misplaced;
        return e;
    }
    e.drawnLength = ink.length;
    e.expectedLength = m_templates[index].Length();
    const float ratio
        = e.drawnLength <= e.expectedLength ? e.drawnLength / e.expectedLength : e.expectedLength / e.drawnLength;
    // Two lengths of 0 give no ratio (NaN), which this test lets through.
    if (ratio < SizeTolerance) {
        e.fit = Fit::WrongSize;
        return e;
    }
    e.score = Match(m_templates[index], ink.centred);
    e.fit = e.score >= 1.0f ? Fit::Accepted : Fit::WrongShape;
    return e;
}

float StrokeChecker::Match(const StrokePath& expected, const StrokePath& drawn) const
{
    const std::vector<std::uint32_t>& breaks = expected.Breaks();
    for (std::size_t j = 0; j < breaks.size(); ++j) {
        const std::uint32_t first = breaks[j];
        const std::uint32_t end = j + 1 < breaks.size() ? breaks[j + 1] : m_sampleCount;
        const std::uint32_t count = end - first;
        const float q = Dot(expected, drawn, first, count);
        if (q <= 0.0f)
            return 0.0f;
        const float s = q / std::sqrt(Dot(drawn, drawn, first, count) * Dot(expected, expected, first, count));
        if (s < ShapeThreshold)
            return s;
    }
    return 1.0f;
}

float StrokeChecker::Dot(const StrokePath& a, const StrokePath& b, std::uint32_t first, std::uint32_t count) const
{
    if (a.Count() != b.Count() || std::uint64_t{first} + count > m_sampleCount)
        return -1.0f;
    // Guard the read as well: a path shorter than the sample count has nothing there.
    if (std::uint64_t{first} + count > a.Count())
        return -1.0f;
    float sum = 0.0f;
    for (std::uint32_t i = first; i < first + count; ++i)
        sum += a.Points()[i].x * b.Points()[i].x + a.Points()[i].y * b.Points()[i].y;
    return sum;
}
