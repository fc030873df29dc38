// A review sitting for a learner of ten years (TenYears.h), on the first day that 200 or more of
// their characters are due: the page's Start to its first paint (the due list worked out from
// history.db's memories, the first question asked), and one answered character recorded (the
// history's transaction committed; a forgotten one also writes config.xml).

#include "FileCharacterDatabase.h"
#include "LearnerSession.h"
#include "SilentPrompt.h"
#include "ReviewPage.h"
#include "SessionRecorder.h"
#include "StoreWithHistory.h"
#include "TenYears.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

struct Fixture {
    fs::path dir;
    FileCharacterDatabase database{ZAVOREN_STANDARD_DATABASE};
    std::unique_ptr<StoreWithHistory> store;
    std::unique_ptr<LearnerSession> session;
    std::string now;
    std::size_t learned = 0;
    int due = 0;
    /// The due characters as the sitting takes them, before any is answered.
    std::vector<ReviewSitting::Item> sitting;
    Fixture()
    {
        std::string pattern = (fs::temp_directory_path() / "zavoren-bench-review-XXXXXX").string();
        dir = mkdtemp(pattern.data());
        database.Preload(nullptr);
        std::ofstream(dir / "config.xml") << "<Zavoren><Users currentUser=\"Anna\"/></Zavoren>";
        store = std::make_unique<StoreWithHistory>((dir / "config.xml").string(), database, (dir / "history.db").string());
        store->AddUser("Anna");
        User learner;
        learner.SetName("Anna");
        store->Record(learner, TenYearsOfPractice(database, learner));
        store->SaveUser(learner);
        for (const CategoryProgress& p : learner.Progress())
            learned += p.LearnedCount();
        // The first day after the ten years with at least 200 due.
        const LearnerMemories memories = store->Memories(learner);
        int day = DayOfDate(2026, 11, 21);
        while (ReviewSchedule(learner, memories, MemoryModel(), day).DueTotal() < 200)
            ++day;
        due = ReviewSchedule(learner, memories, MemoryModel(), day).DueTotal();
        now = DayText(day) + "T18:00:00+01:00";
        session = std::make_unique<LearnerSession>(database, *store, store->Histories(), [this] { return now; });
        session->Open(store->LoadUser("Anna"));
        sitting = ReviewSitting::DueList(*session->Reviews(), ReviewSitting::MaximumSize);
    }
    ~Fixture() { fs::remove_all(dir); }
};

Fixture& Shared()
{
    static Fixture fixture;
    return fixture;
}

void BM_ReviewSittingToFirstPaint(benchmark::State& state)
{
    Fixture& f = Shared();
    SilentPrompt prompt;
    ReviewPage page(f.database, prompt, [] { return 7u; }, *f.session);
    page.SetSitting(200, false);
    page.resize(page.sizeHint());
    for (auto _ : state) {
        benchmark::DoNotOptimize(page.Start());
        benchmark::DoNotOptimize(page.grab());
    }
    state.counters["learned"] = static_cast<double>(f.learned);
    state.counters["due"] = f.due;
    state.counters["asked"] = static_cast<double>(page.Sitting().Items().size());
}
BENCHMARK(BM_ReviewSittingToFirstPaint)->Unit(benchmark::kMillisecond);

/// Arg 1: remembered (one transaction); 0: forgotten (the transaction, and config.xml written).
void BM_ReviewRecordOneAnswer(benchmark::State& state)
{
    Fixture& f = Shared();
    const bool passed = state.range(0) == 1;
    std::size_t next = 0;
    for (auto _ : state) {
        const ReviewSitting::Item item = f.sitting[next++ % f.sitting.size()];
        RecordReview(*f.session, item, passed, passed ? 0 : 2);
        if (!passed) {
            // Learned again for the next round, outside the time measured.
            state.PauseTiming();
            f.session->Learner()->GetProgress(item.categoryId).AddLearned(item.id);
            state.ResumeTiming();
        }
    }
}
BENCHMARK(BM_ReviewRecordOneAnswer)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace
