#include "WindowKeys.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWhatsThis>
#include <QWidget>

void InstallWindowKeys(QWidget* window)
{
    static const QKeySequence ignored[] = {
        QKeySequence(Qt::CTRL | Qt::Key_C),
        QKeySequence(Qt::CTRL | Qt::Key_Insert),
        QKeySequence(Qt::SHIFT | Qt::Key_Delete),
        QKeySequence(Qt::CTRL | Qt::Key_X),
        QKeySequence(Qt::CTRL | Qt::Key_V),
        QKeySequence(Qt::SHIFT | Qt::Key_Insert),
        QKeySequence(Qt::ALT | Qt::Key_Backspace),
        QKeySequence(Qt::CTRL | Qt::Key_Z),
        QKeySequence(Qt::CTRL | Qt::Key_N),
        QKeySequence(Qt::CTRL | Qt::Key_O),
        QKeySequence(Qt::CTRL | Qt::Key_P),
        QKeySequence(Qt::CTRL | Qt::Key_S),
        QKeySequence(Qt::Key_F6),
        QKeySequence(Qt::SHIFT | Qt::Key_F6),
    };
    for (const QKeySequence& keys : ignored)
        new QShortcut(
            keys, window, [] {}, Qt::WindowShortcut);
    new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F1), window, [] { QWhatsThis::enterWhatsThisMode(); });
}
