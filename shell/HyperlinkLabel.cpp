#include "HyperlinkLabel.h"

#include <QDesktopServices>
#include <QEvent>
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

QColor HyperlinkLabel::CurrentColour() const
{
    const QColor window = palette().color(QPalette::Window);
    if (window.lightness() >= 128)
        return m_visited ? m_visitedColour : m_linkColour;
    // A dark window: the palette's link colour when it is light enough to read, else a light one.
    const QColor link = palette().color(m_visited ? QPalette::LinkVisited : QPalette::Link);
    if (link.lightness() - window.lightness() >= 100)
        return link;
    return m_visited ? QColor(205, 160, 255) : QColor(120, 175, 255);
}

void HyperlinkLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_updatingLook)
        UpdateLook();
}

void HyperlinkLabel::UpdateLook()
{
    m_updatingLook = true;
    QPalette p = palette();
    p.setColor(QPalette::WindowText, CurrentColour());
    setPalette(p);
    m_updatingLook = false;
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
