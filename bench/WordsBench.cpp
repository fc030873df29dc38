// Choosing the words of a words test for a learner who has learned 2,000 characters (the first
// 2,000 in teaching order, Grade 1 to most of secondary school): the eligible words of the
// category worked out from the lexicon, then five drawn.

#include "FileCharacterDatabase.h"
#include "Lexicon.h"
#include "WordsTest.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

void BM_WordsTestChoice(benchmark::State& state)
{
    FileCharacterDatabase database(ZAVOREN_STANDARD_DATABASE);
    database.Preload(nullptr);
    const Lexicon lexicon(ZAVOREN_STANDARD_LEXICON);
    std::vector<std::uint16_t> learned;
    for (std::uint16_t c = 0; c < database.CategoryCount() && learned.size() < 2000; ++c) {
        const auto members = database.LoadCategory(c);
        for (std::uint16_t id : members->Characters())
            if (learned.size() < 2000)
                learned.push_back(id);
    }
    std::vector<bool> isLearned(database.CharacterCount(), false);
    for (std::uint16_t id : learned)
        isLearned[id] = true;
    const std::uint16_t category = static_cast<std::uint16_t>(state.range(0));
    std::vector<std::uint16_t> categoryLearned;
    const auto members = database.LoadCategory(category);
    for (std::uint16_t id : members->Characters())
        if (isLearned[id])
            categoryLearned.push_back(id);
    Random15 random(1);
    std::set<std::string> previous;
    std::size_t eligible = 0;
    for (auto _ : state) {
        const auto words = WordsTest::Eligible(
            lexicon, categoryLearned, [&](std::uint16_t id) { return id < isLearned.size() && isLearned[id]; });
        eligible = words.size();
        const auto chosen = WordsTest::Choose(words, random, previous);
        previous.clear();
        for (const WordQuestion& w : chosen)
            previous.insert(w.writing);
        benchmark::DoNotOptimize(chosen.data());
    }
    state.counters["learned"] = static_cast<double>(learned.size());
    state.counters["category learned"] = static_cast<double>(categoryLearned.size());
    state.counters["eligible"] = static_cast<double>(eligible);
}
// Grade 2 (160 learned), and secondary school (the category with most learned: about 1,000).
BENCHMARK(BM_WordsTestChoice)->Arg(1)->Arg(6)->Unit(benchmark::kMillisecond);

} // namespace
