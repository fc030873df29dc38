#include "InputCanvas.h"

#include "GlyphRendering.h"

#include <QMouseEvent>
#include <QPainter>

InputCanvas::InputCanvas(QWidget* parent) : CanvasBase(parent)
{
    setAccessibleName(tr("Writing canvas"));
    setAccessibleDescription(tr("Write the character here with the mouse, one stroke at a time"));
}

void InputCanvas::Clear()
{
    m_finished.clear();
    Sync();
}

void InputCanvas::Undo()
{
    if (!m_finished.empty())
        m_finished.pop_back();
    m_current.clear();
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
        QPainter painter(&m_buffer);
        if (m_paintedCount == 0)
            painter.fillRect(m_buffer.rect(), m_background);
        for (; m_paintedCount < m_finished.size(); ++m_paintedCount)
            DrawInk(painter, m_finished[m_paintedCount]);
    }
    update();
}

void InputCanvas::DrawInk(QPainter& painter, const std::vector<Point>& stroke) const
{
    if (stroke.empty())
        return;
    painter.setPen(m_pen);
    // Floats go to pixels by truncation, as the mouse delivered them.
    QPoint last(static_cast<int>(stroke[0].x), static_cast<int>(stroke[0].y));
    if (stroke.size() == 1)
        painter.drawPoint(last);
    for (std::size_t i = 1; i < stroke.size(); ++i) {
        const QPoint next(static_cast<int>(stroke[i].x), static_cast<int>(stroke[i].y));
        painter.drawLine(last, next);
        last = next;
    }
}

void InputCanvas::PaintOverlay(QPainter& painter)
{
    if (m_capturing)
        DrawInk(painter, m_current);
}

void InputCanvas::BeginStroke(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Qt keeps the mouse grabbed by this widget until the button is released.
    m_capturing = true;
    m_current.clear();
    AddPoint(event->position());
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

void InputCanvas::AddPoint(const QPointF& widgetPosition)
{
    const QPointF client = ToClient(widgetPosition);
    const Point p{static_cast<float>(std::floor(client.x())), static_cast<float>(std::floor(client.y()))};
    const Point from = m_current.empty() ? p : m_current.back();
    m_current.push_back(p);
    const int margin = static_cast<int>(m_pen.widthF()) + 2;
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
    m_capturing = false;
    m_finished.push_back(m_current);
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
