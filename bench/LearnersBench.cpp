// The learner store: opening a file of 100 learners, and loading and saving a learner whose
// lists hold every character of the database of all KanjiVG kanji.

#include "FileCharacterDatabase.h"
#include "TenYears.h"
#include "StoreWithHistory.h"

#include <cstdio>
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

struct Fixture {
    fs::path dir;
    std::unique_ptr<FileCharacterDatabase> database;
    Fixture()
    {
        std::string pattern = (fs::temp_directory_path() / "zavoren-bench-XXXXXX").string();
        dir = mkdtemp(pattern.data());
        database = std::make_unique<FileCharacterDatabase>(ZAVOREN_ALL_DATABASE);
        database->Preload(nullptr);
        std::ofstream(dir / "config.xml") << "<Zavoren><Users/></Zavoren>";
        XmlConfigStore store((dir / "config.xml").string(), *database);
        for (int i = 0; i < 100; ++i)
            store.AddUser("Learner " + std::to_string(i));
        // Learner 0 has every character of every category: most learned, the rest untested.
        auto user = store.LoadUser("Learner 0");
        for (std::uint16_t c = 0; c < database->CategoryCount(); ++c) {
            const auto category = database->LoadCategory(c);
            CategoryProgress& progress = user->GetProgress(c);
            for (std::size_t i = 0; i < category->CharacterCount(); ++i)
                (i % 5 ? progress.AddLearned(category->CharacterAt(i))
                       : progress.AddUntested(category->CharacterAt(i)));
        }
        store.SaveUser(*user);
        // A few ordinary learners with some progress.
        for (int i = 1; i < 100; i += 10) {
            auto other = store.LoadUser("Learner " + std::to_string(i));
            for (std::uint16_t k = 0; k < 40; ++k)
                other->GetProgress(0).AddLearned(k);
            store.SaveUser(*other);
        }
    }
    ~Fixture() { fs::remove_all(dir); }
};

Fixture& Shared()
{
    static Fixture fixture;
    return fixture;
}

void BM_OpenStoreWith100Learners(benchmark::State& state)
{
    Fixture& f = Shared();
    for (auto _ : state) {
        XmlConfigStore store((f.dir / "config.xml").string(), *f.database);
        benchmark::DoNotOptimize(store.UserCount());
    }
    state.counters["file_bytes"] = static_cast<double>(fs::file_size(f.dir / "config.xml"));
}
BENCHMARK(BM_OpenStoreWith100Learners)->Unit(benchmark::kMillisecond);

void BM_LoadUserWithEveryCharacter(benchmark::State& state)
{
    Fixture& f = Shared();
    XmlConfigStore store((f.dir / "config.xml").string(), *f.database);
    for (auto _ : state) {
        auto user = store.LoadUser("Learner 0");
        benchmark::DoNotOptimize(user->ProgressCount());
    }
}
BENCHMARK(BM_LoadUserWithEveryCharacter)->Unit(benchmark::kMillisecond);

void BM_SaveUserWithEveryCharacter(benchmark::State& state)
{
    Fixture& f = Shared();
    XmlConfigStore store((f.dir / "config.xml").string(), *f.database);
    auto user = store.LoadUser("Learner 0");
    // Each save has one change to write (a save that changes nothing writes nothing).
    std::uint16_t next = 0;
    for (auto _ : state) {
        user->GetProgress(7).AddUntested(next++);
        store.SaveUser(*user);
    }
    state.counters["file_bytes"] = static_cast<double>(fs::file_size(f.dir / "config.xml"));
}
BENCHMARK(BM_SaveUserWithEveryCharacter)->Unit(benchmark::kMillisecond);

/// Local time of the `minute`th minute after six in the evening of day `day` after 1 January
/// 2015, as events spell it.
std::string EventTime(int day, int minute)
{
    char time[32];
    std::snprintf(time, sizeof time, "T%02d:%02d:00+01:00", 18 + minute / 60, minute % 60);
    return DayText(DayOfDate(2015, 1, 1) + day) + time;
}

