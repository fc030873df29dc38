#pragma once

#include "CoachingPreferences.h"
#include "LexiconAccess.h"
#include "GlyphLoading.h"
#include "Page.h"
#include "Random15.h"
#include "ReviewSitting.h"

#include <QHash>

#include <memory>

class CharacterDatabase;
class CharacterGrid;
class Element;
class Form;
class LearnerSession;
class Prompt;
class QLabel;
class QProgressBar;
class QStackedWidget;
class TestContainer;

/// One sitting of reviews for the learner open in the session: every character due today, from
/// every category, the least likely to be recalled first, each tested as a test tests it
/// (its readings, then writing it) and recorded in its own category as soon as it is decided.
/// At the end, or when the learner stops, a summary: what was remembered, what was forgotten
/// (to be learned again) and what falls due next. Event 0: back to the home page.
class ReviewPage : public Page {
    Q_OBJECT
public:
    enum Event : quint16 { Back = 0 };

    ReviewPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session,
        QWidget* parent = nullptr);
    ~ReviewPage() override;

    /// How many characters a sitting takes at most, and whether the readings are left out.
    void SetSitting(int size, bool writingOnly);
    /// The writing aids of the drawing question; the word shown after a reading (null: none).
    void SetCoaching(const CoachingPreferences& preferences);
    void SetWordAid(LexiconAccess* lexicon);
    /// Kanji Info of a forgotten character shows the words and parts of `context`.
    void SetWords(WordContext context) { m_words = std::move(context); }
    /// Kanji Info shows the other stroke orders of a character.
    void SetOtherOrders(bool on) { m_otherOrders = on; }

    /// Starts a sitting of what is due now. False (and nothing asked) when nothing is due.
    bool Start();

    const ReviewSitting& Sitting() const { return m_sitting; }
    /// The test that asks the questions of the character reviewed (made by the first Start).
    TestContainer* Test() const { return m_test; }
    /// Whether the summary is shown.
    bool ShowsSummary() const;

protected:
    void Cancel() override;

private:
    void MakeTest();
    void AskCurrent();
    void OnTestEvent(quint16 code);
    /// Records the character asked when its test is decided; returns whether it was.
    bool RecordCurrent();
    void ShowSummary();
    void ShowInfo();
    void BuildSummary();
    QString CategoryName(std::uint16_t categoryId);

    CharacterDatabase& m_database;
    Prompt& m_prompt;
    SeedSource m_seeds;
    LearnerSession& m_session;
    CoachingPreferences m_coaching;
    LexiconAccess* m_wordAid = nullptr;
    int m_size = ReviewSitting::DefaultSize;
    bool m_writingOnly = false;
    WordContext m_words;
    bool m_otherOrders = false;
    ReviewSitting m_sitting;
    QHash<std::uint16_t, QString> m_categoryNames;
    GlyphCache m_glyphs;

    QLabel* m_position = nullptr;
    QProgressBar* m_bar = nullptr;
    QLabel* m_category = nullptr;
    QStackedWidget* m_stack = nullptr;
    TestContainer* m_test = nullptr;
    QWidget* m_summary = nullptr;
    QLabel* m_counts = nullptr;
    QLabel* m_forgottenTitle = nullptr;
    CharacterGrid* m_forgotten = nullptr;
    QLabel* m_next = nullptr;
    QPushButton* m_info = nullptr;
    QPushButton* m_back = nullptr;
};
