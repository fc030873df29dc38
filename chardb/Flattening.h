#pragma once

#include "Point.h"
#include "Stroke.h"

#include <vector>

/// Samples taken on each curve when a stroke is flattened for display and animation.
inline constexpr int FlatteningSamplesPerCurve = 128;

/// Point of the cubic Bezier (p0, p1, p2, p3) at parameter t, computed per coordinate in single
/// precision as p0*s^3 + 3*s*t*(p1*s + p2*t) + p3*t^3 with s = 1 - t.
Point BezierPoint(Point p0, Point p1, Point p2, Point p3, float t);

/// Turns a stroke into a polyline: the start, each line or move end, and `samplesPerCurve`
/// samples per curve from t = 0 (repeating the current point) up to but excluding t = 1.
/// Segments of unknown type are skipped.
std::vector<Point> FlattenStroke(const Stroke& stroke, int samplesPerCurve = FlatteningSamplesPerCurve);
