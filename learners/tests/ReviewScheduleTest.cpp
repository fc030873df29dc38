// What each event kind does to a character's memory, and when learned characters fall due.

#include "ReviewSchedule.h"

#include "FileCharacterDatabase.h"
#include "HistoryStore.h"
#include "MemoryCache.h"
#include "StoreFiles.h"
#include "StoreWithHistory.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace {

const int Day0 = DayOfDate(2026, 11, 1);

LearnerEvent At(int day, const char* kind, std::uint16_t id, int mistakes = -1, std::uint16_t category = 0)
{
    return {DayText(Day0 + day) + "T18:00:00+01:00", kind, category, id, mistakes};
}

const MemoryModel Model(0.90, 365);

} // namespace

TEST(MemoryLedger, EachKindOfEventGradesOrNot)
{
    using G = MemoryModel::Grade;
    EXPECT_EQ(MemoryLedger::GradeOf(At(0, LearnerEvent::Passed, 1, 0)), G::Good);
    EXPECT_EQ(MemoryLedger::GradeOf(At(0, LearnerEvent::Passed, 1, 2)), G::Hard);
    EXPECT_EQ(MemoryLedger::GradeOf(At(0, LearnerEvent::Failed, 1, 0)), G::Again);
    EXPECT_EQ(MemoryLedger::GradeOf(At(0, LearnerEvent::Failed, 1, 3)), G::Again);
    for (const char* kind : {LearnerEvent::Lesson, LearnerEvent::Learn, LearnerEvent::Review, LearnerEvent::Retest,
             LearnerEvent::Forget, "a-newer-kind"})
        EXPECT_FALSE(MemoryLedger::GradeOf(At(0, kind, 1))) << kind;

    // Lessons and retests change no memory; grades follow the model step by step.
    const LearnerMemories folded = MemoryLedger::Fold({At(0, LearnerEvent::Lesson, 1), At(0, LearnerEvent::Passed, 1, 0),
        At(0, LearnerEvent::Retest, 1), At(3, LearnerEvent::Passed, 1, 1), At(3, LearnerEvent::Learn, 2)});
    ASSERT_EQ(folded.memories.size(), 1u);
    const MemoryModel::Memory expected = Model.Next(Model.First(G::Good), 3, G::Hard);
    EXPECT_DOUBLE_EQ(folded.memories[0].memory.stability, expected.stability);
    EXPECT_DOUBLE_EQ(folded.memories[0].memory.difficulty, expected.difficulty);
    EXPECT_EQ(folded.memories[0].lastDay, Day0 + 3);
    EXPECT_EQ(folded.firstDay, Day0);
}

TEST(MemoryLedger, AForgetClearsTheMemoryAndSameDayGradesFollowTheShortTermRule)
{
    using G = MemoryModel::Grade;
    LearnerMemories folded = MemoryLedger::Fold(
        {At(0, LearnerEvent::Passed, 1, 0), At(5, LearnerEvent::Forget, 1), At(6, LearnerEvent::Failed, 1, 2)});
    ASSERT_EQ(folded.memories.size(), 1u);
    // After the Forget the failure is a first review.
    EXPECT_DOUBLE_EQ(folded.memories[0].memory.stability, Model.First(G::Again).stability);
    EXPECT_EQ(folded.memories[0].lastDay, Day0 + 6);

    folded = MemoryLedger::Fold({At(0, LearnerEvent::Failed, 1, 1), At(0, LearnerEvent::Passed, 1, 0)});
    EXPECT_DOUBLE_EQ(folded.memories[0].memory.stability, Model.Next(Model.First(G::Again), 0, G::Good).stability);
    EXPECT_GT(folded.memories[0].memory.stability, Model.First(G::Again).stability);
    EXPECT_TRUE(MemoryLedger::Fold({At(0, LearnerEvent::Passed, 1), At(1, LearnerEvent::Forget, 1)}).memories.empty());
}

