// Finding a character: one look-up after a stroke with the model read (a 15-stroke character
// written whole, as the list is refreshed after its last stroke), reading the model, and the
// recognizer's reading of the database's strokes.

#include "CopySimulation.h"
#include "FileCharacterDatabase.h"
#include "InkRecognizer.h"
#include "Lexicon.h"
#include "TextSearch.h"

#include <benchmark/benchmark.h>

namespace {

struct Fixture {
    FileCharacterDatabase database{ZAVOREN_STANDARD_DATABASE};
    Lexicon lexicon{ZAVOREN_STANDARD_LEXICON};
    Fixture() { database.Preload(nullptr); }
};

Fixture& Shared()
{
    static Fixture fixture;
    return fixture;
}

void BM_InkLookUp(benchmark::State& state)
{
    Fixture& f = Shared();
    InkRecognizer recognizer(f.database, f.lexicon);
    std::string error;
    if (!recognizer.LoadModel(InkRecognizer::DefaultModel, error))
        state.SkipWithError(error.c_str());
    // The characters of that many strokes, each written once by the simulated hand.
    const auto strokes = static_cast<std::uint16_t>(state.range(0));
    std::vector<std::vector<StrokePath>> written;
    std::mt19937 random(1);
    for (std::uint16_t id = 0; id < f.database.CharacterCount() && written.size() < 20; ++id) {
        if (!f.database.CharacterExists(id))
            continue;
        const auto element = f.database.LoadElement(f.database.LoadCharacter(id)->ElementId());
        if (element->GetForm(0).StrokeCount() == strokes)
            written.push_back(copysimulation::FreehandCopy(element->GetForm(0), copysimulation::Hand{}, random));
    }
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(recognizer.Recognize(written[next++ % written.size()], 10));
}
BENCHMARK(BM_InkLookUp)->Arg(4)->Arg(15)->Unit(benchmark::kMillisecond);

void BM_ReadModel(benchmark::State& state)
{
    for (auto _ : state) {
        std::string error;
        benchmark::DoNotOptimize(HandwritingModel::Load(InkRecognizer::DefaultModel, error));
    }
}
BENCHMARK(BM_ReadModel)->Unit(benchmark::kMillisecond);

void BM_ReadDatabaseStrokes(benchmark::State& state)
{
    Fixture& f = Shared();
    for (auto _ : state) {
        InkRecognizer recognizer(f.database, f.lexicon);
        benchmark::DoNotOptimize(&recognizer);
    }
}
BENCHMARK(BM_ReadDatabaseStrokes)->Unit(benchmark::kMillisecond);

void BM_TextSearch(benchmark::State& state)
{
    Fixture& f = Shared();
    const TextSearch search(f.database, &f.lexicon);
    for (auto _ : state)
        benchmark::DoNotOptimize(search.Find("みず"));
}
BENCHMARK(BM_TextSearch)->Unit(benchmark::kMillisecond);

} // namespace
