#pragma once

#include "User.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// One learner's history as a learner file kept it.
struct KeptHistory {
    std::string learner;
    std::vector<LearnerEvent> events;
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

    /// The histories that the learners' records in the file hold (the history kept with the
    /// learners, by this program without its database or by an older one).
    virtual std::vector<KeptHistory> KeptHistories() const = 0;
    /// Removes those histories from the records; the file loses them with the next save.
    virtual void DropKeptHistories() = 0;
    /// Who is told the name of a learner deleted or added: the history under that name is no
    /// longer anybody's.
    virtual void SetNameFreed(std::function<void(const std::string& name)> listener) = 0;

    /// The learner to open at start: the current one, else the only one; empty for none.
    std::string StartUserName() const
    {
        if (CurrentUserName().empty() && UserCount() == 1)
            return UserName(0);
        return CurrentUserName();
    }
    /// Whether a learner of exactly this name is in the store.
    bool HasUser(const std::string& name) const
    {
        for (std::uint16_t i = 0; i < UserCount(); ++i)
            if (UserName(i) == name)
                return true;
        return false;
    }
};

/// The process's store, opened on first use from "config.xml" in the current folder. A failed
/// open throws ConfigException and leaves it unset, so the next call tries again.
ConfigStore& GetConfigStore();

class LearningHistory;
/// The process's learning history, in "history.db" beside config.xml, made on first use after
/// the store (GetConfigStore, which may throw) and bringing over what the file held.
LearningHistory& GetLearningHistory();

/// Releases the character database first, then the history and the learner store (at exit).
void ReleaseDataStores();
