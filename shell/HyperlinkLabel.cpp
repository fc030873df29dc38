#include "HyperlinkLabel.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QUrl>

bool OpenWithDesktop(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

HyperlinkLabel::HyperlinkLabel(UrlOpener open, QWidget* parent) : QLabel(parent), m_open(std::move(open))
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    UpdateLook();
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
    if (m_open(QUrl(Target()))) {
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
