#include "DatabaseInspector.h"
#include "Utf8.h"

#include "DatabaseLoadException.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace {

void JsonString(std::ostream& out, const char* text)
{
    if (!text) {
        out << "null";
        return;
    }
    const std::string_view view(text);
    out << '"';
    if (!IsValidUtf8(view)) {
        // Keep the output valid JSON: show undecodable bytes as \u00XX.
        for (unsigned char c : view) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out << buf;
        }
        out << '"';
        return;
    }
    for (char ch : view) {
        const auto c = static_cast<unsigned char>(ch);
        if (c == '"' || c == '\\') {
            out << '\\' << ch;
        } else if (c < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out << buf;
        } else {
            out << ch;
        }
    }
    out << '"';
}

std::string Number(float v)
{
    if (!std::isfinite(v))
        return "null";
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.9g", static_cast<double>(v));
    return buf;
}

const char* SegmentName(SegmentType type)
{
    switch (type) {
    case SegmentType::Line: return "line";
    case SegmentType::Bezier: return "bezier";
    case SegmentType::Move: return "move";
    }
    return "unknown";
}

void JsonPoint(std::ostream& out, Point p)
{
    out << '[' << Number(p.x) << ',' << Number(p.y) << ']';
}

void JsonElement(std::ostream& out, const Element& element)
{
    out << "{\"id\":" << element.Id() << ",\"forms\":[";
    for (int f = 0; f < element.FormCount(); ++f) {
        const Form& form = element.GetForm(static_cast<std::uint8_t>(f));
        out << (f ? "," : "") << "{\"width\":" << form.Width() << ",\"height\":" << form.Height() << ",\"strokes\":[";
        for (std::size_t s = 0; s < form.Strokes().size(); ++s) {
            const Stroke& stroke = form.Strokes()[s];
            out << (s ? "," : "") << "{\"start\":";
            JsonPoint(out, stroke.Start());
            out << ",\"segments\":[";
            for (std::size_t k = 0; k < stroke.Segments().size(); ++k) {
                const Segment& seg = stroke.Segments()[k];
                out << (k ? "," : "") << "{\"type\":\"" << SegmentName(seg.Type()) << "\",\"points\":[";
                JsonPoint(out, seg.P1());
                if (seg.Type() == SegmentType::Bezier) {
                    out << ',';
                    JsonPoint(out, seg.P2());
                    out << ',';
                    JsonPoint(out, seg.P3());
                }
                out << "]}";
            }
            out << "]}";
        }
        out << "]}";
    }
    out << "]}";
}

void TextElement(std::ostream& out, const Element& element)
{
    out << "element " << element.Id() << ": " << int(element.FormCount()) << " form(s)\n";
    for (int f = 0; f < element.FormCount(); ++f) {
        const Form& form = element.GetForm(static_cast<std::uint8_t>(f));
        out << "  form " << f << ": " << form.Width() << " x " << form.Height() << ", " << form.StrokeCount()
            << " stroke(s)\n";
        for (std::size_t s = 0; s < form.Strokes().size(); ++s) {
            const Stroke& stroke = form.Strokes()[s];
            out << "    stroke " << s << " start (" << Number(stroke.Start().x) << ", " << Number(stroke.Start().y)
                << ")";
            for (const Segment& seg : stroke.Segments()) {
                out << ' ' << SegmentName(seg.Type()) << " (" << Number(seg.P1().x) << ", " << Number(seg.P1().y)
                    << ")";
                if (seg.Type() == SegmentType::Bezier)
                    out << " (" << Number(seg.P2().x) << ", " << Number(seg.P2().y) << ") (" << Number(seg.P3().x)
                        << ", " << Number(seg.P3().y) << ")";
            }
            out << '\n';
        }
    }
}

const char* Or(const char* text, const char* fallback)
{
    return text ? text : fallback;
}

} // namespace

bool IsValidUtf8(std::string_view text)
{
    return IsUtf8(text);
}

