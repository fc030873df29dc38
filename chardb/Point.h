#pragma once

/// A glyph or canvas position: single-precision x to the right and y downwards.
struct Point {
    float x = 0.0f;
    float y = 0.0f;

    friend bool operator==(const Point&, const Point&) = default;
};
