#include "PreferencesEditor.h"

#include "CategoryPage.h"
#include "DrawingTestPage.h"
#include "LearnerSession.h"
#include "LessonPage.h"
#include "LexiconAccess.h"
#include "PreferencesDialog.h"
#include "ReadingTestPage.h"
#include "ReviewPage.h"
#include "WordsTestPage.h"
#include "TestContainer.h"

#include <QAction>

PreferencesEditor::PreferencesEditor(PreferenceTargets targets) : m_targets(targets)
{
    Apply(m_settings.Coaching());
}

bool PreferencesEditor::Edit(QWidget* parent)
{
    PreferencesDialog dialog(m_current, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_settings.StoreCoaching(dialog.Chosen());
    Apply(dialog.Chosen());
    return true;
}

WordContext PreferencesEditor::Words() const
{
    WordContext context;
    LearnerSession* session = m_targets.session;
    if (session && m_current.wordsAndParts) {
        context.lexicon = &session->Lexicon();
        // Read when Kanji Info opens, so it follows the learner open then.
        context.learned = [session](std::uint16_t id) { return session->HasLearned(id); };
    }
    return context;
}

void PreferencesEditor::Apply(const CoachingPreferences& preferences)
{
    m_current = preferences;
    // The coaching aids decide whether the feedback line is there.
    if (m_targets.lesson)
        m_targets.lesson->SetCoaching(preferences);
    // The tests of a category and of a review sitting ask alike.
    if (m_targets.test)
        m_targets.test->DrawingPage()->SetCoaching(preferences);
    if (m_targets.review) {
        m_targets.review->SetCoaching(preferences);
        m_targets.review->SetSitting(preferences.reviewsPerSitting, preferences.reviewWritingOnly);
    }
    if (m_targets.words)
        m_targets.words->SetCoaching(preferences);
    if (m_targets.sheetAction)
        m_targets.sheetAction->setVisible(preferences.practiceSheets);
    if (m_targets.category)
        m_targets.category->SetPracticeSheets(preferences.practiceSheets);
    LearnerSession* session = m_targets.session;
    if (!session)
        return;
    WordContext context = Words();
    if (m_targets.review) {
        m_targets.review->SetWords(context);
        m_targets.review->SetOtherOrders(preferences.otherOrders);
    }
    if (m_targets.words) {
        m_targets.words->SetWords(context);
        m_targets.words->SetOtherOrders(preferences.otherOrders);
    }
    if (m_targets.category) {
        m_targets.category->SetWords(std::move(context));
        m_targets.category->SetOtherOrders(preferences.otherOrders);
        WordsTestPage* words = m_targets.words;
        if (words && preferences.wordsTest)
            m_targets.category->SetWordsTest([words](std::uint16_t id) { return !words->Eligible(id).empty(); });
        else
            m_targets.category->SetWordsTest(nullptr);
    }
    LexiconAccess* wordAid = preferences.wordAfterAnswer ? &session->Lexicon() : nullptr;
    if (m_targets.test)
        m_targets.test->ReadingPage()->SetWordAid(wordAid);
    if (m_targets.review)
        m_targets.review->SetWordAid(wordAid);
    // The reviews follow the new schedule at once.
    session->SetReviewRules({preferences.reviewWhenDue, preferences.retention, preferences.maximumInterval});
}
