#pragma once

#include "ConfigStore.h"
#include "HistoryStore.h"
#include "LearningHistory.h"

#include <future>
#include <memory>
#include <string>
#include <utility>

/// The learning history in its own database (history.db beside config.xml), opened when first
/// needed. When it cannot be kept (it cannot be created, is damaged, locked, or a write fails)
/// the reason is told once and the history is kept with the learners' records in config.xml for
/// the rest of the session; the next session brings it over. Without a path, the history is
/// kept in config.xml from the start.
class HistoryDatabase : public LearningHistory {
public:
    /// The database at `path` (empty: none, the history stays with the learners' records).
    explicit HistoryDatabase(std::string path);
    /// Waits for the background check, then keeps the current learner's memories beside the
    /// database (MemoryCache) for the next start.
    ~HistoryDatabase() override;

    /// Brings the histories that `store`'s file holds over into the database (dropped from the
    /// file once committed) and forgets the history of each learner `store` deletes or adds.
    /// The store must outlive this history.
    void Attach(ConfigStore& store);

    void Record(User& learner, const std::vector<LearnerEvent>& events) override;
    std::vector<LearnerEvent> Events(const User& learner) override;
    void Replace(User& learner) override;
    void Forget(const std::string& learner) override;
    LearnerMemories Memories(const User& learner) override;
    void OpenAndCheck(RunOnOwner runOnOwner) override;
    void SetProblemListener(ProblemListener listener) override;

    /// Waits for the background check if one runs, and tells what it found.
    void FinishCheck();

private:
    /// The database when it is open and kept; opened on first call, and checked whole first
    /// unless `checked` is false.
    HistoryStore* Histories(bool checked = true);
    /// The database failed: from now on the history stays in config.xml; tells why once. A
    /// `damaged` file (or one its connection found damaged) is put aside.
    void Failed(const std::string& reason, bool damaged = false, const std::string& keptAs = {});

    std::string m_path;
    ConfigStore* m_store = nullptr; ///< the store attached, whose current learner is kept at close
    enum class State { NotOpened, Open, InConfig } m_state = State::NotOpened;
    std::unique_ptr<HistoryStore> m_histories;
    bool m_checked = false;
    /// The full check, on a connection and a thread of its own.
    struct CheckOutcome {
        bool ok = false;
        bool damaged = false;
        std::string error;
    };
    std::future<CheckOutcome> m_checking;
    /// Alive while this object is: a task posted by the check's thread does nothing after.
    std::shared_ptr<int> m_alive = std::make_shared<int>(0);
    /// The memories last read for a learner, kept for when the database is given up and for
    /// the next start.
    std::pair<std::string, LearnerMemories> m_lastRead;
    ProblemListener m_listener;
    HistoryProblem m_untold; ///< a problem that happened while nobody listened
};
