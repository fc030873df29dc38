#include "FileCharacterDatabase.h"
#include "Flattening.h"
#include "FormFormat.h"
#include "RawDatabaseFile.h"

#include <cstdio>
#include <gtest/gtest.h>

using namespace testdb;

namespace {

/// A stroke from `start`: a Bezier through (1, 2), (3, 4) to (5, 6), then a line to (7, 8).
Stroke CurveThenLine(Point start)
{
    Stroke stroke(start);
    stroke.AppendSegment(Segment(SegmentType::Bezier, {1, 2}, {3, 4}, {5, 6}));
    stroke.AppendSegment(Segment(SegmentType::Line, {7, 8}));
    return stroke;
}

/// Reads a database made of the given element records.
class ElementFixture : public ::testing::Test {
protected:
    std::unique_ptr<Element> Load(const std::vector<Bytes>& records, std::uint16_t id)
    {
        RawDatabaseFile f;
        for (const Bytes& r : records)
            f.elements.push_back({r});
        const auto path = m_dir / "database";
        WriteFile(path, f.Build());
        m_db = std::make_unique<FileCharacterDatabase>(path.string());
        return m_db->LoadElement(id);
    }
    TempDir m_dir;
    std::unique_ptr<FileCharacterDatabase> m_db;
};

Bytes Placeholder()
{
    return ElementRecord({StrokeFormBytes(1, 1).Build()});
}

} // namespace

TEST(GlyphModel, RangeCheckedAccessorsThrowOutOfRange)
{
    Element element(3);
    EXPECT_THROW(element.GetForm(0), std::out_of_range);
    Form form(109, 109);
    EXPECT_THROW(form.GetStroke(0), std::out_of_range);
    Stroke stroke(Point{1, 2});
    EXPECT_THROW(stroke.GetSegment(0), std::out_of_range);
    stroke.AppendSegment(Segment(SegmentType::Line, {3, 4}));
    form.AppendStroke(stroke);
    element.AppendForm(form);
    EXPECT_EQ(element.GetForm(0).GetStroke(0).GetSegment(0).P1(), (Point{3, 4}));
    EXPECT_THROW(element.GetForm(1), std::out_of_range);
}

TEST(GlyphModel, CopiesAreDeep)
{
    Element element(1);
    Form form(10, 10);
    form.AppendStroke(Stroke(Point{1, 1}));
    element.AppendForm(form);
    Element copy = element;
    element.AppendForm(Form(5, 5));
    EXPECT_EQ(copy.FormCount(), 1);
    EXPECT_EQ(copy.GetForm(0).StrokeCount(), 1);
    EXPECT_EQ(Point(), (Point{0, 0}));
}

TEST_F(ElementFixture, StrokeFormWithoutStrokesIsSixBytes)
{
    const Bytes empty = StrokeFormBytes(109, 100).Build();
    EXPECT_EQ(empty.size(), 6u);
    // A second form follows right after the six bytes.
    auto e = Load({ElementRecord({empty, StrokeFormBytes(20, 30).Stroke(1, 2).Build()})}, 0);
    ASSERT_EQ(e->FormCount(), 2);
    EXPECT_EQ(e->GetForm(0).StrokeCount(), 0);
    EXPECT_EQ(e->GetForm(0).Width(), 109);
    EXPECT_EQ(e->GetForm(0).Height(), 100);
    EXPECT_EQ(e->GetForm(1).Width(), 20);
    EXPECT_EQ(e->GetForm(1).GetStroke(0).Start(), (Point{1, 2}));
}

