#include "FormFormat.h"
#include "StoreMessages.h"

#include "ByteWriter.h"
#include "DatabaseLoadException.h"

namespace {


Point ReadPoint(ByteReader& reader)
{
    const float x = reader.F32();
    const float y = reader.F32();
    return {x, y};
}

void ParseStrokes(ByteReader& reader, Form& form, std::uint8_t strokeCount, LoadBudget& budget)
{
    form.ReserveStrokes(strokeCount);
    for (int s = 0; s < strokeCount; ++s) {
        const std::uint8_t segmentCount = reader.U8();
        budget.Spend(std::size_t{1} + segmentCount);
        Stroke stroke(ReadPoint(reader));
        stroke.ReserveSegments(segmentCount);
        for (int k = 0; k < segmentCount; ++k) {
            const std::uint8_t type = reader.U8();
            switch (type) {
            case 0:
            case 2: stroke.AppendSegment(Segment(static_cast<SegmentType>(type), ReadPoint(reader))); break;
            case 1: {
                const Point p1 = ReadPoint(reader);
                const Point p2 = ReadPoint(reader);
                const Point p3 = ReadPoint(reader);
                stroke.AppendSegment(Segment(SegmentType::Bezier, p1, p2, p3));
                break;
            }
            default:
                // An unknown type byte carries no points: only the byte itself is consumed.
                stroke.AppendSegment(Segment(static_cast<SegmentType>(type), {}));
                break;
            }
        }
        form.AppendStroke(std::move(stroke));
    }
}

std::size_t SegmentCount(const Form& form)
{
    std::size_t count = 0;
    for (const Stroke& stroke : form.Strokes())
        count += stroke.Segments().size();
    return count;
}

void ParseComposition(ByteReader& reader, Form& form, const ElementLoader& load, LoadBudget& budget)
{
    reader.Skip(1); // reserved byte
    Placement placements[4];
    for (Placement& p : placements) {
        p.elementId = reader.U16();
        p.formNumber = reader.U8();
        p.x = reader.I16();
        p.y = reader.I16();
        p.width = reader.U16();
        p.height = reader.U16();
    }
    std::size_t segments = 0;
    for (const Placement& p : placements) {
        if (p.elementId == 0)
            continue;
        const Element& placed = load(p.elementId);
        // A form number of 0 wraps to index 255, which no element has: out of range.
        const Form& source = placed.GetForm(static_cast<std::uint8_t>(p.formNumber - 1));
        // Sized before anything is copied: the form's own limits, then the whole load's.
        const std::size_t addedSegments = SegmentCount(source);
        if (form.Strokes().size() + source.Strokes().size() > LoadBudget::MaxFormStrokes
            || segments + addedSegments > LoadBudget::MaxFormSegments)
            throw ZavorenCommon::DatabaseLoadException(StoreMessage::LoadElement);
        budget.Spend(source.Strokes().size() + addedSegments);
        segments += addedSegments;
        ComposePlacement(form, source, p);
    }
}

Point Map(Point p, float sx, float sy, float ox, float oy)
{
    return {p.x * sx + ox, p.y * sy + oy};
}

} // namespace

void LoadBudget::Spend(std::size_t count)
{
    if (count > MaxLoadItems - spent)
        throw ZavorenCommon::DatabaseLoadException(StoreMessage::LoadElement);
    spent += count;
}

void ParseElementRecord(ByteReader& reader, Element& element, const ElementLoader& load, LoadBudget& budget)
{
    const std::uint8_t formCount = reader.U8();
    for (int f = 0; f < formCount; ++f) {
        const std::size_t formStart = reader.Position();
        const std::uint8_t strokeCount = reader.U8();
        const std::uint8_t kind = reader.U8();
        Form form;
        form.SetWidth(reader.U16());
        form.SetHeight(reader.U16());
        if (kind == static_cast<std::uint8_t>(FormKind::Strokes)) {
            ParseStrokes(reader, form, strokeCount, budget);
        } else if (kind == static_cast<std::uint8_t>(FormKind::Composed)) {
            ParseComposition(reader, form, load, budget);
        } else {
            // Deliberate: an unknown kind gives an empty form and does not advance, so the
            // next form of the element is read again from the same bytes.
            reader.SetPosition(formStart);
        }
        element.AppendForm(std::move(form));
    }
}

