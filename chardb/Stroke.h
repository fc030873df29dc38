#pragma once

#include "Segment.h"

#include <cstdint>
#include <utility>
#include <vector>

/// One pen stroke: a start point and up to 255 segments.
class Stroke {
public:
    Stroke() = default;
    /// An empty stroke starting at `start`.
    explicit Stroke(Point start) : m_start(start) { }

    /// Where the pen goes down.
    Point Start() const { return m_start; }
    /// Moves the start point.
    void SetStart(Point start) { m_start = start; }
    /// Number of segments (a stroke holds at most 255).
    std::uint8_t SegmentCount() const { return static_cast<std::uint8_t>(m_segments.size()); }
    /// Segment by index; throws std::out_of_range for a bad index.
    const Segment& GetSegment(std::uint8_t index) const { return m_segments.at(index); }
    /// Appends a segment.
    void AppendSegment(const Segment& segment) { m_segments.push_back(segment); }
    /// Makes room for `count` segments in all, so that appending them allocates once.
    void ReserveSegments(std::size_t count) { m_segments.reserve(count); }
    /// All segments in order.
    const std::vector<Segment>& Segments() const { return m_segments; }

private:
    Point m_start;
    std::vector<Segment> m_segments;
};