TEST_F(ElementFixture, SegmentsOfEveryType)
{
    auto e
        = Load({ElementRecord(
                   {StrokeFormBytes(109, 109).Stroke(1, 2).Line(3, 4).Bezier(5, 6, 7, 8, 9, 10).Move(11, 12).Build()})},
            0);
    const Stroke& s = e->GetForm(0).GetStroke(0);
    ASSERT_EQ(s.SegmentCount(), 3);
    EXPECT_EQ(s.GetSegment(0).Type(), SegmentType::Line);
    EXPECT_EQ(s.GetSegment(0).P2(), (Point{0, 0}));
    EXPECT_EQ(s.GetSegment(1).Type(), SegmentType::Bezier);
    EXPECT_EQ(s.GetSegment(1).P3(), (Point{9, 10}));
    EXPECT_EQ(s.GetSegment(2).Type(), SegmentType::Move);
    EXPECT_EQ(s.GetSegment(2).P1(), (Point{11, 12}));
}

TEST_F(ElementFixture, UnknownSegmentTypeConsumesOnlyItsByte)
{
    auto e = Load({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).RawSegmentType(9).Line(5, 5).Build()})}, 0);
    const Stroke& s = e->GetForm(0).GetStroke(0);
    ASSERT_EQ(s.SegmentCount(), 2);
    EXPECT_EQ(s.GetSegment(0).P1(), (Point{0, 0}));
    EXPECT_EQ(s.GetSegment(0).P3(), (Point{0, 0}));
    EXPECT_EQ(s.GetSegment(1).Type(), SegmentType::Line);
    EXPECT_EQ(s.GetSegment(1).P1(), (Point{5, 5}));
    // Flattening skips it.
    EXPECT_EQ(FlattenStroke(s).size(), 2u);
}

TEST_F(ElementFixture, UnknownKindRereadsTheSameBytes)
{
    Bytes odd{0, 7};
    Put16(odd, 40);
    Put16(odd, 50);
    auto e = Load({ElementRecord({odd, odd})}, 0);
    ASSERT_EQ(e->FormCount(), 2);
    for (int f = 0; f < 2; ++f) {
        EXPECT_EQ(e->GetForm(static_cast<std::uint8_t>(f)).Width(), 40);
        EXPECT_EQ(e->GetForm(static_cast<std::uint8_t>(f)).Height(), 50);
        EXPECT_EQ(e->GetForm(static_cast<std::uint8_t>(f)).StrokeCount(), 0);
    }
    // Form count 3 with one odd head and nothing else: each form rereads the head.
    Bytes three{3, 0, 9};
    Put16(three, 1);
    Put16(three, 2);
    auto e3 = Load({three}, 0);
    EXPECT_EQ(e3->FormCount(), 3);
}

TEST_F(ElementFixture, PlacementWithElementZeroIsSkipped)
{
    const Bytes source = ElementRecord({StrokeFormBytes(10, 10).Stroke(1, 1).Build()});
    auto e = Load({source, ElementRecord({ComposedFormBytes(100, 100, {{0, 1, 5, 5, 50, 50}})})}, 1);
    EXPECT_EQ(e->GetForm(0).StrokeCount(), 0);
    EXPECT_EQ(e->GetForm(0).Width(), 100);
    auto empty = Load({source, ElementRecord({ComposedFormBytes(64, 32, {})})}, 1);
    EXPECT_EQ(empty->GetForm(0).StrokeCount(), 0);
    EXPECT_EQ(empty->GetForm(0).Height(), 32);
    EXPECT_EQ(ComposedFormBytes(1, 1, {}).size(), ComposedFormSize);
}

TEST_F(ElementFixture, PlacementWithFormNumberZeroIsOutOfRange)
{
    const Bytes source = ElementRecord({StrokeFormBytes(10, 10).Stroke(1, 1).Build()});
    EXPECT_THROW(Load({Placeholder(), source, ElementRecord({ComposedFormBytes(10, 10, {{1, 0, 0, 0, 10, 10}})})}, 2),
        std::out_of_range);
    EXPECT_THROW(Load({Placeholder(), source, ElementRecord({ComposedFormBytes(10, 10, {{1, 2, 0, 0, 10, 10}})})}, 2),
        std::out_of_range);
}

