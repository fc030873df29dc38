#pragma once

#include "CoachingPreferences.h"
#include "LexiconAccess.h"
#include "Page.h"
#include "Random15.h"
#include "WordsTest.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

class CharacterDatabase;
class InputCanvas;
class LearnerSession;
class Prompt;
class QHBoxLayout;
class QLabel;
class QStackedWidget;
class QFrame;
class WritingPanel;

/// The words test of a category: up to five words made of characters the learner has learned,
/// each shown by its reading and meaning with a row of squares, one per character: kana printed,
/// each kanji written from memory stroke by stroke, checked as in the drawing test. Every kanji
/// written counts as a review of that character where it was learned (a hint taken as a
/// mistake; given up: not remembered); nothing moves between the learned and untested lists.
/// Event 0: the test is over (or aborted), back to the category.
class WordsTestPage : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { Finished = 0 };

    WordsTestPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session,
        QWidget* parent = nullptr);
    ~WordsTestPage() override;

    /// The words a test of the category would ask now (none without a learner or lexicon).
    std::vector<WordQuestion> Eligible(std::uint16_t categoryId);
    /// Starts a test of the category; false (nothing asked) when no word can be found.
    bool Start(std::uint16_t categoryId);
    /// The writing aids of the squares.
    void SetCoaching(const CoachingPreferences& preferences);
    /// Kanji Info of a written character shows the words and parts of `context`.
    void SetWords(WordContext context) { m_words = std::move(context); }
    void SetOtherOrders(bool on) { m_otherOrders = on; }

    /// The words of the test, and the one asked (its index).
    const std::vector<WordQuestion>& Words() const { return m_test; }
    std::size_t WordIndex() const { return m_index; }
    /// The square of the word's character `i` (a writing canvas for a kanji, else null).
    InputCanvas* Canvas(std::size_t i) const;
    /// The square that takes the ink now, or -1 when the word is over.
    int ActiveCell() const { return m_active; }
    /// Whether the word asked is over (written or given up) and shown.
    bool WordShown() const { return m_shown; }

protected:
    void Cancel() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Cell {
        QFrame* frame = nullptr;
        InputCanvas* canvas = nullptr; ///< null for kana
        WritingPanel* panel = nullptr;
        int hints = 0;
        bool written = false;
    };
    void AskWord();
    void ClearCells();
    void Activate(int cell);
    void OnStrokeKept(std::size_t cell);
    void OnHint();
    void GiveUp();
    void EndWord();
    void OnNext();
    void ShowInfo(std::size_t cell);
    void RefreshButtons();

    CharacterDatabase& m_database;
    Prompt& m_prompt;
    SeedSource m_seeds;
    LearnerSession& m_session;
    CoachingPreferences m_coaching;
    WordContext m_words;
    bool m_otherOrders = false;
    Random15 m_random;
    std::map<std::uint16_t, std::set<std::string>> m_previous; ///< each category's last test
    std::uint16_t m_categoryId = 0;
    std::vector<WordQuestion> m_test;
    std::size_t m_index = 0;
    std::vector<Cell> m_cells;
    int m_active = -1;
    bool m_shown = false;
    bool m_recorded = false;

    QLabel* m_position = nullptr;
    QLabel* m_reading = nullptr;
    QLabel* m_meaning = nullptr;
    QWidget* m_row = nullptr;
    QHBoxLayout* m_rowLayout = nullptr;
    QStackedWidget* m_lines = nullptr;
    QLabel* m_printed = nullptr;
    QPushButton* m_hint = nullptr;
    QPushButton* m_dontKnow = nullptr;
    QPushButton* m_abort = nullptr;
    QPushButton* m_next = nullptr;
};
