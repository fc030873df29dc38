// The progress window's first paint for a learner of ten years (TenYears.h): with the history
// already in memory (as when it was loaded with the learner from config.xml), and with it read
// from history.db first (as the program opens the window now).

#include "FileCharacterDatabase.h"
#include "HistoryStore.h"
#include "ProgressWindow.h"
#include "SilentPrompt.h"
#include "TenYears.h"
#include "StoreWithHistory.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

struct Fixture {
    fs::path dir;
    FileCharacterDatabase database{ZAVOREN_STANDARD_DATABASE};
    User learner;
    std::vector<LearnerEvent> history;
    std::unique_ptr<StoreWithHistory> store;
    Fixture()
    {
        std::string pattern = (fs::temp_directory_path() / "zavoren-bench-progress-XXXXXX").string();
        dir = mkdtemp(pattern.data());
        database.Preload(nullptr);
        std::ofstream(dir / "config.xml") << "<Zavoren><Users/></Zavoren>";
        store = std::make_unique<StoreWithHistory>((dir / "config.xml").string(), database, (dir / "history.db").string());
        store->AddUser("Anna");
        learner.SetName("Anna");
        history = TenYearsOfPractice(database, learner);
        store->Record(learner, history);
        store->SaveUser(learner);
    }
    ~Fixture() { fs::remove_all(dir); }
};

Fixture& Shared()
{
    static Fixture fixture;
    return fixture;
}

void BM_ProgressWindowFirstPaintHistoryInMemory(benchmark::State& state)
{
    Fixture& f = Shared();
    SilentPrompt prompt;
    for (auto _ : state) {
        ProgressWindow window(f.database, prompt, f.learner, f.history, "2026-11-23T20:00:00+01:00");
        window.resize(720, 520);
        benchmark::DoNotOptimize(window.grab());
    }
}
BENCHMARK(BM_ProgressWindowFirstPaintHistoryInMemory)->Unit(benchmark::kMillisecond);

void BM_ProgressWindowFirstPaintHistoryFromDatabase(benchmark::State& state)
{
    Fixture& f = Shared();
    SilentPrompt prompt;
    for (auto _ : state) {
        ProgressWindow window(f.database, prompt, f.learner, f.store->History(f.learner), "2026-11-23T20:00:00+01:00");
        window.resize(720, 520);
        benchmark::DoNotOptimize(window.grab());
    }
}
BENCHMARK(BM_ProgressWindowFirstPaintHistoryFromDatabase)->Unit(benchmark::kMillisecond);

void BM_ProgressWindowFirstPaintWithReviews(benchmark::State& state)
{
    Fixture& f = Shared();
    SilentPrompt prompt;
    const int today = DayOfDate(2026, 11, 23);
    for (auto _ : state) {
        ReviewSchedule reviews(f.learner, f.store->Memories(f.learner), MemoryModel(), today);
        ProgressWindow window(f.database, prompt, f.learner, f.store->History(f.learner), "2026-11-23T20:00:00+01:00",
            std::move(reviews));
        window.resize(720, 520);
        benchmark::DoNotOptimize(window.grab());
    }
}
BENCHMARK(BM_ProgressWindowFirstPaintWithReviews)->Unit(benchmark::kMillisecond);

} // namespace

namespace {

/// The full check of the ten-year learner's history.db alone (once a session, after the first
/// paint, on a thread of its own).
void BM_CheckTenYearHistory(benchmark::State& state)
{
    Fixture& f = Shared();
    for (auto _ : state) {
        std::string error;
        auto histories = HistoryStore::Open((f.dir / "history.db").string(), error);
        if (!histories || !histories->Check(error))
            state.SkipWithError(error.c_str());
    }
    // What the check reads: the file and its journal (the fixture's store keeps it open).
    std::error_code none;
    const auto wal = fs::file_size(f.dir / "history.db-wal", none);
    state.counters["history_bytes"]
        = static_cast<double>(fs::file_size(f.dir / "history.db") + (none ? 0 : wal));
}
BENCHMARK(BM_CheckTenYearHistory)->Unit(benchmark::kMillisecond);

} // namespace
