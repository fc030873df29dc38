#pragma once

#include "Character.h"
#include "Element.h"
#include "LessonSession.h"
#include "Page.h"
#include "WritingPanel.h"

#include <memory>
#include <vector>

class CharacterDatabase;
class Prompt;
class DisplayCanvas;
class FeedbackLine;
class InputCanvas;
class QCheckBox;
namespace Ui {
class LessonPage;
}

/// Teaches a short list of characters one after another: the glyph on a display canvas, the
/// readings and meaning on three check boxes to tick, and an input canvas where every stroke is
/// checked at once. Events: 0 lesson finished, 1 lesson aborted.
class LessonPage : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { Finished = 0, Aborted = 1 };

    LessonPage(CharacterDatabase& database, Prompt& prompt, QWidget* parent = nullptr);
    ~LessonPage() override;

    /// Starts a lesson on these character codes.
    void StartLesson(const std::vector<std::uint16_t>& codes);
    /// The codes taught to the end, in the order they were finished.
    const std::vector<std::uint16_t>& DoneCodes() const { return m_session.Done(); }

    /// The glyph being taught, or null.
    const Form* Glyph() const;
    /// Switches the writing aids.
    void SetCoaching(const CoachingPreferences& preferences);

protected:
    void Cancel() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    DisplayCanvas* Display() const;
    InputCanvas* Input() const;
    QCheckBox* OnReadingBox() const;
    QCheckBox* KunReadingBox() const;
    QCheckBox* MeaningBox() const;
    QPushButton* ClearButton() const;
    QPushButton* UndoButton() const;
    QPushButton* HintButton() const;
    QPushButton* AbortButton() const;
    QPushButton* NextButton() const;
    /// The line under the writing canvas that says why a stroke was refused.
    FeedbackLine* Feedback() const;
    void LoadCharacter();
    void RefreshControls();
    void ShowHint();
    void OnStrokeRefused();
    void OnNext();

    std::unique_ptr<Ui::LessonPage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    std::unique_ptr<Character> m_character;
    WritingPanel* m_panel = nullptr;
    LessonSession m_session;
};
