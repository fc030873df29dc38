#pragma once

#include "CanvasBase.h"
#include "Form.h"
#include "StrokeAnimation.h"

#include <QTimer>

#include <memory>
#include <mutex>
#include <optional>

/// Shows a character and, on request, writes it stroke by stroke. A click (press and release
/// inside) is reported to the page, which restarts the animation.
class DisplayCanvas : public CanvasBase {
    Q_OBJECT
public:
    /// Milliseconds between two steps of the stroke-by-stroke writing, on every page.
    static constexpr int AnimationInterval = 10;

    explicit DisplayCanvas(QWidget* parent = nullptr);

    /// Draws the whole glyph at once, smoothly, on a wiped buffer.
    void ShowGlyph(const Form& glyph);
    /// Fills the buffer with the paper colour; the glyph shown is forgotten.
    void Wipe() override;
    /// Starts writing the glyph from its first stroke, one step every `intervalMs`.
    void StartAnimation(const Form& glyph, int intervalMs = AnimationInterval);
    /// Stops a running animation.
    void StopAnimation();
    /// Whether an animation runs.
    bool IsAnimating() const { return m_animation != nullptr; }
    /// One step of the writing: the next point, or a tick of pause (the timer calls this; the
    /// benchmark times it).
    void Tick();
    /// Whether new animations keep the glyph's aspect ratio (centred) instead of filling.
    void SetKeepAspect(bool keep) { m_keepAspect = keep; }
    /// The animation's pen.
    QPen AnimationPen() const;

signals:
    /// The canvas was clicked: pressed and released inside.
    void clicked();

protected:
    void Redraw() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool m_pressed = false;
    std::mutex m_animationLock;
    std::unique_ptr<StrokeAnimation> m_animation;
    bool m_keepAspect = false;
    std::optional<Form> m_shown; ///< the glyph shown whole, drawn again when the palette changes
    QTimer m_timer;
};
