#pragma once

#include "LearnerEvent.h"

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

/// The learners' history in an SQLite database of its own (history.db beside config.xml): one
/// table of events with the indexes the progress window and the reviews read by, a schema
/// version (PRAGMA user_version) with migrations, and one transaction for all the events of one
/// learner action. Written ahead (WAL) and synced at every commit (synchronous FULL): once a
/// commit has returned, its events survive a crash or a power cut; a second program holding the
/// file is waited for (busy timeout). Failures are returned, never thrown: the caller tells the
/// learner and goes on without the history.
class HistoryStore {
public:
    /// The schema this program writes; a file of a newer one is not opened.
    static constexpr int SchemaVersion = 1;
    /// How long a write waits for another program holding the file, milliseconds.
    static constexpr int BusyTimeoutMs = 2000;

    /// Opens the database at `path`, creating it when missing. A file that is damaged or not a
    /// database is renamed aside with the date (`path.damaged-YYYYMMDD-HHMMSS`), never
    /// overwritten or deleted. Null with the reason in `error` when it cannot be used.
    static std::unique_ptr<HistoryStore> Open(const std::string& path, std::string& error);
    ~HistoryStore();

    /// Adds the events of one action of `learner`, all or none; false with the reason.
    bool Record(const std::string& learner, const std::vector<LearnerEvent>& events, std::string& error);
    /// The learner's events, in the order they were recorded; false with the reason.
    bool Events(const std::string& learner, std::vector<LearnerEvent>& events, std::string& error) const;
    /// Removes every event of `learner` (a learner deleted); false with the reason.
    bool Forget(const std::string& learner, std::string& error);

private:
    explicit HistoryStore(sqlite3* db);
    bool Execute(const char* sql, std::string& error) const;

    sqlite3* m_db;
};
