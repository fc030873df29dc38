// The history database: created with its schema, events kept per learner in the order of their
// actions, one action all or nothing, and a damaged, foreign, newer or busy file handled without
// losing anything.

#include "HistoryStore.h"
#include "StoreFiles.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class HistoryStoreTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_dir = fs::temp_directory_path()
            / ("zavoren-history-" + std::to_string(::getpid()) + "-"
                + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
    }
    void TearDown() override { fs::remove_all(m_dir); }
    std::string Path() const { return (m_dir / "history.db").string(); }
    /// The files of the folder, by name.
    std::vector<std::string> Files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_dir))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    /// One value a query on the file gives, read by a connection of the test's own.
    std::string Query(const char* sql) const { return StoreFiles::QueryValue(Path(), sql); }

    fs::path m_dir;
};

LearnerEvent Event(const char* kind, std::uint16_t id, int mistakes = -1)
{
    return {"2026-11-23T10:00:00+01:00", kind, 0, id, mistakes};
}

} // namespace

TEST_F(HistoryStoreTest, ANewFileHasTheSchemaAndIsWrittenAhead)
{
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    EXPECT_EQ(Query("PRAGMA user_version"), "3");
    EXPECT_EQ(Query("PRAGMA journal_mode"), "wal");
    EXPECT_EQ(Query("SELECT count(*) FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL"), "2");
    store.reset();
    // Opened again: nothing is migrated twice.
    store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    EXPECT_EQ(Query("PRAGMA user_version"), "3");
}

TEST_F(HistoryStoreTest, EventsAreKeptPerLearnerInTheOrderOfTheirActions)
{
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("lesson", 3), Event("lesson", 1)}, error)) << error;
    ASSERT_TRUE(store->Record("Ben", {Event("lesson", 9)}, error)) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("passed", 3, 0), Event("failed", 1, 2), Event("newer-kind", 7)}, error));
    std::vector<LearnerEvent> anna, ben;
    ASSERT_TRUE(store->Events("Anna", anna, error));
    ASSERT_TRUE(store->Events("Ben", ben, error));
    EXPECT_EQ(anna,
        (std::vector<LearnerEvent>{Event("lesson", 3), Event("lesson", 1), Event("passed", 3, 0), Event("failed", 1, 2),
            Event("newer-kind", 7)}));
    EXPECT_EQ(ben, std::vector<LearnerEvent>{Event("lesson", 9)});
    // A learner deleted takes their events along; a learner of that name later starts empty.
    ASSERT_TRUE(store->Forget("Anna", error));
    ASSERT_TRUE(store->Events("Anna", anna, error));
    EXPECT_TRUE(anna.empty());
    ASSERT_TRUE(store->Events("Ben", ben, error));
    EXPECT_EQ(ben.size(), 1u);
    // Names are data, never part of a query.
    ASSERT_TRUE(store->Record("O'Hara\"; DROP TABLE events; --", {Event("lesson", 2)}, error)) << error;
    ASSERT_TRUE(store->Events("O'Hara\"; DROP TABLE events; --", anna, error));
    EXPECT_EQ(anna.size(), 1u);
}

