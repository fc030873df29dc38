#pragma once

#include <QFrame>
#include <QImage>

/// A square writing or display surface with the frame of an edit box. Everything it shows is
/// drawn into a back buffer of its client size at the screen's device pixel ratio (so ink and
/// glyph edges are as sharp as the screen allows, while everything else works in logical
/// pixels); painting copies from the buffer.
class CanvasBase : public QFrame {
    Q_OBJECT
public:
    explicit CanvasBase(QWidget* parent = nullptr);

    /// The colour the back buffer is wiped with: the palette's base (paper) colour unless the
    /// owning page chooses another.
    void SetBackground(const QColor& colour);
    /// The colour the back buffer is wiped with.
    QColor Background() const { return m_background; }
    /// The colour ink and glyphs are drawn in: the palette's text colour, so that paper and ink
    /// keep their contrast in a dark palette as in a light one.
    QColor Ink() const { return palette().color(QPalette::Text); }
    /// Fills the back buffer with the background and repaints.
    virtual void Wipe();
    /// The back buffer, as the learner sees it (without live ink), in device pixels; its device
    /// pixel ratio is the widget's.
    const QImage& BackBuffer() const { return m_buffer; }
    /// The client rectangle in the back buffer's device pixels.
    QRect DeviceClientRect() const;
    /// The client rectangle in client coordinates (0, 0, width, height).
    QRect ClientRect() const { return QRect(QPoint(0, 0), contentsRect().size()); }
    /// Makes the canvas square: its shorter side is lengthened to the longer one.
    void MakeSquare();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// The palette or the device pixel ratio changed: the buffer is to be drawn again.
    virtual void Redraw() { Wipe(); }
    /// Paints what only the screen shows, on top of the buffer (live ink).
    virtual void PaintOverlay(QPainter&) { }
    /// Makes sure the back buffer has the client size at the widget's device pixel ratio
    /// (contents kept while the ratio stays); false when there is none.
    bool EnsureBuffer();
    /// Paints the frame and the paper under the client area, every pixel of the rectangle.
    void PaintFrame(QPainter& painter) const;
    /// Widget position to client coordinates.
    QPointF ToClient(const QPointF& widgetPosition) const { return widgetPosition - contentsRect().topLeft(); }
    QImage m_buffer;
    QColor m_background;
    bool m_backgroundChosen = false;
};
