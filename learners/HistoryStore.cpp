#include "HistoryStore.h"

#include "SqliteLibrary.h"

#include <cstdio>
#include <ctime>
#include <filesystem>

namespace {

/// The schema, version by version: migration N takes a file of version N - 1 to version N.
const char* const Migrations[] = {
    // 1: the events, by learner in the order recorded, and by learner and character.
    "CREATE TABLE events ("
    " id INTEGER PRIMARY KEY,"
    " learner TEXT NOT NULL,"
    " at TEXT NOT NULL,"
    " kind TEXT NOT NULL,"
    " category INTEGER NOT NULL,"
    " character INTEGER NOT NULL,"
    " mistakes INTEGER NOT NULL DEFAULT -1);"
    "CREATE INDEX events_by_learner ON events (learner, id);"
    "CREATE INDEX events_by_character ON events (learner, category, character, id);",
    // 2: what was brought over from config.xml (so bringing it again adds nothing), and one row
    // per learner and character summing up its events, kept up to date by a trigger in the
    // transaction that adds them: what is due or troubled is read from it without going over
    // every event.
    "CREATE TABLE imported ("
    " learner TEXT NOT NULL,"
    " fingerprint TEXT NOT NULL,"
    " PRIMARY KEY (learner, fingerprint)) WITHOUT ROWID;"
    "CREATE TABLE characters ("
    " learner TEXT NOT NULL,"
    " category INTEGER NOT NULL,"
    " character INTEGER NOT NULL,"
    " last_event INTEGER NOT NULL,"
    " last_at TEXT NOT NULL,"
    " last_kind TEXT NOT NULL,"
    " tests INTEGER NOT NULL,"
    " mistakes INTEGER NOT NULL,"
    " failures INTEGER NOT NULL,"
    " PRIMARY KEY (learner, category, character)) WITHOUT ROWID;"
    "CREATE TRIGGER characters_follow_events AFTER INSERT ON events BEGIN"
    " INSERT INTO characters VALUES (new.learner, new.category, new.character, new.id, new.at, new.kind,"
    "  new.kind IN ('passed', 'failed'), CASE WHEN new.kind IN ('passed', 'failed') THEN max(new.mistakes, 0) ELSE 0 "
    "END,"
    "  new.kind = 'failed')"
    " ON CONFLICT (learner, category, character) DO UPDATE SET"
    "  last_event = excluded.last_event, last_at = excluded.last_at, last_kind = excluded.last_kind,"
    "  tests = tests + excluded.tests, mistakes = mistakes + excluded.mistakes, failures = failures + "
    "excluded.failures;"
    " END;"
    "INSERT INTO characters SELECT learner, category, character, max(id), '', '',"
    " sum(kind IN ('passed', 'failed')), sum(CASE WHEN kind IN ('passed', 'failed') THEN max(mistakes, 0) ELSE 0 END),"
    " sum(kind = 'failed') FROM events GROUP BY learner, category, character;"
    "UPDATE characters SET (last_at, last_kind) = (SELECT at, kind FROM events WHERE id = last_event);",
    // 3: each character's memory (MemoryLedger) as the events up to last_event of
    // memories_through leave it, so that what is due is read without going over the events;
    // worked out afresh from the events when they have moved on without it.
    "CREATE TABLE memories ("
    " learner TEXT NOT NULL,"
    " category INTEGER NOT NULL,"
    " character INTEGER NOT NULL,"
    " stability REAL NOT NULL,"
    " difficulty REAL NOT NULL,"
    " last_day INTEGER NOT NULL,"
    " PRIMARY KEY (learner, category, character)) WITHOUT ROWID;"
    "CREATE TABLE memories_through ("
    " learner TEXT PRIMARY KEY,"
    " last_event INTEGER NOT NULL) WITHOUT ROWID;",
};
static_assert(std::size(Migrations) == HistoryStore::SchemaVersion);

std::string Reason(sqlite3* db)
{
    return db ? Sqlite().errmsg(db) : "out of memory";
}

/// A statement that is finalised when it goes.
class Statement {
public:
    Statement(sqlite3* db, const char* sql)
    {
        m_ok = Sqlite().prepare_v2(db, sql, -1, &m_statement, nullptr) == SQLITE_OK;
    }
    ~Statement() { Sqlite().finalize(m_statement); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    bool Ok() const { return m_ok; }
    sqlite3_stmt* Get() const { return m_statement; }

private:
    sqlite3_stmt* m_statement = nullptr;
    bool m_ok = false;
};

/// A text column of the row, empty when it is null.
std::string Text(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(Sqlite().column_text(statement, column));
    return text ? text : "";
}

/// Whether a failure says the file is damaged or no database at all.
bool IsDamage(int code)
{
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

/// `path` renamed aside with the date and time; the new name, or empty when it could not be.
std::string RenameAside(const std::string& path)
{
    char stamp[32];
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::strftime(stamp, sizeof stamp, "%Y%m%d-%H%M%S", &local);
    const std::string aside = path + ".damaged-" + stamp;
    std::error_code failed;
    if (std::filesystem::exists(aside, failed))
        return {};
    std::filesystem::rename(path, aside, failed);
    if (failed)
        return {};
    // The journal and shared-memory files belong to the damaged file: they go with it.
    for (const char* suffix : {"-wal", "-shm"})
        if (std::filesystem::exists(path + suffix, failed))
            std::filesystem::rename(path + suffix, aside + suffix, failed);
    return aside;
}

/// Opens and checks the file; the SQLite result code of the first failure, SQLITE_OK when it
/// is ready at the current schema.
int OpenChecked(const std::string& path, sqlite3*& db, std::string& error)
{
    int code = Sqlite().open_v2(
        path.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK) {
        error = Reason(db);
        return code;
    }
    Sqlite().extended_result_codes(db, 1);
    Sqlite().busy_timeout(db, HistoryStore::BusyTimeoutMs);
    auto run = [&](const char* sql) {
        char* message = nullptr;
        const int result = Sqlite().exec(db, sql, nullptr, nullptr, &message);
        if (result != SQLITE_OK)
            error = message ? message : Reason(db);
        Sqlite().free(message);
        return result;
    };
    // Reading the schema version reads the file's header: a file that is not a database says
    // so here.
    int version = 0;
    {
        Statement read(db, "PRAGMA user_version");
        if (!read.Ok()) {
            error = Reason(db);
            return Sqlite().extended_errcode(db);
        }
        code = Sqlite().step(read.Get());
        if (code != SQLITE_ROW) {
            error = Reason(db);
            return code;
        }
        version = Sqlite().column_int(read.Get(), 0);
    }
    if (version > HistoryStore::SchemaVersion) {
        error = "it was written by a newer Zavoren! (schema " + std::to_string(version) + ")";
        return SQLITE_CANTOPEN;
    }
    // A small page cache: each action writes a few rows, and the history is read from start to
    // end; the file's pages stay in the system's cache anyway.
    if ((code = run("PRAGMA journal_mode = WAL")) != SQLITE_OK || (code = run("PRAGMA synchronous = FULL")) != SQLITE_OK
        || (code = run("PRAGMA cache_size = -512")) != SQLITE_OK)
        return code;
    for (int v = version; v < HistoryStore::SchemaVersion; ++v) {
        const std::string migration = std::string("BEGIN IMMEDIATE;") + Migrations[v]
            + "PRAGMA user_version = " + std::to_string(v + 1) + ";COMMIT;";
        if ((code = run(migration.c_str())) != SQLITE_OK) {
            run("ROLLBACK");
            return code;
        }
    }
    return SQLITE_OK;
}

} // namespace

HistoryStore::HistoryStore(sqlite3* db) : m_db(db) { }

HistoryStore::~HistoryStore()
{
    Sqlite().close(m_db);
}

std::unique_ptr<HistoryStore> HistoryStore::Open(const std::string& path, std::string& error, std::string* keptAs)
{
    // SQLite is loaded now, the first time a history is opened.
    if (!LoadSqlite(error))
        return nullptr;
    sqlite3* db = nullptr;
    const int code = OpenChecked(path, db, error);
    if (code == SQLITE_OK)
        return std::unique_ptr<HistoryStore>(new HistoryStore(db));
    Sqlite().close(db);
    if (IsDamage(code)) {
        const std::string aside = RenameAside(path);
        if (aside.empty())
            error += " (the damaged file could not be put aside)";
        if (keptAs)
            *keptAs = aside;
    }
    return nullptr;
}

bool HistoryStore::Execute(const char* sql, std::string& error) const
{
    char* message = nullptr;
    const bool ok = Sqlite().exec(m_db, sql, nullptr, nullptr, &message) == SQLITE_OK;
    if (!ok)
        error = message ? message : Reason(m_db);
    Sqlite().free(message);
    return ok;
}

bool HistoryStore::InTransaction(const std::function<bool()>& body, std::string& error)
{
    if (!Execute("BEGIN IMMEDIATE", error))
        return false;
    if (body() && Execute("COMMIT", error))
        return true;
    if (error.empty())
        error = Reason(m_db);
    std::string ignored;
    Execute("ROLLBACK", ignored);
    return false;
}

bool HistoryStore::Insert(const std::string& learner, const std::vector<LearnerEvent>& events)
{
    Statement insert(
        m_db, "INSERT INTO events (learner, at, kind, category, character, mistakes) VALUES (?, ?, ?, ?, ?, ?)");
    bool ok = insert.Ok();
    for (std::size_t i = 0; ok && i < events.size(); ++i) {
        const LearnerEvent& e = events[i];
        sqlite3_stmt* s = insert.Get();
        ok = Sqlite().bind_text(s, 1, learner.c_str(), -1, SQLITE_STATIC) == SQLITE_OK
            && Sqlite().bind_text(s, 2, e.at.c_str(), -1, SQLITE_STATIC) == SQLITE_OK
            && Sqlite().bind_text(s, 3, e.kind.c_str(), -1, SQLITE_STATIC) == SQLITE_OK
            && Sqlite().bind_int(s, 4, e.categoryId) == SQLITE_OK && Sqlite().bind_int(s, 5, e.id) == SQLITE_OK
            && Sqlite().bind_int(s, 6, e.mistakes) == SQLITE_OK && Sqlite().step(s) == SQLITE_DONE;
        Sqlite().reset(s);
    }
    return ok;
}

bool HistoryStore::Delete(const std::string& learner)
{
    for (const char* sql : {"DELETE FROM events WHERE learner = ?", "DELETE FROM characters WHERE learner = ?",
             "DELETE FROM imported WHERE learner = ?", "DELETE FROM memories WHERE learner = ?",
             "DELETE FROM memories_through WHERE learner = ?"}) {
        Statement remove(m_db, sql);
        if (!remove.Ok() || Sqlite().bind_text(remove.Get(), 1, learner.c_str(), -1, SQLITE_STATIC) != SQLITE_OK
            || Sqlite().step(remove.Get()) != SQLITE_DONE)
            return false;
    }
    return true;
}

bool HistoryStore::Record(const std::string& learner, const std::vector<LearnerEvent>& events, std::string& error)
{
    return InTransaction(
        [&] {
            // The kept memories move on with the events only when they followed them until now
            // (a learner without events has none to follow).
            const long long before = LastEvent(learner);
            const bool current = before == 0 || (before > 0 && MemoriesThrough(learner) == before);
            return Insert(learner, events) && (!current || UpdateMemories(learner, events));
        },
        error);
}

long long HistoryStore::LastEvent(const std::string& learner) const
{
    long long last = -1;
    SelectLearner(
        "SELECT coalesce(max(id), 0) FROM events WHERE learner = ?", learner,
        [&last](sqlite3_stmt* s) { last = Sqlite().column_int64(s, 0); }, m_ignored);
    return last;
}

long long HistoryStore::MemoriesThrough(const std::string& learner) const
{
    long long through = -1;
    SelectLearner(
        "SELECT last_event FROM memories_through WHERE learner = ?", learner,
        [&through](sqlite3_stmt* s) { through = Sqlite().column_int64(s, 0); }, m_ignored);
    return through;
}

bool HistoryStore::UpdateMemories(const std::string& learner, const std::vector<LearnerEvent>& events)
{
    // The memories of the characters these events grade, as they stand, then moved on by them.
    MemoryLedger ledger;
    std::vector<CharacterMemory> touched;
    Statement read(m_db,
        "SELECT stability, difficulty, last_day FROM memories WHERE learner = ? AND category = ? AND character = ?");
    if (!read.Ok())
        return false;
    for (const LearnerEvent& e : events) {
        sqlite3_stmt* s = read.Get();
        Sqlite().bind_text(s, 1, learner.c_str(), -1, SQLITE_STATIC);
        Sqlite().bind_int(s, 2, e.categoryId);
        Sqlite().bind_int(s, 3, e.id);
        if (Sqlite().step(s) == SQLITE_ROW)
            touched.push_back({e.categoryId, e.id, {Sqlite().column_double(s, 0), Sqlite().column_double(s, 1)},
                Sqlite().column_int(s, 2)});
        Sqlite().reset(s);
    }
    ledger.Load(touched);
    for (const LearnerEvent& e : events)
        ledger.Apply(e);
    for (const LearnerEvent& e : events)
        if (!WriteMemory(learner, {e.categoryId, e.id}, ledger.Find({e.categoryId, e.id})))
            return false;
    return SetMemoriesThrough(learner, LastEvent(learner));
}

bool HistoryStore::WriteMemory(
    const std::string& learner, std::pair<std::uint16_t, std::uint16_t> key, const CharacterMemory* memory)
{
    Statement write(m_db,
        memory ? "INSERT OR REPLACE INTO memories VALUES (?, ?, ?, ?, ?, ?)"
               : "DELETE FROM memories WHERE learner = ? AND category = ? AND character = ?");
    sqlite3_stmt* s = write.Get();
    if (!write.Ok() || Sqlite().bind_text(s, 1, learner.c_str(), -1, SQLITE_STATIC) != SQLITE_OK
        || Sqlite().bind_int(s, 2, key.first) != SQLITE_OK || Sqlite().bind_int(s, 3, key.second) != SQLITE_OK)
        return false;
    if (memory
        && (Sqlite().bind_double(s, 4, memory->memory.stability) != SQLITE_OK
            || Sqlite().bind_double(s, 5, memory->memory.difficulty) != SQLITE_OK
            || Sqlite().bind_int(s, 6, memory->lastDay) != SQLITE_OK))
        return false;
    return Sqlite().step(s) == SQLITE_DONE;
}

bool HistoryStore::SetMemoriesThrough(const std::string& learner, long long lastEvent)
{
    Statement write(m_db, "INSERT OR REPLACE INTO memories_through VALUES (?, ?)");
    return write.Ok() && Sqlite().bind_text(write.Get(), 1, learner.c_str(), -1, SQLITE_STATIC) == SQLITE_OK
        && Sqlite().bind_int64(write.Get(), 2, lastEvent) == SQLITE_OK && Sqlite().step(write.Get()) == SQLITE_DONE;
}

bool HistoryStore::Memories(const std::string& learner, LearnerMemories& memories, std::string& error)
{
    memories = {};
    const long long last = LastEvent(learner);
    if (last < 0) {
        error = Reason(m_db);
        return false;
    }
    if (last > 0)
        SelectLearner(
            "SELECT at FROM events WHERE learner = ? ORDER BY id LIMIT 1", learner,
            [&memories](sqlite3_stmt* s) { memories.firstDay = EventDay(Text(s, 0)); }, m_ignored);
    if (MemoriesThrough(learner) == last) {
        return SelectLearner(
            "SELECT category, character, stability, difficulty, last_day FROM memories WHERE learner = ?"
            " ORDER BY category, character",
            learner,
            [&memories](sqlite3_stmt* s) {
                memories.memories.push_back({static_cast<std::uint16_t>(Sqlite().column_int(s, 0)),
                    static_cast<std::uint16_t>(Sqlite().column_int(s, 1)),
                    {Sqlite().column_double(s, 2), Sqlite().column_double(s, 3)}, Sqlite().column_int(s, 4)});
            },
            error);
    }
    // The events moved on without the memories (brought over, imported, or written by another
    // program): worked out afresh, and kept when the file can be written.
    std::vector<LearnerEvent> events;
    if (!Events(learner, events, error))
        return false;
    const int firstDay = memories.firstDay;
    memories = MemoryLedger::Fold(events);
    memories.firstDay = firstDay;
    std::string ignored;
    InTransaction(
        [&] {
            Statement clear(m_db, "DELETE FROM memories WHERE learner = ?");
            if (!clear.Ok() || Sqlite().bind_text(clear.Get(), 1, learner.c_str(), -1, SQLITE_STATIC) != SQLITE_OK
                || Sqlite().step(clear.Get()) != SQLITE_DONE)
                return false;
            for (const CharacterMemory& c : memories.memories)
                if (!WriteMemory(learner, {c.categoryId, c.id}, &c))
                    return false;
            return SetMemoriesThrough(learner, last);
        },
        ignored);
    return true;
}

bool HistoryStore::Replace(const std::string& learner, const std::vector<LearnerEvent>& events, std::string& error)
{
    return InTransaction([&] { return Delete(learner) && Insert(learner, events); }, error);
}

bool HistoryStore::Forget(const std::string& learner, std::string& error)
{
    return InTransaction([&] { return Delete(learner); }, error);
}

std::string HistoryStore::Fingerprint(const std::vector<LearnerEvent>& events)
{
    // FNV-1a over every field of every event, each field ended by a separator no field holds.
    std::uint64_t hash = 0xcbf29ce484222325ull;
    auto add = [&hash](const std::string& text) {
        for (unsigned char c : text + '\x1f') {
            hash ^= c;
            hash *= 0x100000001b3ull;
        }
    };
    for (const LearnerEvent& e : events) {
        add(e.at);
        add(e.kind);
        add(std::to_string(e.categoryId));
        add(std::to_string(e.id));
        add(std::to_string(e.mistakes));
    }
    char text[40];
    std::snprintf(text, sizeof text, "%zu:%016llx", events.size(), static_cast<unsigned long long>(hash));
    return text;
}

bool HistoryStore::BringOver(const std::vector<Kept>& histories, std::string& error)
{
    return InTransaction(
        [&] {
            Statement mark(m_db, "INSERT OR IGNORE INTO imported (learner, fingerprint) VALUES (?, ?)");
            if (!mark.Ok())
                return false;
            for (const Kept& kept : histories) {
                const std::string fingerprint = Fingerprint(kept.events);
                sqlite3_stmt* s = mark.Get();
                if (Sqlite().bind_text(s, 1, kept.learner.c_str(), -1, SQLITE_STATIC) != SQLITE_OK
                    || Sqlite().bind_text(s, 2, fingerprint.c_str(), -1, SQLITE_STATIC) != SQLITE_OK
                    || Sqlite().step(s) != SQLITE_DONE)
                    return false;
                const bool broughtBefore = Sqlite().changes(m_db) == 0;
                Sqlite().reset(s);
                if (!broughtBefore && !Insert(kept.learner, kept.events))
                    return false;
            }
            return true;
        },
        error);
}

bool HistoryStore::SelectLearner(const char* sql, const std::string& learner,
    const std::function<void(sqlite3_stmt*)>& row, std::string& error) const
{
    Statement select(m_db, sql);
    if (!select.Ok() || Sqlite().bind_text(select.Get(), 1, learner.c_str(), -1, SQLITE_STATIC) != SQLITE_OK) {
        error = Reason(m_db);
        return false;
    }
    int code = SQLITE_ROW;
    while ((code = Sqlite().step(select.Get())) == SQLITE_ROW)
        row(select.Get());
    if (code != SQLITE_DONE) {
        error = Reason(m_db);
        return false;
    }
    return true;
}

bool HistoryStore::Events(const std::string& learner, std::vector<LearnerEvent>& events, std::string& error) const
{
    events.clear();
    return SelectLearner(
        "SELECT at, kind, category, character, mistakes FROM events WHERE learner = ? ORDER BY id", learner,
        [&events](sqlite3_stmt* s) {
            events.push_back({Text(s, 0), Text(s, 1), static_cast<std::uint16_t>(Sqlite().column_int(s, 2)),
                static_cast<std::uint16_t>(Sqlite().column_int(s, 3)), Sqlite().column_int(s, 4)});
        },
        error);
}

bool HistoryStore::Characters(
    const std::string& learner, std::vector<CharacterSummary>& characters, std::string& error) const
{
    characters.clear();
    return SelectLearner(
        "SELECT category, character, last_at, last_kind, tests, mistakes, failures FROM characters"
        " WHERE learner = ? ORDER BY category, character",
        learner,
        [&characters](sqlite3_stmt* s) {
            characters.push_back({static_cast<std::uint16_t>(Sqlite().column_int(s, 0)),
                static_cast<std::uint16_t>(Sqlite().column_int(s, 1)), Text(s, 2), Text(s, 3),
                Sqlite().column_int(s, 4), Sqlite().column_int(s, 5), Sqlite().column_int(s, 6)});
        },
        error);
}

bool HistoryStore::Check(std::string& error)
{
    // Every page and index (about 30 ms for ten years of daily practice): damage found now is
    // told now, not at a later write, and never spread by writing into it.
    Statement check(m_db, "PRAGMA integrity_check(1)");
    if (!check.Ok() || Sqlite().step(check.Get()) != SQLITE_ROW) {
        error = Reason(m_db);
        m_damaged = LastFailureWasDamage();
        return false;
    }
    const std::string verdict = Text(check.Get(), 0);
    if (verdict != "ok") {
        error = verdict.empty() ? "the file is damaged" : verdict;
        m_damaged = true;
        return false;
    }
    return true;
}

std::string HistoryStore::PutAside(const std::string& path)
{
    return RenameAside(path);
}

bool HistoryStore::LastFailureWasDamage() const
{
    return m_damaged || IsDamage(Sqlite().extended_errcode(m_db));
}
