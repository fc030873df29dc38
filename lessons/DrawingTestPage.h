#pragma once

#include "Element.h"
#include "QuestionPage.h"
#include "WritingCoach.h"
#include "WritingQuiz.h"

#include <memory>

class CharacterDatabase;
class Prompt;
class DisplayCanvas;
class FeedbackLine;
class InputCanvas;
class QLabel;
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

    bool Revealed() const { return m_quiz.Revealed(); }
    bool Peeked() const { return m_quiz.Peeked(); }
    const Form* Glyph() const { return m_quiz.Glyph(); }
    /// The line under the writing canvas that says why a stroke was refused.
    FeedbackLine* Feedback() const { return m_feedback; }
    /// Switches the writing aids (there is no hint after misses in a test).
    void SetCoaching(const CoachingPreferences& preferences);
    DisplayCanvas* Display() const;
    InputCanvas* Input() const;
    QLabel* OnReadingLabel() const;
    QLabel* KunReadingLabel() const;
    QLabel* MeaningLabel() const;

private:
    void OnStrokeEnded();
    void OnStrokeKept();
    void OnDisplayClicked();
    void Reveal();

    std::unique_ptr<Ui::DrawingTestPage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    const Character* m_character = nullptr;
    WritingQuiz m_quiz;
    FeedbackLine* m_feedback = nullptr;
    std::unique_ptr<WritingCoach> m_coach;
};
