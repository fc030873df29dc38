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

} // namespace

StrokePath ParseInkJson(const std::string& text)
{
    JsonCursor cursor(text);
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
    cursor.End();
    return ink;
}

StrokePath ReadInkFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw InkFileError(path + ": cannot read the ink file");
    std::stringstream text;
    text << file.rdbuf();
    try {
        return ParseInkJson(text.str());
    } catch (const InkFileError& e) {
        throw InkFileError(path + ": not a JSON array of [x, y] pairs: " + e.what());
    }
}