TEST_F(ElementFixture, DoubleWidthPlacementDoublesEveryX)
{
    const Bytes source
        = ElementRecord({StrokeFormBytes(10, 10).Stroke(1, 2).Line(3, 4).Move(5, 6).Bezier(1, 2, 3, 4, 5, 6).Build()});
    auto e = Load({Placeholder(), source, ElementRecord({ComposedFormBytes(20, 10, {{1, 1, 0, 0, 20, 10}})})}, 2);
    const Stroke& s = e->GetForm(0).GetStroke(0);
    EXPECT_EQ(s.Start(), (Point{2, 2}));
    EXPECT_EQ(s.GetSegment(0).P1(), (Point{6, 4}));
    // Unused points of lines and moves are mapped too: (0, 0) stays (0, 0) here...
    EXPECT_EQ(s.GetSegment(0).P2(), (Point{0, 0}));
    EXPECT_EQ(s.GetSegment(1).P1(), (Point{10, 6}));
    EXPECT_EQ(s.GetSegment(2).P2(), (Point{6, 4}));
    EXPECT_EQ(s.GetSegment(2).P3(), (Point{10, 6}));
}

TEST(GlyphModel, ComposingMapsUnusedPointsOfLinesAndMoves)
{
    Form source(10, 10);
    Stroke stroke(Point{1, 1});
    stroke.AppendSegment(Segment(SegmentType::Line, {2, 2}, {3, 3}, {4, 4}));
    stroke.AppendSegment(Segment(SegmentType::Move, {5, 5}, {6, 6}, {7, 7}));
    source.AppendStroke(stroke);
    Form target(20, 10);
    ComposePlacement(target, source, Placement{1, 1, 100, 50, 20, 10});
    const Stroke& s = target.GetStroke(0);
    EXPECT_EQ(s.GetSegment(0).P2(), (Point{106, 53}));
    EXPECT_EQ(s.GetSegment(0).P3(), (Point{108, 54}));
    EXPECT_EQ(s.GetSegment(1).P2(), (Point{112, 56}));
    EXPECT_EQ(s.GetSegment(1).P3(), (Point{114, 57}));
}

TEST(GlyphModel, OneBezierFlattensTo129Points)
{
    Stroke stroke(Point{10, 20});
    stroke.AppendSegment(Segment(SegmentType::Bezier, {20, 0}, {40, 0}, {50, 20}));
    const auto points = FlattenStroke(stroke);
    ASSERT_EQ(points.size(), 129u);
    EXPECT_EQ(points[0], (Point{10, 20}));
    EXPECT_EQ(points[1], (Point{10, 20}));
    // The end point (t = 1) is not sampled.
    EXPECT_NE(points.back(), (Point{50, 20}));
    EXPECT_EQ(points[65], BezierPoint({10, 20}, {20, 0}, {40, 0}, {50, 20}, 64.0f / 128.0f));
    EXPECT_FLOAT_EQ(points[65].x, 30.0f);
}

TEST(GlyphModel, LinesAndMovesFlattenToTheirEnds)
{
    Stroke stroke(Point{0, 0});
    stroke.AppendSegment(Segment(SegmentType::Line, {1, 0}));
    stroke.AppendSegment(Segment(SegmentType::Move, {5, 5}));
    stroke.AppendSegment(Segment(SegmentType::Line, {6, 5}));
    EXPECT_EQ(FlattenStroke(stroke), (std::vector<Point>{{0, 0}, {1, 0}, {5, 5}, {6, 5}}));
    EXPECT_EQ(FlattenStroke(Stroke(Point{3, 3})), (std::vector<Point>{{3, 3}}));
}

TEST(GlyphModel, BezierFormulaInSinglePrecision)
{
    const Point p = BezierPoint({0, 0}, {0, 1}, {1, 1}, {1, 0}, 0.25f);
    const float s = 0.75f, t = 0.25f;
    EXPECT_EQ(p.x, 0.0f * s * s * s + 3.0f * s * t * (0.0f * s + 1.0f * t) + 1.0f * t * t * t);
    EXPECT_EQ(p.y, 0.0f * s * s * s + 3.0f * s * t * (1.0f * s + 1.0f * t) + 0.0f * t * t * t);
}

