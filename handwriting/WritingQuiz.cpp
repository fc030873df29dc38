#include "WritingQuiz.h"

void WritingQuiz::Start(std::unique_ptr<Element> glyph, CanvasRect canvas)
{
    m_checker.reset();
    m_accepted.clear();
    m_canvas = canvas;
    m_glyph = std::move(glyph);
    if (m_glyph)
        m_checker = std::make_unique<StrokeChecker>(m_glyph->GetForm(0), canvas, StrokeChecker::PageSampleCount);
    m_kept = 0;
    m_misses = 0;
    m_hintShown = m_revealed = m_peeked = false;
}

namespace {

/// The centre of a box, canvas pixels.
Point CentreOf(CanvasRect box)
{
    return {box.x + box.width * 0.5f, box.y + box.height * 0.5f};
}

} // namespace

OwnFrame::Pair WritingQuiz::PairOf(const StrokeChecker::Ink& drawn, std::uint16_t index) const
{
    const float expected = m_checker->Template(index).Length();
    return {CentreOf(m_checker->StrokeBounds(index)), Point{drawn.centreX, drawn.centreY},
        expected > 0 ? drawn.length / expected : 0.0f};
}

OwnFrame WritingQuiz::FrameFor(const StrokePath& ink) const
{
    if (!m_ownFrame || !m_checker || m_kept >= m_checker->StrokeCount())
        return OwnFrame();
    if (!m_accepted.empty())
        return OwnFrame::Fit(m_accepted, m_canvas);
    const StrokeChecker::Ink drawn = m_checker->Prepare(ink);
    if (!drawn.hasLength)
        return OwnFrame();
    return OwnFrame::ForFirstStroke(PairOf(drawn, m_kept), m_canvas);
}

bool WritingQuiz::Accepts(const StrokePath& ink) const
{
    if (!m_checker)
        return false;
    if (!m_ownFrame)
        return m_checker->Accepts(ink, m_kept);
    return m_checker->Accepts(FrameFor(ink).ToModel(ink), m_kept);
}

StrokeVerdict WritingQuiz::Judge(const StrokePath& ink) const
{
    if (!m_checker) {
        StrokeVerdict none;
        none.kind = StrokeVerdict::Kind::CharacterComplete;
        return none;
    }
    if (!m_ownFrame)
        return JudgeStroke(*m_checker, ink, m_kept);
    const OwnFrame frame = FrameFor(ink);
    StrokeVerdict verdict = JudgeStroke(*m_checker, frame.ToModel(ink), m_kept);
    if (verdict.kind == StrokeVerdict::Kind::WrongPlace) {
        // The way to go, told in the learner's own character: from where the ink is to where
        // the stroke belongs in it.
        const Point from = frame.ToLearner({verdict.fromX, verdict.fromY});
        verdict.fromX = from.x;
        verdict.fromY = from.y;
        verdict.dx *= frame.Scale();
        verdict.dy *= frame.Scale();
    }
    return verdict;
}

void WritingQuiz::StrokeKept(const StrokePath& ink)
{
    if (m_checker && m_kept < m_checker->StrokeCount()) {
        const StrokeChecker::Ink drawn = m_checker->Prepare(ink);
        if (drawn.hasLength)
            m_accepted.push_back(PairOf(drawn, m_kept));
    }
    ++m_kept;
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::StrokeUndone()
{
    if (m_kept > 0)
        --m_kept;
    if (m_accepted.size() > m_kept)
        m_accepted.resize(m_kept);
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::Restart()
{
    m_kept = 0;
    m_accepted.clear();
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