std::optional<std::size_t> CheckPlainElementRecord(ByteReader& reader, LoadBudget& budget)
{
    std::size_t items = 0;
    const std::uint8_t formCount = reader.U8();
    for (int f = 0; f < formCount; ++f) {
        const std::size_t formStart = reader.Position();
        const std::uint8_t strokeCount = reader.U8();
        const std::uint8_t kind = reader.U8();
        reader.Skip(4); // box
        if (kind == static_cast<std::uint8_t>(FormKind::Composed))
            return std::nullopt;
        if (kind != static_cast<std::uint8_t>(FormKind::Strokes)) {
            reader.SetPosition(formStart); // as ParseElementRecord: read again from here
            continue;
        }
        for (int s = 0; s < strokeCount; ++s) {
            const std::uint8_t segmentCount = reader.U8();
            budget.Spend(std::size_t{1} + segmentCount);
            items += std::size_t{1} + segmentCount;
            reader.Skip(8); // start point
            for (int k = 0; k < segmentCount; ++k) {
                const std::uint8_t type = reader.U8();
                if (type == 0 || type == 2)
                    reader.Skip(8);
                else if (type == 1)
                    reader.Skip(24);
            }
        }
    }
    return items;
}

void ComposePlacement(Form& target, const Form& source, const Placement& placement)
{
    const float sx = static_cast<float>(placement.width) / static_cast<float>(source.Width());
    const float sy = static_cast<float>(placement.height) / static_cast<float>(source.Height());
    const float ox = static_cast<float>(placement.x);
    const float oy = static_cast<float>(placement.y);
    for (const Stroke& stroke : source.Strokes()) {
        Stroke mapped(Map(stroke.Start(), sx, sy, ox, oy));
        for (const Segment& s : stroke.Segments()) {
            // All three points are mapped, used or not.
            mapped.AppendSegment(Segment(
                s.Type(), Map(s.P1(), sx, sy, ox, oy), Map(s.P2(), sx, sy, ox, oy), Map(s.P3(), sx, sy, ox, oy)));
        }
        target.AppendStroke(std::move(mapped));
    }
}

void EncodeStrokeForm(const Form& form, std::vector<std::uint8_t>& out)
{
    ByteWriter w(out);
    w.U8(static_cast<std::uint8_t>(form.StrokeCount()));
    w.U8(static_cast<std::uint8_t>(FormKind::Strokes));
    w.U16(form.Width());
    w.U16(form.Height());
    for (const Stroke& stroke : form.Strokes()) {
        w.U8(stroke.SegmentCount());
        w.F32(stroke.Start().x);
        w.F32(stroke.Start().y);
        for (const Segment& s : stroke.Segments()) {
            w.U8(static_cast<std::uint8_t>(s.Type()));
            switch (s.Type()) {
            case SegmentType::Line:
            case SegmentType::Move:
                w.F32(s.P1().x);
                w.F32(s.P1().y);
                break;
            case SegmentType::Bezier:
                for (Point p : {s.P1(), s.P2(), s.P3()}) {
                    w.F32(p.x);
                    w.F32(p.y);
                }
                break;
            }
        }
    }
}

void EncodeComposedForm(
    std::uint16_t width, std::uint16_t height, const Placement (&placements)[4], std::vector<std::uint8_t>& out)
{
    ByteWriter w(out);
    w.U8(0);
    w.U8(static_cast<std::uint8_t>(FormKind::Composed));
    w.U16(width);
    w.U16(height);
    w.U8(0); // reserved
    for (const Placement& p : placements) {
        w.U16(p.elementId);
        w.U8(p.formNumber);
        w.U16(static_cast<std::uint16_t>(p.x));
        w.U16(static_cast<std::uint16_t>(p.y));
        w.U16(p.width);
        w.U16(p.height);
    }
}
