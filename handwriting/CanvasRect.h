#pragma once

#include <cstdint>

/// A rectangle in canvas pixels: left, top, width and height.
struct CanvasRect {
    std::uint16_t x = 0;
    std::uint16_t y = 0;
    std::uint16_t width = 0;
    std::uint16_t height = 0;

    friend bool operator==(const CanvasRect&, const CanvasRect&) = default;
};
