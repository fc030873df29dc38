#pragma once

#include "Prompt.h"

/// A prompt that answers every message with OK at once, for timing screens.
class SilentPrompt : public Prompt {
public:
    QMessageBox::StandardButton Ask(QWidget*, QMessageBox::Icon, const QString&, const QString&,
        QMessageBox::StandardButtons, QMessageBox::StandardButton) override
    {
        return QMessageBox::Ok;
    }
};
