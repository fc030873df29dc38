#include "FeedbackLine.h"

#include <QAccessible>

FeedbackLine::FeedbackLine(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("strokeFeedback"));
    setAccessibleName(tr("Stroke feedback"));
    setAccessibleDescription(QString());
    setWordWrap(false);
    // One line high even when empty.
    setMinimumHeight(fontMetrics().height() + 4);
}

void FeedbackLine::Say(const QString& message)
{
    setText(message);
    setAccessibleDescription(message);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    emit announced(message);
}

void FeedbackLine::Clear()
{
    if (text().isEmpty())
        return;
    setText(QString());
    setAccessibleDescription(QString());
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}
