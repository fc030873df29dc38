#pragma once

#include "LearnerEvent.h"
#include "ProgressModule.h"

#include <QCoreApplication>
#include <QPointer>

#include <vector>

class CharacterDatabase;
class LearnerSession;
class LexiconAccess;
class Prompt;
class User;
class QWidget;

/// Tools > Progress…: at most one progress window, showing the learner it was opened for. The
/// window comes from the progress module (loaded on first use); when it cannot be opened, the
/// learner is told why.
class ProgressViewer {
    Q_DECLARE_TR_FUNCTIONS(ProgressViewer)
public:
    /// Windows come from `source`; "today" is `clock`'s time.
    ProgressViewer(CharacterDatabase& database, Prompt& prompt, EventClock clock, ProgressViewSource source);

    /// Opens the window on `learner`, their whole `history` and their `reviews` (none with the
    /// aid off) over `parent`, closing the one open (no learner: nothing opens). Its Kanji Info
    /// shows words and parts from `words` (null: none).
    void Open(const User* learner, std::vector<LearnerEvent> history, std::optional<ReviewSchedule> reviews,
        LexiconAccess* words, QWidget* parent);
    /// Tools > Progress…: opens the window on the learner open in `session` (with words and
    /// parts from its lexicon when `withWords`).
    void Open(LearnerSession& session, bool withWords, QWidget* parent);
    /// Closes the window open, if any.
    void Close();

private:
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    EventClock m_clock;
    ProgressViewSource m_source;
    QPointer<QWidget> m_window;
};
