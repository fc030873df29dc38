#pragma once

#include "Point.h"

#include <cstdint>

/// Kind of a stroke segment as stored in the database.
enum class SegmentType : std::int32_t {
    Line = 0, ///< straight line to p1
    Bezier = 1, ///< cubic Bezier with controls p1, p2 and end p3
    Move = 2, ///< pen lifted, continue at p1
};

/// One piece of a stroke; unused points stay at (0, 0).
class Segment {
public:
    Segment() = default;
    /// A segment of the given type; a type byte outside the known values is kept as it is.
    Segment(SegmentType type, Point p1, Point p2 = {}, Point p3 = {}) : m_type(type), m_p1(p1), m_p2(p2), m_p3(p3) { }

    /// The segment's type (may hold an unknown value read from a file).
    SegmentType Type() const { return m_type; }
    /// First point: end of a line or move, first control point of a curve.
    Point P1() const { return m_p1; }
    /// Second control point of a curve.
    Point P2() const { return m_p2; }
    /// End point of a curve.
    Point P3() const { return m_p3; }

private:
    SegmentType m_type = SegmentType::Line;
    Point m_p1;
    Point m_p2;
    Point m_p3;
};
