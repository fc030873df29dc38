#include "SvgPath.h"

#include <cctype>
#include <charconv>
#include <string>

namespace {

class PathLexer {
public:
    explicit PathLexer(std::string_view data) : m_data(data) { }

    void SkipSeparators()
    {
        while (
            m_pos < m_data.size() && (std::isspace(static_cast<unsigned char>(m_data[m_pos])) || m_data[m_pos] == ','))
            ++m_pos;
    }
    bool AtEnd()
    {
        SkipSeparators();
        return m_pos >= m_data.size();
    }
    /// True when the next token is a number (so a command's parameters repeat).
    bool NumberFollows()
    {
        SkipSeparators();
        if (m_pos >= m_data.size())
            return false;
        const char c = m_data[m_pos];
        return std::isdigit(static_cast<unsigned char>(c)) || c == '-' || c == '+' || c == '.';
    }
    char Command()
    {
        SkipSeparators();
        const char c = m_data[m_pos];
        if (!std::isalpha(static_cast<unsigned char>(c)))
            Fail(std::string("expected a path command, found '") + c + "'");
        ++m_pos;
        return c;
    }
    float Number()
    {
        SkipSeparators();
        const std::size_t start = m_pos;
        std::size_t p = m_pos;
        auto digits = [&] {
            const std::size_t from = p;
            while (p < m_data.size() && std::isdigit(static_cast<unsigned char>(m_data[p])))
                ++p;
            return p > from;
        };
        if (p < m_data.size() && (m_data[p] == '-' || m_data[p] == '+'))
            ++p;
        bool any = digits();
        if (p < m_data.size() && m_data[p] == '.') {
            ++p;
            any = digits() || any;
        }
        if (!any)
            Fail("expected a number");
        if (p < m_data.size() && (m_data[p] == 'e' || m_data[p] == 'E')) {
            std::size_t q = p + 1;
            if (q < m_data.size() && (m_data[q] == '-' || m_data[q] == '+'))
                ++q;
            if (q < m_data.size() && std::isdigit(static_cast<unsigned char>(m_data[q]))) {
                p = q;
                digits();
            }
        }
        std::string text(m_data.substr(start, p - start));
        if (text[0] == '+')
            text.erase(0, 1);
        float value = 0.0f;
        const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (ec != std::errc() || end != text.data() + text.size())
            Fail("bad number '" + text + "'");
        m_pos = p;
        return value;
    }
    [[noreturn]] void Fail(const std::string& what) const
    {
        throw SvgPathError(what + " at offset " + std::to_string(m_pos));
    }

private:
    std::string_view m_data;
    std::size_t m_pos = 0;
};

} // namespace

Stroke ParseSvgPath(std::string_view data)
{
    PathLexer lexer(data);
    if (lexer.AtEnd())
        lexer.Fail("empty path");
    Stroke stroke;
    bool started = false;
    Point current;
    Point subpathStart;
    Point lastControl; // second control point of the previous curve, for S/s
    bool lastWasCurve = false;

    while (!lexer.AtEnd()) {
        const char command = lexer.Command();
        const bool relative = std::islower(static_cast<unsigned char>(command));
        const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(command)));
        if (!started && upper != 'M')
            lexer.Fail(std::string("path must begin with a moveto, found '") + command + "'");
        auto point = [&] {
            float x = lexer.Number();
            float y = lexer.Number();
            if (relative) {
                x += current.x;
                y += current.y;
            }
            return Point{x, y};
        };
        bool first = true;
        do {
            bool curve = false;
            switch (upper) {
            case 'M': {
                const Point p = point();
                if (first) {
                    if (!started) {
                        stroke.SetStart(p);
                        started = true;
                    } else {
                        stroke.AppendSegment(Segment(SegmentType::Move, p));
                    }
                    subpathStart = p;
                } else {
                    // Pairs after a moveto are implicit linetos.
                    stroke.AppendSegment(Segment(SegmentType::Line, p));
                }
                current = p;
                break;
            }
            case 'L': {
                current = point();
                stroke.AppendSegment(Segment(SegmentType::Line, current));
                break;
            }
            case 'H': {
                const float x = lexer.Number() + (relative ? current.x : 0.0f);
                current = {x, current.y};
                stroke.AppendSegment(Segment(SegmentType::Line, current));
                break;
            }
            case 'V': {
                const float y = lexer.Number() + (relative ? current.y : 0.0f);
                current = {current.x, y};
                stroke.AppendSegment(Segment(SegmentType::Line, current));
                break;
            }
            case 'C':
            case 'S': {
                // S takes its first control point as the reflection of the previous curve's
                // second one (the current point after anything else).
                Point p1 = current;
                if (upper == 'C')
                    p1 = point();
                else if (lastWasCurve)
                    p1 = Point{2 * current.x - lastControl.x, 2 * current.y - lastControl.y};
                const Point p2 = point();
                const Point p3 = point();
                stroke.AppendSegment(Segment(SegmentType::Bezier, p1, p2, p3));
                lastControl = p2;
                current = p3;
                curve = true;
                break;
            }
            case 'Z':
                stroke.AppendSegment(Segment(SegmentType::Line, subpathStart));
                current = subpathStart;
                break;
            default: lexer.Fail(std::string("unsupported path command '") + command + "'");
            }
            lastWasCurve = curve;
            first = false;
            if (stroke.Segments().size() > 255)
                lexer.Fail("more than 255 segments in one stroke");
        } while (upper != 'Z' && lexer.NumberFollows());
    }
    return stroke;
}
