#include "StrokeVerdict.h"

#include "TranslationMark.h"

#include <cmath>

namespace {

StrokePath Reversed(const StrokePath& path)
{
    return StrokePath(std::vector<Point>(path.Points().rbegin(), path.Points().rend()));
}

} // namespace

PlaceDirection StrokeVerdict::Direction() const
{
    return DirectionOf(dx, dy);
}

StrokeVerdict JudgeStroke(const StrokeChecker& checker, const StrokePath& ink, std::uint16_t index)
{
    using Fit = StrokeChecker::Evaluation::Fit;
    StrokeVerdict verdict;
    verdict.expected = index;
    if (index >= checker.StrokeCount()) {
        verdict.kind = StrokeVerdict::Kind::CharacterComplete;
        return verdict;
    }
    const StrokeChecker::Ink drawn = checker.Prepare(ink);
    const StrokeChecker::Evaluation e = checker.Evaluate(drawn, index);
    if (e.Accepted())
        return verdict;
    for (std::uint32_t later = std::uint32_t{index} + 1; later < checker.StrokeCount(); ++later) {
        const auto j = static_cast<std::uint16_t>(later);
        if (checker.Evaluate(drawn, j).Accepted()) {
            verdict.kind = StrokeVerdict::Kind::WrongOrder;
            verdict.drawnAs = j;
            return verdict;
        }
    }
    if (checker.Accepts(Reversed(ink), index)) {
        verdict.kind = StrokeVerdict::Kind::WrongDirection;
        return verdict;
    }
    switch (e.fit) {
    case Fit::Misplaced:
        verdict.kind = StrokeVerdict::Kind::WrongPlace;
        verdict.fromX = drawn.centreX;
        verdict.fromY = drawn.centreY;
        verdict.dx = e.dx;
        verdict.dy = e.dy;
        break;
    case Fit::WrongSize:
        verdict.kind = e.drawnLength < e.expectedLength ? StrokeVerdict::Kind::TooShort : StrokeVerdict::Kind::TooLong;
        break;
    case Fit::WrongShape: verdict.kind = StrokeVerdict::Kind::WrongShape; break;
    case Fit::NoLength: // a click: no stroke at all
    case Fit::NoSuchStroke:
    case Fit::Accepted: verdict.kind = StrokeVerdict::Kind::TooShort; break;
    }
    return verdict;
}

PlaceDirection DirectionOf(float dx, float dy)
{
    const bool left = dx < 0, up = dy < 0;
    if (std::fabs(dx) > 2 * std::fabs(dy))
        return left ? PlaceDirection::Left : PlaceDirection::Right;
    if (std::fabs(dy) > 2 * std::fabs(dx))
        return up ? PlaceDirection::Up : PlaceDirection::Down;
    if (up)
        return left ? PlaceDirection::UpLeft : PlaceDirection::UpRight;
    return left ? PlaceDirection::DownLeft : PlaceDirection::DownRight;
}

const char* VerdictSentence(const StrokeVerdict& verdict, bool direction)
{
    using Kind = StrokeVerdict::Kind;
    switch (verdict.kind) {
    case Kind::Accepted: return "";
    case Kind::WrongOrder:
        return QT_TRANSLATE_NOOP("WritingCoach", "Wrong order: that is stroke %1. Write stroke %2 first.");
    case Kind::WrongDirection:
        return QT_TRANSLATE_NOOP("WritingCoach", "Wrong direction: start this stroke from the other end.");
    case Kind::WrongPlace:
        if (!direction)
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place.");
        // Whole sentences for each way, so that every language can say it its own way.
        switch (verdict.Direction()) {
        case PlaceDirection::Up:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further up.");
        case PlaceDirection::Down:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further down.");
        case PlaceDirection::Left:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further left.");
        case PlaceDirection::Right:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further right.");
        case PlaceDirection::UpLeft:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further up and to the left.");
        case PlaceDirection::UpRight:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further up and to the right.");
        case PlaceDirection::DownLeft:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further down and to the left.");
        case PlaceDirection::DownRight:
            return QT_TRANSLATE_NOOP("WritingCoach", "Wrong place: this stroke belongs further down and to the right.");
        }
        return "";
    case Kind::TooShort: return QT_TRANSLATE_NOOP("WritingCoach", "Too short: this stroke is longer.");
    case Kind::TooLong: return QT_TRANSLATE_NOOP("WritingCoach", "Too long: this stroke is shorter.");
    case Kind::WrongShape: return QT_TRANSLATE_NOOP("WritingCoach", "Wrong shape: compare it with the model.");
    case Kind::CharacterComplete: return QT_TRANSLATE_NOOP("WritingCoach", "The character is already complete.");
    }
    return "";
}

std::string VerdictText(const StrokeVerdict& verdict, bool direction)
{
    std::string text = VerdictSentence(verdict, direction);
    const std::pair<const char*, int> numbers[] = {{"%1", verdict.drawnAs + 1}, {"%2", verdict.expected + 1}};
    for (const auto& [mark, number] : numbers)
        if (const auto at = text.find(mark); at != std::string::npos)
            text.replace(at, 2, std::to_string(number));
    return text;
}
