#pragma once

#include "CanvasBase.h"
#include "Form.h"
#include "StrokePath.h"

#include <QElapsedTimer>
#include <QPen>
#include <QTimer>

#include <optional>
#include <vector>

/// The square the learner writes on with the mouse, a pen or a finger, one stroke per
/// press-drag-release. Live ink is only on screen; a stroke reaches the back buffer once the page
/// has kept it. The canvas can also show, on screen only, guide lines through its middle and,
/// for a moment after a refusal, the refused ink fading with an arrow or a start mark.
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

    /// What the canvas shows for a moment after a refused stroke.
    struct Refusal {
        std::vector<Point> ink; ///< the refused stroke, faded out
        std::optional<QPointF> arrowFrom; ///< an arrow from here to `arrowTo` (client pixels)
        QPointF arrowTo;
        const Form* startOf = nullptr; ///< mark where stroke `strokeIndex` of this glyph starts
        std::uint16_t strokeIndex = 0;
    };
    /// Shows a refusal for about FadeMilliseconds; the next stroke starts at once all the same.
    void ShowRefusal(Refusal refusal);
    /// A refusal is on screen.
    bool RefusalShown() const { return m_refusal.has_value(); }
    /// How long a refusal stays on screen, fading.
    static constexpr int FadeMilliseconds = 1500;
    /// Faint dashed lines through the middle, under the ink, as on a practice sheet.
    void SetGuideLines(bool shown);
    bool GuideLines() const { return m_guideLines; }

signals:
    /// A stroke begins (a press of the mouse, the pen or a finger).
    void strokeStarted();
    /// A stroke was just finished; the page may call Undo() here to reject it.
    void strokeEnded();
    /// The stroke was kept and drawn into the back buffer.
    void strokeKept();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    bool event(QEvent* event) override;
    void PaintOverlay(QPainter& painter) override;
    void Redraw() override;

private:
    void BeginStroke(QMouseEvent* event);
    void StartStroke(const QPointF& widgetPosition, float width);
    void AddPoint(const QPointF& widgetPosition, float width = 0);
    void EndStroke();
    void DrawInk(QPainter& painter, const std::vector<Point>& stroke, const std::vector<float>& widths = {}) const;
    void PaintGuideLines(QPainter& painter) const;
    void PaintRefusal(QPainter& painter) const;
    /// Ink width for a pen's pressure: from half to one and a half times the normal pen.
    float WidthForPressure(qreal pressure) const;

    bool m_capturing = false;
    bool m_overlayPresent = false;
    std::size_t m_paintedCount = 0;
    std::vector<Point> m_current;
    std::vector<float> m_currentWidths; ///< per point, for pen strokes (empty: the normal pen)
    std::vector<std::vector<Point>> m_finished;
    std::vector<std::vector<float>> m_finishedWidths;
    std::optional<Refusal> m_refusal;
    QElapsedTimer m_refusalClock;
    QTimer m_fadeTimer;
    bool m_guideLines = false;
    QPen m_pen{Qt::black, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
};
