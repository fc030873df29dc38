#include "GlyphRendering.h"

#include <algorithm>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <cmath>

namespace {

/// Filter of one 4 x 4 block of the enlarged drawing; the weights sum to 1.004 so that a fully
/// inked block reaches full ink.
constexpr float Kernel[4][4] = {
    {0.03f, 0.065f, 0.065f, 0.03f},
    {0.065f, 0.091f, 0.091f, 0.065f},
    {0.065f, 0.091f, 0.091f, 0.065f},
    {0.03f, 0.065f, 0.065f, 0.03f},
};

/// Coverage for every 4-bit pattern of inked positions in one kernel row.
struct RowWeights {
    float weight[4][16];
    RowWeights()
    {
        for (int row = 0; row < 4; ++row)
            for (int mask = 0; mask < 16; ++mask) {
                float sum = 0.0f;
                for (int col = 0; col < 4; ++col)
                    if (mask & (1 << col))
                        sum += Kernel[row][col];
                weight[row][mask] = sum;
            }
    }
};

QPointF Snap(QPointF p, int grid, int offsetX, int offsetY)
{
    const int x = static_cast<int>(static_cast<float>(p.x()) / static_cast<float>(grid));
    const int y = static_cast<int>(static_cast<float>(p.y()) / static_cast<float>(grid));
    return QPointF(x * grid + offsetX, y * grid + offsetY);
}

int Blend(int background, int ink, float coverage)
{
    const long v = std::lround(background + (ink - background) * coverage);
    return static_cast<int>(v & 0xFF);
}

} // namespace

QPointF MapGlyphPoint(Point p, const QRect& target, const Form& form)
{
    const float w = static_cast<float>(target.width());
    const float h = static_cast<float>(target.height());
    return QPointF(p.x * w / static_cast<float>(form.Width()) + static_cast<float>(target.left()),
        p.y * h / static_cast<float>(form.Height()) + static_cast<float>(target.top()));
}

QPainterPath StrokePathOf(const Stroke& stroke, const std::function<QPointF(Point)>& place)
{
    QPainterPath path;
    path.moveTo(place(stroke.Start()));
    for (const Segment& s : stroke.Segments()) {
        switch (s.Type()) {
        case SegmentType::Line: path.lineTo(place(s.P1())); break;
        case SegmentType::Bezier: path.cubicTo(place(s.P1()), place(s.P2()), place(s.P3())); break;
        case SegmentType::Move: path.moveTo(place(s.P1())); break;
        }
    }
    return path;
}

void DrawStroke(QPainter& painter, const QRect& target, const Form& form, std::uint16_t strokeIndex, int grid,
    int offsetX, int offsetY)
{
    const QPainterPath path = StrokePathOf(form.GetStroke(strokeIndex),
        [&](Point p) { return Snap(MapGlyphPoint(p, target, form), grid, offsetX, offsetY); });
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.restore();
}

void DrawFormSmooth(QImage& image, const QRect& target, const Form& form, QRgb ink, qreal penWidth)
{
    const int w = target.width();
    const int h = target.height();
    if (w <= 0 || h <= 0 || form.StrokeCount() == 0 || image.depth() != 32)
        return;
    // The enlarged drawing: transparent where nothing is drawn, so "inked" is a non-zero alpha.
    thread_local QImage big;
    if (big.width() != 4 * w || big.height() != 4 * h)
        big = QImage(4 * w, 4 * h, QImage::Format_ARGB32_Premultiplied);
    big.fill(Qt::transparent);
    {
        QPainter painter(&big);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(Qt::black, 4 * penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const int offset = static_cast<int>(4 * penWidth) / 2;
        const QRect enlarged(0, 0, 4 * w, 4 * h);
        for (std::uint16_t i = 0; i < form.StrokeCount(); ++i)
            DrawStroke(painter, enlarged, form, i, 4, offset, offset);
    }

    FilterEnlargedGlyph(big, image, target, ink);
}

void DrawStrokesFitted(QImage& image, const Form& form, std::uint64_t strokes, int margin, QRgb ink, qreal penWidth)
{
    Form part(form.Width(), form.Height());
    float left = form.Width(), top = form.Height(), right = 0, bottom = 0;
    auto take = [&](Point p) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
    };
    for (std::uint16_t i = 0; i < form.StrokeCount() && i < 64; ++i) {
        if (!(strokes >> i & 1))
            continue;
        const Stroke& stroke = form.GetStroke(i);
        part.AppendStroke(stroke);
        take(stroke.Start());
        for (const Segment& segment : stroke.Segments()) {
            take(segment.P1());
            if (segment.Type() == SegmentType::Bezier) {
                take(segment.P2());
                take(segment.P3());
            }
        }
    }
    const int room = std::min(image.width(), image.height()) - 2 * margin;
    if (part.StrokeCount() == 0 || room <= 0 || form.Width() == 0 || form.Height() == 0)
        return;
    // One scale for both axes, so that a tall part (亻) stays tall; a part that is a single dot
    // is not blown up past the size of a whole character.
    const float extent = std::max({right - left, bottom - top, form.Width() / 4.0f});
    const float scale = room / extent;
    const float centreX = (left + right) / 2;
    const float centreY = (top + bottom) / 2;
    const QRect target(qRound(image.width() / 2.0f - centreX * scale), qRound(image.height() / 2.0f - centreY * scale),
        qRound(form.Width() * scale), qRound(form.Height() * scale));
    DrawFormSmooth(image, target, part, ink, penWidth);
}

