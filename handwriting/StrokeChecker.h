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

    /// Learner ink as the checker compares it, measured once so that it can be evaluated
    /// against several expected strokes.
    struct Ink {
        bool hasLength = false; ///< false for ink without length (a click): nothing else is set
        CanvasRect bounds; ///< the resampled ink's box, as the place test sees it
        float centreX = 0; ///< the centre of the points' own box, canvas pixels (it may lie off
        float centreY = 0; ///< the canvas, where `bounds` cannot reach)
        StrokePath centred; ///< the resampled ink moved so that its points' mean is the origin
        float length = 0; ///< the length of `centred`
    };
    /// Resamples and measures learner ink (canvas pixels).
    Ink Prepare(const StrokePath& ink) const;

    /// What the checker makes of ink drawn as one expected stroke. Every test is taken once, in
    /// this order: the stroke exists and the ink has length; place; size; shape.
    struct Evaluation {
        enum class Fit {
            Accepted,
            NoSuchStroke, ///< the index is past the last stroke
            NoLength, ///< a click: no stroke at all
            Misplaced, ///< the box centres are too far apart
            WrongSize, ///< the lengths are too far apart
            WrongShape, ///< place and size fit, a piece's shape does not
        };
        Fit fit = Fit::NoSuchStroke;
        /// The score: -1.0 when refused before the shape is compared, else the shape's
        /// similarity, where exactly 1.0 accepts.
        float score = -1.0f;
        float dx = 0; ///< from the ink's centre (Ink::centreX, centreY) to the expected box's
        float dy = 0;
        float drawnLength = 0; ///< set once the place fits
        float expectedLength = 0;
        bool Accepted() const { return fit == Fit::Accepted; }
    };
    /// Evaluates prepared ink as expected stroke `index`.
    Evaluation Evaluate(const Ink& ink, std::uint16_t index) const;
    /// Evaluates learner ink (canvas pixels) as expected stroke `index`.
    Evaluation Evaluate(const StrokePath& ink, std::uint16_t index) const { return Evaluate(Prepare(ink), index); }
    /// Scores learner ink against expected stroke `index`: -1.0 when refused outright (no such
    /// stroke, misplaced, wrong size), else a similarity where only 1.0 accepts.
    float Score(const StrokePath& ink, std::uint16_t index) const { return Evaluate(ink, index).score; }
    /// Whether learner ink is accepted as expected stroke `index` (its score is exactly 1.0).
    bool Accepts(const StrokePath& ink, std::uint16_t index) const { return Evaluate(ink, index).Accepted(); }

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
