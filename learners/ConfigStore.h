#pragma once

#include "ReviewSchedule.h"
#include "User.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// Why the learning history could not be kept in its database.
struct HistoryProblem {
    std::string reason; ///< what went wrong, as the database says it; empty: nothing did
    std::string keptAs; ///< where a damaged file was put aside, when it was
};

/// The store of learners and their progress. Failures throw ZavorenCommon::ConfigException.
class ConfigStore {
public:
    virtual ~ConfigStore() = default;
    /// The learner's record, or null when the name is empty or not found. Makes that learner
    /// the current one.
    virtual std::unique_ptr<User> LoadUser(const std::string& name) = 0;
    /// Adds a learner and saves; false when the name is empty or taken.
    virtual bool AddUser(const std::string& name) = 0;
    /// Removes a learner and saves; false when no learner of that name exists.
    virtual bool DeleteUser(const std::string& name) = 0;
    /// Writes the learner's whole record afresh (one Progress per category) and saves.
    virtual bool SaveUser(User& user) = 0;
    /// Number of learners known since the store was opened.
    virtual std::uint16_t UserCount() const = 0;
    /// Learner name by index; throws std::out_of_range "invalid vector<T> subscript" past the end.
    virtual const std::string& UserName(std::uint16_t index) const = 0;
    /// The current learner's name; empty when there is none.
    virtual const std::string& CurrentUserName() const = 0;

    /// Keeps the events of one action of `learner` (a lesson's characters, a test's results):
    /// in the history database, all or none, durably once this returns; where there is none,
    /// with the learner's record (written with the next save).
    virtual void Record(User& learner, const std::vector<LearnerEvent>& events) = 0;
    /// The learner's whole history, oldest first.
    virtual std::vector<LearnerEvent> History(const User& learner) = 0;
    /// Writes an imported learner's record and makes the history it carries their whole
    /// history; as SaveUser otherwise.
    virtual bool ImportUser(User& user) = 0;
    /// Opens the history database if it is not open yet, and starts checking it whole in the
    /// background (a failure it finds is told by TakeHistoryProblem once it is over).
    virtual void OpenHistory() = 0;
    /// Whether the check OpenHistory started is still running.
    virtual bool HistoryBeingChecked() = 0;
    /// Each character's memory as the learner's whole history leaves it.
    virtual LearnerMemories Memories(const User& learner) = 0;
    /// Why the history is no longer kept in its database, once: the failure not yet told, or
    /// an empty reason.
    virtual HistoryProblem TakeHistoryProblem() = 0;

    /// Whether a learner of exactly this name is in the store.
    bool HasUser(const std::string& name) const
    {
        for (std::uint16_t i = 0; i < UserCount(); ++i)
            if (UserName(i) == name)
                return true;
        return false;
    }
};

/// The process's store, opened on first use from "config.xml" in the current folder, with the
/// history in "history.db" beside it. A failed open throws ConfigException and leaves it unset,
/// so the next call tries again.
ConfigStore& GetConfigStore();

/// Releases the character database first, then the learner store (at exit).
void ReleaseDataStores();
