#pragma once

#include "Element.h"
#include "QuestionPage.h"
#include "Random15.h"
#include "ReadingChoices.h"
#include "ReadingJudge.h"

#include <array>
#include <memory>

class CharacterDatabase;
class FeedbackLine;
class LexiconAccess;
class Prompt;
class DisplayCanvas;
class QLabel;
class QRadioButton;
namespace Ui {
class ReadingTestPage;
}

/// Shows a character's glyph and meaning and asks for its ON and KUN readings among five
/// choices each. A wrong pick makes the answer one with mistakes.
class ReadingTestPage : public QuestionPage {
    Q_OBJECT
public:
    /// Messages go through `prompt`; random draws are seeded from `seeds`.
    ReadingTestPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent = nullptr);
    ~ReadingTestPage() override;

    void SetCharacter(const Character* character) override;
    bool IsAnswered() const override;

    /// Whether no wrong pick was made for this question.
    bool Perfect() const { return m_judge.IsPerfect(); }
    const ReadingChoices& Choices() const { return m_choices; }
    QRadioButton* OnButton(int i) const { return m_onButtons.at(static_cast<std::size_t>(i)); }
    QRadioButton* KunButton(int i) const { return m_kunButtons.at(static_cast<std::size_t>(i)); }
    /// After each reading is answered, shows under its choices a common word that uses the
    /// character with that reading, until the next question. Null (the default): no words.
    void SetWordAid(LexiconAccess* lexicon);

private:
    QLabel* OnReadingLabel() const;
    QLabel* KunReadingLabel() const;
    QLabel* MeaningLabel() const;
    DisplayCanvas* Display() const;
    void Pick(bool on, int index);
    void ShowWord(bool on);

    std::unique_ptr<Ui::ReadingTestPage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    SeedSource m_seeds;
    const Character* m_character = nullptr;
    std::unique_ptr<Element> m_glyph;
    std::array<QRadioButton*, 5> m_onButtons{};
    std::array<QRadioButton*, 5> m_kunButtons{};
    ReadingChoices m_choices;
    ReadingJudge m_judge;
    Random15 m_random;
    LexiconAccess* m_lexicon = nullptr;
    FeedbackLine* m_onWord = nullptr;
    FeedbackLine* m_kunWord = nullptr;
};
