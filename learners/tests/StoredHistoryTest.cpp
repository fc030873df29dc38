// The learner store with its history database: events go to history.db one action at a time,
// config.xml keeps only the learners and their progress, a config.xml that still holds histories
// has them brought over exactly once, and a database that cannot be kept leaves the history in
// config.xml, told once, with nothing lost.

#include "StoreWithHistory.h"

#include "FileCharacterDatabase.h"
#include "LearnerFile.h"
#include "StoreFiles.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <chrono>
#include <thread>

namespace fs = std::filesystem;
using namespace StoreFiles;

namespace {

LearnerEvent Event(const char* kind, std::uint16_t id, int mistakes = -1, const char* at = "2026-11-23T10:00:00+01:00")
{
    return {at, kind, 1, id, mistakes};
}

/// A temporary folder with a database of three categories, a config.xml and room for history.db.
class StoredHistoryTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_dir = MakeTemporaryFolder("zavoren-history-store");
        WriteSmallDatabase(m_dir / "database", 3);
        m_database = std::make_unique<FileCharacterDatabase>((m_dir / "database").string());
        WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users/></Zavoren>\n");
    }
    void TearDown() override
    {
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }
    fs::path Config() const { return m_dir / "config.xml"; }
    fs::path Histories() const { return m_dir / "history.db"; }
    /// The store as the program opens it: the history in history.db beside config.xml.
    std::unique_ptr<StoreWithHistory> Open(const fs::path& history)
    {
        return std::make_unique<StoreWithHistory>(Config().string(), *m_database, history.string());
    }
    std::unique_ptr<StoreWithHistory> Open() { return Open(Histories()); }
    /// The store as it was before history.db: the history in config.xml.
    std::unique_ptr<StoreWithHistory> OpenWithoutDatabase()
    {
        return std::make_unique<StoreWithHistory>(Config().string(), *m_database);
    }
    /// One value a query on history.db gives, read by a connection of the test's own.
    std::string Query(const char* sql) const { return QueryValue(Histories(), sql); }
    /// A config.xml as the program wrote it before history.db: Anna with `events` in her record.
    void WriteConfigWithHistory(const std::vector<LearnerEvent>& events, const char* name = "Anna")
    {
        auto store = OpenWithoutDatabase();
        ASSERT_TRUE(store->AddUser(name));
        auto anna = store->LoadUser(name);
        anna->GetProgress(1).AddLearned(0);
        for (const LearnerEvent& e : events)
            anna->AddEvent(e);
        ASSERT_TRUE(store->SaveUser(*anna));
        ASSERT_NE(ReadText(Config()).find("<History>"), std::string::npos);
    }

    fs::path m_dir;
    std::unique_ptr<FileCharacterDatabase> m_database;
};

const std::vector<LearnerEvent> Ten = {Event("lesson", 1), Event("lesson", 2), Event("passed", 1, 0),
    Event("failed", 2, 3), Event("retest", 1), Event("forget", 1), Event("learn", 4), Event("review", 4),
    Event("a-kind-from-a-newer-program", 5), Event("passed", 4, 1, "2026-11-24T08:00:00+01:00")};

} // namespace

TEST_F(StoredHistoryTest, EventsGoToTheDatabaseAndConfigXmlKeepsOnlyProgress)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, {Event("lesson", 1), Event("lesson", 2)});
    store->Record(*anna, {Event("passed", 1, 0), Event("failed", 2, 2)});
    anna->GetProgress(1).AddLearned(1);
    ASSERT_TRUE(store->SaveUser(*anna));
    EXPECT_TRUE(store->TakeHistoryProblem().reason.empty());
    EXPECT_TRUE(anna->History().empty());
    const std::string config = ReadText(Config());
    EXPECT_EQ(config.find("History"), std::string::npos) << config;
    EXPECT_NE(config.find("<Character id=\"1\""), std::string::npos);
    EXPECT_EQ(Query("SELECT count(*) FROM events WHERE learner = 'Anna'"), "4");

    store = Open();
    anna = store->LoadUser("Anna");
    EXPECT_EQ(store->History(*anna),
        (std::vector<LearnerEvent>{Event("lesson", 1), Event("lesson", 2), Event("passed", 1, 0), Event("failed", 2, 2)}));
}

TEST_F(StoredHistoryTest, TheDatabaseIsOpenedOnlyWhenNeeded)
{
    WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"/></Users></Zavoren>\n");
    {
        // Start-up and close: the learner is loaded and saved, the history is not asked for.
        auto store = Open();
        auto anna = store->LoadUser(store->CurrentUserName());
        ASSERT_TRUE(anna);
        ASSERT_TRUE(store->SaveUser(*anna));
    }
    EXPECT_FALSE(fs::exists(Histories()));
    auto store = Open();
    store->OpenHistory();
    EXPECT_TRUE(fs::exists(Histories()));
    EXPECT_TRUE(store->TakeHistoryProblem().reason.empty());
}

