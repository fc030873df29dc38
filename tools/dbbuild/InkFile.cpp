#include "InkFile.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

class JsonCursor {
public:
    explicit JsonCursor(const std::string& text) : m_text(text) { }
    void Expect(char c)
    {
        Skip();
        if (m_pos >= m_text.size() || m_text[m_pos] != c)
            Fail(std::string("expected '") + c + "'");
        ++m_pos;
    }
    bool Peek(char c)
    {
        Skip();
        return m_pos < m_text.size() && m_text[m_pos] == c;
    }
    float Number()
    {
        Skip();
        const char* start = m_text.c_str() + m_pos;
        char* end = nullptr;
        const double v = std::strtod(start, &end);
        if (end == start)
            Fail("expected a number");
        m_pos += static_cast<std::size_t>(end - start);
        return static_cast<float>(v);
    }
    void End()
    {
        Skip();
        if (m_pos != m_text.size())
            Fail("unexpected text after the array");
    }
    [[noreturn]] void Fail(const std::string& what) const
    {
        throw InkFileError(what + " at offset " + std::to_string(m_pos));
    }

private:
    void Skip()
    {
        while (m_pos < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_pos])))
            ++m_pos;
    }
    const std::string& m_text;
    std::size_t m_pos = 0;
};

/// One stroke: an array of [x, y] pairs.
StrokePath ReadStroke(JsonCursor& cursor)
{
    StrokePath ink;
    cursor.Expect('[');
    if (!cursor.Peek(']')) {
        do {
            cursor.Expect('[');
            const float x = cursor.Number();
            cursor.Expect(',');
            const float y = cursor.Number();
            cursor.Expect(']');
            ink.Append({x, y});
        } while (cursor.Peek(',') && (cursor.Expect(','), true));
    }
    cursor.Expect(']');
    return ink;
}

std::string ReadText(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw InkFileError(path + ": cannot read the ink file");
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace

StrokePath ParseInkJson(const std::string& text)
{
    JsonCursor cursor(text);
    StrokePath ink = ReadStroke(cursor);
    cursor.End();
    return ink;
}

StrokePath ReadInkFile(const std::string& path)
{
    const std::string text = ReadText(path);
    try {
        return ParseInkJson(text);
    } catch (const InkFileError& e) {
        throw InkFileError(path + ": not a JSON array of [x, y] pairs: " + e.what());
    }
}

std::vector<StrokePath> ParseInkStrokesJson(const std::string& text)
{
    JsonCursor cursor(text);
    std::vector<StrokePath> strokes;
    cursor.Expect('[');
    if (!cursor.Peek(']')) {
        do {
            strokes.push_back(ReadStroke(cursor));
        } while (cursor.Peek(',') && (cursor.Expect(','), true));
    }
    cursor.Expect(']');
    cursor.End();
    return strokes;
}

std::vector<StrokePath> ReadInkStrokesFile(const std::string& path)
{
    const std::string text = ReadText(path);
    try {
        return ParseInkStrokesJson(text);
    } catch (const InkFileError& e) {
        throw InkFileError(path + ": not a JSON array of strokes of [x, y] pairs: " + e.what());
    }
}
