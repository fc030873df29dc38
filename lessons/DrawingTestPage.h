#pragma once

#include "Element.h"
#include "QuestionPage.h"
#include "WritingPanel.h"

#include <memory>

class CharacterDatabase;
class Prompt;
namespace Ui {
class DrawingTestPage;
}

/// Shows a character's readings and meaning and has the learner write it from memory, every
/// stroke checked as in a lesson. Revealing the glyph before the drawing is complete makes the
/// answer one with mistakes; a rejected stroke costs nothing.
class DrawingTestPage : public QuestionPage {
    Q_OBJECT
public:
    DrawingTestPage(CharacterDatabase& database, Prompt& prompt, QWidget* parent = nullptr);
    ~DrawingTestPage() override;

    void SetCharacter(const Character* character) override;
    bool IsAnswered() const override;

    bool Revealed() const { return Quiz().Revealed(); }
    bool Peeked() const { return Quiz().Peeked(); }
    const Form* Glyph() const { return Quiz().Glyph(); }
    /// Switches the writing aids (there is no hint after misses in a test).
    void SetCoaching(const CoachingPreferences& preferences);

private:
    const WritingQuiz& Quiz() const;
    void OnStrokeKept();
    void OnDisplayClicked();
    void Reveal();

    std::unique_ptr<Ui::DrawingTestPage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    const Character* m_character = nullptr;
    WritingPanel* m_panel = nullptr;
};
