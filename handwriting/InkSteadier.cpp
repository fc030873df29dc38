#include "InkSteadier.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace InkSteadier {
namespace {

constexpr float Pi = 3.14159265358979f;

float Distance(Point a, Point b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

/// The points at an even spacing along the polyline, its first and last point included; for
/// each, in `source` when asked, the index of the polyline's point it lies before (or at).
std::vector<Point> Even(const std::vector<Point>& points, float spacing, std::vector<std::size_t>* source = nullptr)
{
    std::vector<Point> out{points.front()};
    if (source)
        *source = {0};
    float carried = 0; // length walked since the last point put out
    for (std::size_t i = 1; i < points.size(); ++i) {
        Point from = points[i - 1];
        float left = Distance(from, points[i]);
        while (carried + left >= spacing) {
            const float t = (spacing - carried) / left;
            from = {from.x + (points[i].x - from.x) * t, from.y + (points[i].y - from.y) * t};
            out.push_back(from);
            if (source)
                source->push_back(i);
            left = Distance(from, points[i]);
            carried = 0;
        }
        carried += left;
    }
    if (carried > spacing * 0.25f || out.size() == 1) {
        out.push_back(points.back());
        if (source)
            source->push_back(points.size() - 1);
    } else {
        out.back() = points.back();
        if (source)
            source->back() = points.size() - 1;
    }
    return out;
}

/// The turn at point i, in degrees, between the chords reaching `reach` points back and ahead.
float Turn(const std::vector<Point>& p, std::size_t i, std::size_t reach)
{
    const Point a = p[i - reach], b = p[i], c = p[i + reach];
    const float ux = b.x - a.x, uy = b.y - a.y, vx = c.x - b.x, vy = c.y - b.y;
    const float lu = std::hypot(ux, uy), lv = std::hypot(vx, vy);
    if (lu == 0 || lv == 0)
        return 0;
    const float cosine = std::clamp((ux * vx + uy * vy) / (lu * lv), -1.0f, 1.0f);
    return std::acos(cosine) * 180.0f / Pi;
}

/// The corners: points turning sharper than CornerDegrees, the sharpest of each run. The turn
/// is measured over `reach` points on either side, fewer near the ends (a hook at the end of a
/// stroke is short), never fewer than two.
std::vector<std::size_t> Corners(const std::vector<Point>& p, std::size_t reach)
{
    std::vector<std::size_t> corners;
    if (p.size() < 2 * std::max<std::size_t>(4, reach / 2) + 1)
        return corners;
    // Near the ends the turn is measured over fewer points, but over half the reach at least:
    // over fewer, jitter turns as sharply as a hook does.
    const std::size_t least = std::max<std::size_t>(4, reach / 2);
    std::vector<float> turn(p.size(), 0.0f);
    for (std::size_t i = least; i + least < p.size(); ++i)
        turn[i] = Turn(p, i, std::min({reach, i, p.size() - 1 - i}));
    for (std::size_t i = least; i + least < p.size(); ++i) {
        if (turn[i] < CornerDegrees)
            continue;
        // The sharpest point within reach on either side stands for the turn.
        bool sharpest = true;
        for (std::size_t j = i - std::min(i, reach); j <= std::min(p.size() - 1, i + reach) && sharpest; ++j)
            sharpest = !(turn[j] > turn[i] || (turn[j] == turn[i] && j < i));
        if (sharpest)
            corners.push_back(i);
    }
    return corners;
}

/// Smooths p[first..last]: each point becomes the value at its place of a straight line fitted
/// to the points around it, weighted by a Gaussian of σ `sigma` points and not reaching past the
/// piece. In the middle of a piece that is the weighted mean; at its ends the line keeps the end
/// where the stroke was heading instead of pulling it inward, and averages its jitter out.
void SmoothPiece(const std::vector<Point>& p, std::size_t first, std::size_t last, float sigma, std::vector<Point>& out)
{
    const auto radius = static_cast<std::size_t>(std::ceil(2 * sigma));
    for (std::size_t i = first; i <= last; ++i) {
        const std::size_t from = i - std::min(radius, i - first), to = std::min(last, i + radius);
        double sw = 0, st = 0, stt = 0, sx = 0, sy = 0, stx = 0, sty = 0;
        for (std::size_t j = from; j <= to; ++j) {
            const double t = static_cast<double>(j) - static_cast<double>(i);
            const double w = std::exp(-t * t / (2.0 * sigma * sigma));
            sw += w;
            st += w * t;
            stt += w * t * t;
            sx += w * p[j].x;
            sy += w * p[j].y;
            stx += w * t * p[j].x;
            sty += w * t * p[j].y;
        }
        // The line a + b t through the weighted points, at t = 0: a = (Σx·Σtt − Σt·Σtx) / det.
        const double det = sw * stt - st * st;
        if (det < 1e-9) {
            out[i] = {static_cast<float>(sx / sw), static_cast<float>(sy / sw)};
            continue;
        }
        out[i] = {static_cast<float>((sx * stt - st * stx) / det), static_cast<float>((sy * stt - st * sty) / det)};
    }
}

} // namespace

StrokePath Steady(const StrokePath& ink, float width)
{
    std::vector<Point> points;
    for (const Point& p : ink.Points())
        if (points.empty() || !(points.back() == p))
            points.push_back(p);
    if (points.size() < 3 || ink.Length() < 2 * Spacing || width <= 0)
        return ink;
    // The corners are found on the stroke evened out over neighbouring points and walked at an
    // even spacing: there a finger's jitter no longer swings the direction as a corner does.
    std::vector<Point> calmed(points.size());
    SmoothPiece(points, 0, points.size() - 1, CalmPoints, calmed);
    std::vector<std::size_t> source;
    const std::vector<Point> walked = Even(calmed, Spacing, &source);
    const std::size_t reach = std::max<std::size_t>(5, static_cast<std::size_t>(std::lround(width / Spacing)));
    std::vector<std::size_t> cuts{0}; // indexes of the points as drawn
    for (std::size_t corner : Corners(walked, reach)) {
        // Placed on the point as drawn where the stroke turns most, near where it was found.
        std::size_t at = source[corner];
        const std::size_t near = 3;
        float sharpest = -1;
        for (std::size_t i = at > near ? at - near : 1; i <= at + near && i + 1 < points.size(); ++i) {
            const std::size_t r = std::min({near, i, points.size() - 1 - i});
            if (const float turn = Turn(points, i, r); turn > sharpest) {
                sharpest = turn;
                at = i;
            }
        }
        if (at > cuts.back() && at + 1 < points.size())
            cuts.push_back(at);
    }
    cuts.push_back(points.size() - 1);
    // Each piece between corners, as drawn, evened out, walked at an even spacing and smoothed
    // on its own: a corner is where the lines fitted on either side of it meet, not rounded off.
    const float sigma = width / 2 / Spacing;
    std::vector<Point> steadied;
    for (std::size_t k = 0; k + 1 < cuts.size(); ++k) {
        const std::vector<Point> piece(points.begin() + static_cast<std::ptrdiff_t>(cuts[k]),
            points.begin() + static_cast<std::ptrdiff_t>(cuts[k + 1]) + 1);
        std::vector<Point> calm(piece.size());
        SmoothPiece(piece, 0, piece.size() - 1, CalmPoints, calm);
        const std::vector<Point> even = calm.size() > 1 ? Even(calm, Spacing) : calm;
        std::vector<Point> smooth(even.size());
        SmoothPiece(even, 0, even.size() - 1, sigma, smooth);
        if (k > 0) {
            const Point end = steadied.back();
            steadied.back() = {(end.x + smooth.front().x) / 2, (end.y + smooth.front().y) / 2};
        }
        // Kept every `reach` points, and its ends: what jitter is left then adds little length
        // and turns the direction little from step to step.
        const std::size_t last = smooth.size() - 1;
        const std::size_t steps = std::max<std::size_t>(
            1, static_cast<std::size_t>(std::lround(static_cast<double>(last) / static_cast<double>(reach))));
        for (std::size_t j = k > 0 ? 1 : 0; j <= steps; ++j)
            steadied.push_back(smooth[last * j / steps]);
    }
    return StrokePath(std::move(steadied));
}

} // namespace InkSteadier