TEST_F(StoredHistoryTest, TodaysConfigXmlIsBroughtOverAndWrittenWithoutItsHistory)
{
    WriteConfigWithHistory(Ten);
    const std::string before = ReadText(Config());
    auto store = Open();
    EXPECT_TRUE(store->TakeHistoryProblem().reason.empty());
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "10");
    EXPECT_EQ(ReadText(Config()), before); // not yet written: the next save drops the history
    auto anna = store->LoadUser("Anna");
    EXPECT_TRUE(anna->History().empty());
    EXPECT_EQ(store->History(*anna), Ten); // every kind, unknown ones included, in order
    ASSERT_TRUE(store->SaveUser(*anna));
    const std::string after = ReadText(Config());
    EXPECT_EQ(after.find("History"), std::string::npos) << after;
    EXPECT_NE(after.find("<Character id=\"0\""), std::string::npos); // the progress stays

    store = Open();
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "10");
    EXPECT_EQ(store->History(*store->LoadUser("Anna")), Ten);
}

TEST_F(StoredHistoryTest, AStopBetweenBringingOverAndSavingDuplicatesNothing)
{
    WriteConfigWithHistory(Ten);
    // Brought over, then the program ends before any save: config.xml still holds the history.
    Open().reset();
    EXPECT_NE(ReadText(Config()).find("<History>"), std::string::npos);
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "10");
    // Opened again: brought over again, adding nothing.
    auto store = Open();
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "10");
    auto anna = store->LoadUser("Anna");
    EXPECT_EQ(store->History(*anna), Ten);
    // Events recorded since count once too.
    store->Record(*anna, {Event("lesson", 9)});
    store.reset();
    store = Open();
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "11");
}

TEST_F(StoredHistoryTest, EveryLearnersHistoryIsBroughtOverInOneTransaction)
{
    {
        std::string error;
        ASSERT_TRUE(HistoryStore::Open(Histories().string(), error)) << error;
    }
    WriteConfigWithHistory(Ten, "Anna");
    WriteConfigWithHistory({Event("lesson", 7)}, "Ben");
    // A second program holds the database for writing: nothing can be brought over, and
    // nothing half is.
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(Histories().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    {
        auto store = Open();
        const HistoryProblem problem = store->TakeHistoryProblem();
        EXPECT_NE(problem.reason.find("locked"), std::string::npos) << problem.reason;
        auto anna = store->LoadUser("Anna");
        EXPECT_EQ(anna->History(), Ten); // kept in config.xml, as before
        EXPECT_EQ(store->History(*anna), Ten);
    }
    sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "0");
    auto store = Open();
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "11");
    EXPECT_EQ(Query("SELECT count(*) FROM imported"), "2");
}

TEST_F(StoredHistoryTest, ADeletedLearnersEventsGoWithThemAndANewLearnerOfTheNameStartsEmpty)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    ASSERT_TRUE(store->AddUser("Ben"));
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, Ten);
    auto ben = store->LoadUser("Ben");
    store->Record(*ben, {Event("lesson", 3)});
    ASSERT_TRUE(store->DeleteUser("Anna"));
    EXPECT_EQ(Query("SELECT count(*) FROM events WHERE learner = 'Anna'"), "0");
    EXPECT_EQ(Query("SELECT count(*) FROM characters WHERE learner = 'Anna'"), "0");
    EXPECT_EQ(Query("SELECT count(*) FROM events WHERE learner = 'Ben'"), "1");
    ASSERT_TRUE(store->AddUser("Anna"));
    EXPECT_TRUE(store->History(*store->LoadUser("Anna")).empty());
}

TEST_F(StoredHistoryTest, AddingALearnerClearsEventsLeftUnderTheirName)
{
    {
        auto store = Open();
        ASSERT_TRUE(store->AddUser("Anna"));
        store->Record(*store->LoadUser("Anna"), Ten);
    }
    // Anna was removed from config.xml by hand (or her deletion could not reach the database).
    WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users/></Zavoren>\n");
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    EXPECT_TRUE(store->History(*store->LoadUser("Anna")).empty());
}

TEST_F(StoredHistoryTest, AnExportCarriesTheWholeHistoryAndAnImportReplacesIt)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, Ten);
    const fs::path file = m_dir / "anna.xml";
    ASSERT_TRUE(LearnerFile::Export(file.string(), *anna, store->History(*anna), m_database->CategoryCount()));
    // Anna goes on; then her record is replaced by the export.
    store->Record(*anna, {Event("lesson", 9)});
    LearnerFile::Imported imported = LearnerFile::Import(file.string(), *m_database);
    ASSERT_TRUE(imported.learner);
    EXPECT_EQ(imported.learner->History(), Ten);
    ASSERT_TRUE(store->ImportUser(*imported.learner));
    EXPECT_TRUE(imported.learner->History().empty()); // in the database now
    EXPECT_EQ(ReadText(Config()).find("History"), std::string::npos);
    EXPECT_EQ(store->History(*store->LoadUser("Anna")), Ten);
}

