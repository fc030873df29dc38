#include "SheetSettings.h"

#include <QLocale>
#include <QSettings>

namespace {

QSettings File()
{
    return QSettings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
}

const char* const PaperKey = "PracticeSheet/Paper";
const char* const BoxesKey = "PracticeSheet/BoxesPerRow";
const char* const TraceKey = "PracticeSheet/TracingBoxes";
const char* const OrderKey = "PracticeSheet/StrokeOrder";
const char* const WordsKey = "PracticeSheet/Words";

} // namespace

Paper SheetSettings::LocalPaper(const QLocale& locale)
{
    switch (locale.territory()) {
    case QLocale::UnitedStates:
    case QLocale::Canada:
    case QLocale::Mexico:
    case QLocale::Philippines:
    case QLocale::Chile:
    case QLocale::Colombia:
    case QLocale::Venezuela:
    case QLocale::Guatemala:
    case QLocale::CostaRica:
    case QLocale::PuertoRico:
        return Paper::Letter;
    default: return Paper::A4;
    }
}

SheetOptions SheetSettings::Load()
{
    QSettings settings = File();
    SheetOptions o;
    const QString paper = settings.value(QLatin1String(PaperKey)).toString();
    o.paper = paper == QLatin1String("letter") ? Paper::Letter
        : paper == QLatin1String("a4")         ? Paper::A4
                                               : LocalPaper(QLocale::system());
    // A value edited out of range by hand is brought back into it.
    o.boxesPerRow = settings.value(QLatin1String(BoxesKey), o.boxesPerRow).toInt();
    o.traceBoxes = settings.value(QLatin1String(TraceKey), o.traceBoxes).toInt();
    o.strokeOrder = settings.value(QLatin1String(OrderKey), o.strokeOrder).toBool();
    o.words = settings.value(QLatin1String(WordsKey), o.words).toBool();
    return o.Clamped();
}

void SheetSettings::Store(const SheetOptions& options)
{
    QSettings settings = File();
    settings.setValue(QLatin1String(PaperKey), options.paper == Paper::Letter ? "letter" : "a4");
    settings.setValue(QLatin1String(BoxesKey), options.boxesPerRow);
    settings.setValue(QLatin1String(TraceKey), options.traceBoxes);
    settings.setValue(QLatin1String(OrderKey), options.strokeOrder);
    settings.setValue(QLatin1String(WordsKey), options.words);
}
