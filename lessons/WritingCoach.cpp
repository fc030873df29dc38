#include "WritingCoach.h"

#include "FeedbackLine.h"
#include "InputCanvas.h"

#include <QCoreApplication>

WritingCoach::WritingCoach(InputCanvas* canvas, FeedbackLine* line, Mode mode)
    : m_canvas(canvas), m_line(line), m_mode(mode)
{
    SetPreferences(m_preferences);
}

void WritingCoach::SetPreferences(const CoachingPreferences& preferences)
{
    m_preferences = preferences;
    m_line->setVisible(preferences.explainRefusals);
    m_line->Clear();
    m_canvas->SetGuideLines(preferences.practiceGrid);
}

void WritingCoach::Refused(const StrokeVerdict& verdict, const StrokePath& ink, const Form* glyph)
{
    if (!m_preferences.explainRefusals)
        return;
    const bool lesson = m_mode == Mode::Lesson;
    m_line->Say(Explain(verdict, lesson));
    InputCanvas::Refusal refusal;
    refusal.ink = ink.Points();
    if (lesson && verdict.kind == StrokeVerdict::Kind::WrongPlace) {
        const QPointF from(verdict.fromX, verdict.fromY);
        refusal.arrowFrom = from;
        refusal.arrowTo = from + QPointF(verdict.dx, verdict.dy);
    }
    if (lesson && verdict.kind == StrokeVerdict::Kind::WrongDirection && glyph) {
        refusal.startOf = glyph;
        refusal.strokeIndex = verdict.expected;
    }
    m_canvas->ShowRefusal(std::move(refusal));
}

void WritingCoach::Quiet()
{
    m_line->Clear();
}

QString WritingCoach::Explain(const StrokeVerdict& verdict, bool lesson)
{
    QString text = QCoreApplication::translate("WritingCoach", VerdictSentence(verdict, lesson));
    if (verdict.kind == StrokeVerdict::Kind::WrongOrder)
        text = text.arg(verdict.drawnAs + 1).arg(verdict.expected + 1);
    return text;
}

void WritingCoach::OtherOrderTaken()
{
    if (m_preferences.explainRefusals)
        m_line->Say(tr("Also correct: the order taught in other schools."));
}