TEST_F(StoredHistoryTest, ADatabaseThatCannotBeCreatedLeavesTheHistoryInConfigXmlToldOnce)
{
    auto store = Open(m_dir / "no-such-folder" / "history.db");
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, {Event("lesson", 1)});
    const HistoryProblem problem = store->TakeHistoryProblem();
    EXPECT_NE(problem.reason.find("unable to open"), std::string::npos) << problem.reason;
    EXPECT_TRUE(problem.keptAs.empty());
    store->Record(*anna, {Event("passed", 1, 0)});
    EXPECT_TRUE(store->TakeHistoryProblem().reason.empty()); // told once
    EXPECT_EQ(anna->History(), (std::vector<LearnerEvent>{Event("lesson", 1), Event("passed", 1, 0)}));
    EXPECT_EQ(store->History(*anna), anna->History());
    ASSERT_TRUE(store->SaveUser(*anna));
    EXPECT_NE(ReadText(Config()).find("<History>"), std::string::npos);
    // The next session that can keep the database brings them over.
    store = Open();
    EXPECT_EQ(store->History(*store->LoadUser("Anna")),
        (std::vector<LearnerEvent>{Event("lesson", 1), Event("passed", 1, 0)}));
    EXPECT_EQ(Query("SELECT count(*) FROM events"), "2");
}

TEST_F(StoredHistoryTest, ADamagedDatabaseIsPutAsideAndTheHistoryKeptInConfigXml)
{
    WriteText(Histories(), std::string(8192, 'x'));
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, {Event("lesson", 1)});
    const HistoryProblem problem = store->TakeHistoryProblem();
    EXPECT_FALSE(problem.reason.empty());
    ASSERT_FALSE(problem.keptAs.empty());
    EXPECT_EQ(ReadText(problem.keptAs), std::string(8192, 'x')); // never overwritten
    EXPECT_FALSE(fs::exists(Histories()));
    EXPECT_EQ(anna->History().size(), 1u);
}

TEST_F(StoredHistoryTest, ADatabaseDamagedAfterOpeningIsPutAsideAtTheWriteThatFindsIt)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    std::vector<LearnerEvent> many;
    for (std::uint16_t i = 0; i < 3000; ++i)
        many.push_back(Event("lesson", i));
    store->Record(*anna, many);
    store.reset();
    const auto size = fs::file_size(Histories());
    ASSERT_GT(size, 8 * 4096u);
    // Every page but the first two overwritten: opening reads only what it needs.
    {
        std::fstream file(Histories(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(2 * 4096);
        file << std::string(size - 2 * 4096, '\xAB');
    }
    store = Open();
    anna = store->LoadUser("Anna");
    store->Record(*anna, {Event("lesson", 1)});
    const HistoryProblem problem = store->TakeHistoryProblem();
    EXPECT_FALSE(problem.reason.empty());
    EXPECT_FALSE(problem.keptAs.empty()) << problem.reason;
    EXPECT_TRUE(fs::exists(problem.keptAs));
    EXPECT_EQ(anna->History().size(), 1u);
}

TEST_F(StoredHistoryTest, TheFullCheckRunsBesideTheProgramAndTellsWhatItFinds)
{
    {
        auto store = Open();
        ASSERT_TRUE(store->AddUser("Anna"));
        std::vector<LearnerEvent> many;
        for (std::uint16_t i = 0; i < 3000; ++i)
            many.push_back(Event("lesson", i));
        store->Record(*store->LoadUser("Anna"), many);
    }
    // A healthy file: the check ends with nothing to tell, and the store goes on.
    {
        auto store = Open();
        store->OpenHistory();
        store->FinishCheck(); // waits for the check to end
        EXPECT_TRUE(store->TakeHistoryProblem().reason.empty());
        auto anna = store->LoadUser("Anna");
        store->Record(*anna, {Event("lesson", 1)});
        EXPECT_TRUE(anna->History().empty());
    }
    // Pages damaged past the first ones: opening works, the check finds it and the file goes aside.
    const auto size = fs::file_size(Histories());
    {
        std::fstream file(Histories(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(3 * 4096);
        file << std::string(size - 3 * 4096, '\x5A');
    }
    auto store = Open();
    store->OpenHistory();
    store->FinishCheck(); // waits for the check to end
    const HistoryProblem problem = store->TakeHistoryProblem();
    EXPECT_FALSE(problem.reason.empty());
    ASSERT_FALSE(problem.keptAs.empty()) << problem.reason;
    EXPECT_TRUE(fs::exists(problem.keptAs));
    // From now on the history is kept with the learner.
    auto anna = store->LoadUser("Anna");
    store->Record(*anna, {Event("lesson", 2)});
    EXPECT_EQ(anna->History().size(), 1u);
}
