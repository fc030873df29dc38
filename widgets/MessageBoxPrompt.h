#pragma once

#include "Prompt.h"

/// The program's prompt: a modal message box.
class MessageBoxPrompt final : public Prompt {
public:
    QMessageBox::StandardButton Ask(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok,
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton) override;
};
