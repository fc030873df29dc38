#include "InputCanvas.h"

#include "GlyphRendering.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTabletEvent>
#include <QTouchEvent>

#include <algorithm>
#include <cmath>

InputCanvas::InputCanvas(QWidget* parent) : CanvasBase(parent)
{
    setAccessibleName(tr("Writing canvas"));
    setAccessibleDescription(tr("Write the character here with the mouse, one stroke at a time"));
    // A finger writes too; its touches are taken here, so Qt makes no mouse events of them.
    setAttribute(Qt::WA_AcceptTouchEvents);
    m_pen.setColor(Ink());
    m_fadeTimer.setInterval(30);
    connect(&m_fadeTimer, &QTimer::timeout, this, [this] {
        if (m_refusalClock.elapsed() >= FadeMilliseconds) {
            m_refusal.reset();
            m_fadeTimer.stop();
        }
        update();
    });
}

void InputCanvas::ShowRefusal(Refusal refusal)
{
    m_refusal = std::move(refusal);
    m_refusalClock.start();
    m_fadeTimer.start();
    update();
}

void InputCanvas::Redraw()
{
    m_pen.setColor(Ink());
    // Everything kept is drawn again, on the new paper in the new ink.
    m_paintedCount = 0;
    m_overlayPresent = false;
    Sync();
}

void InputCanvas::SetGuideLines(bool shown)
{
    m_guideLines = shown;
    update();
}

void InputCanvas::Clear()
{
    m_finished.clear();
    m_finishedWidths.clear();
    Sync();
}

void InputCanvas::Undo()
{
    if (!m_finished.empty()) {
        m_finished.pop_back();
        m_finishedWidths.pop_back();
    }
    m_current.clear();
    m_currentWidths.clear();
    Sync();
}

void InputCanvas::ShowHint(const Form& glyph, std::uint16_t index)
{
    if (!EnsureBuffer())
        return;
    QPainter painter(&m_buffer);
    DrawStrokeMarker(&painter, ClientRect(), glyph, index);
    m_overlayPresent = true;
    update();
}

void InputCanvas::Sync()
{
    if (EnsureBuffer() && m_paintedCount != m_finished.size()) {
        if (m_paintedCount > m_finished.size())
            m_paintedCount = 0;
        if (m_paintedCount == 0)
            m_buffer.fill(m_background);
        QPainter painter(&m_buffer);
        for (; m_paintedCount < m_finished.size(); ++m_paintedCount)
            DrawInk(painter, m_finished[m_paintedCount], m_finishedWidths[m_paintedCount]);
    }
    update();
}

void InputCanvas::DrawInk(QPainter& painter, const std::vector<Point>& stroke, const std::vector<float>& widths) const
{
    if (stroke.empty())
        return;
    QPen pen = m_pen;
    painter.setPen(pen);
    // Floats go to pixels by truncation, as the mouse delivered them.
    QPoint last(static_cast<int>(stroke[0].x), static_cast<int>(stroke[0].y));
    if (stroke.size() == 1)
        painter.drawPoint(last);
    for (std::size_t i = 1; i < stroke.size(); ++i) {
        const QPoint next(static_cast<int>(stroke[i].x), static_cast<int>(stroke[i].y));
        if (i < widths.size()) {
            // A pen's pressure sets the width of each piece; the points are what the checker sees.
            pen.setWidthF(widths[i]);
            painter.setPen(pen);
        }
        painter.drawLine(last, next);
        last = next;
    }
}

void InputCanvas::PaintGuideLines(QPainter& painter) const
{
    const QRect r = ClientRect();
    QColor line = palette().color(QPalette::Mid);
    QPen pen(line, 1, Qt::DashLine);
    painter.save();
    painter.setPen(pen);
    // Drawn under the ink although painted after it: on light paper the darker of the two shows,
    // on dark paper the lighter, so ink always covers the guide.
    const bool darkInk = m_pen.color().lightness() < m_background.lightness();
    painter.setCompositionMode(darkInk ? QPainter::CompositionMode_Darken : QPainter::CompositionMode_Lighten);
    painter.drawLine(QPointF(r.width() / 2.0, 0), QPointF(r.width() / 2.0, r.height()));
    painter.drawLine(QPointF(0, r.height() / 2.0), QPointF(r.width(), r.height() / 2.0));
    painter.restore();
}

