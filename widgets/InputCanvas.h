#pragma once

#include "CanvasBase.h"
#include "Form.h"
#include "StrokePath.h"

#include <QPen>

#include <vector>

/// The square the learner writes on with the mouse, one stroke per press-drag-release. Live ink
/// is only on screen; a stroke reaches the back buffer once the page has kept it.
class InputCanvas : public CanvasBase {
    Q_OBJECT
public:
    explicit InputCanvas(QWidget* parent = nullptr);

    /// Removes all finished strokes.
    void Clear();
    /// Removes the last finished stroke (if any) and empties the stroke being written.
    void Undo();
    /// Number of finished strokes.
    int StrokeCount() const { return static_cast<int>(m_finished.size()); }
    /// A copy of the stroke being written (or just ended), as the checker takes it.
    StrokePath CurrentStroke() const { return StrokePath(m_current); }
    /// Marks where stroke `index` of the glyph begins, until the next stroke is kept.
    void ShowHint(const Form& glyph, std::uint16_t index);
    /// Brings the back buffer up to date with the finished strokes.
    void Sync();
    /// The pen strokes are written with.
    const QPen& InkPen() const { return m_pen; }

signals:
    /// A stroke was just finished; the page may call Undo() here to reject it.
    void strokeEnded();
    /// The stroke was kept and drawn into the back buffer.
    void strokeKept();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void PaintOverlay(QPainter& painter) override;

private:
    void BeginStroke(QMouseEvent* event);
    void AddPoint(const QPointF& widgetPosition);
    void DrawInk(QPainter& painter, const std::vector<Point>& stroke) const;

    bool m_capturing = false;
    bool m_overlayPresent = false;
    std::size_t m_paintedCount = 0;
    std::vector<Point> m_current;
    std::vector<std::vector<Point>> m_finished;
    QPen m_pen{Qt::black, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
};