namespace {

/// What one reading of a record came to: an error message, or the strokes and segments read
/// (`plain` false when the check handed a composed form on).
struct Outcome {
    std::string error;
    std::size_t items = 0;
    bool plain = true;
    Element element{0}; ///< what was read
    std::size_t position = 0; ///< where the reading stopped
};

Outcome Parse(const std::vector<std::uint8_t>& bytes)
{
    Outcome o;
    try {
        ByteReader reader(bytes.data(), bytes.size(), "Unable to load element");
        LoadBudget budget;
        const Element none(0);
        ParseElementRecord(
            reader, o.element, [&](std::uint16_t) -> const Element& { return none; }, budget);
        o.items = budget.spent;
        o.position = reader.Position();
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        o.error = e.what();
    } catch (const std::out_of_range&) {
        o.error = "out of range"; // a composed form's placement
    }
    return o;
}

Outcome Check(const std::vector<std::uint8_t>& bytes)
{
    Outcome o;
    try {
        ByteReader reader(bytes.data(), bytes.size(), "Unable to load element");
        LoadBudget budget;
        const std::optional<std::size_t> items = CheckPlainElementRecord(reader, budget);
        o.plain = items.has_value();
        o.items = items.value_or(0);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        o.error = e.what();
    }
    return o;
}

} // namespace

TEST(GlyphModel, EncodedStrokeFormReadsBack)
{
    Form form(109, 109);
    form.AppendStroke(CurveThenLine(Point{1.5f, 2.5f}));
    std::vector<std::uint8_t> bytes{1};
    EncodeStrokeForm(form, bytes);
    const Outcome read = Parse(bytes);
    ASSERT_EQ(read.error, "");
    EXPECT_EQ(read.items, 3u); // one stroke, two segments
    ASSERT_EQ(read.element.FormCount(), 1);
    EXPECT_EQ(read.element.GetForm(0).GetStroke(0).GetSegment(0).P3(), (Point{5, 6}));
    EXPECT_EQ(read.element.GetForm(0).GetStroke(0).GetSegment(1).P1(), (Point{7, 8}));
    EXPECT_EQ(read.position, bytes.size());
}

TEST(GlyphModel, CheckingPlainRecordsAgreesWithParsingThem)
{
    // A record of two stroke forms, mutated at random thousands of times: the check without
    // building and the full parse succeed together, fail with the same message, and count the
    // same strokes and segments.
    Form first(109, 109);
    first.AppendStroke(CurveThenLine(Point{1, 2}));
    first.AppendStroke(Stroke(Point{3, 3}));
    Form second(50, 60);
    Stroke b(Point{9, 9});
    b.AppendSegment(Segment(SegmentType::Move, {1, 1}));
    second.AppendStroke(b);
    std::vector<std::uint8_t> valid{2};
    EncodeStrokeForm(first, valid);
    EncodeStrokeForm(second, valid);
    std::uint32_t state = 12345;
    auto next = [&state] {
        state = state * 1103515245u + 12345u;
        return state >> 8;
    };
    int checked = 0, refused = 0;
    for (int round = 0; round < 5000; ++round) {
        std::vector<std::uint8_t> bytes = valid;
        for (int flips = 1 + static_cast<int>(next() % 3); flips > 0; --flips)
            bytes[next() % bytes.size()] = static_cast<std::uint8_t>(next());
        if (next() % 4 == 0)
            bytes.resize(next() % bytes.size());
        const Outcome check = Check(bytes);
        if (check.error.empty() && !check.plain)
            continue; // a composed form: the check hands it to the full load
        const Outcome parse = Parse(bytes);
        ++checked;
        refused += !check.error.empty();
        ASSERT_EQ(check.error, parse.error) << "round " << round;
        ASSERT_EQ(check.items, parse.items) << "round " << round;
    }
    EXPECT_GT(checked, 2000);
    EXPECT_GT(refused, 100);
}
