#include "PreferencesEditor.h"

#include "CategoryPage.h"
#include "DrawingTestPage.h"
#include "LearnerSession.h"
#include "LessonPage.h"
#include "LexiconAccess.h"
#include "PreferencesDialog.h"
#include "ReadingTestPage.h"
#include "TestContainer.h"

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

void PreferencesEditor::Apply(const CoachingPreferences& preferences)
{
    m_current = preferences;
    // The coaching aids decide whether the feedback line is there.
    if (m_targets.lesson)
        m_targets.lesson->SetCoaching(preferences);
    if (m_targets.test)
        m_targets.test->DrawingPage()->SetCoaching(preferences);
    LearnerSession* session = m_targets.session;
    if (!session)
        return;
    if (m_targets.category) {
        WordContext context;
        if (preferences.wordsAndParts) {
            context.lexicon = &session->Lexicon();
            // Read when Kanji Info opens, so it follows the learner open then.
            context.learned = [session](std::uint16_t id) { return session->HasLearned(id); };
        }
        m_targets.category->SetWords(std::move(context));
        m_targets.category->SetOtherOrders(preferences.otherOrders);
    }
    if (m_targets.test)
        m_targets.test->ReadingPage()->SetWordAid(preferences.wordAfterAnswer ? &session->Lexicon() : nullptr);
    // The reviews follow the new schedule at once.
    session->SetReviewRules({preferences.reviewWhenDue, preferences.retention, preferences.maximumInterval});
}
