#include "WritingQuiz.h"

void WritingQuiz::Start(std::unique_ptr<Element> glyph, CanvasRect canvas)
{
    m_checker.reset();
    m_glyph = std::move(glyph);
    if (m_glyph)
        m_checker = std::make_unique<StrokeChecker>(m_glyph->GetForm(0), canvas, StrokeChecker::PageSampleCount);
    m_kept = 0;
    m_misses = 0;
    m_hintShown = m_revealed = m_peeked = false;
}

bool WritingQuiz::Accepts(const StrokePath& ink) const
{
    return m_checker && m_checker->Accepts(ink, m_kept);
}

StrokeVerdict WritingQuiz::Judge(const StrokePath& ink) const
{
    if (!m_checker) {
        StrokeVerdict none;
        none.kind = StrokeVerdict::Kind::CharacterComplete;
        return none;
    }
    return JudgeStroke(*m_checker, ink, m_kept);
}

void WritingQuiz::StrokeKept()
{
    ++m_kept;
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::StrokeUndone()
{
    if (m_kept > 0)
        --m_kept;
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::Restart()
{
    m_kept = 0;
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::Reveal()
{
    if (!m_glyph)
        return;
    m_revealed = true;
    if (!IsComplete())
        m_peeked = true;
}
