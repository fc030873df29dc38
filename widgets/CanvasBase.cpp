#include "CanvasBase.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

CanvasBase::CanvasBase(QWidget* parent) : QFrame(parent)
{
    // The frame of an edit box around the client area.
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setLineWidth(2);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    m_background = palette().color(QPalette::Base);
}

void CanvasBase::SetBackground(const QColor& colour)
{
    m_background = colour;
    m_backgroundChosen = true;
}

void CanvasBase::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    const QColor paper = m_backgroundChosen ? m_background : palette().color(QPalette::Base);
    m_background = paper;
    Redraw();
}

void CanvasBase::Wipe()
{
    if (EnsureBuffer())
        m_buffer.fill(m_background);
    update();
}

void CanvasBase::MakeSquare()
{
    const int side = std::max(std::max(width(), minimumWidth()), std::max(height(), minimumHeight()));
    setFixedSize(side, side);
}

void CanvasBase::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    EnsureBuffer();
}

QRect CanvasBase::DeviceClientRect() const
{
    const qreal ratio = devicePixelRatioF();
    return QRect(QPoint(0, 0), (QSizeF(contentsRect().size()) * ratio).toSize());
}

bool CanvasBase::EnsureBuffer()
{
    const QSize pixels = DeviceClientRect().size();
    if (pixels.isEmpty())
        return false;
    const qreal ratio = devicePixelRatioF();
    if (pixels == m_buffer.size() && ratio == m_buffer.devicePixelRatio())
        return true;
    // Every pixel is paper before anything is drawn: no stale or uninitialised pixels.
    QImage resized(pixels, QImage::Format_RGB32);
    resized.fill(m_background);
    if (!m_buffer.isNull() && ratio == m_buffer.devicePixelRatio()) {
        QPainter painter(&resized);
        painter.drawImage(0, 0, m_buffer);
    }
    resized.setDevicePixelRatio(ratio);
    m_buffer = resized;
    return true;
}

void CanvasBase::paintEvent(QPaintEvent* event)
{
    if (!m_buffer.isNull() && m_buffer.devicePixelRatio() != devicePixelRatioF()) {
        // The window went to a screen of another ratio: everything is drawn again for it.
        EnsureBuffer();
        Redraw();
    }
    QPainter painter(this);
    // The canvas declares that it paints every pixel of its rectangle: the frame first, then
    // the buffer over the client area.
    PaintFrame(painter);
    const QRect client = contentsRect();
    const QRect dirty = event->rect().intersected(client);
    if (!m_buffer.isNull() && !dirty.isEmpty()) {
        const qreal ratio = m_buffer.devicePixelRatio();
        const QRectF source(QPointF(dirty.topLeft() - client.topLeft()) * ratio, QSizeF(dirty.size()) * ratio);
        painter.drawImage(QRectF(dirty), m_buffer, source);
    }
    painter.save();
    painter.translate(client.topLeft());
    painter.setClipRect(QRect(QPoint(0, 0), client.size()));
    PaintOverlay(painter);
    painter.restore();
}

void CanvasBase::PaintFrame(QPainter& painter) const
{
    // An edit box's frame: a line in the palette's mid colour round a band of paper. Both are
    // fills that reach a pixel past their edges, so that at a fractional ratio the device pixels
    // a logical edge cuts through are painted too (the painter clips to the widget): no pixel of
    // the rectangle keeps what was on the screen before, and the line is whole on every side.
    const QRect all = rect();
    painter.fillRect(all.adjusted(-1, -1, 1, 1), palette().color(QPalette::Mid));
    painter.fillRect(all.adjusted(1, 1, -1, -1), m_background);
}
