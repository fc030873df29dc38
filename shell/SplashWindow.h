#pragma once

#include <QImage>

#include "DatabaseProgress.h"

#include <QElapsedTimer>
#include <QWidget>

class QProgressBar;

/// The start-up window: the program's picture with a progress bar at y 230 to 240, driven by
/// the database's preload. Each report repaints at once: loading does not pump events.
class SplashWindow : public QWidget, public DatabaseProgress {
    Q_OBJECT
public:
    explicit SplashWindow(QWidget* parent = nullptr);
    ~SplashWindow() override;

    /// False when the picture could not be loaded (no splash is shown then).
    bool HasPicture() const { return !m_picture.isNull(); }
    /// The picture shown, at the device pixel ratio it was drawn for.
    const QImage& Picture() const { return m_picture; }
    QProgressBar* Bar() const { return m_bar; }

    void SetPosition(std::uint32_t position) override;
    void SetRange(std::uint32_t lowest, std::uint32_t highest) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Repaints at once when the bar's drawn fill has changed and a frame's time has passed
    /// (or `force`): loading does not pump events, so this is the only way progress shows.
    void ShowProgress(bool force);

    QString m_pictureName;
    QImage m_picture; ///< drawn straight from the program's file: never copied
    int m_position = 0;
    int m_lowest = 0; ///< the bar's range, as the bar holds it
    int m_highest = 100;
    int m_shownFill = -1;
    int m_heldFill = -1; ///< a fill held back for coming too soon after the last repaint
    QElapsedTimer m_sinceRepaint;
    QProgressBar* m_bar = nullptr;
};
