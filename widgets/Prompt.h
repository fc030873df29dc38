#pragma once

#include <QCoreApplication>
#include <QMessageBox>

class QWidget;

/// Titles of the data stores' error messages.
inline constexpr const char* DatabaseErrorTitle = QT_TRANSLATE_NOOP("ZavorenCommon", "Zavoren Database Error");
inline constexpr const char* ConfigurationErrorTitle = QT_TRANSLATE_NOOP("ZavorenCommon", "Zavoren Configuration Error");

/// A data store's title or message in the learner's language (the text itself when it has no
/// translation). The stores' messages are listed for translation in StoreMessages.h.
inline QString StoreText(const char* text)
{
    return QCoreApplication::translate("ZavorenCommon", text);
}

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

    /// The error message of a data store failure: error icon, the given title and the failure's
    /// text, both in the learner's language.
    void StoreError(QWidget* parent, const char* title, const char* message)
    {
        Ask(parent, QMessageBox::Critical, StoreText(title), StoreText(message));
    }
};
