#include "WritingCursor.h"

#include "StoredPicture.h"

#include <QPixmap>

QCursor WritingCursor()
{
    // Decoded at build time: every writing canvas takes this cursor when it is made, at start-up.
    const QImage pen = StoredPicture(QStringLiteral("pen-cursor"));
    if (pen.isNull())
        return QCursor(Qt::CrossCursor);
    return QCursor(QPixmap::fromImage(pen), 1, 30);
}