void InputCanvas::PaintRefusal(QPainter& painter) const
{
    const double left = 1.0 - double(m_refusalClock.elapsed()) / FadeMilliseconds;
    if (left <= 0)
        return;
    painter.save();
    painter.setOpacity(left);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen faded = m_pen;
    faded.setColor(palette().color(QPalette::Mid));
    painter.setPen(faded);
    for (std::size_t i = 1; i < m_refusal->ink.size(); ++i)
        painter.drawLine(QPointF(m_refusal->ink[i - 1].x, m_refusal->ink[i - 1].y),
            QPointF(m_refusal->ink[i].x, m_refusal->ink[i].y));
    const QColor mark = palette().color(QPalette::Highlight);
    if (m_refusal->arrowFrom) {
        const QPointF from = *m_refusal->arrowFrom, to = m_refusal->arrowTo;
        painter.setPen(QPen(mark, 3, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from, to);
        const QPointF way = to - from;
        const double length = std::hypot(way.x(), way.y());
        if (length > 1) {
            const QPointF unit = way / length, side(-unit.y(), unit.x());
            QPainterPath head;
            head.moveTo(to);
            head.lineTo(to - unit * 12 + side * 7);
            head.lineTo(to - unit * 12 - side * 7);
            head.closeSubpath();
            painter.fillPath(head, mark);
        }
    }
    if (m_refusal->startOf)
        DrawStrokeMarker(&painter, ClientRect(), *m_refusal->startOf, m_refusal->strokeIndex);
    painter.restore();
}

void InputCanvas::PaintOverlay(QPainter& painter)
{
    if (m_guideLines)
        PaintGuideLines(painter);
    if (m_refusal)
        PaintRefusal(painter);
    if (m_capturing)
        DrawInk(painter, m_current, m_currentWidths);
}

float InputCanvas::WidthForPressure(qreal pressure) const
{
    const qreal p = std::clamp<qreal>(pressure, 0, 1);
    return static_cast<float>(m_pen.widthF() * (0.5 + p));
}

void InputCanvas::BeginStroke(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Qt keeps the mouse grabbed by this widget until the button is released.
    StartStroke(event->position(), 0);
}

void InputCanvas::StartStroke(const QPointF& widgetPosition, float width)
{
    m_capturing = true;
    m_current.clear();
    m_currentWidths.clear();
    // The next stroke is ready at once: a refusal still fading gives way.
    if (m_refusal) {
        m_refusal.reset();
        m_fadeTimer.stop();
        update();
    }
    emit strokeStarted();
    AddPoint(widgetPosition, width);
}

void InputCanvas::mousePressEvent(QMouseEvent* event)
{
    BeginStroke(event);
}

void InputCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    // A double click starts a stroke just as a press does.
    BeginStroke(event);
}

void InputCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_capturing)
        AddPoint(event->position());
}

void InputCanvas::AddPoint(const QPointF& widgetPosition, float width)
{
    const QPointF client = ToClient(widgetPosition);
    const Point p{static_cast<float>(std::floor(client.x())), static_cast<float>(std::floor(client.y()))};
    const Point from = m_current.empty() ? p : m_current.back();
    m_current.push_back(p);
    if (width > 0)
        m_currentWidths.push_back(width);
    const int margin = static_cast<int>(std::max<float>(static_cast<float>(m_pen.widthF()), width)) + 2;
    const QRect changed = QRect(QPoint(static_cast<int>(from.x), static_cast<int>(from.y)),
        QPoint(static_cast<int>(p.x), static_cast<int>(p.y)))
                              .normalized()
                              .adjusted(-margin, -margin, margin, margin)
                              .translated(contentsRect().topLeft());
    update(changed);
}

void InputCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_capturing || event->button() != Qt::LeftButton)
        return;
    EndStroke();
}

void InputCanvas::tabletEvent(QTabletEvent* event)
{
    // Taken here, so Qt makes no mouse events of it: one stroke, never cut short or doubled.
    event->accept();
    switch (event->type()) {
    case QEvent::TabletPress:
        if (event->button() == Qt::LeftButton || event->buttons() & Qt::LeftButton)
            StartStroke(event->position(), WidthForPressure(event->pressure()));
        break;
    case QEvent::TabletMove:
        if (m_capturing)
            AddPoint(event->position(), WidthForPressure(event->pressure()));
        break;
    case QEvent::TabletRelease:
        if (m_capturing)
            EndStroke();
        break;
    default: break;
    }
}

bool InputCanvas::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: {
        // The first finger writes; others are ignored.
        auto* touch = static_cast<QTouchEvent*>(event);
        event->accept();
        if (event->type() == QEvent::TouchCancel) {
            // The system took the touch back: the stroke is dropped, not judged.
            m_capturing = false;
            m_current.clear();
            m_currentWidths.clear();
            update();
            return true;
        }
        if (touch->points().isEmpty() || !isEnabled())
            return true;
        const QEventPoint& finger = touch->points().front();
        if (event->type() == QEvent::TouchBegin)
            StartStroke(finger.position(), 0);
        else if (event->type() == QEvent::TouchUpdate && m_capturing)
            AddPoint(finger.position());
        else if (event->type() == QEvent::TouchEnd && m_capturing) {
            AddPoint(finger.position());
            EndStroke();
        }
        return true;
    }
    default: return CanvasBase::event(event);
    }
}

void InputCanvas::EndStroke()
{
    m_capturing = false;
    m_finished.push_back(m_current);
    m_finishedWidths.push_back(m_currentWidths);
    emit strokeEnded();
    // The page rejected the stroke and called Undo(): nothing more to do.
    if (m_current.empty())
        return;
    if (m_overlayPresent) {
        // The hint sits in the buffer: repaint it from empty without the hint.
        m_paintedCount = 0;
        m_overlayPresent = false;
    }
    Sync();
    emit strokeKept();
}
