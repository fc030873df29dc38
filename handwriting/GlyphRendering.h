#pragma once

#include "Form.h"

#include <QColor>
#include <QPainterPath>
#include <QRect>

#include <cstdint>
#include <functional>

class QImage;
class QPainter;

/// Maps glyph units onto a target rectangle: x * W / form width + left, in single precision.
QPointF MapGlyphPoint(Point p, const QRect& target, const Form& form);

/// One stroke as a path of lines and cubic curves, each of its points placed by `place` (glyph
/// units to the painter's); a Move segment lifts the pen.
QPainterPath StrokePathOf(const Stroke& stroke, const std::function<QPointF(Point)>& place);

/// Draws one stroke with the painter's current pen, as lines and cubic curves. Every point is
/// mapped onto `target`, snapped to multiples of `grid` (truncating towards zero) and moved by
/// the offsets. A Move segment lifts the pen.
void DrawStroke(QPainter& painter, const QRect& target, const Form& form, std::uint16_t strokeIndex, int grid,
    int offsetX, int offsetY);

/// Draws every stroke anti-aliased onto a 32-bit image: the form is drawn four times larger with
/// round pens of 4 x `penWidth`, and each 4 x 4 block is filtered down with a fixed kernel and
/// blended onto what the image already shows. Pixels outside the image are skipped.
void DrawFormSmooth(QImage& image, const QRect& target, const Form& form, QRgb ink, qreal penWidth);

/// Draws, smoothly as DrawFormSmooth does, only the strokes of `form` whose bits are set in
/// `strokes` (bit k: stroke k), scaled together to fill `image` less `margin` pixels on each
/// side and centred, keeping their proportions: a part of a character shown on its own.
void DrawStrokesFitted(QImage& image, const Form& form, std::uint64_t strokes, int margin, QRgb ink, qreal penWidth);

/// The filtering step of DrawFormSmooth: `enlarged` (4W x 4H, a pixel is inked when its alpha is
/// not 0) is filtered down block by block onto `target` of the 32-bit `image`: full coverage
/// sets the ink colour, partial coverage blends towards it, none leaves the pixel alone.
void FilterEnlargedGlyph(const QImage& enlarged, QImage& image, const QRect& target, QRgb ink);

/// Draws the hint marker of one stroke: a filled circle of 8 pixels diameter, halfway in colour
/// between the window and window-text colours of the application palette, centred where the
/// stroke begins. Does nothing without a painter or for an index not below the stroke count.
void DrawStrokeMarker(QPainter* painter, const QRect& target, const Form& form, std::uint16_t strokeIndex);

/// The colour of the hint marker.
QColor StrokeMarkerColour();
