#pragma once

// Answers a modal dialog of type Dialog for the learner each time one is shown, from inside the
// dialog's own event loop: the test gives what to do with it (type, click a button).

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

#include <functional>

template<typename Dialog> class ModalAnswerer : public QObject {
public:
    explicit ModalAnswerer(std::function<void(Dialog&)> answer) : m_answer(std::move(answer))
    {
        qApp->installEventFilter(this);
    }
    ~ModalAnswerer() override { qApp->removeEventFilter(this); }

    /// How many times a Dialog was shown.
    int Shown() const { return m_shown; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto* dialog = qobject_cast<Dialog*>(object)) {
                ++m_shown;
                QPointer<Dialog> shown(dialog);
                QTimer::singleShot(0, this, [this, shown] {
                    if (shown)
                        m_answer(*shown);
                });
            }
        }
        return false;
    }

private:
    std::function<void(Dialog&)> m_answer;
    int m_shown = 0;
};
