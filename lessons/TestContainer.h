#pragma once

#include "Character.h"
#include "Page.h"
#include "Random15.h"
#include "TestSchedule.h"

#include <memory>
#include <vector>

class CharacterDatabase;
class Prompt;
class DrawingTestPage;
class QuestionPage;
class ReadingTestPage;
namespace Ui {
class TestContainer;
}

/// Runs a test over a list of characters with its two question pages (reading, then drawing,
/// shown one at a time) until every character has passed every question or failed one.
/// Events: 0 test finished, 1 test aborted.
class TestContainer : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { Finished = 0, Aborted = 1 };
    enum PageIndex : std::uint16_t { Reading = 0, Drawing = 1 };

    /// Messages go through `prompt`; random draws are seeded from `seeds`.
    TestContainer(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent = nullptr);
    ~TestContainer() override;

    /// Starts a test of these codes; without `askReadings`, only the drawing question is asked.
    void StartTest(const std::vector<std::uint16_t>& codes, bool askReadings = true);
    /// Codes passed so far, in list order.
    std::vector<std::uint16_t> PassedCodes() const { return m_schedule.PassedCodes(); }
    /// Codes failed so far, in list order.
    std::vector<std::uint16_t> FailedCodes() const { return m_schedule.FailedCodes(); }

    const TestSchedule& Schedule() const { return m_schedule; }
    ReadingTestPage* ReadingPage() const { return m_reading; }
    DrawingTestPage* DrawingPage() const { return m_drawing; }
    /// The question page shown, or null.
    QuestionPage* ShownPage() const;

protected:
    void Cancel() override;

private:
    QPushButton* NextButton() const;
    QPushButton* AbortButton() const;
    void AskQuestion();
    void RefreshButtons();
    void OnPageEvent(QuestionPage* page, quint16 code);
    void OnNext();

    std::unique_ptr<Ui::TestContainer> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    SeedSource m_seeds;
    ReadingTestPage* m_reading = nullptr;
    DrawingTestPage* m_drawing = nullptr;
    TestSchedule m_schedule{2};
    std::unique_ptr<Character> m_character;
};
