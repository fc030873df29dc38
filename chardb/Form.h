#pragma once

#include "Stroke.h"

#include <cstdint>
#include <utility>
#include <vector>

/// One drawing of an element: strokes in writing order inside a box of its own units.
class Form {
public:
    Form() = default;
    /// An empty form with the given box.
    Form(std::uint16_t width, std::uint16_t height) : m_width(width), m_height(height) { }

    /// Width of the form's box in glyph units.
    std::uint16_t Width() const { return m_width; }
    /// Height of the form's box in glyph units.
    std::uint16_t Height() const { return m_height; }
    /// Sets the box width.
    void SetWidth(std::uint16_t width) { m_width = width; }
    /// Sets the box height.
    void SetHeight(std::uint16_t height) { m_height = height; }
    /// Number of strokes.
    std::uint16_t StrokeCount() const { return static_cast<std::uint16_t>(m_strokes.size()); }
    /// Stroke by index; throws std::out_of_range for a bad index.
    const Stroke& GetStroke(std::uint16_t index) const { return m_strokes.at(index); }
    /// Appends a stroke.
    void AppendStroke(const Stroke& stroke) { m_strokes.push_back(stroke); }
    /// Appends a stroke, taking over its segments.
    void AppendStroke(Stroke&& stroke) { m_strokes.push_back(std::move(stroke)); }
    /// Makes room for `count` strokes in all, so that appending them allocates once.
    void ReserveStrokes(std::size_t count) { m_strokes.reserve(count); }
    /// All strokes in writing order.
    const std::vector<Stroke>& Strokes() const { return m_strokes; }

private:
    std::vector<Stroke> m_strokes;
    std::uint16_t m_width = 0;
    std::uint16_t m_height = 0;
};
