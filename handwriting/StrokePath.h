#pragma once

#include "CanvasRect.h"
#include "Point.h"

#include <cstdint>
#include <vector>

/// A point list with break indices: for every segment after the start, the index of the last
/// point that preceded it. Learner ink has no breaks.
class StrokePath {
public:
    StrokePath() = default;
    /// A path through the given points, without breaks.
    explicit StrokePath(std::vector<Point> points) : m_points(std::move(points)) { }

    /// Appends a point.
    void Append(Point p) { m_points.push_back(p); }
    /// Appends a break index.
    void AppendBreak(std::uint32_t index) { m_breaks.push_back(index); }
    /// Number of points.
    std::uint32_t Count() const { return static_cast<std::uint32_t>(m_points.size()); }
    /// Point by index; throws std::out_of_range for a bad index.
    const Point& At(std::uint32_t index) const { return m_points.at(index); }
    /// All points.
    const std::vector<Point>& Points() const { return m_points; }
    /// All break indices.
    const std::vector<std::uint32_t>& Breaks() const { return m_breaks; }
    /// Empties the path.
    void Clear()
    {
        m_points.clear();
        m_breaks.clear();
    }

    /// Sum of the distances between consecutive points; 0 for fewer than two points.
    float Length() const;
    /// Every point becomes (x * sx + ox, y * sy + oy).
    void ScaleAndOffset(float sx, float sy, float ox, float oy);
    /// The bounding box, each value rounded to the nearest integer and kept to 16 bits. An empty
    /// path gives an empty box at (0, 0).
    CanvasRect Bounds() const;
    /// Moves the path so that the mean of its points is the origin; an empty path stays as it is.
    void Centre();
    /// Resamples to `n` evenly spaced points into `out`, recording breaks by the early rule.
    void Resample(std::uint32_t n, StrokePath& out) const;
    /// Resamples to `n` evenly spaced points in place, without breaks.
    void ResampleInPlace(std::uint32_t n);

private:
    void Walk(std::uint32_t n, StrokePath& out, bool recordBreaks) const;

    std::vector<Point> m_points;
    std::vector<std::uint32_t> m_breaks;
};