void FilterEnlargedGlyph(const QImage& big, QImage& image, const QRect& target, QRgb ink)
{
    const int w = target.width();
    const int h = target.height();
    if (image.depth() != 32 || big.width() < 4 * w || big.height() < 4 * h || big.depth() != 32)
        return;
    static const RowWeights weights;
    const int inkR = qRed(ink), inkG = qGreen(ink), inkB = qBlue(ink);
    const QRgb opaqueInk = qRgb(inkR, inkG, inkB);
    const bool translucent = image.hasAlphaChannel();
    const bool premultiplied = image.format() == QImage::Format_ARGB32_Premultiplied;
    const int firstY = std::max(0, -target.top());
    const int lastY = std::min(h, image.height() - target.top());
    const int firstX = std::max(0, -target.left());
    const int lastX = std::min(w, image.width() - target.left());
    for (int y = firstY; y < lastY; ++y) {
        const QRgb* rows[4];
        for (int r = 0; r < 4; ++r)
            rows[r] = reinterpret_cast<const QRgb*>(big.constScanLine(4 * y + r));
        QRgb* out = reinterpret_cast<QRgb*>(image.scanLine(target.top() + y)) + target.left();
        for (int x = firstX; x < lastX; ++x) {
            float coverage = 0.0f;
            for (int r = 0; r < 4; ++r) {
                const QRgb* p = rows[r] + 4 * x;
                const int mask
                    = (qAlpha(p[0]) ? 1 : 0) | (qAlpha(p[1]) ? 2 : 0) | (qAlpha(p[2]) ? 4 : 0) | (qAlpha(p[3]) ? 8 : 0);
                coverage += weights.weight[r][mask];
            }
            if (coverage == 0.0f)
                continue;
            if (coverage >= 1.0f) {
                out[x] = opaqueInk;
                continue;
            }
            const QRgb background = out[x];
            const int alpha = qAlpha(background);
            if (alpha == 255 || !translucent) {
                out[x] = qRgba(Blend(qRed(background), inkR, coverage), Blend(qGreen(background), inkG, coverage),
                    Blend(qBlue(background), inkB, coverage), alpha);
            } else if (premultiplied) {
                // Ink over what is there, in premultiplied terms: a glyph drawn on a transparent
                // image keeps its partly covered pixels (and small glyphs stay whole).
                out[x] = qRgba(Blend(qRed(background), inkR, coverage), Blend(qGreen(background), inkG, coverage),
                    Blend(qBlue(background), inkB, coverage), Blend(alpha, 255, coverage));
            } else {
                const float a = coverage + alpha / 255.0f * (1.0f - coverage);
                auto channel = [&](int back, int front) {
                    return static_cast<int>(
                        std::lround((front * coverage + back * (alpha / 255.0f) * (1.0f - coverage)) / a));
                };
                out[x] = qRgba(channel(qRed(background), inkR), channel(qGreen(background), inkG),
                    channel(qBlue(background), inkB), static_cast<int>(std::lround(a * 255)));
            }
        }
    }
}

QColor StrokeMarkerColour()
{
    const QPalette palette = QGuiApplication::palette();
    const QColor a = palette.color(QPalette::Active, QPalette::Window);
    const QColor b = palette.color(QPalette::Active, QPalette::WindowText);
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

void DrawStrokeMarker(QPainter* painter, const QRect& target, const Form& form, std::uint16_t strokeIndex)
{
    if (!painter || strokeIndex >= form.StrokeCount())
        return;
    const QPointF start = MapGlyphPoint(form.GetStroke(strokeIndex).Start(), target, form);
    const int x = static_cast<int>(start.x());
    const int y = static_cast<int>(start.y());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    painter->setBrush(StrokeMarkerColour());
    painter->drawEllipse(QRect(x - 4, y - 4, 8, 8));
    painter->restore();
}
