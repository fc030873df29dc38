#include "FeedbackLine.h"

#include <QAccessible>

FeedbackLine::FeedbackLine(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("strokeFeedback"));
    setAccessibleName(tr("Stroke feedback"));
    setAccessibleDescription(QString());
    // As wide as the writing canvas above it, whatever it says; a long message (a language with
    // longer words) wraps onto a second line, for which there is always room.
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(2 * fontMetrics().lineSpacing() + 4);
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
