#pragma once

#include "CanvasRect.h"
#include "Point.h"
#include "StrokePath.h"

#include <vector>

/// Where the learner's own character lies relative to the model on the canvas: a uniform scale
/// about the canvas's centre, then an offset (learner = centre + scale * (model - centre) +
/// offset). Fitted to the strokes of the character that were accepted so far, so that a
/// character written a little off-centre, smaller or larger is judged stroke by stroke against
/// itself; the limits keep it to what a careful hand does, so that a character written far off
/// or much too small is still refused.
class OwnFrame {
public:
    /// The offset never goes past this share of the canvas width (bigger = a character may
    /// stand further from the model's place).
    static constexpr float MaxOffsetShare = 0.15f;
    /// The scale stays within these (wider = a character may be smaller or larger).
    static constexpr float MinScale = 0.75f;
    static constexpr float MaxScale = 1.33f;
    /// The first stroke has no frame yet: it may lie this share of the width further from the
    /// model's place than the checker allows (0.04 of 298 px is 12 px, on top of the checker's
    /// 27 px). A careful hand puts the whole character about 12 px off; the room takes most of
    /// that, while a stroke moved by 15 % of the width (45 px) is still refused.
    static constexpr float FirstStrokeRoomShare = 0.04f;
    /// How firmly the scale is held while the accepted strokes are few or close together: as
    /// firmly as if strokes spread this share of the width agreed on it. It is held at the
    /// strokes' own sizes (their lengths against the model's), within MinSizeScale and
    /// MaxSizeScale, or at 1 when their lengths are not known. Once the strokes spread further,
    /// the scale is their places' alone.
    static constexpr float ScalePriorShare = 0.25f;

    /// A stroke's place: the centre of the model stroke's box and of the drawn stroke's box;
    /// and its size: the drawn stroke's length over the model's (0 when not known).
    struct Pair {
        Point model;
        Point drawn;
        float lengthRatio = 0;
    };

    /// The model's own place: scale 1, no offset.
    OwnFrame() = default;
    /// The frame of the strokes accepted so far on `canvas`: least squares of the drawn box
    /// centres against the model's, the scale held near 1 as above, then the limits. No stroke
    /// gives the model's place; one stroke gives an offset only.
    static OwnFrame Fit(const std::vector<Pair>& accepted, CanvasRect canvas);
    /// The frame for a first stroke drawn with box centre `drawn` where the model's is `model`:
    /// the stroke's own size as the scale (as above), then an offset toward it of at most
    /// FirstStrokeRoomShare of the width.
    static OwnFrame ForFirstStroke(Pair stroke, CanvasRect canvas);

    float Scale() const { return m_scale; }
    float OffsetX() const { return m_offsetX; }
    float OffsetY() const { return m_offsetY; }
    bool IsIdentity() const { return m_scale == 1.0f && m_offsetX == 0.0f && m_offsetY == 0.0f; }

    /// The sizes alone may move the held scale this far from 1 (a stroke's length says less
    /// about the character's size than its place does).
    static constexpr float MinSizeScale = 0.85f;
    static constexpr float MaxSizeScale = 1.15f;
    /// For a first stroke alone, these.
    static constexpr float FirstStrokeMinScale = 0.92f;
    static constexpr float FirstStrokeMaxScale = 1.08f;

    /// A point of the learner's character where the model has it.
    Point ToModel(Point learner) const;
    /// A point of the model where the learner's character has it.
    Point ToLearner(Point model) const;
    /// Learner ink mapped onto the model's place and size.
    StrokePath ToModel(const StrokePath& ink) const;

private:
    OwnFrame(float scale, float offsetX, float offsetY, CanvasRect canvas);

    float m_scale = 1.0f;
    float m_offsetX = 0.0f;
    float m_offsetY = 0.0f;
    float m_centreX = 0.0f;
    float m_centreY = 0.0f;
};
