#include "DisplayCanvas.h"

#include "GlyphRendering.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
/// Glyphs are drawn in the ink colour with a pen of 2 pixels (8 in the enlarged drawing).
constexpr int GlyphPenWidth = 2;
} // namespace

DisplayCanvas::DisplayCanvas(QWidget* parent) : CanvasBase(parent)
{
    setAccessibleName(tr("Character"));
    setAccessibleDescription(tr("Click to see the character written stroke by stroke"));
    setCursor(Qt::PointingHandCursor);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &DisplayCanvas::Tick);
}

void DisplayCanvas::ShowGlyph(const Form& glyph)
{
    if (!EnsureBuffer())
        return;
    m_buffer.fill(m_background);
    // Drawn at device resolution, the pen scaled with the ratio.
    DrawFormSmooth(m_buffer, DeviceClientRect(), glyph, Ink().rgb(), GlyphPenWidth * m_buffer.devicePixelRatio());
    m_shown = glyph;
    update();
}

void DisplayCanvas::Wipe()
{
    m_shown.reset();
    CanvasBase::Wipe();
}

void DisplayCanvas::Redraw()
{
    if (m_shown && !m_animation)
        ShowGlyph(*m_shown);
    else
        Wipe();
}

QPen DisplayCanvas::AnimationPen() const
{
    return QPen(Ink(), GlyphPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void DisplayCanvas::StartAnimation(const Form& glyph, int intervalMs)
{
    std::lock_guard lock(m_animationLock);
    m_timer.stop();
    m_animation = std::make_unique<StrokeAnimation>(glyph, ClientRect().width(), ClientRect().height(), m_keepAspect);
    m_shown.reset();
    if (EnsureBuffer())
        m_buffer.fill(m_background);
    update();
    m_timer.start(intervalMs);
}

void DisplayCanvas::StopAnimation()
{
    std::lock_guard lock(m_animationLock);
    m_timer.stop();
    m_animation.reset();
}

void DisplayCanvas::Tick()
{
    std::lock_guard lock(m_animationLock);
    if (!m_animation)
        return;
    if (m_animation->Step()) {
        const auto& points = m_animation->Strokes()[m_animation->CurrentStroke()];
        const std::size_t shown = points.empty() ? 0 : std::min(m_animation->PointsShown(), points.size() - 1);
        // Nothing is drawn for a stroke whose first point is all that is shown (during a pause).
        if (EnsureBuffer() && shown > 0) {
            QPainter painter(&m_buffer);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(AnimationPen());
            // Only the newest piece needs drawing: the earlier ones are already in the buffer.
            const std::size_t from = shown - 1;
            const QPointF a(points[from].x, points[from].y), b(points[shown].x, points[shown].y);
            painter.drawLine(a, b);
            const int margin = GlyphPenWidth + 2;
            update(QRectF(a, b)
                       .normalized()
                       .toAlignedRect()
                       .adjusted(-margin, -margin, margin, margin)
                       .translated(contentsRect().topLeft()));
        }
    } else {
        m_timer.stop();
        m_animation.reset();
        update();
    }
}

void DisplayCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = true;
}

void DisplayCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_pressed || event->button() != Qt::LeftButton)
        return;
    m_pressed = false;
    if (contentsRect().contains(event->position().toPoint()))
        emit clicked();
}