TEST(ReviewSchedule, DueCountsRecallAndTheCharactersLearnedBeforeTheHistory)
{
    User learner;
    for (std::uint16_t id : {1, 2, 3, 4})
        learner.GetProgress(0).AddLearned(id);
    learner.GetProgress(1).AddLearned(9);
    learner.GetProgress(0).AddUntested(5); // not learned: never due
    // 1 failed then passed long ago, 2 passed twice, 3 passed with mistakes; 4 and 9 learned before
    // the history began (on Day0).
    const LearnerMemories memories = MemoryLedger::Fold({At(0, LearnerEvent::Passed, 1, 0),
        At(1, LearnerEvent::Passed, 2, 0), At(2, LearnerEvent::Passed, 3, 2), At(4, LearnerEvent::Failed, 1, 1),
        At(4, LearnerEvent::Passed, 1, 0), At(12, LearnerEvent::Passed, 2, 0), At(2, LearnerEvent::Passed, 5, 0)});
    const int today = Day0 + 14;
    const ReviewSchedule schedule(learner, memories, Model, today);
    ASSERT_EQ(schedule.Reviews().size(), 5u);
    ASSERT_TRUE(schedule.Find(1, 9));
    EXPECT_FALSE(schedule.Find(0, 5));
    // 4 and 9 count as passed Good on Day0: stability 2.3 days, due on day 2.
    EXPECT_EQ(schedule.Find(0, 4)->dueDay, Day0 + Model.Interval(Model.First(MemoryModel::Grade::Good).stability));
    EXPECT_TRUE(schedule.Find(0, 4)->Due(today));
    // 2, passed on day 12 after day 1, is not due today.
    EXPECT_FALSE(schedule.Find(0, 2)->Due(today));
    int dueInGrade1 = 0;
    for (std::uint16_t id : {1, 2, 3, 4})
        dueInGrade1 += schedule.Find(0, id)->Due(today);
    EXPECT_EQ(schedule.DueCount(0), dueInGrade1);
    EXPECT_EQ(schedule.DueCount(1), 1);
    EXPECT_EQ(schedule.DueTotal(), dueInGrade1 + 1);
    // Least likely to be recalled first.
    const std::vector<std::uint16_t> due = schedule.DueFirst(0);
    ASSERT_EQ(static_cast<int>(due.size()), dueInGrade1);
    for (std::size_t i = 1; i < due.size(); ++i)
        EXPECT_LE(schedule.Find(0, due[i - 1])->recall, schedule.Find(0, due[i])->recall);
    // Those not due fall due on later days.
    int later = 0;
    for (int n : schedule.DuePerDay(400))
        later += n;
    EXPECT_EQ(later + schedule.DueTotal(), 5);

    // Without any history, a learned character counts as passed Good today: due in two days.
    const ReviewSchedule fresh(learner, {}, Model, today);
    EXPECT_EQ(fresh.DueTotal(), 0);
    EXPECT_EQ(fresh.Find(0, 1)->dueDay, today + 2);
    EXPECT_DOUBLE_EQ(fresh.Find(0, 1)->recall, 1.0);
}

TEST(ReviewSchedule, HigherRetentionMakesMoreDue)
{
    User learner;
    std::vector<LearnerEvent> history;
    for (std::uint16_t id = 0; id < 50; ++id) {
        learner.GetProgress(0).AddLearned(id);
        history.push_back(At(id % 10, LearnerEvent::Passed, id, id % 3 == 0 ? 1 : 0));
        history.push_back(At(10 + id % 7, LearnerEvent::Passed, id, 0));
    }
    const LearnerMemories memories = MemoryLedger::Fold(history);
    const int today = Day0 + 30;
    EXPECT_LT(ReviewSchedule(learner, memories, MemoryModel(0.80, 365), today).DueTotal(),
        ReviewSchedule(learner, memories, MemoryModel(0.97, 365), today).DueTotal());
}

TEST(ReviewSchedule, TheKeptMemoriesFollowTheEventsAsAFoldOfThemWould)
{
    const auto dir = StoreFiles::MakeTemporaryFolder("zavoren-memories");
    const std::string path = (dir / "history.db").string();
    std::string error;
    auto store = HistoryStore::Open(path, error);
    ASSERT_TRUE(store) << error;
    std::vector<LearnerEvent> all;
    auto record = [&](std::vector<LearnerEvent> events) {
        ASSERT_TRUE(store->Record("Anna", events, error)) << error;
        all.insert(all.end(), events.begin(), events.end());
    };
    record({At(0, LearnerEvent::Lesson, 1), At(0, LearnerEvent::Lesson, 2)});
    LearnerMemories kept;
    ASSERT_TRUE(store->Memories("Anna", kept, error)) << error; // worked out once, kept since
    record({At(0, LearnerEvent::Passed, 1, 0), At(0, LearnerEvent::Failed, 2, 3)});
    record({At(3, LearnerEvent::Passed, 2, 0), At(3, LearnerEvent::Passed, 7, 1, 4)});
    record({At(9, LearnerEvent::Forget, 1), At(9, LearnerEvent::Retest, 2)});
    record({At(20, LearnerEvent::Passed, 2, 1)});
    EXPECT_EQ(StoreFiles::QueryValue(path, "SELECT last_event FROM memories_through"),
        StoreFiles::QueryValue(path, "SELECT max(id) FROM events"));
    ASSERT_TRUE(store->Memories("Anna", kept, error)) << error;
    const LearnerMemories folded = MemoryLedger::Fold(all);
    EXPECT_EQ(kept.memories, folded.memories);
    EXPECT_EQ(kept.firstDay, Day0);
    // Events written without the memories (as another program might): worked out afresh.
    ASSERT_TRUE(store->BringOver({{"Anna", {At(25, LearnerEvent::Passed, 1, 0)}}}, error)) << error;
    all.push_back(At(25, LearnerEvent::Passed, 1, 0));
    ASSERT_TRUE(store->Memories("Anna", kept, error)) << error;
    EXPECT_EQ(kept.memories, MemoryLedger::Fold(all).memories);
    // A learner forgotten leaves no memory behind.
    ASSERT_TRUE(store->Forget("Anna", error));
    ASSERT_TRUE(store->Memories("Anna", kept, error));
    EXPECT_TRUE(kept.memories.empty());
    EXPECT_EQ(kept.firstDay, -1);
    store.reset();
    std::filesystem::remove_all(dir);
}

