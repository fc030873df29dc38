#pragma once

#include "CanvasRect.h"
#include "Form.h"
#include "StrokePath.h"

#include <cstdint>
#include <vector>

/// The expected strokes of one character laid out on a canvas, as templates that a learner's
/// stroke is scored against: position, size, then shape piece by piece. Only a score of exactly
/// 1.0 accepts the stroke.
class StrokeChecker {
public:
    /// Samples taken on each curve of the glyph when the templates are built.
    static constexpr int SamplesPerCurve = 32;
    /// Points per template used by every page.
    static constexpr std::uint32_t PageSampleCount = 128;
    /// A piece whose cosine similarity falls below this rejects the stroke (single precision:
    /// higher = stricter about shape and direction).
    static constexpr float ShapeThreshold = 0.97f;
    /// Bounding-box centres further apart than this share of the canvas width reject the stroke
    /// (higher = more lenient about placement).
    static constexpr float PositionTolerance = 0.09f;
    /// Shorter-to-longer length ratio below this rejects the stroke (lower = more lenient about size).
    static constexpr double SizeTolerance = 0.6;

    /// Builds one template and one bounding box per stroke of `form`, laid out on `canvas`.
    StrokeChecker(const Form& form, CanvasRect canvas, std::uint32_t sampleCount = PageSampleCount);

    /// Scores learner ink (canvas pixels) against expected stroke `index`: -1.0 when refused
    /// outright (no such stroke, misplaced, wrong size), else a similarity where only 1.0 accepts.
    float Score(const StrokePath& ink, std::uint16_t index) const;
    /// What Score's place and size tests see of learner ink drawn as stroke `index`, with the
    /// same arithmetic: where its box centre lies from the expected one, and how long it is.
    struct Measures {
        bool hasLength = false; ///< false for ink without length (a click): nothing else is set
        float drawnX = 0; ///< the drawn stroke's box centre, canvas pixels
        float drawnY = 0;
        float dx = 0; ///< expected box centre minus drawn box centre
        float dy = 0;
        bool placeFits = false; ///< the place test passes
        float drawnLength = 0;
        float expectedLength = 0;
        bool sizeFits = false; ///< the size test passes
    };
    /// The place and size tests of Score for a stroke that exists (`index` below StrokeCount).
    Measures Measure(const StrokePath& ink, std::uint16_t index) const;
    /// The box Score's place test sees of the ink (resampled as Score does); empty for ink
    /// without length.
    CanvasRect DrawnBounds(const StrokePath& ink) const;
    /// Score's place test for ink with these bounds, drawn as stroke `index` (below StrokeCount).
    bool PlaceFits(CanvasRect drawnBounds, std::uint16_t index) const;

    /// Piecewise shape comparison of a centred template (carrying breaks) and a centred path.
    float Match(const StrokePath& expected, const StrokePath& drawn) const;
    /// Sum of a[i].x * b[i].x + a[i].y * b[i].y over count points from first; -1.0 when the paths
    /// differ in point count or the range passes the sample count.
    float Dot(const StrokePath& a, const StrokePath& b, std::uint32_t first, std::uint32_t count) const;

    /// Number of expected strokes.
    std::uint16_t StrokeCount() const { return static_cast<std::uint16_t>(m_templates.size()); }
    /// The centred template of a stroke; throws std::out_of_range for a bad index.
    const StrokePath& Template(std::uint16_t index) const { return m_templates.at(index); }
    /// The bounding box of a stroke on the canvas; throws std::out_of_range for a bad index.
    CanvasRect StrokeBounds(std::uint16_t index) const { return m_bounds.at(index); }
    /// Points per template.
    std::uint32_t SampleCount() const { return m_sampleCount; }
    /// The glyph form's box width.
    std::uint16_t FormWidth() const { return m_formWidth; }
    /// The glyph form's box height.
    std::uint16_t FormHeight() const { return m_formHeight; }
    /// Where the glyph is laid out.
    CanvasRect Canvas() const { return m_canvas; }

    /// The stroke mapped onto `canvas` and flattened with 32 samples per curve, with a break
    /// before every segment; the path the templates are resampled from.
    static StrokePath MapStroke(
        const Stroke& stroke, std::uint16_t formWidth, std::uint16_t formHeight, CanvasRect canvas);

private:
    std::vector<StrokePath> m_templates;
    std::vector<CanvasRect> m_bounds;
    std::uint32_t m_sampleCount;
    std::uint16_t m_formWidth;
    std::uint16_t m_formHeight;
    CanvasRect m_canvas;
};
