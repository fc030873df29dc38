#include "WritingCursor.h"

#include <QPixmap>

QCursor WritingCursor()
{
    const QPixmap pen(QStringLiteral(":/images/pen-cursor.png"));
    if (pen.isNull())
        return QCursor(Qt::CrossCursor);
    return QCursor(pen, 1, 30);
}