namespace {

/// A folder with a small character database, a config.xml of Anna (current) and Ben, and room
/// for history.db.
class KeptMemories : public ::testing::Test {
protected:
    void SetUp() override
    {
        dir = StoreFiles::MakeTemporaryFolder("zavoren-memory-cache");
        config = (dir / "config.xml").string();
        history = (dir / "history.db").string();
        StoreFiles::WriteSmallDatabase(dir / "database", 1, 3);
        database = std::make_unique<FileCharacterDatabase>((dir / "database").string());
        StoreFiles::WriteText(
            config, "<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"/><User name=\"Ben\"/></Users></Zavoren>");
    }
    void TearDown() override { std::filesystem::remove_all(dir); }

    std::filesystem::path dir;
    std::unique_ptr<FileCharacterDatabase> database;
    std::string config;
    std::string history;
};

} // namespace

TEST_F(KeptMemories, TheMemoriesKeptAtCloseServeOnlyWhileTheHistoryIsUntouched)
{
    const std::vector<LearnerEvent> events = {At(0, LearnerEvent::Passed, 1, 0), At(2, LearnerEvent::Passed, 2, 1)};
    {
        StoreWithHistory store(config, *database, history);
        store.Record(*store.LoadUser("Anna"), events);
    } // closed: the cache is written beside the history
    const std::string cache = MemoryCache::PathFor(history);
    ASSERT_TRUE(std::filesystem::exists(cache));
    const LearnerMemories folded = MemoryLedger::Fold(events);
    auto stamp = MemoryCache::StampOf(history);
    auto read = MemoryCache::Read(cache, stamp, "Anna");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->memories, folded.memories);
    EXPECT_EQ(read->firstDay, folded.firstDay);
    EXPECT_FALSE(MemoryCache::Read(cache, stamp, "Ben")); // another learner's
    MemoryCache::Stamp moved = stamp;
    moved[1] += 4096;
    EXPECT_FALSE(MemoryCache::Read(cache, moved, "Anna")); // the history changed since

    // The store takes the kept memories while they hold: a cache written with other memories
    // (and the same stamp) is what it returns.
    LearnerMemories other = folded;
    other.memories[0].memory.stability = 123.0;
    ASSERT_TRUE(MemoryCache::Write(cache, stamp, "Anna", other));
    {
        StoreWithHistory store(config, *database, history);
        auto anna = store.LoadUser("Anna");
        EXPECT_DOUBLE_EQ(store.Memories(*anna).memories[0].memory.stability, 123.0);
        // Once the history has moved on, the database's own.
        store.Record(*anna, {At(3, LearnerEvent::Failed, 1, 2)});
        std::vector<LearnerEvent> all = events;
        all.push_back(At(3, LearnerEvent::Failed, 1, 2));
        EXPECT_EQ(store.Memories(*anna).memories, MemoryLedger::Fold(all).memories);
    }
    // Written again at close, and whole; a damaged one is not read.
    read = MemoryCache::Read(cache, MemoryCache::StampOf(history), "Anna");
    ASSERT_TRUE(read);
    EXPECT_NE(read->memories[0].memory.stability, 123.0);
    std::string bytes = StoreFiles::ReadText(cache);
    for (std::size_t at : {std::size_t(0), bytes.size() / 2, bytes.size() - 1}) {
        std::string damaged = bytes;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
        StoreFiles::WriteText(cache, damaged);
        EXPECT_FALSE(MemoryCache::Read(cache, MemoryCache::StampOf(history), "Anna")) << at;
    }
    StoreFiles::WriteText(cache, bytes.substr(0, bytes.size() - 9));
    EXPECT_FALSE(MemoryCache::Read(cache, MemoryCache::StampOf(history), "Anna"));
}

TEST_F(KeptMemories, ADatabaseGivenUpDuringTheSessionKeepsWhatItHeld)
{
    StoreWithHistory store(config, *database, history);
    auto anna = store.LoadUser("Anna");
    std::vector<LearnerEvent> all = {At(0, LearnerEvent::Passed, 1, 0), At(1, LearnerEvent::Passed, 2, 0)};
    store.Record(*anna, all);
    EXPECT_EQ(store.Memories(*anna).memories, MemoryLedger::Fold(all).memories);
    // Another program holds the file: the next action goes to config.xml, told once.
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(history.c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    store.Record(*anna, {At(4, LearnerEvent::Failed, 2, 2)});
    all.push_back(At(4, LearnerEvent::Failed, 2, 2));
    EXPECT_FALSE(store.TakeHistoryProblem().reason.empty());
    sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    // The memories are still the whole history's.
    EXPECT_EQ(store.Memories(*anna).memories, MemoryLedger::Fold(all).memories);
}
