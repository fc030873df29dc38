// Stroke checker and glyph rendering over the standard database.

#include "FileCharacterDatabase.h"
#include "Flattening.h"
#include "GlyphRendering.h"
#include "InkSteadier.h"
#include "StrokeChecker.h"
#include "StrokeVerdict.h"
#include "WritingQuiz.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>

namespace {

/// First forms of every character's glyph, loaded once.
const std::vector<Form>& Glyphs()
{
    static const std::vector<Form> glyphs = [] {
        FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
        db.Preload(nullptr);
        std::vector<Form> forms;
        for (std::uint16_t id = 0; id < db.CharacterCount(); ++id)
            forms.push_back(db.LoadElement(db.LoadCharacter(id)->ElementId())->GetForm(0));
        return forms;
    }();
    return glyphs;
}

/// The glyph whose stroke count is closest to the average.
const Form& AverageGlyph()
{
    static const Form* chosen = [] {
        double total = 0;
        for (const Form& f : Glyphs())
            total += f.StrokeCount();
        const double mean = total / static_cast<double>(Glyphs().size());
        const Form* best = &Glyphs().front();
        for (const Form& f : Glyphs())
            if (std::abs(f.StrokeCount() - mean) < std::abs(best->StrokeCount() - mean))
                best = &f;
        return best;
    }();
    return *chosen;
}

void BM_CheckerConstruction(benchmark::State& state)
{
    const auto& glyphs = Glyphs();
    std::size_t i = 0;
    for (auto _ : state) {
        StrokeChecker checker(glyphs[i], CanvasRect{0, 0, 300, 300});
        benchmark::DoNotOptimize(checker.StrokeCount());
        i = (i + 1) % glyphs.size();
    }
    state.SetLabel("averaged over all characters");
}
BENCHMARK(BM_CheckerConstruction)->Unit(benchmark::kMicrosecond);

void BM_VerdictForARefusedStroke(benchmark::State& state)
{
    // The costliest refusals: the first stroke of a glyph, drawn 0.15 x width too low on the
    // 298 px canvas, is scored against every later stroke before the place test names it.
    // arg 0: a glyph with the average stroke count; arg 1: the glyph with the most strokes.
    const Form* glyph = &AverageGlyph();
    if (state.range(0) == 1)
        for (const Form& f : Glyphs())
            if (f.StrokeCount() > glyph->StrokeCount())
                glyph = &f;
    constexpr float Side = 298;
    const StrokeChecker checker(*glyph, CanvasRect{0, 0, 298, 298});
    StrokePath ink(FlattenStroke(glyph->GetStroke(0)));
    ink.ScaleAndOffset(Side / glyph->Width(), Side / glyph->Height(), 0, 0.15f * Side);
    ink.ResampleInPlace(static_cast<std::uint32_t>(std::lround(ink.Length() / 3)) + 2);
    for (auto _ : state)
        benchmark::DoNotOptimize(JudgeStroke(checker, ink, 0));
    state.SetLabel(std::to_string(glyph->StrokeCount()) + " strokes");
}
BENCHMARK(BM_VerdictForARefusedStroke)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_JudgeInTheOwnFrame(benchmark::State& state)
{
    // The lesson's judgement with the own frame: the glyph with the most strokes, all but the
    // last accepted (the frame fitted to them all), the last drawn 10 % small and 12 px right.
    // arg 0: accepted; arg 1: the last stroke 0.15 x width too low, refused (every later
    // stroke, the reversed stroke, then the place are tried).
    const Form* glyph = &AverageGlyph();
    for (const Form& f : Glyphs())
        if (f.StrokeCount() > glyph->StrokeCount())
            glyph = &f;
    constexpr float Side = 298;
    auto drawn = [&](std::uint16_t k, float down) {
        StrokePath ink(FlattenStroke(glyph->GetStroke(k)));
        ink.ScaleAndOffset(
            0.9f * Side / glyph->Width(), 0.9f * Side / glyph->Height(), 0.05f * Side + 12, 0.05f * Side + down);
        ink.ResampleInPlace(static_cast<std::uint32_t>(std::lround(ink.Length() / 3)) + 2);
        return ink;
    };
    WritingQuiz quiz;
    quiz.SetOwnFrame(true);
    auto element = std::make_unique<Element>(0);
    element->AppendForm(*glyph);
    quiz.Start(std::move(element), CanvasRect{0, 0, 298, 298});
    const auto last = static_cast<std::uint16_t>(glyph->StrokeCount() - 1);
    for (std::uint16_t k = 0; k < last; ++k)
        quiz.StrokeKept(drawn(k, 0));
    const StrokePath ink = drawn(last, state.range(0) == 1 ? 0.15f * Side : 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(quiz.Judge(ink));
    state.SetLabel(std::to_string(glyph->StrokeCount()) + " strokes, "
        + (quiz.Judge(ink).kind == StrokeVerdict::Kind::Accepted ? "accepted" : "refused"));
}
BENCHMARK(BM_JudgeInTheOwnFrame)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_JudgeWithBothAids(benchmark::State& state)
{
    // A stroke judged as the pages judge it with "Steady my ink" and "Accept other stroke
    // orders" on: steadied, then judged in the learner's own frame, and, refused in the order
    // being written, tried against the other orders. The character with the most other orders
    // and, among those, the most strokes; ink jittered by σ 1.5 px every 2 px.
    // arg 0: the last stroke of the standard order (accepted as it is); arg 1: the last stroke
    // of its last other order, the earlier ones written in that order (taken there).
    FileCharacterDatabase database(ZAVOREN_STANDARD_DATABASE);
    database.Preload(nullptr);
    std::unique_ptr<Element> most;
    for (std::uint16_t id = 0; id < database.CharacterCount(); ++id) {
        auto element = database.LoadElement(database.LoadCharacter(id)->ElementId());
        if (!most || element->FormCount() > most->FormCount()
            || (element->FormCount() == most->FormCount()
                && element->GetForm(0).StrokeCount() > most->GetForm(0).StrokeCount()))
            most = std::move(element);
    }
    const std::uint8_t form = state.range(0) == 0 ? 0 : static_cast<std::uint8_t>(most->FormCount() - 1);
    const Form glyph = most->GetForm(form);
    constexpr float Side = 298;
    std::mt19937 random(3);
    std::normal_distribution<float> jitter(0.0f, 1.5f);
    auto drawn = [&](std::uint16_t k) {
        StrokePath ink(FlattenStroke(glyph.GetStroke(k)));
        ink.ScaleAndOffset(Side / glyph.Width(), Side / glyph.Height(), 0, 0);
        ink.ResampleInPlace(static_cast<std::uint32_t>(std::lround(ink.Length() / 2)) + 2);
        std::vector<Point> points;
        for (const Point& p : ink.Points())
            points.push_back({p.x + jitter(random), p.y + jitter(random)});
        return StrokePath(std::move(points));
    };
    WritingQuiz quiz;
    quiz.SetOwnFrame(true);
    quiz.SetOtherOrders(true);
    const auto forms = most->FormCount();
    quiz.Start(std::move(most), CanvasRect{0, 0, 298, 298});
    const auto last = static_cast<std::uint16_t>(glyph.StrokeCount() - 1);
    for (std::uint16_t k = 0; k < last; ++k)
        quiz.StrokeKept(InkSteadier::Steady(drawn(k)));
    const StrokePath ink = drawn(last);
    for (auto _ : state)
        benchmark::DoNotOptimize(quiz.Judge(InkSteadier::Steady(ink)));
    state.SetLabel(std::to_string(glyph.StrokeCount()) + " strokes, " + std::to_string(forms) + " orders");
}
BENCHMARK(BM_JudgeWithBothAids)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_ScoreOneStroke(benchmark::State& state)
{
    // Every stroke of every glyph, replayed as learner ink with points 3 px apart.
    struct Case {
        std::size_t glyph;
        std::uint16_t stroke;
        StrokePath ink;
    };
    std::vector<StrokeChecker> checkers;
    std::vector<Case> cases;
    const auto& glyphs = Glyphs();
    for (std::size_t g = 0; g < glyphs.size(); g += 7) {
        checkers.emplace_back(glyphs[g], CanvasRect{0, 0, 300, 300});
        for (std::uint16_t k = 0; k < glyphs[g].StrokeCount(); ++k) {
            StrokePath ink(FlattenStroke(glyphs[g].GetStroke(k)));
            ink.ScaleAndOffset(300.0f / glyphs[g].Width(), 300.0f / glyphs[g].Height(), 0, 0);
            ink.ResampleInPlace(static_cast<std::uint32_t>(std::lround(ink.Length() / 3)) + 2);
            cases.push_back({checkers.size() - 1, k, std::move(ink)});
        }
    }
    std::size_t i = 0;
    for (auto _ : state) {
        const Case& c = cases[i];
        benchmark::DoNotOptimize(checkers[c.glyph].Score(c.ink, c.stroke));
        i = (i + 1) % cases.size();
    }
}
BENCHMARK(BM_ScoreOneStroke)->Unit(benchmark::kMicrosecond);

void BM_DrawFormSmooth(benchmark::State& state)
{
    const int side = static_cast<int>(state.range(0));
    QImage image(side, side, QImage::Format_RGB32);
    const Form& form = AverageGlyph();
    for (auto _ : state) {
        image.fill(Qt::white);
        DrawFormSmooth(image, QRect(0, 0, side, side), form, qRgb(0, 0, 0), 2);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetLabel(std::to_string(form.StrokeCount()) + " strokes");
}
BENCHMARK(BM_DrawFormSmooth)->Arg(300)->Arg(600)->Unit(benchmark::kMillisecond);

void BM_DrawStroke(benchmark::State& state)
{
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const Form& form = AverageGlyph();
    std::uint16_t k = 0;
    for (auto _ : state) {
        DrawStroke(painter, QRect(0, 0, 300, 300), form, k, 1, 0, 0);
        k = static_cast<std::uint16_t>((k + 1) % form.StrokeCount());
    }
}
BENCHMARK(BM_DrawStroke)->Unit(benchmark::kMicrosecond);

} // namespace