TEST_F(HistoryStoreTest, ADamagedOrForeignFileIsPutAsideNeverOverwritten)
{
    // Not a database at all.
    {
        std::ofstream(Path(), std::ios::binary) << std::string(5000, 'x');
        std::string error;
        std::string keptAs;
        EXPECT_FALSE(HistoryStore::Open(Path(), error, &keptAs));
        EXPECT_EQ(keptAs.rfind(Path() + ".damaged-", 0), 0u) << keptAs;
        EXPECT_FALSE(error.empty());
        const auto files = Files();
        ASSERT_EQ(files.size(), 1u);
        EXPECT_EQ(files[0].rfind("history.db.damaged-", 0), 0u);
        std::ifstream aside(m_dir / files[0], std::ios::binary);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(aside), {}), std::string(5000, 'x')); // untouched
        fs::remove(m_dir / files[0]);
    }
    // A real history whose pages were overwritten in the middle.
    {
        std::string error;
        auto store = HistoryStore::Open(Path(), error);
        ASSERT_TRUE(store) << error;
        std::vector<LearnerEvent> many;
        for (std::uint16_t i = 0; i < 2000; ++i)
            many.push_back(Event("lesson", i));
        ASSERT_TRUE(store->Record("Anna", many, error)) << error;
        store.reset(); // the journal goes back into the file
        const auto size = fs::file_size(Path());
        ASSERT_GT(size, 3 * 4096u);
        std::fstream file(Path(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(2 * 4096);
        file << std::string(4096, '\xAB');
        file.close();
        // Opening reads only the first pages; the full check finds the damage.
        store = HistoryStore::Open(Path(), error);
        ASSERT_TRUE(store) << error;
        EXPECT_FALSE(store->Check(error));
        EXPECT_TRUE(store->LastFailureWasDamage()) << error;
        store.reset();
        EXPECT_FALSE(HistoryStore::PutAside(Path()).empty());
        EXPECT_FALSE(fs::exists(Path()));
    }
}

TEST_F(HistoryStoreTest, ANewerSchemaIsLeftAlone)
{
    sqlite3* db = nullptr;
    sqlite3_open(Path().c_str(), &db);
    sqlite3_exec(db, "CREATE TABLE future (x); PRAGMA user_version = 7;", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    std::string error;
    EXPECT_FALSE(HistoryStore::Open(Path(), error));
    EXPECT_NE(error.find("newer Zavoren!"), std::string::npos) << error;
    EXPECT_EQ(Query("PRAGMA user_version"), "7");
    EXPECT_EQ(Files(), std::vector<std::string>{"history.db"});
}

TEST_F(HistoryStoreTest, AFileThatCannotBeMadeSaysWhy)
{
    std::string error;
    EXPECT_FALSE(HistoryStore::Open((m_dir / "no-such-folder" / "history.db").string(), error));
    EXPECT_FALSE(error.empty());
}

TEST_F(HistoryStoreTest, AnotherProgramHoldingTheFileIsWaitedForAndNothingHalfIsWritten)
{
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("lesson", 1)}, error));
    // Another connection (as the sqlite3 shell would) holds a write transaction.
    sqlite3* other = nullptr;
    sqlite3_open(Path().c_str(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_FALSE(store->Record("Anna", {Event("lesson", 2), Event("lesson", 3)}, error));
    EXPECT_NE(error.find("locked"), std::string::npos) << error;
    sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    // Released: the next action is recorded; the refused one left nothing behind.
    ASSERT_TRUE(store->Record("Anna", {Event("lesson", 4)}, error)) << error;
    std::vector<LearnerEvent> events;
    ASSERT_TRUE(store->Events("Anna", events, error));
    EXPECT_EQ(events, (std::vector<LearnerEvent>{Event("lesson", 1), Event("lesson", 4)}));
}

TEST_F(HistoryStoreTest, EachCharactersSummaryFollowsItsEvents)
{
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("lesson", 3), Event("lesson", 1)}, error)) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("passed", 3, 2), Event("failed", 1, 4)}, error)) << error;
    ASSERT_TRUE(store->Record("Anna", {Event("failed", 3, 1), Event("retest", 1)}, error)) << error;
    ASSERT_TRUE(store->Record("Ben", {Event("passed", 3, 0)}, error)) << error;
    std::vector<HistoryStore::CharacterSummary> anna;
    ASSERT_TRUE(store->Characters("Anna", anna, error)) << error;
    ASSERT_EQ(anna.size(), 2u);
    EXPECT_EQ(anna[0].id, 1);
    EXPECT_EQ(anna[0].lastKind, "retest");
    EXPECT_EQ(anna[0].tests, 1);
    EXPECT_EQ(anna[0].mistakes, 4);
    EXPECT_EQ(anna[0].failures, 1);
    EXPECT_EQ(anna[1].id, 3);
    EXPECT_EQ(anna[1].lastKind, "failed");
    EXPECT_EQ(anna[1].tests, 2);
    EXPECT_EQ(anna[1].mistakes, 3);
    EXPECT_EQ(anna[1].failures, 1);
    ASSERT_TRUE(store->Forget("Anna", error));
    ASSERT_TRUE(store->Characters("Anna", anna, error));
    EXPECT_TRUE(anna.empty());
    ASSERT_TRUE(store->Characters("Ben", anna, error));
    EXPECT_EQ(anna.size(), 1u);
    // Read through the index: the query plan names it, no pass over the table.
    EXPECT_EQ(Query("EXPLAIN QUERY PLAN SELECT * FROM characters WHERE learner = 'Anna'").find("SCAN"), std::string::npos);
}