void DumpDatabase(CharacterDatabase& database, std::ostream& out, bool json)
{
    const unsigned characters = database.CharacterCount();
    const unsigned elements = database.ElementCount();
    const unsigned categories = database.CategoryCount();
    if (json) {
        out << "{\"counts\":{\"characters\":" << characters << ",\"elements\":" << elements
            << ",\"categories\":" << categories << "},\"categories\":[";
    } else {
        out << "characters " << characters << ", elements " << elements << ", categories " << categories << '\n';
    }
    for (unsigned id = 0; id < categories; ++id) {
        const auto category = database.LoadCategory(static_cast<std::uint16_t>(id));
        if (json) {
            out << (id ? "," : "") << "{\"id\":" << id << ",\"name\":";
            JsonString(out, category->Name());
            out << ",\"members\":[";
        } else {
            out << "category " << id << " \"" << Or(category->Name(), "") << "\" (" << category->CharacterCount()
                << "):";
        }
        for (std::size_t i = 0; i < category->CharacterCount(); ++i)
            out << (json ? (i ? "," : "") : " ") << category->CharacterAt(i);
        out << (json ? "]}" : "\n");
    }
    if (json)
        out << "],\"characters\":[";
    for (unsigned id = 0; id < characters; ++id) {
        const auto cid = static_cast<std::uint16_t>(id);
        if (json && id)
            out << ',';
        if (!database.CharacterExists(cid)) {
            out << (json ? "null" : "character " + std::to_string(id) + ": none\n");
            continue;
        }
        const auto character = database.LoadCharacter(cid);
        if (json) {
            out << "{\"id\":" << id << ",\"element\":" << character->ElementId() << ",\"on\":";
            JsonString(out, character->OnReading());
            out << ",\"kun\":";
            JsonString(out, character->KunReading());
            out << ",\"meaning\":";
            JsonString(out, character->Meaning());
            out << '}';
        } else {
            out << "character " << id << ": element " << character->ElementId() << " | ON "
                << Or(character->OnReading(), "(none)") << " | KUN " << Or(character->KunReading(), "(none)") << " | "
                << Or(character->Meaning(), "(none)") << '\n';
        }
    }
    if (json)
        out << "],\"elements\":[";
    for (unsigned id = 0; id < elements; ++id) {
        const auto eid = static_cast<std::uint16_t>(id);
        if (json && id)
            out << ',';
        if (!database.ElementExists(eid)) {
            out << (json ? "null" : "element " + std::to_string(id) + ": none\n");
            continue;
        }
        const auto element = database.LoadElement(eid);
        if (json)
            JsonElement(out, *element);
        else
            TextElement(out, *element);
    }
    if (json)
        out << "]}\n";
}

std::vector<std::string> ValidateDatabase(CharacterDatabase& database)
{
    std::vector<std::string> problems;
    auto problem = [&](const std::string& text) { problems.push_back(text); };
    for (unsigned id = 0; id < database.CharacterCount(); ++id) {
        const auto cid = static_cast<std::uint16_t>(id);
        if (!database.CharacterExists(cid))
            continue;
        try {
            const auto character = database.LoadCharacter(cid);
            const std::uint16_t eid = character->ElementId();
            if (!database.ElementExists(eid)) {
                problem("character " + std::to_string(id) + ": element " + std::to_string(eid) + " does not exist");
                continue;
            }
            const auto element = database.LoadElement(eid);
            if (element->FormCount() == 0 || element->GetForm(0).StrokeCount() == 0)
                problem("character " + std::to_string(id) + ": element " + std::to_string(eid) + " has no strokes");
        } catch (const ZavorenCommon::DatabaseLoadException& error) {
            problem("character " + std::to_string(id) + ": " + error.what());
        } catch (const std::out_of_range& error) {
            problem("character " + std::to_string(id) + ": bad form reference");
        }
    }
    for (unsigned id = 0; id < database.CategoryCount(); ++id) {
        try {
            const auto category = database.LoadCategory(static_cast<std::uint16_t>(id));
            for (std::uint16_t code : category->Characters())
                if (!database.CharacterExists(code))
                    problem("category " + std::to_string(id) + ": member " + std::to_string(code) + " does not exist");
        } catch (const ZavorenCommon::DatabaseLoadException& error) {
            problem("category " + std::to_string(id) + ": " + error.what());
        }
    }
    return problems;
}
