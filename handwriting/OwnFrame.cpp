#include "OwnFrame.h"

#include <algorithm>
#include <cmath>

OwnFrame::OwnFrame(float scale, float offsetX, float offsetY, CanvasRect canvas)
    : m_scale(scale), m_offsetX(offsetX), m_offsetY(offsetY), m_centreX(canvas.x + canvas.width * 0.5f),
      m_centreY(canvas.y + canvas.height * 0.5f)
{
}

namespace {

/// The scale the strokes' sizes say: the geometric mean of their length ratios, within the
/// sizes' limits; 1 when none is known.
double SizeScale(const std::vector<OwnFrame::Pair>& pairs)
{
    double sum = 0;
    int known = 0;
    for (const OwnFrame::Pair& p : pairs)
        if (p.lengthRatio > 0) {
            sum += std::log(double(p.lengthRatio));
            ++known;
        }
    if (known == 0)
        return 1.0;
    return std::clamp(std::exp(sum / known), double(OwnFrame::MinSizeScale), double(OwnFrame::MaxSizeScale));
}

} // namespace

OwnFrame OwnFrame::Fit(const std::vector<Pair>& accepted, CanvasRect canvas)
{
    if (accepted.empty())
        return OwnFrame(1.0f, 0.0f, 0.0f, canvas);
    const double cx = canvas.x + canvas.width * 0.5, cy = canvas.y + canvas.height * 0.5;
    const double n = static_cast<double>(accepted.size());
    double mx = 0, my = 0, dx = 0, dy = 0;
    for (const Pair& p : accepted) {
        mx += p.model.x - cx;
        my += p.model.y - cy;
        dx += p.drawn.x - cx;
        dy += p.drawn.y - cy;
    }
    mx /= n;
    my /= n;
    dx /= n;
    dy /= n;
    // Spread of the model's centres, and how the drawn ones follow it.
    double spread = 0, follow = 0;
    for (const Pair& p : accepted) {
        const double ax = p.model.x - cx - mx, ay = p.model.y - cy - my;
        const double bx = p.drawn.x - cx - dx, by = p.drawn.y - cy - dy;
        spread += ax * ax + ay * ay;
        follow += ax * bx + ay * by;
    }
    // The hold on 1 is whole while the strokes spread up to four times the prior, then fades
    // out by eight times: a whole character's strokes decide its scale alone.
    const double prior = std::pow(ScalePriorShare * canvas.width, 2.0);
    const double hold = prior * std::clamp((8 * prior - spread) / (4 * prior), 0.0, 1.0);
    double scale = (follow + hold * SizeScale(accepted)) / (spread + hold);
    scale = std::clamp(scale, double(MinScale), double(MaxScale));
    double ox = dx - scale * mx, oy = dy - scale * my;
    const double length = std::hypot(ox, oy), limit = MaxOffsetShare * canvas.width;
    if (length > limit) {
        ox *= limit / length;
        oy *= limit / length;
    }
    return OwnFrame(static_cast<float>(scale), static_cast<float>(ox), static_cast<float>(oy), canvas);
}

OwnFrame OwnFrame::ForFirstStroke(Pair stroke, CanvasRect canvas)
{
    // One stroke's length says little of the character's size: it may move the scale by 8 % at
    // most.
    const double scale = std::clamp(SizeScale({stroke}), double(FirstStrokeMinScale), double(FirstStrokeMaxScale));
    const double cx = canvas.x + canvas.width * 0.5, cy = canvas.y + canvas.height * 0.5;
    double ox = stroke.drawn.x - (cx + scale * (stroke.model.x - cx));
    double oy = stroke.drawn.y - (cy + scale * (stroke.model.y - cy));
    const double length = std::hypot(ox, oy), limit = FirstStrokeRoomShare * canvas.width;
    if (length > limit) {
        ox *= limit / length;
        oy *= limit / length;
    }
    return OwnFrame(static_cast<float>(scale), static_cast<float>(ox), static_cast<float>(oy), canvas);
}

Point OwnFrame::ToModel(Point learner) const
{
    return {m_centreX + (learner.x - m_centreX - m_offsetX) / m_scale,
        m_centreY + (learner.y - m_centreY - m_offsetY) / m_scale};
}

Point OwnFrame::ToLearner(Point model) const
{
    return {m_centreX + m_scale * (model.x - m_centreX) + m_offsetX,
        m_centreY + m_scale * (model.y - m_centreY) + m_offsetY};
}

StrokePath OwnFrame::ToModel(const StrokePath& ink) const
{
    std::vector<Point> points;
    points.reserve(ink.Points().size());
    for (Point p : ink.Points())
        points.push_back(ToModel(p));
    return StrokePath(std::move(points));
}
