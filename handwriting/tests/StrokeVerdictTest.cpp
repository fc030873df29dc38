// The verdict beside the score: its words, and on every stroke of Grade 1 and Grade 2 of the
// standard database, the intended verdict for the usual mistakes of a learner.

#include "StrokeVerdict.h"
#include "FileCharacterDatabase.h"
#include "LearnerInk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <map>

namespace {

constexpr std::uint16_t Side = 298;
const CanvasRect Canvas{0, 0, Side, Side};

StrokePath Transformed(const StrokePath& ink, float scale, float shiftX, float shiftY)
{
    const CanvasRect b = ink.Bounds();
    const float cx = b.x + b.width * 0.5f, cy = b.y + b.height * 0.5f;
    std::vector<Point> points;
    for (Point p : ink.Points())
        points.push_back({cx + (p.x - cx) * scale + shiftX, cy + (p.y - cy) * scale + shiftY});
    return StrokePath(std::move(points));
}

/// One horizontal stroke across the middle, then one down the middle.
Form Cross()
{
    Form form(100, 100);
    Stroke across(Point{30, 50});
    across.AppendSegment(Segment(SegmentType::Line, Point{70, 50}));
    Stroke down(Point{50, 10});
    down.AppendSegment(Segment(SegmentType::Line, Point{50, 90}));
    form.AppendStroke(across);
    form.AppendStroke(down);
    return form;
}

} // namespace

TEST(StrokeVerdict, DirectionWords)
{
    EXPECT_EQ(DirectionOf(-10, 2), PlaceDirection::Left);
    EXPECT_EQ(DirectionOf(10, -4.9f), PlaceDirection::Right);
    EXPECT_EQ(DirectionOf(1, -10), PlaceDirection::Up);
    EXPECT_EQ(DirectionOf(0, 10), PlaceDirection::Down);
    EXPECT_EQ(DirectionOf(-10, -10), PlaceDirection::UpLeft);
    EXPECT_EQ(DirectionOf(10, -5), PlaceDirection::UpRight); // twice, not more: both
    EXPECT_EQ(DirectionOf(-6, 10), PlaceDirection::DownLeft);
    EXPECT_EQ(DirectionOf(8, 9), PlaceDirection::DownRight);
}

TEST(StrokeVerdict, Texts)
{
    StrokeVerdict v;
    EXPECT_EQ(VerdictText(v), "");
    v.kind = StrokeVerdict::Kind::WrongOrder;
    v.expected = 1;
    v.drawnAs = 3;
    EXPECT_EQ(VerdictText(v), "Wrong order: that is stroke 4. Write stroke 2 first.");
    v.kind = StrokeVerdict::Kind::WrongDirection;
    EXPECT_EQ(VerdictText(v), "Wrong direction: start this stroke from the other end.");
    v.kind = StrokeVerdict::Kind::WrongPlace;
    v.dx = -30;
    v.dy = 1;
    EXPECT_EQ(VerdictText(v), "Wrong place: this stroke belongs further left.");
    EXPECT_EQ(VerdictText(v, false), "Wrong place.");
    v.dx = 20;
    v.dy = 25;
    EXPECT_EQ(VerdictText(v), "Wrong place: this stroke belongs further down and to the right.");
    v.kind = StrokeVerdict::Kind::TooShort;
    EXPECT_EQ(VerdictText(v), "Too short: this stroke is longer.");
    v.kind = StrokeVerdict::Kind::TooLong;
    EXPECT_EQ(VerdictText(v), "Too long: this stroke is shorter.");
    v.kind = StrokeVerdict::Kind::WrongShape;
    EXPECT_EQ(VerdictText(v), "Wrong shape: compare it with the model.");
    v.kind = StrokeVerdict::Kind::CharacterComplete;
    EXPECT_EQ(VerdictText(v), "The character is already complete.");
}

TEST(StrokeVerdict, EachKindOnASimpleCharacter)
{
    const Form form = Cross();
    const StrokeChecker checker(form, Canvas);
    const StrokePath across = LearnerInk(form.GetStroke(0), form, Side);
    const StrokePath down = LearnerInk(form.GetStroke(1), form, Side);
    using Kind = StrokeVerdict::Kind;
    EXPECT_EQ(JudgeStroke(checker, across, 0).kind, Kind::Accepted);
    const StrokeVerdict order = JudgeStroke(checker, down, 0);
    EXPECT_EQ(order.kind, Kind::WrongOrder);
    EXPECT_EQ(order.drawnAs, 1);
    EXPECT_EQ(JudgeStroke(checker, Reversed(across), 0).kind, Kind::WrongDirection);
    const StrokeVerdict place = JudgeStroke(checker, Transformed(across, 1, 0, 60), 0);
    EXPECT_EQ(place.kind, Kind::WrongPlace);
    EXPECT_NEAR(place.dy, -60, 2);
    EXPECT_NEAR(place.fromY, 149 + 60, 2); // where it was drawn
    EXPECT_NEAR(place.fromX, 149, 2);
    EXPECT_EQ(place.Direction(), PlaceDirection::Up);
    EXPECT_EQ(JudgeStroke(checker, Transformed(across, 0.4f, 0, 0), 0).kind, Kind::TooShort);
    EXPECT_EQ(JudgeStroke(checker, Transformed(across, 1.9f, 0, 0), 0).kind, Kind::TooLong);
    // Right place and size, zigzagging.
    const StrokePath bent(std::vector<Point>{{89, 149}, {119, 129}, {149, 169}, {179, 129}, {209, 149}});
    EXPECT_EQ(JudgeStroke(checker, bent, 0).kind, Kind::WrongShape);
    EXPECT_EQ(JudgeStroke(checker, across, 2).kind, Kind::CharacterComplete);
    EXPECT_EQ(JudgeStroke(checker, StrokePath(std::vector<Point>{{5, 5}}), 0).kind, Kind::TooShort); // a click
}

