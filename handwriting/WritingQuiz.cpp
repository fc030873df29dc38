#include "WritingQuiz.h"

void WritingQuiz::Start(std::unique_ptr<Element> glyph, CanvasRect canvas)
{
    m_checker = nullptr;
    m_checkers.clear();
    m_accepted.clear();
    m_keptInk.clear();
    m_canvas = canvas;
    m_glyph = std::move(glyph);
    m_form = 0;
    m_orderChanged = false;
    if (m_glyph && m_glyph->FormCount() > 0) {
        m_checkers.resize(m_glyph->FormCount());
        m_checker = &CheckerOf(0);
    } else {
        m_glyph.reset();
    }
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

const StrokeChecker& WritingQuiz::CheckerOf(std::uint8_t form) const
{
    if (!m_checkers[form])
        m_checkers[form]
            = std::make_unique<StrokeChecker>(m_glyph->GetForm(form), m_canvas, StrokeChecker::PageSampleCount);
    return *m_checkers[form];
}

bool WritingQuiz::Accepts(const StrokePath& ink) const
{
    if (!m_checker)
        return false;
    const bool here
        = m_ownFrame ? m_checker->Accepts(FrameFor(ink).ToModel(ink), m_kept) : m_checker->Accepts(ink, m_kept);
    return here || OtherOrderFor(ink).has_value();
}

std::optional<std::uint8_t> WritingQuiz::OtherOrderFor(const StrokePath& ink) const
{
    if (!m_otherOrders || !m_glyph || m_glyph->FormCount() < 2)
        return std::nullopt;
    // Every stroke in the frame the next stroke is judged in: the learner's character as it is.
    const OwnFrame frame = FrameFor(ink);
    for (std::uint8_t form = 0; form < m_glyph->FormCount(); ++form) {
        if (form == m_form)
            continue;
        const StrokeChecker& other = CheckerOf(form);
        if (other.StrokeCount() <= m_kept || !other.Accepts(m_ownFrame ? frame.ToModel(ink) : ink, m_kept))
            continue;
        bool earlier = true;
        for (std::uint16_t k = 0; k < m_kept && earlier; ++k)
            earlier = other.Accepts(m_ownFrame ? frame.ToModel(m_keptInk[k]) : m_keptInk[k], k);
        if (earlier)
            return form;
    }
    return std::nullopt;
}

StrokeVerdict WritingQuiz::Judge(const StrokePath& ink) const
{
    if (!m_checker) {
        StrokeVerdict none;
        none.kind = StrokeVerdict::Kind::CharacterComplete;
        return none;
    }
    StrokeVerdict verdict = JudgeIn(*m_checker, ink);
    if (verdict.kind != StrokeVerdict::Kind::Accepted && m_kept < m_checker->StrokeCount())
        if (OtherOrderFor(ink)) {
            // Right in another order KanjiVG records: accepted, and that order is taken once kept.
            StrokeVerdict accepted;
            accepted.expected = m_kept;
            accepted.otherOrder = true;
            return accepted;
        }
    return verdict;
}

StrokeVerdict WritingQuiz::JudgeIn(const StrokeChecker& checker, const StrokePath& ink) const
{
    if (!m_ownFrame)
        return JudgeStroke(checker, ink, m_kept);
    const OwnFrame frame = FrameFor(ink);
    StrokeVerdict verdict = JudgeStroke(checker, frame.ToModel(ink), m_kept);
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
    if (m_checker && m_kept < m_checker->StrokeCount()
        && !m_checker->Accepts(m_ownFrame ? FrameFor(ink).ToModel(ink) : ink, m_kept))
        if (const std::optional<std::uint8_t> other = OtherOrderFor(ink)) {
            // The learner takes that order: judged in it from now on, the kept strokes' places
            // read against its strokes.
            m_form = *other;
            m_checker = &CheckerOf(*other);
            m_orderChanged = true;
            m_accepted.clear();
            for (std::uint16_t k = 0; k < m_kept; ++k) {
                const StrokeChecker::Ink drawn = m_checker->Prepare(m_keptInk[k]);
                if (drawn.hasLength)
                    m_accepted.push_back(PairOf(drawn, k));
            }
        }
    if (m_checker && m_kept < m_checker->StrokeCount()) {
        const StrokeChecker::Ink drawn = m_checker->Prepare(ink);
        if (drawn.hasLength)
            m_accepted.push_back(PairOf(drawn, m_kept));
    }
    m_keptInk.push_back(ink);
    ++m_kept;
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::StrokeUndone()
{
    if (m_kept > 0)
        --m_kept;
    if (m_keptInk.size() > m_kept)
        m_keptInk.resize(m_kept);
    if (m_accepted.size() > m_kept)
        m_accepted.resize(m_kept);
    m_misses = 0;
    m_hintShown = false;
}

void WritingQuiz::Restart()
{
    m_kept = 0;
    m_accepted.clear();
    m_keptInk.clear();
    // Written afresh: in the standard order until another is taken again.
    if (m_glyph) {
        m_form = 0;
        m_checker = &CheckerOf(0);
    }
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
