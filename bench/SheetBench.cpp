// Practice sheets: all 80 characters of Grade 1 written as a PDF (read, laid out, drawn, the
// file committed), and what the dialog does on a change of choice (the sheet laid out again and
// its first page drawn for the preview, 300 pixels wide at ratio 2).

#include "FileCharacterDatabase.h"
#include "Lexicon.h"
#include "PracticeSheet.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

struct Fixture {
    FileCharacterDatabase database{ZAVOREN_STANDARD_DATABASE};
    Lexicon lexicon{ZAVOREN_STANDARD_LEXICON};
    std::vector<std::uint16_t> grade1;
    Fixture()
    {
        database.Preload(nullptr);
        const auto category = database.LoadCategory(0);
        grade1 = category->Characters();
    }
};

Fixture& Shared()
{
    static Fixture fixture;
    return fixture;
}

void BM_SheetGrade1Pdf(benchmark::State& state)
{
    Fixture& f = Shared();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("grade1.pdf"));
    std::size_t pages = 0;
    for (auto _ : state) {
        QString error;
        const PracticeSheet sheet(PracticeSheet::Load(f.database, &f.lexicon, f.grade1, error), SheetOptions{});
        if (!sheet.WritePdf(path, error))
            state.SkipWithError(qPrintable(error));
        pages = sheet.Pages().size();
    }
    state.counters["pages"] = static_cast<double>(pages);
    state.counters["bytes"] = static_cast<double>(QFile(path).size());
}
BENCHMARK(BM_SheetGrade1Pdf)->Unit(benchmark::kMillisecond);

void BM_SheetPreviewAfterAChoice(benchmark::State& state)
{
    Fixture& f = Shared();
    QString error;
    const std::vector<SheetCharacter> characters = PracticeSheet::Load(f.database, &f.lexicon, f.grade1, error);
    int boxes = SheetOptions::MinimumBoxes;
    for (auto _ : state) {
        SheetOptions options;
        options.boxesPerRow = boxes;
        boxes = boxes == SheetOptions::MaximumBoxes ? SheetOptions::MinimumBoxes : boxes + 1;
        const PracticeSheet sheet(characters, options);
        benchmark::DoNotOptimize(sheet.PageImage(0, 300, 2));
    }
}
BENCHMARK(BM_SheetPreviewAfterAChoice)->Unit(benchmark::kMillisecond);

} // namespace
