// The lesson page: loading a character (stroke checker plus smooth drawing) and one step of the
// stroke-order animation, at the sizes the pages use.

#include "Named.h"
#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "DisplayCanvas.h"
#include "FileCharacterDatabase.h"
#include "GlyphRendering.h"
#include "InputCanvas.h"
#include "KanjiInfoDialog.h"
#include "LexiconAccess.h"
#include "LessonPage.h"
#include "MessageBoxPrompt.h"
#include "ReadingChoices.h"
#include "StrokeChecker.h"

#include <benchmark/benchmark.h>

#include <QScrollBar>

namespace {

FileCharacterDatabase& Database()
{
    static FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    static bool preloaded = (db.Preload(nullptr), true);
    (void)preloaded;
    return db;
}

/// Messages would show as boxes; none is expected while measuring.
Prompt& Prompts()
{
    static MessageBoxPrompt prompt;
    return prompt;
}

void BM_LessonPageLoadCharacter(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    LessonPage page(db, Prompts());
    page.show();
    std::uint16_t id = 0;
    for (auto _ : state) {
        page.StartLesson({id});
        id = static_cast<std::uint16_t>((id + 1) % db.CharacterCount());
    }
    state.SetLabel("input canvas " + std::to_string(Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width()) + " px, display "
        + std::to_string(Named<DisplayCanvas>(&page, "displayCanvas")->ClientRect().width()) + " px, averaged over all characters");
}
BENCHMARK(BM_LessonPageLoadCharacter)->Unit(benchmark::kMillisecond);

/// The same work for a canvas of the given side: checker on the input canvas and smooth drawing
/// on a display canvas of the same side.
void BM_LoadCharacterAtSide(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    const int side = static_cast<int>(state.range(0));
    QImage display(side, side, QImage::Format_RGB32);
    std::uint16_t id = 0;
    for (auto _ : state) {
        const auto character = db.LoadCharacter(id);
        const auto glyph = db.LoadElement(character->ElementId());
        StrokeChecker checker(
            glyph->GetForm(0), CanvasRect{0, 0, static_cast<std::uint16_t>(side), static_cast<std::uint16_t>(side)});
        display.fill(Qt::white);
        DrawFormSmooth(display, QRect(0, 0, side, side), glyph->GetForm(0), qRgb(0, 0, 0), 2);
        benchmark::DoNotOptimize(checker.StrokeCount());
        id = static_cast<std::uint16_t>((id + 1) % db.CharacterCount());
    }
}
BENCHMARK(BM_LoadCharacterAtSide)->Arg(300)->Arg(600)->Unit(benchmark::kMillisecond);

void BM_AnimationTick(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    DisplayCanvas canvas;
    const int side = static_cast<int>(state.range(0));
    canvas.setFixedSize(side, side);
    canvas.show();
    const auto glyph = db.LoadElement(db.LoadCharacter(100)->ElementId());
    canvas.StartAnimation(glyph->GetForm(0), 1000000);
    for (auto _ : state) {
        if (!canvas.IsAnimating())
            canvas.StartAnimation(glyph->GetForm(0), 1000000);
        canvas.Tick();
    }
}
BENCHMARK(BM_AnimationTick)->Arg(160)->Arg(600)->Unit(benchmark::kMicrosecond);

/// Kanji Info of 学 with its words and parts, from its making to its first paint (grabbed), with
/// the lexicon open already (Arg 0) or opened and checked against the database in the loop
/// (Arg 1: the first Kanji Info of a session). The learner has learned Grade 1 but 学.
void BM_KanjiInfoWithWordsFirstPaint(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    User learner;
    const auto grade1 = db.LoadCategory(0)->Characters();
    for (std::uint16_t id : grade1)
        learner.GetProgress(0).AddLearned(id);
    const std::string path = ZAVOREN_STANDARD_LEXICON;
    auto open = std::make_unique<LexiconAccess>(path, db);
    const std::uint16_t study = open->Get()->CharacterOf(U'学');
    learner.GetProgress(0).RemoveLearned(study);
    for (auto _ : state) {
        if (state.range(0) == 1)
            open = std::make_unique<LexiconAccess>(path, db);
        KanjiInfoDialog dialog(db, Prompts());
        dialog.SetWords(WordContext{open.get(), LearnedBy(learner)});
        dialog.SetCode(study);
        dialog.show();
        benchmark::DoNotOptimize(dialog.grab());
    }
    state.SetLabel(state.range(0) == 1 ? "lexicon opened and checked each time" : "lexicon open");
}
BENCHMARK(BM_KanjiInfoWithWordsFirstPaint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// The same dialog without words (the aid off), for comparison.
void BM_KanjiInfoFirstPaint(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    for (auto _ : state) {
        KanjiInfoDialog dialog(db, Prompts());
        dialog.SetCode(23);
        dialog.show();
        benchmark::DoNotOptimize(dialog.grab());
    }
}
BENCHMARK(BM_KanjiInfoFirstPaint)->Unit(benchmark::kMillisecond);

void BM_CategoryPageFirstPaintSecondarySchool(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    User learner;
    for (auto _ : state) {
        CategoryPage page(db, Prompts(), ClockSeed);
        page.show();
        page.SetCategory(6, ProgressRecorder(learner, 6, {}, {}));
        benchmark::DoNotOptimize(page.grab());
    }
}
BENCHMARK(BM_CategoryPageFirstPaintSecondarySchool)->Unit(benchmark::kMillisecond);

void BM_CategoryPageScrollOnePage(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    User learner;
    CategoryPage page(db, Prompts(), ClockSeed);
    page.show();
    page.SetCategory(6, ProgressRecorder(learner, 6, {}, {}));
    CharacterGrid* grid = Named<CharacterGrid>(&page, "characterGrid");
    QScrollBar* bar = grid->verticalScrollBar();
    // Scroll through new pages each time (cells not yet cached), wrapping at the end.
    for (auto _ : state) {
        bar->setValue(bar->value() + bar->pageStep() > bar->maximum() ? 0 : bar->value() + bar->pageStep());
        benchmark::DoNotOptimize(grid->viewport()->grab());
    }
    state.counters["cells_drawn"] = grid->RenderedCells();
}
BENCHMARK(BM_CategoryPageScrollOnePage)->Unit(benchmark::kMillisecond);

void BM_BuildReadingChoices(benchmark::State& state)
{
    FileCharacterDatabase& db = Database();
    Random15 random(1);
    std::uint16_t id = 0;
    for (auto _ : state) {
        const auto character = db.LoadCharacter(id);
        benchmark::DoNotOptimize(ReadingChoices::Build(db, *character, random));
        id = static_cast<std::uint16_t>((id + 1) % db.CharacterCount());
    }
}
BENCHMARK(BM_BuildReadingChoices)->Unit(benchmark::kMicrosecond);

} // namespace