void BM_SaveUserWithTenYearsOfHistory(benchmark::State& state)
{
    // About eleven years of daily work, 100,000 events: every evening five sittings of five
    // characters each (a lesson, then tests of the characters taught, some failed or with
    // mistakes), the category changing every few months; saved in a file of its own.
    Fixture& f = Shared();
    const fs::path path = f.dir / "history.xml";
    fs::copy_file(f.dir / "config.xml", path, fs::copy_options::overwrite_existing);
    XmlConfigStore store(path.string(), *f.database);
    auto user = store.LoadUser("Learner 1");
    for (int i = 0; i < 100000; ++i) {
        const int sitting = i / 5;
        const int day = sitting / 5;
        const bool lesson = sitting % 2 == 0;
        const bool failed = !lesson && i % 7 == 0;
        user->AddEvent({EventTime(day, 10 * (sitting % 5)),
            lesson ? LearnerEvent::Lesson : (failed ? LearnerEvent::Failed : LearnerEvent::Passed),
            static_cast<std::uint16_t>(day / 500 % 8), static_cast<std::uint16_t>(i % 3000),
            lesson ? -1 : i % 3});
    }
    const auto before = fs::file_size(path);
    store.SaveUser(*user);
    const auto after = fs::file_size(path);
    // Each save has one change to write (a save that changes nothing writes nothing).
    std::uint16_t next = 0;
    for (auto _ : state) {
        user->GetProgress(7).AddUntested(next++);
        store.SaveUser(*user);
    }
    state.counters["file_bytes"] = static_cast<double>(after);
    state.counters["bytes_per_event"] = static_cast<double>(after - before) / 100000.0;
}
BENCHMARK(BM_SaveUserWithTenYearsOfHistory)->Unit(benchmark::kMillisecond);

/// Five learners of ten years each (TenYears.h) with the standard database: their config.xml as
/// the program wrote it with the history in it, and the same folder once it was brought over to
/// history.db, in a folder on the same disk as the other benchmarks' files.
struct TenYearsFixture {
    fs::path dir;
    std::unique_ptr<FileCharacterDatabase> database;
    std::string withHistory; ///< config.xml's text before the history was brought over
    TenYearsFixture()
    {
        std::string pattern = (fs::temp_directory_path() / "zavoren-bench-years-XXXXXX").string();
        dir = mkdtemp(pattern.data());
        database = std::make_unique<FileCharacterDatabase>(ZAVOREN_STANDARD_DATABASE);
        database->Preload(nullptr);
        std::ofstream(Config()) << "<Zavoren><Users/></Zavoren>";
        {
            XmlConfigStore store(Config(), *database);
            for (int i = 0; i < 5; ++i) {
                const std::string name = "Learner " + std::to_string(i);
                store.AddUser(name);
                auto learner = store.LoadUser(name);
                for (LearnerEvent& e : TenYearsOfPractice(*database, *learner))
                    learner->AddEvent(std::move(e));
                store.SaveUser(*learner);
            }
        }
        std::ifstream file(Config());
        withHistory.assign(std::istreambuf_iterator<char>(file), {});
        // Brought over once, and written without the history.
        StoreWithHistory store(Config(), *database, History());
        auto learner = store.LoadUser("Learner 0");
        store.SaveUser(*learner);
    }
    ~TenYearsFixture() { fs::remove_all(dir); }
    std::string Config() const { return (dir / "config.xml").string(); }
    std::string History() const { return (dir / "history.db").string(); }
};

TenYearsFixture& TenYears()
{
    static TenYearsFixture fixture;
    return fixture;
}

/// The one-time cost of a first start on a config.xml of five ten-year learners: reading it and
/// bringing 182,500 events over in one transaction.
void BM_BringOverFiveTenYearLearners(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    const fs::path config = f.dir / "first-start.xml";
    const fs::path history = f.dir / "first-start.db";
    for (auto _ : state) {
        state.PauseTiming();
        std::ofstream(config) << f.withHistory;
        for (const char* suffix : {"", "-wal", "-shm"})
            fs::remove(history.string() + suffix);
        state.ResumeTiming();
        StoreWithHistory store(config.string(), *f.database, history.string());
        benchmark::DoNotOptimize(store.UserCount());
    }
    state.counters["config_bytes"] = static_cast<double>(f.withHistory.size());
}
BENCHMARK(BM_BringOverFiveTenYearLearners)->Unit(benchmark::kMillisecond)->Iterations(5);

/// A test's results recorded: five events committed (synced) to history.db.
void BM_RecordTestResults(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    StoreWithHistory store(f.Config(), *f.database, f.History());
    auto learner = store.LoadUser("Learner 1");
    store.OpenHistory();
    std::uint16_t next = 0;
    for (auto _ : state) {
        std::vector<LearnerEvent> results;
        for (int k = 0; k < 5; ++k)
            results.push_back({"2026-11-23T18:20:00+01:00", LearnerEvent::Passed, 0, next++, 0});
        store.Record(*learner, results);
    }
    if (!store.TakeHistoryProblem().reason.empty())
        state.SkipWithError("the history database failed");
}
BENCHMARK(BM_RecordTestResults)->Unit(benchmark::kMillisecond);

/// config.xml saved with one ten-year learner whose history is in history.db (one change a save).
void BM_SaveConfigWithTenYearLearner(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    const std::string config = (f.dir / "one-learner.xml").string();
    std::ofstream(config) << "<Zavoren><Users/></Zavoren>";
    StoreWithHistory store(config, *f.database, f.History());
    store.AddUser("Learner 0");
    auto learner = store.LoadUser("Learner 0");
    TenYearsOfPractice(*f.database, *learner); // the progress; the events are in history.db already
    store.SaveUser(*learner);
    std::uint16_t next = 0;
    for (auto _ : state) {
        learner->GetProgress(7).AddUntested(next++);
        store.SaveUser(*learner);
    }
    state.counters["config_bytes"] = static_cast<double>(fs::file_size(config));
}
BENCHMARK(BM_SaveConfigWithTenYearLearner)->Unit(benchmark::kMillisecond);

/// A learner added beside five ten-year learners: what is written, and how long it takes.
void BM_AddLearnerBesideFiveTenYearLearners(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    StoreWithHistory store(f.Config(), *f.database, f.History());
    store.OpenHistory();
    auto size = [](const std::string& path) {
        std::error_code ignored;
        const auto bytes = fs::file_size(path, ignored);
        return ignored ? 0.0 : static_cast<double>(bytes);
    };
    const double walBefore = size(f.History() + "-wal");
    const double dbBefore = size(f.History());
    int n = 0;
    for (auto _ : state) {
        const std::string name = "New learner " + std::to_string(n++);
        store.AddUser(name);
        state.PauseTiming();
        store.DeleteUser(name);
        state.ResumeTiming();
    }
    state.counters["config_bytes"] = size(f.Config());
    state.counters["history_db_growth"] = size(f.History()) - dbBefore;
    state.counters["history_wal_growth"] = size(f.History() + "-wal") - walBefore;
}
BENCHMARK(BM_AddLearnerBesideFiveTenYearLearners)->Unit(benchmark::kMillisecond);

/// history.db of five ten-year learners opened and checked whole, as the program does once a
/// session after the home page's first paint (the check on a thread of its own).
void BM_OpenHistoryOfFiveTenYearLearners(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    for (auto _ : state) {
        std::string error;
        auto histories = HistoryStore::Open(f.History(), error);
        if (!histories || !histories->Check(error))
            state.SkipWithError(error.c_str());
    }
    state.counters["history_bytes"] = static_cast<double>(fs::file_size(f.History()));
}
BENCHMARK(BM_OpenHistoryOfFiveTenYearLearners)->Unit(benchmark::kMillisecond);

/// The due counts of every category for a ten-year learner, as the home page works them out:
/// the memories read from history.db, then the schedule of every learned character.
void BM_DueCountsOfTenYearLearner(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    StoreWithHistory store(f.Config(), *f.database, f.History());
    auto learner = store.LoadUser("Learner 4");
    store.Memories(*learner); // worked out once from the events after they were brought over
    const int today = DayOfDate(2026, 11, 23);
    int due = 0;
    for (auto _ : state) {
        const ReviewSchedule schedule(*learner, store.Memories(*learner), MemoryModel(), today);
        for (std::uint16_t c = 0; c < f.database->CategoryCount(); ++c)
            due += schedule.DueCount(c);
    }
    benchmark::DoNotOptimize(due);
    state.counters["learned"] = static_cast<double>(
        ReviewSchedule(*learner, store.Memories(*learner), MemoryModel(), today).Reviews().size());
}
BENCHMARK(BM_DueCountsOfTenYearLearner)->Unit(benchmark::kMillisecond);

/// history.db opened for the home page, without its full check, as at start.
void BM_OpenHistoryForTheHomePage(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    for (auto _ : state) {
        StoreWithHistory store(f.Config(), *f.database, f.History());
        auto learner = store.LoadUser("Learner 4");
        benchmark::DoNotOptimize(store.Memories(*learner).memories.size());
    }
}
BENCHMARK(BM_OpenHistoryForTheHomePage)->Unit(benchmark::kMillisecond);

/// A ten-year learner's whole history read from history.db (the progress window, an export).
void BM_ReadTenYearHistory(benchmark::State& state)
{
    TenYearsFixture& f = TenYears();
    StoreWithHistory store(f.Config(), *f.database, f.History());
    auto learner = store.LoadUser("Learner 3");
    for (auto _ : state)
        benchmark::DoNotOptimize(store.History(*learner).size());
}
BENCHMARK(BM_ReadTenYearHistory)->Unit(benchmark::kMillisecond);

} // namespace
