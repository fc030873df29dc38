// Opening and preloading the character database.

#include "FileCharacterDatabase.h"

#include <benchmark/benchmark.h>

namespace {

void OpenAndPreload(benchmark::State& state, const char* path)
{
    std::size_t records = 0;
    for (auto _ : state) {
        FileCharacterDatabase db(path);
        db.Preload(nullptr);
        records = std::size_t{db.CharacterCount()} + db.ElementCount();
        benchmark::DoNotOptimize(db.CharacterCount());
    }
    state.counters["records"] = static_cast<double>(records);
    state.counters["records_per_second"]
        = benchmark::Counter(static_cast<double>(records * state.iterations()), benchmark::Counter::kIsRate);
}

void BM_OpenAndPreloadStandard(benchmark::State& state)
{
    OpenAndPreload(state, ZAVOREN_STANDARD_DATABASE);
}
BENCHMARK(BM_OpenAndPreloadStandard)->Unit(benchmark::kMillisecond);

void BM_OpenAndPreloadAll(benchmark::State& state)
{
    OpenAndPreload(state, ZAVOREN_ALL_DATABASE);
}
BENCHMARK(BM_OpenAndPreloadAll)->Unit(benchmark::kMillisecond);

} // namespace
