// The learner store: opening a file of 100 learners, and loading and saving a learner whose
// lists hold every character of the database of all KanjiVG kanji.

#include "FileCharacterDatabase.h"
#include "XmlConfigStore.h"

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

} // namespace
