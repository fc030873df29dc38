#include "HyperlinkLabel.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QUrl>

namespace {
std::function<bool(const QUrl&)>& Opener()
{
    static std::function<bool(const QUrl&)> opener = [](const QUrl& url) { return QDesktopServices::openUrl(url); };
    return opener;
}
} // namespace

HyperlinkLabel::HyperlinkLabel(QWidget* parent) : QLabel(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    UpdateLook();
}

void HyperlinkLabel::SetOpener(std::function<bool(const QUrl&)> opener)
{
    Opener() = std::move(opener);
}

void HyperlinkLabel::SetLink(const QString& caption, const QString& target)
{
    setText(caption);
    SetTarget(target);
}

void HyperlinkLabel::SetTarget(const QString& target)
{
    m_target = target;
    UpdateLook();
}

void HyperlinkLabel::UpdateLook()
{
    QPalette p = palette();
    p.setColor(QPalette::WindowText, CurrentColour());
    setPalette(p);
    setToolTip(Target());
    setAccessibleName(text());
    setAccessibleDescription(Target());
    update();
}

void HyperlinkLabel::Open()
{
    if (Opener()(QUrl(Target()))) {
        m_visited = true;
        UpdateLook();
        repaint();
    }
}

void HyperlinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Open();
}

void HyperlinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Open();
    else
        QLabel::keyPressEvent(event);
}
