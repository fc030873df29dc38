#pragma once

#include "Character.h"

#include <QWidget>

/// A question page of a test: given a character, it asks one kind of question and reports once
/// when answered: event 0 answered cleanly, 1 answered with mistakes.
class QuestionPage : public QWidget {
    Q_OBJECT
public:
    enum Event : quint16 { AnsweredCleanly = 0, AnsweredWithMistakes = 1 };

    using QWidget::QWidget;
    /// Prepares the page for one question about `character` (owned by the test; may be null).
    virtual void SetCharacter(const Character* character) = 0;
    /// Whether the question has been answered right.
    virtual bool IsAnswered() const = 0;

signals:
    void pageEvent(quint16 code, quint16 argument);
};
