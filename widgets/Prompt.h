#pragma once

#include <QMessageBox>

class QWidget;

/// How a screen tells the learner something or asks them to choose: a message with a title,
/// an icon and buttons, answered with the button pressed. The program shows message boxes
/// (MessageBoxPrompt); screens receive the prompt they use, so tests can answer for the learner.
class Prompt {
public:
    virtual ~Prompt() = default;

    /// Shows the message, owned by `parent`, and returns the button pressed.
    virtual QMessageBox::StandardButton Ask(QWidget* parent, QMessageBox::Icon icon, const QString& title,
        const QString& text, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton)
        = 0;

    /// The error message of a data store failure: error icon, the given title and the failure's text.
    void StoreError(QWidget* parent, const char* title, const char* message)
    {
        Ask(parent, QMessageBox::Critical, QString::fromUtf8(title), QString::fromUtf8(message));
    }
};
