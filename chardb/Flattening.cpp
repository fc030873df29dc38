#include "Flattening.h"

Point BezierPoint(Point p0, Point p1, Point p2, Point p3, float t)
{
    const float s = 1.0f - t;
    const float s3 = s * s * s;
    const float t3 = t * t * t;
    const float k = 3.0f * s * t;
    return {p0.x * s3 + k * (p1.x * s + p2.x * t) + p3.x * t3, p0.y * s3 + k * (p1.y * s + p2.y * t) + p3.y * t3};
}

std::vector<Point> FlattenStroke(const Stroke& stroke, int samplesPerCurve)
{
    std::vector<Point> points;
    Point current = stroke.Start();
    points.push_back(current);
    for (const Segment& segment : stroke.Segments()) {
        switch (segment.Type()) {
        case SegmentType::Line:
        case SegmentType::Move:
            // A move is flattened like a line: the polyline runs through the pen-up jump.
            current = segment.P1();
            points.push_back(current);
            break;
        case SegmentType::Bezier:
            for (int i = 0; i < samplesPerCurve; ++i) {
                const float t = static_cast<float>(i) / static_cast<float>(samplesPerCurve);
                points.push_back(BezierPoint(current, segment.P1(), segment.P2(), segment.P3(), t));
            }
            current = segment.P3();
            break;
        }
    }
    return points;
}
