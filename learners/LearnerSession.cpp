#include "LearnerSession.h"

#include "ConfigStore.h"
#include "LexiconAccess.h"
#include "MemoryModel.h"
#include "MovedCharacters.h"

#include <QCoreApplication>
#include <QMetaMethod>

LearnerSession::LearnerSession(CharacterDatabase& database, ConfigStore& store, LearningHistory& history,
    EventClock clock, const std::string& lexiconPath, QObject* parent)
    : QObject(parent), m_database(database), m_store(store), m_history(history), m_clock(std::move(clock)),
      m_lexicon(std::make_unique<LexiconAccess>(lexiconPath, database))
{
}

void LearnerSession::connectNotify(const QMetaMethod& signal)
{
    // Problems are listened to once someone is there to tell: one that happened before (while
    // the history was brought over at start, say) is told now.
    if (signal == QMetaMethod::fromSignal(&LearnerSession::historyProblem))
        m_history.SetProblemListener([this](const HistoryProblem& problem) {
            emit historyProblem(QString::fromStdString(problem.reason), QString::fromStdString(problem.keptAs));
        });
}

LearnerSession::~LearnerSession()
{
    m_history.SetProblemListener({});
}

std::unique_ptr<User> LearnerSession::Open(std::unique_ptr<User> learner)
{
    // Characters that this database teaches in another category than the learner's record has
    // them under (a newer KANJIDIC2) take their progress along, written so with the next save.
    if (learner)
        FollowMovedCharacters(*learner, m_database);
    std::unique_ptr<User> previous = std::exchange(m_learner, std::move(learner));
    emit learnerChanged();
    return previous;
}

void LearnerSession::SaveLearner(bool onlyWhileCurrent)
{
    if (!m_learner || (onlyWhileCurrent && (!m_learner->Name() || m_store.CurrentUserName() != m_learner->Name())))
        return;
    m_store.SaveUser(*m_learner);
}

std::string LearnerSession::LearnerName() const
{
    return m_learner && m_learner->Name() ? m_learner->Name() : "";
}

std::string LearnerSession::Now() const
{
    return m_clock ? m_clock() : LocalTimeNow();
}

int LearnerSession::Today() const
{
    return EventDay(Now());
}

void LearnerSession::Record(User& learner, const std::vector<LearnerEvent>& events)
{
    m_history.Record(learner, events);
    emit progressChanged();
}

std::vector<LearnerEvent> LearnerSession::Events()
{
    return m_learner ? m_history.Events(*m_learner) : std::vector<LearnerEvent>{};
}

void LearnerSession::SetReviewRules(const ReviewRules& rules)
{
    const bool changed = rules.on != m_rules.on || rules.retention != m_rules.retention
        || rules.maximumInterval != m_rules.maximumInterval;
    m_rules = rules;
    if (changed)
        emit progressChanged();
}

std::optional<ReviewSchedule> LearnerSession::Reviews()
{
    if (!m_learner || !m_rules.on)
        return std::nullopt;
    return ReviewSchedule(
        *m_learner, m_history.Memories(*m_learner), MemoryModel(m_rules.retention, m_rules.maximumInterval), Today());
}

bool LearnerSession::HasLearned(std::uint16_t id) const
{
    return m_learner && ::HasLearned(*m_learner, id);
}

void LearnerSession::OpenHistory()
{
    // The check's thread posts its end to the application, which outlives every history; the
    // history itself ignores a post that arrives after it is gone.
    m_history.OpenAndCheck([](std::function<void()> task) {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(task), Qt::QueuedConnection);
    });
}