TEST_F(HistoryStoreTest, AFileOfTheFirstSchemaIsMigratedWithItsSummaries)
{
    // The first schema, as the first program with a history database wrote it.
    sqlite3* db = nullptr;
    sqlite3_open(Path().c_str(), &db);
    ASSERT_EQ(sqlite3_exec(db,
                  "CREATE TABLE events (id INTEGER PRIMARY KEY, learner TEXT NOT NULL, at TEXT NOT NULL,"
                  " kind TEXT NOT NULL, category INTEGER NOT NULL, character INTEGER NOT NULL,"
                  " mistakes INTEGER NOT NULL DEFAULT -1);"
                  "CREATE INDEX events_by_learner ON events (learner, id);"
                  "CREATE INDEX events_by_character ON events (learner, category, character, id);"
                  "INSERT INTO events (learner, at, kind, category, character, mistakes) VALUES"
                  " ('Anna', '2026-11-20T10:00:00+01:00', 'lesson', 0, 5, -1),"
                  " ('Anna', '2026-11-21T10:00:00+01:00', 'passed', 0, 5, 2),"
                  " ('Anna', '2026-11-22T10:00:00+01:00', 'failed', 0, 5, 1);"
                  "PRAGMA user_version = 1;",
                  nullptr, nullptr, nullptr),
        SQLITE_OK);
    sqlite3_close(db);
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    EXPECT_EQ(Query("PRAGMA user_version"), "3");
    std::vector<HistoryStore::CharacterSummary> anna;
    ASSERT_TRUE(store->Characters("Anna", anna, error)) << error;
    ASSERT_EQ(anna.size(), 1u);
    EXPECT_EQ(anna[0].lastAt, "2026-11-22T10:00:00+01:00");
    EXPECT_EQ(anna[0].lastKind, "failed");
    EXPECT_EQ(anna[0].tests, 2);
    EXPECT_EQ(anna[0].mistakes, 3);
    EXPECT_EQ(anna[0].failures, 1);
    std::vector<LearnerEvent> events;
    ASSERT_TRUE(store->Events("Anna", events, error));
    EXPECT_EQ(events.size(), 3u);
}

TEST_F(HistoryStoreTest, AHistoryBroughtOverTwiceIsAddedOnce)
{
    std::string error;
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    const std::vector<HistoryStore::Kept> kept
        = {{"Anna", {Event("lesson", 1), Event("passed", 1, 0)}}, {"Ben", {Event("lesson", 2)}}};
    ASSERT_TRUE(store->BringOver(kept, error)) << error;
    ASSERT_TRUE(store->BringOver(kept, error)) << error;
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "3");
    // More events of Anna's kept later (a session without the database) are a new history.
    ASSERT_TRUE(store->BringOver({{"Anna", {Event("lesson", 7)}}}, error)) << error;
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "4");
    EXPECT_NE(HistoryStore::Fingerprint({Event("lesson", 1)}), HistoryStore::Fingerprint({Event("lesson", 2)}));
    EXPECT_NE(HistoryStore::Fingerprint({Event("lesson", 1)}), HistoryStore::Fingerprint({Event("lesson", 1, 0)}));
}

TEST_F(HistoryStoreTest, AFullDiskDuringACommitLeavesTheFileAsBefore)
{
    std::string error;
    {
        auto store = HistoryStore::Open(Path(), error);
        ASSERT_TRUE(store) << error;
        ASSERT_TRUE(store->Record("Anna", {Event("lesson", 1), Event("lesson", 2)}, error)) << error;
    }
    // A child process whose files may not grow past 64 KiB: its large action cannot be written.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        std::string childError;
        auto store = HistoryStore::Open(Path(), childError);
        if (!store)
            ::_exit(2);
        rlimit limit{64 * 1024, 64 * 1024};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::vector<LearnerEvent> many;
        for (std::uint16_t i = 0; i < 5000; ++i)
            many.push_back({"2026-11-23T10:00:00+01:00", std::string(40, 'k'), 0, i, -1});
        const bool recorded = store->Record("Anna", many, childError);
        ::_exit(recorded ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the over-large action was recorded";
    auto store = HistoryStore::Open(Path(), error);
    ASSERT_TRUE(store) << error;
    EXPECT_EQ(Query("PRAGMA integrity_check"), "ok");
    std::vector<LearnerEvent> events;
    ASSERT_TRUE(store->Events("Anna", events, error));
    EXPECT_EQ(events, (std::vector<LearnerEvent>{Event("lesson", 1), Event("lesson", 2)}));
    ASSERT_TRUE(store->Record("Anna", {Event("lesson", 3)}, error)) << error;
}
