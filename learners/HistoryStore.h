#pragma once

#include "LearnerEvent.h"
#include "ReviewSchedule.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

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
    static constexpr int SchemaVersion = 3;
    /// How long a write waits for another program holding the file, milliseconds.
    static constexpr int BusyTimeoutMs = 2000;

    /// Opens the database at `path`, creating it when missing, without looking over every page
    /// (Check does). A file that is damaged or not a database is renamed aside with the date (`path.damaged-YYYYMMDD-HHMMSS`), never
    /// overwritten or deleted, and its new name given in `keptAs`. Null with the reason in
    /// `error` when it cannot be used.
    static std::unique_ptr<HistoryStore> Open(
        const std::string& path, std::string& error, std::string* keptAs = nullptr);
    ~HistoryStore();

    /// Adds the events of one action of `learner`, all or none; false with the reason.
    bool Record(const std::string& learner, const std::vector<LearnerEvent>& events, std::string& error);
    /// The learner's events, in the order they were recorded; false with the reason.
    bool Events(const std::string& learner, std::vector<LearnerEvent>& events, std::string& error) const;
    /// Replaces the learner's whole history by `events` (an imported learner), all or none.
    bool Replace(const std::string& learner, const std::vector<LearnerEvent>& events, std::string& error);
    /// Removes every event of `learner` (a learner deleted); false with the reason.
    bool Forget(const std::string& learner, std::string& error);

    /// One learner's history as another file kept it.
    struct Kept {
        std::string learner;
        std::vector<LearnerEvent> events;
    };
    /// Brings over histories that config.xml kept, all in one transaction. A history brought
    /// over before (the same events of the same learner) is not added again, so a program
    /// stopped before config.xml was saved without them brings them over again harmlessly.
    bool BringOver(const std::vector<Kept>& histories, std::string& error);
    /// What identifies a kept history: the number of its events and a hash of all their fields.
    static std::string Fingerprint(const std::vector<LearnerEvent>& events);

    /// One character's events summed up, as the table kept beside the events holds it.
    struct CharacterSummary {
        std::uint16_t categoryId = 0;
        std::uint16_t id = 0;
        std::string lastAt; ///< the time of its last event
        std::string lastKind; ///< the kind of its last event
        int tests = 0; ///< tests taken (passed or failed)
        int mistakes = 0; ///< questions answered with mistakes over those tests
        int failures = 0; ///< tests failed
    };
    /// The learner's characters that have events, by category and id: one indexed read, not a
    /// pass over the events.
    bool Characters(const std::string& learner, std::vector<CharacterSummary>& characters, std::string& error) const;

    /// Each character's memory as the learner's events leave it, and the day of their first
    /// event: read from the table kept beside the events, or worked out afresh from them when
    /// they moved on without it (and kept so when the file can be written).
    bool Memories(const std::string& learner, LearnerMemories& memories, std::string& error);

    /// Runs SQLite's full check of the file; false with the first fault found (the file is
    /// then damaged).
    bool Check(std::string& error);

    /// Whether the last failure said the file is damaged or is no database.
    bool LastFailureWasDamage() const;
    /// Renames a damaged file at `path` aside with the date and time, with its journal; the
    /// new name, or empty when it could not be renamed.
    static std::string PutAside(const std::string& path);

private:
    explicit HistoryStore(sqlite3* db);
    bool Execute(const char* sql, std::string& error) const;
    /// Runs `body` between BEGIN IMMEDIATE and COMMIT; rolled back when it or the commit fails.
    bool InTransaction(const std::function<bool()>& body, std::string& error);
    bool Insert(const std::string& learner, const std::vector<LearnerEvent>& events);
    /// Runs `sql`, whose one parameter is the learner, handing each row to `row`.
    bool SelectLearner(const char* sql, const std::string& learner, const std::function<void(sqlite3_stmt*)>& row,
        std::string& error) const;
    bool Delete(const std::string& learner);
    /// The id of the learner's last event (0 for none), -1 when it cannot be read.
    long long LastEvent(const std::string& learner) const;
    /// The last event the kept memories follow, -1 for none.
    long long MemoriesThrough(const std::string& learner) const;
    /// Moves the kept memories on by the events just added.
    bool UpdateMemories(const std::string& learner, const std::vector<LearnerEvent>& events);
    /// Writes one character's memory, or removes it for none.
    bool WriteMemory(const std::string& learner, std::pair<std::uint16_t, std::uint16_t> key,
        const CharacterMemory* memory);
    bool SetMemoriesThrough(const std::string& learner, long long lastEvent);

    sqlite3* m_db;
    bool m_damaged = false; ///< the check found the file damaged
    mutable std::string m_ignored; ///< the reason of a failure that the caller reads otherwise
};
