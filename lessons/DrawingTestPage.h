#pragma once

#include "Element.h"
#include "QuestionPage.h"
#include "StrokeChecker.h"

#include <memory>

class CharacterDatabase;
class DisplayCanvas;
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
    explicit DrawingTestPage(CharacterDatabase& database, QWidget* parent = nullptr);
    ~DrawingTestPage() override;

    void SetCharacter(const Character* character) override;
    bool IsAnswered() const override;

    bool Revealed() const { return m_revealed; }
    bool Peeked() const { return m_peeked; }
    const Form* Glyph() const { return m_glyph ? &m_glyph->GetForm(0) : nullptr; }
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
    const Character* m_character = nullptr;
    std::unique_ptr<Element> m_glyph;
    std::unique_ptr<StrokeChecker> m_checker;
    bool m_revealed = false;
    bool m_peeked = false;
};
