#pragma once

#include "Category.h"
#include "CategoryProgress.h"
#include "Element.h"
#include "LexiconAccess.h"
#include "GlyphLoading.h"
#include "Page.h"
#include "ProgressRecorder.h"
#include "Random15.h"
#include "ReviewSchedule.h"

#include <QHash>

#include <functional>

#include <memory>
#include <optional>
#include <vector>

class CharacterDatabase;
class LearnerSession;
class Prompt;
class CharacterGrid;
class QLabel;
class QMenu;
class QAction;
namespace Ui {
class CategoryPage;
}

/// One category for the current learner: all its characters in the groups "Learned Kanji" and
/// "Kanji to be Learned", and the strip of untested characters. Events: 0 Lesson, 1 Learn (with
/// the character's code), 2 Test (also after Retest), 3 Back, 4 Words (the words test of the category, its id), 5 Reveal
/// (a character was asked for from elsewhere: the page is to be shown, with it selected).
class CategoryPage : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { Lesson = 0, Learn = 1, Test = 2, Back = 3, Words = 4, Reveal = 5 };
    enum Group { LearnedGroup = 0, ToBeLearnedGroup = 1 };

    /// Messages go through `prompt`; random draws are seeded from `seeds`.
    CategoryPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent = nullptr);
    /// The categories of the learner open in `session`: their progress changed while the page
    /// was hidden shows when it is shown again.
    CategoryPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session,
        QWidget* parent = nullptr);
    ~CategoryPage() override;

    /// Shows a category with the learner's record of it, which Retest and Forget change through
    /// `recorder` (none: a category without a learner). Returns false after an error box when
    /// the category cannot be read.
    bool SetCategory(std::uint16_t categoryId, std::optional<ProgressRecorder> recorder);
    /// Shows a category with the record of the learner open in the session.
    bool ShowCategory(std::uint16_t categoryId);
    /// The category shown, if any.
    std::optional<std::uint16_t> CategoryId() const;
    /// When the learned characters are due for review, told in Kanji Info (none: nothing told).
    void SetReviews(std::optional<ReviewSchedule> reviews) { m_reviews = std::move(reviews); }
    /// Kanji Info shows the words and parts of `context` (no lexicon: none).
    void SetWords(WordContext context) { m_words = std::move(context); }
    /// Kanji Info shows the other stroke orders of a character.
    void SetOtherOrders(bool on) { m_otherOrders = on; }
    /// Whether a words test of a category can find a word: the Words button is there and enabled
    /// when it can (none: no button, the page as it always was).
    using WordsAvailable = std::function<bool(std::uint16_t categoryId)>;
    void SetWordsTest(WordsAvailable available);
    /// Whether the context menus offer "Print practice sheet…".
    void SetPracticeSheets(bool on);
    /// The characters a test of the category takes now.
    std::vector<std::uint16_t> TestCharacters() const;
    /// A lesson of the category finished, having taught `taught`: recorded in the learner's
    /// progress.
    void LessonFinished(const std::vector<std::uint16_t>& taught);
    /// A test of the category taken (to the end or not): recorded in the learner's progress.
    void TestTaken(const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed,
        const ProgressRecorder::MistakeCount& mistakes);
    /// Up to `max` characters for a lesson from the Lesson button.
    std::vector<std::uint16_t> PickLessonCharacters(std::size_t max) const;
    /// Refreshes grid, strip and buttons from the learner's record.
    void Refresh();

    /// Selects the character in the grid (and gives the grid the keyboard): Learn, Info and the
    /// menus act on it. False when the category shown does not have it.
    bool SelectCharacter(std::uint16_t code);
    /// Shows the category with the character selected and asks to be shown (Reveal).
    void RevealCharacter(std::uint16_t categoryId, std::uint16_t code);
    /// The characters selected in the grid, or else in the strip: what a practice sheet prints.
    std::vector<std::uint16_t> SelectedCharacters() const;
    /// Opens the Kanji Info dialog for the first selected character of `grid` (modal).
    void ShowInfo(CharacterGrid* grid);

protected:
    void Cancel() override;
    void showEvent(QShowEvent* event) override;

private:
    CharacterGrid* Grid() const;
    CharacterGrid* Strip() const;
    QPushButton* LessonButton() const;
    QPushButton* TestButton() const;
    QPushButton* RetestButton() const;
    QPushButton* ForgetButton() const;
    QPushButton* BackButton() const;
    QPushButton* m_wordsButton = nullptr;
    QList<QAction*> m_sheetActions; ///< each menu's item and the separator before it
    WordsAvailable m_wordsAvailable;
    bool m_wordsFound = false; ///< read again on each Refresh
    /// The three context menus: "Learned", "Unlearned", "Untested".
    QMenu* LearnedMenu() const { return m_learnedMenu; }
    QMenu* UnlearnedMenu() const { return m_unlearnedMenu; }
    QMenu* UntestedMenu() const { return m_untestedMenu; }
    void RefreshButtons();
    void OnContextMenu(CharacterGrid* grid, int cell, const QPoint& globalPosition);
    void OnForget();
    void OnRetest();
    void OnLearn();

    std::unique_ptr<Ui::CategoryPage> m_ui;
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    SeedSource m_seeds;
    std::unique_ptr<Category> m_category;
    std::optional<ProgressRecorder> m_recorder;
    std::optional<ReviewSchedule> m_reviews;
    WordContext m_words;
    bool m_otherOrders = false;
    /// The learner's record of the category, or null without a learner.
    CategoryProgress* Progress() const { return m_recorder ? &m_recorder->Progress() : nullptr; }
    QMenu* m_learnedMenu = nullptr;
    QMenu* m_unlearnedMenu = nullptr;
    QMenu* m_untestedMenu = nullptr;
    QAction* m_learnAction = nullptr;
    GlyphCache m_glyphs;
    Random15 m_random;
    LearnerSession* m_session = nullptr;
    bool m_stale = false; ///< the learner's progress changed since the page last read it
};