TEST(StrokeVerdict, PlaceToleranceOnASimpleCharacter)
{
    // Moved by (s, s/2), the stroke's box centre is s x 1.118 from the model's; the place test
    // allows 9 % of 298 px, 26.8 px: accepted up to s = 24, misplaced beyond.
    const Form form = Cross();
    const StrokeChecker checker(form, Canvas);
    for (float shift : {-20.0f, -12.0f, 0.0f, 8.0f, 16.0f, 20.0f}) {
        const StrokePath ink = Transformed(LearnerInk(form.GetStroke(0), form, Side), 1, shift, shift / 2);
        EXPECT_EQ(JudgeStroke(checker, ink, 0).kind, StrokeVerdict::Kind::Accepted) << shift;
        EXPECT_TRUE(checker.Accepts(ink, 0)) << shift;
    }
    for (float shift : {-40.0f, -28.0f, 28.0f, 40.0f}) {
        const StrokePath ink = Transformed(LearnerInk(form.GetStroke(0), form, Side), 1, shift, shift / 2);
        EXPECT_EQ(JudgeStroke(checker, ink, 0).kind, StrokeVerdict::Kind::WrongPlace) << shift;
        EXPECT_EQ(checker.Evaluate(ink, 0).fit, StrokeChecker::Evaluation::Fit::Misplaced) << shift;
        EXPECT_EQ(checker.Score(ink, 0), -1.0f) << shift;
    }
}

TEST(StrokeVerdict, UsualMistakesOnGradeOneAndTwo)
{
    FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    db.Preload(nullptr);
    using Kind = StrokeVerdict::Kind;
    struct Tally {
        int tried = 0, intended = 0;
        std::string exceptions;
    };
    std::map<std::string, Tally> tallies;
    std::map<std::string, int> landedOnALaterStroke;
    auto count = [&](const std::string& name, bool ok, const std::string& where) {
        Tally& t = tallies[name];
        ++t.tried;
        t.intended += ok;
        if (!ok && t.exceptions.size() < 600)
            t.exceptions += where + " ";
    };
    const float shift = 0.15f * Side;
    const struct {
        const char* name;
        float x, y;
        PlaceDirection way;
        const char* word;
    } moves[] = {{"moved right", shift, 0, PlaceDirection::Left, "left"},
        {"moved left", -shift, 0, PlaceDirection::Right, "right"}, {"moved down", 0, shift, PlaceDirection::Up, "up"},
        {"moved up", 0, -shift, PlaceDirection::Down, "down"}};
    for (std::uint16_t category : {0, 1}) {
        const auto members = db.LoadCategory(category);
        for (std::uint16_t code : members->Characters()) {
            const auto character = db.LoadCharacter(code);
            const auto element = db.LoadElement(character->ElementId());
            const Form& form = element->GetForm(0);
            const StrokeChecker checker(form, Canvas);
            for (std::uint16_t k = 0; k < form.StrokeCount(); ++k) {
                const std::string where = std::to_string(code) + ":" + std::to_string(k + 1);
                const StrokePath ink = LearnerInk(form.GetStroke(k), form, Side);
                count("exact stroke accepted", JudgeStroke(checker, ink, k).kind == Kind::Accepted, where);
                count("reversed: wrong direction", JudgeStroke(checker, Reversed(ink), k).kind == Kind::WrongDirection,
                    where);
                for (const auto& move : moves) {
                    const StrokeVerdict v = JudgeStroke(checker, Transformed(ink, 1, move.x, move.y), k);
                    // Moved onto the place of a later stroke, the ink is that stroke to the
                    // checker: the order comes first, and says so truly.
                    const bool ok = (v.kind == Kind::WrongPlace && v.Direction() == move.way)
                        || (v.kind == Kind::WrongOrder && v.drawnAs > k);
                    count(std::string(move.name) + ": wrong place, further " + move.word, ok, where);
                    if (v.kind == Kind::WrongOrder)
                        ++landedOnALaterStroke[move.name];
                }
                count("40 %: too short", JudgeStroke(checker, Transformed(ink, 0.4f, 0, 0), k).kind == Kind::TooShort,
                    where);
                if (k + 1 < form.StrokeCount()) {
                    const StrokeVerdict v = JudgeStroke(checker, LearnerInk(form.GetStroke(k + 1), form, Side), k);
                    count("next stroke first: wrong order", v.kind == Kind::WrongOrder && v.drawnAs == k + 1, where);
                }
            }
        }
    }
    for (const auto& [name, n] : landedOnALaterStroke)
        std::cout << name << ": " << n << " landed on a later stroke's place (wrong order)\n";
    for (const auto& [name, t] : tallies) {
        const double share = double(t.intended) / t.tried;
        std::cout << name << ": " << t.intended << " of " << t.tried << " (" << share * 100 << " %)";
        if (!t.exceptions.empty())
            std::cout << "; not: " << t.exceptions;
        std::cout << "\n";
        EXPECT_GE(share, 0.99) << name;
    }
}
