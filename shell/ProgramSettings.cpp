#include "ProgramSettings.h"

#include "MemoryModel.h"
#include "ReviewSitting.h"

#include <algorithm>

#include <QSettings>
#include <QtEndian>

namespace {

QSettings File()
{
    return QSettings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
}

const char* const PlacementKey = "WindowPosition";
const char* const ExplainKey = "Preferences/ExplainRefusedStrokes";
const char* const GridKey = "Preferences/PracticeGrid";
const char* const HintKey = "Preferences/HintAfterThreeMisses";
const char* const OnScreenKey = "Preferences/KeepWindowOnScreen";
const char* const OwnFrameKey = "Preferences/JudgePlaceByOwnCharacter";
const char* const ReviewKey = "Preferences/ReviewWhenDue";
const char* const RetentionKey = "Preferences/DesiredRetention";
const char* const IntervalKey = "Preferences/MaximumInterval";
const char* const WordsKey = "Preferences/WordsAndPartsInKanjiInfo";
const char* const WordAfterAnswerKey = "Preferences/WordAfterEachAnswer";
const char* const OtherOrdersKey = "Preferences/AcceptOtherStrokeOrders";
const char* const SteadyInkKey = "Preferences/SteadyMyInk";
const char* const WordsTestKey = "Preferences/WordsTest";
const char* const SheetsKey = "Preferences/PracticeSheets";
const char* const SittingKey = "Preferences/ReviewsInOneSitting";
const char* const WritingOnlyKey = "Preferences/ReviewByWritingOnly";

constexpr int PlacementFields = 4;
constexpr int PlacementBytes = 4 * PlacementFields;

} // namespace

QByteArray ProgramSettings::EncodePlacement(const QRect& frame)
{
    const qint32 fields[PlacementFields]
        = {frame.left(), frame.top(), frame.left() + frame.width(), frame.top() + frame.height()};
    QByteArray bytes(PlacementBytes, '\0');
    for (int i = 0; i < PlacementFields; ++i)
        qToLittleEndian<qint32>(fields[i], bytes.data() + 4 * i);
    return bytes;
}

std::optional<QPoint> ProgramSettings::DecodePlacement(const QByteArray& value, const QRect& frame)
{
    if (value.isEmpty() || value.size() > PlacementBytes)
        return std::nullopt; // a longer value is not a placement; ignored
    QPoint position = frame.topLeft();
    if (value.size() >= 4)
        position.setX(qFromLittleEndian<qint32>(value.constData()));
    if (value.size() >= 8)
        position.setY(qFromLittleEndian<qint32>(value.constData() + 4));
    return position;
}

std::optional<QPoint> ProgramSettings::StoredPosition(const QRect& frame) const
{
    const QVariant value = File().value(QLatin1String(PlacementKey));
    if (!value.isValid())
        return std::nullopt;
    return DecodePlacement(value.toByteArray(), frame);
}

void ProgramSettings::StorePlacement(const QRect& frame)
{
    const QByteArray bytes = EncodePlacement(frame);
    QSettings settings = File();
    const QVariant stored = settings.value(QLatin1String(PlacementKey));
    if (stored.typeId() != QMetaType::QByteArray || stored.toByteArray() != bytes)
        settings.setValue(QLatin1String(PlacementKey), bytes);
}

CoachingPreferences ProgramSettings::Coaching() const
{
    const QSettings settings = File();
    CoachingPreferences p;
    p.explainRefusals = settings.value(QLatin1String(ExplainKey), p.explainRefusals).toBool();
    p.practiceGrid = settings.value(QLatin1String(GridKey), p.practiceGrid).toBool();
    p.hintAfterMisses = settings.value(QLatin1String(HintKey), p.hintAfterMisses).toBool();
    p.keepOnScreen = settings.value(QLatin1String(OnScreenKey), p.keepOnScreen).toBool();
    p.ownFrame = settings.value(QLatin1String(OwnFrameKey), p.ownFrame).toBool();
    p.reviewWhenDue = settings.value(QLatin1String(ReviewKey), p.reviewWhenDue).toBool();
    p.wordsAndParts = settings.value(QLatin1String(WordsKey), p.wordsAndParts).toBool();
    p.wordAfterAnswer = settings.value(QLatin1String(WordAfterAnswerKey), p.wordAfterAnswer).toBool();
    p.otherOrders = settings.value(QLatin1String(OtherOrdersKey), p.otherOrders).toBool();
    p.steadyInk = settings.value(QLatin1String(SteadyInkKey), p.steadyInk).toBool();
    p.wordsTest = settings.value(QLatin1String(WordsTestKey), p.wordsTest).toBool();
    p.practiceSheets = settings.value(QLatin1String(SheetsKey), p.practiceSheets).toBool();
    p.reviewWritingOnly = settings.value(QLatin1String(WritingOnlyKey), p.reviewWritingOnly).toBool();
    // A value edited out of range by hand is brought back into it.
    bool ok = false;
    const double retention = settings.value(QLatin1String(RetentionKey), p.retention).toDouble(&ok);
    if (ok)
        p.retention = std::clamp(retention, MemoryModel::LowestRetention, MemoryModel::HighestRetention);
    const int interval = settings.value(QLatin1String(IntervalKey), p.maximumInterval).toInt(&ok);
    if (ok)
        p.maximumInterval
            = std::clamp(interval, MemoryModel::ShortestMaximumInterval, MemoryModel::LongestMaximumInterval);
    const int sitting = settings.value(QLatin1String(SittingKey), p.reviewsPerSitting).toInt(&ok);
    if (ok)
        p.reviewsPerSitting = std::clamp(sitting, ReviewSitting::MinimumSize, ReviewSitting::MaximumSize);
    return p;
}

void ProgramSettings::StoreCoaching(const CoachingPreferences& preferences)
{
    QSettings settings = File();
    settings.setValue(QLatin1String(ExplainKey), preferences.explainRefusals);
    settings.setValue(QLatin1String(GridKey), preferences.practiceGrid);
    settings.setValue(QLatin1String(HintKey), preferences.hintAfterMisses);
    settings.setValue(QLatin1String(OnScreenKey), preferences.keepOnScreen);
    settings.setValue(QLatin1String(OwnFrameKey), preferences.ownFrame);
    settings.setValue(QLatin1String(ReviewKey), preferences.reviewWhenDue);
    settings.setValue(QLatin1String(RetentionKey), preferences.retention);
    settings.setValue(QLatin1String(IntervalKey), preferences.maximumInterval);
    settings.setValue(QLatin1String(WordsKey), preferences.wordsAndParts);
    settings.setValue(QLatin1String(WordAfterAnswerKey), preferences.wordAfterAnswer);
    settings.setValue(QLatin1String(OtherOrdersKey), preferences.otherOrders);
    settings.setValue(QLatin1String(SteadyInkKey), preferences.steadyInk);
    settings.setValue(QLatin1String(WordsTestKey), preferences.wordsTest);
    settings.setValue(QLatin1String(SheetsKey), preferences.practiceSheets);
    settings.setValue(QLatin1String(SittingKey), preferences.reviewsPerSitting);
    settings.setValue(QLatin1String(WritingOnlyKey), preferences.reviewWritingOnly);
}
