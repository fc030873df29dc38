#include "Page.h"

#include <QKeyEvent>
#include <QPushButton>

Page::Page(QWidget* parent) : QWidget(parent) { }

void Page::SetDefaultButton(QPushButton* button)
{
    if (m_defaultButton == button)
        return;
    if (m_defaultButton)
        m_defaultButton->setDefault(false);
    m_defaultButton = button;
    if (button)
        button->setDefault(true);
}

void Page::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_defaultButton && m_defaultButton->isEnabled() && m_defaultButton->isVisible())
            m_defaultButton->click();
        return;
    case Qt::Key_Escape: Cancel(); return;
    default: QWidget::keyPressEvent(event);
    }
}

int HorizontalUnits(const QWidget* widget, int units)
{
    return units * widget->fontMetrics().averageCharWidth() / 4;
}

int VerticalUnits(const QWidget* widget, int units)
{
    return units * widget->fontMetrics().height() / 8;
}

QString TextOrNotAvailable(const char* text)
{
    // Strings 218 to 220 of the program: shown where a character has no such text.
    return text && *text ? QString::fromUtf8(text) : Page::tr("N/A");
}
