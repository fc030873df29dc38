#pragma once

#include "Character.h"
#include "Element.h"

#include <QDialog>

#include <memory>

class CharacterDatabase;
class Prompt;
class DisplayCanvas;
class QLabel;
namespace Ui {
class KanjiInfoDialog;
}

/// Shows one character: its glyph (click to animate), ON reading, KUN reading and meaning.
/// Ends with 8 (Close) or 2 (Esc).
class KanjiInfoDialog : public QDialog {
    Q_OBJECT
public:
    enum Result { Cancelled = 2, Closed = 8 };

    KanjiInfoDialog(CharacterDatabase& database, Prompt& prompt, QWidget* parent = nullptr);
    ~KanjiInfoDialog() override;

    /// Loads the character and its glyph; false (after an error box) when the database fails.
    bool SetCode(std::uint16_t code);
    /// Says when the character is next due for review (a day number, EventDay); not called, the
    /// dialog says nothing of reviews.
    void SetNextReview(int dueDay, int today);


    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    DisplayCanvas* Display() const;
    QLabel* OnReadingLabel() const;
    QLabel* KunReadingLabel() const;
    QLabel* MeaningLabel() const;
    QPushButton* CloseButton() const;
    QLabel* m_nextReview = nullptr;
    std::unique_ptr<Ui::KanjiInfoDialog> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    std::unique_ptr<Character> m_character;
    std::unique_ptr<Element> m_glyph;
};
