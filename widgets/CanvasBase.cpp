#include "CanvasBase.h"

#include <QPaintEvent>
#include <QPainter>

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
    RedrawForPalette();
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

bool CanvasBase::EnsureBuffer()
{
    const QSize size = contentsRect().size();
    if (size.isEmpty())
        return false;
    if (size == m_buffer.size())
        return true;
    QImage resized(size, QImage::Format_RGB32);
    resized.fill(m_background);
    if (!m_buffer.isNull()) {
        QPainter painter(&resized);
        painter.drawImage(0, 0, m_buffer);
    }
    m_buffer = resized;
    return true;
}

void CanvasBase::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect client = contentsRect();
    const QRect dirty = event->rect().intersected(client);
    if (!m_buffer.isNull() && !dirty.isEmpty())
        painter.drawImage(dirty.topLeft(), m_buffer, dirty.translated(-client.topLeft()));
    painter.save();
    painter.translate(client.topLeft());
    painter.setClipRect(QRect(QPoint(0, 0), client.size()));
    PaintOverlay(painter);
    painter.restore();
    drawFrame(&painter);
}
