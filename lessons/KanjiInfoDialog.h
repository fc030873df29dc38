#pragma once

#include "Character.h"
#include "Element.h"
#include "LexiconAccess.h"

#include <QDialog>

#include <memory>

class CharacterDatabase;
class Prompt;
class DisplayCanvas;
class QLabel;
namespace Ui {
class KanjiInfoDialog;
}

/// Shows one character: its glyph (click to animate), ON reading, KUN reading and meaning;
/// given a lexicon, also up to five words that use it and the parts it is built from (a part
/// that is itself a character opens its own Kanji Info). Ends with 8 (Close) or 2 (Esc).
class KanjiInfoDialog : public QDialog {
    Q_OBJECT
public:
    enum Result { Cancelled = 2, Closed = 8, ShowInCategory = 9 };

    KanjiInfoDialog(CharacterDatabase& database, Prompt& prompt, QWidget* parent = nullptr);
    ~KanjiInfoDialog() override;

    /// Loads the character and its glyph; false (after an error box) when the database fails.
    bool SetCode(std::uint16_t code);
    /// Says when the character is next due for review (a day number, EventDay); not called, the
    /// dialog says nothing of reviews.
    void SetNextReview(int dueDay, int today);
    /// Shows the character's words and parts from `context` (set before SetCode); not called,
    /// or without a lexicon, the dialog shows neither.
    void SetWords(WordContext context);
    /// Shows the other stroke orders KanjiVG records for the character, stroke by stroke (set
    /// before SetCode); not called, none are shown.
    void SetOtherOrders(bool on) { m_otherOrders = on; }

    /// Adds "Show in its category", which ends the dialog with ShowInCategory (not called: no
    /// such button, the dialog as it always was).
    void OfferShowInCategory();

    /// Words shown at most.
    static constexpr std::size_t MaxWords = 5;

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowWordsAndParts(std::uint16_t code);
    void ShowOtherOrders();
    /// Form `form` of the glyph stroke by stroke: a small frame a stroke, the newest in the
    /// accent colour.
    QPixmap OrderStrip(const Form& form) const;
    QLabel* Heading(const QString& text, const char* name);
    /// A word with the characters not learned yet dimmed.
    QLabel* WordRow(const Lexicon& lexicon, const LexiconWord& word);
    /// A part drawn with the character's strokes: a button to its Kanji Info when it has one.
    QWidget* PartWidget(const LexiconPart& part);
    void OpenPart(std::uint16_t code);
    DisplayCanvas* Display() const;
    QLabel* OnReadingLabel() const;
    QLabel* KunReadingLabel() const;
    QLabel* MeaningLabel() const;
    QPushButton* CloseButton() const;
    QLabel* m_nextReview = nullptr;
    QWidget* m_wordsAndParts = nullptr;
    QWidget* m_orders = nullptr;
    bool m_otherOrders = false;
    WordContext m_words;
    std::unique_ptr<Ui::KanjiInfoDialog> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    std::unique_ptr<Character> m_character;
    std::unique_ptr<Element> m_glyph;
};
