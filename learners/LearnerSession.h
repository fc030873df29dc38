#pragma once

#include "LearnerEvent.h"
#include "LearningHistory.h"
#include "ReviewSchedule.h"
#include "User.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

class CharacterDatabase;
class ConfigStore;
class LexiconAccess;

/// How the reviews are scheduled: whether at all, and the memory model's two settings.
struct ReviewRules {
    bool on = true;
    double retention = 0.90;
    int maximumInterval = 365;
};

/// The learner who is open and what belongs to them: their record in the store, their history
/// and the memories it leaves, the review schedule under the current rules, the words and parts
/// of the lexicon, the clock that dates what they do. Pages and windows are given the session
/// and listen to it: it tells when another learner opens and when the open learner's progress
/// or memories change. A problem of the history is told once, through historyProblem, when it
/// happens.
class LearnerSession : public QObject {
    Q_OBJECT
public:
    /// Learners live in `store`, their history in `history`; events are dated by `clock`; words
    /// come from the lexicon at `lexiconPath`, made for `database` and read when first needed.
    LearnerSession(CharacterDatabase& database, ConfigStore& store, LearningHistory& history, EventClock clock,
        const std::string& lexiconPath = "lexicon", QObject* parent = nullptr);
    ~LearnerSession() override;

    /// The learner who is open, or null.
    User* Learner() const { return m_learner.get(); }
    /// Makes `learner` the open learner (none: nobody) and tells the listeners; the one open
    /// before is handed back, unsaved. A character the database now teaches in another
    /// category than the record has it under takes its progress there (FollowMovedCharacters).
    std::unique_ptr<User> Open(std::unique_ptr<User> learner);
    /// Writes the open learner's record to the store (only while they are the store's current
    /// learner when `onlyWhileCurrent`); throws ConfigException when the store fails.
    void SaveLearner(bool onlyWhileCurrent = false);
    /// The open learner's name; empty for none.
    std::string LearnerName() const;

    ConfigStore& Store() { return m_store; }
    LearningHistory& History() { return m_history; }
    CharacterDatabase& Database() { return m_database; }

    /// The time events are dated with, and today's day number.
    std::string Now() const;
    int Today() const;
    EventClock Clock() const { return m_clock; }

    /// Keeps the events of one action of `learner` in the history and tells the listeners that
    /// their progress changed.
    void Record(User& learner, const std::vector<LearnerEvent>& events);
    /// The open learner's whole history (none without a learner).
    std::vector<LearnerEvent> Events();
    /// Tells the listeners that the open learner's record changed outside Record.
    void ProgressChanged() { emit progressChanged(); }

    /// The rules the reviews follow; new ones reschedule at once.
    void SetReviewRules(const ReviewRules& rules);
    const ReviewRules& Rules() const { return m_rules; }
    /// What is due for review today for the open learner; none without one or with the reviews
    /// off.
    std::optional<ReviewSchedule> Reviews();

    /// The words and parts (opened on first use).
    LexiconAccess& Lexicon() { return *m_lexicon; }
    /// Whether the open learner has learned the character, in any category.
    bool HasLearned(std::uint16_t id) const;

    /// Opens the history once the first page is up and has it checked in the background.
    void OpenHistory();

signals:
    /// Another learner is open (or none).
    void learnerChanged();
    /// The open learner's progress or memories changed (an action recorded, an import), or the
    /// review rules did: counts and due dates are to be read again.
    void progressChanged();
    /// The history could not be kept: why, and where a damaged file was put aside (or empty).
    void historyProblem(const QString& reason, const QString& keptAs);

protected:
    void connectNotify(const QMetaMethod& signal) override;

private:
    CharacterDatabase& m_database;
    ConfigStore& m_store;
    LearningHistory& m_history;
    EventClock m_clock;
    std::unique_ptr<User> m_learner;
    ReviewRules m_rules;
    std::unique_ptr<LexiconAccess> m_lexicon;
};
