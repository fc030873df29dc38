#pragma once

#include "CoachingPreferences.h"
#include "LexiconAccess.h"
#include "ProgramSettings.h"

class CategoryPage;
class LearnerSession;
class LessonPage;
class QAction;
class ReviewPage;
class WordsTestPage;
class TestContainer;
class QWidget;

/// What the aids change: the writing pages' coaching, the words of Kanji Info and the reading
/// test, and the session's reviews.
struct PreferenceTargets {
    LessonPage* lesson = nullptr;
    TestContainer* test = nullptr;
    CategoryPage* category = nullptr;
    LearnerSession* session = nullptr;
    ReviewPage* review = nullptr;
    WordsTestPage* words = nullptr;
    QAction* sheetAction = nullptr; ///< File > Print practice sheet…
};

/// The aids as chosen in Tools > Preferences…, kept in the settings file and applied to the
/// pages and the session.
class PreferencesEditor {
public:
    /// Reads the stored aids and applies them at once.
    explicit PreferencesEditor(PreferenceTargets targets);

    const CoachingPreferences& Current() const { return m_current; }
    /// What Kanji Info shows of words and parts under the current aids: the session's lexicon
    /// and the open learner's characters, or nothing with the aid off.
    WordContext Words() const;
    /// Tools > Preferences…: the dialog over `parent`; what is chosen is stored and applied.
    /// False when it was cancelled.
    bool Edit(QWidget* parent);
    /// Applies `preferences` to the targets.
    void Apply(const CoachingPreferences& preferences);

private:
    PreferenceTargets m_targets;
    ProgramSettings m_settings;
    CoachingPreferences m_current;
};
