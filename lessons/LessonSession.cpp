#include "LessonSession.h"

#include <algorithm>

void LessonSession::Start(std::vector<std::uint16_t> codes)
{
    m_remaining = std::move(codes);
    m_done.clear();
}

std::optional<std::uint16_t> LessonSession::Current() const
{
    if (m_remaining.empty())
        return std::nullopt;
    return m_remaining.front();
}

bool LessonSession::Next()
{
    if (m_remaining.empty())
        return false;
    const std::uint16_t code = m_remaining.front();
    m_remaining.erase(std::find(m_remaining.begin(), m_remaining.end(), code));
    m_done.push_back(code);
    return !m_remaining.empty();
}

LessonControlState DecideLessonControls(bool characterLoaded, int strokes, int drawn, bool allTicked, bool hintShown)
{
    LessonControlState s;
    const bool incomplete = strokes != drawn;
    s.inputEnabled = characterLoaded && incomplete;
    s.nextEnabled = allTicked && !incomplete && characterLoaded;
    s.nextIsDefault = s.nextEnabled;
    s.hintEnabled = incomplete && !hintShown;
    s.clearAndUndoEnabled = drawn > 0;
    return s;
}
