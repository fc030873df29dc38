#pragma once

// A prompt that answers for the learner: it records every message and returns the answers
// queued for it (OK, or the button given by `answer`, when none is queued).

#include "Prompt.h"

#include <QList>
#include <QStringList>

class RecordingPrompt final : public Prompt {
public:
    QMessageBox::StandardButton Ask(QWidget*, QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons, QMessageBox::StandardButton) override
    {
        messages << title + QStringLiteral(": ") + text;
        icons << icon;
        return answers.isEmpty() ? answer : answers.takeFirst();
    }

    QStringList messages; ///< "title: text", in order
    QList<QMessageBox::Icon> icons;
    QList<QMessageBox::StandardButton> answers;
    QMessageBox::StandardButton answer = QMessageBox::Ok;
};
