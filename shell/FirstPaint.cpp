#include "FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {
class FirstPaintFilter : public QObject {
public:
    FirstPaintFilter(QWidget* widget, std::function<void()> task) : QObject(widget), m_task(std::move(task))
    {
        widget->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, parent(), std::move(m_task));
            deleteLater();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_task;
};
} // namespace

void AfterFirstPaint(QWidget* widget, std::function<void()> task)
{
    new FirstPaintFilter(widget, std::move(task));
}
