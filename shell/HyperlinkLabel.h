#pragma once

#include "UrlOpener.h"

#include <QLabel>

/// A link in a dialog: underlined text in the link colour (blue), purple once visited for the
/// life of the control, a hand cursor and the target as tooltip. On a dark window the link takes
/// the palette's light link colours instead, so that it stays readable. A click opens the target with
/// the desktop; only a successful open marks the link visited.
class HyperlinkLabel : public QLabel {
    Q_OBJECT
public:
    /// A click opens the target through `open`.
    explicit HyperlinkLabel(UrlOpener open, QWidget* parent = nullptr);

    /// Sets the caption and the address opened on click (the caption when `target` is empty).
    void SetLink(const QString& caption, const QString& target = QString());
    /// The address opened on click (the caption when none is set).
    void SetTarget(const QString& target);
    QString Target() const { return m_target.isEmpty() ? text() : m_target; }
    bool Visited() const { return m_visited; }
    /// The colour the caption is painted in now.
    QColor CurrentColour() const;

protected:
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Open();
    void UpdateLook();

    UrlOpener m_open;
    QString m_target;
    bool m_visited = false;
    bool m_updatingLook = false;
    QColor m_linkColour{0, 0, 255};
    QColor m_visitedColour{128, 0, 128};
};
