#include "StrokeVerdict.h"

#include <cmath>

namespace {

StrokePath Reversed(const StrokePath& path)
{
    return StrokePath(std::vector<Point>(path.Points().rbegin(), path.Points().rend()));
}

} // namespace

StrokeVerdict JudgeStroke(const StrokeChecker& checker, const StrokePath& ink, std::uint16_t index)
{
    StrokeVerdict verdict;
    verdict.expected = index;
    if (index >= checker.StrokeCount()) {
        verdict.kind = StrokeVerdict::Kind::CharacterComplete;
        return verdict;
    }
    if (checker.Score(ink, index) >= 1.0f)
        return verdict;
    // A later stroke whose place test refuses the ink would score it -1: only the others are scored.
    const CanvasRect drawn = checker.DrawnBounds(ink);
    for (std::uint32_t later = std::uint32_t{index} + 1; later < checker.StrokeCount(); ++later) {
        const auto j = static_cast<std::uint16_t>(later);
        if (checker.PlaceFits(drawn, j) && checker.Score(ink, j) >= 1.0f) {
            verdict.kind = StrokeVerdict::Kind::WrongOrder;
            verdict.drawnAs = j;
            return verdict;
        }
    }
    if (checker.Score(Reversed(ink), index) >= 1.0f) {
        verdict.kind = StrokeVerdict::Kind::WrongDirection;
        return verdict;
    }
    const StrokeChecker::Measures m = checker.Measure(ink, index);
    if (!m.hasLength) {
        verdict.kind = StrokeVerdict::Kind::TooShort; // a click: no stroke at all
    } else if (!m.placeFits) {
        verdict.kind = StrokeVerdict::Kind::WrongPlace;
        verdict.fromX = m.drawnX;
        verdict.fromY = m.drawnY;
        verdict.dx = m.dx;
        verdict.dy = m.dy;
    } else if (!m.sizeFits) {
        verdict.kind = m.drawnLength < m.expectedLength ? StrokeVerdict::Kind::TooShort : StrokeVerdict::Kind::TooLong;
    } else {
        verdict.kind = StrokeVerdict::Kind::WrongShape;
    }
    return verdict;
}

std::string PlaceDirection(float dx, float dy)
{
    const char* across = dx < 0 ? "left" : "right";
    const char* upDown = dy < 0 ? "up" : "down";
    if (std::fabs(dx) > 2 * std::fabs(dy))
        return across;
    if (std::fabs(dy) > 2 * std::fabs(dx))
        return upDown;
    return std::string(upDown) + " and to the " + across;
}

std::string VerdictText(const StrokeVerdict& verdict, bool direction)
{
    using Kind = StrokeVerdict::Kind;
    switch (verdict.kind) {
    case Kind::Accepted: return {};
    case Kind::WrongOrder:
        return "Wrong order: that is stroke " + std::to_string(verdict.drawnAs + 1) + ". Write stroke "
            + std::to_string(verdict.expected + 1) + " first.";
    case Kind::WrongDirection: return "Wrong direction: start this stroke from the other end.";
    case Kind::WrongPlace:
        if (!direction)
            return "Wrong place.";
        return "Wrong place: this stroke belongs further " + PlaceDirection(verdict.dx, verdict.dy) + ".";
    case Kind::TooShort: return "Too short: this stroke is longer.";
    case Kind::TooLong: return "Too long: this stroke is shorter.";
    case Kind::WrongShape: return "Wrong shape: compare it with the model.";
    case Kind::CharacterComplete: return "The character is already complete.";
    }
    return {};
}
