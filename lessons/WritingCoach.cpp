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
    using Kind = StrokeVerdict::Kind;
    switch (verdict.kind) {
    case Kind::Accepted: return {};
    case Kind::WrongOrder:
        return tr("Wrong order: that is stroke %1. Write stroke %2 first.").arg(verdict.drawnAs + 1).arg(verdict.expected + 1);
    case Kind::WrongDirection: return tr("Wrong direction: start this stroke from the other end.");
    case Kind::WrongPlace: {
        // Whole sentences for each way, so that every language can say it its own way.
        static const std::pair<const char*, const char*> Ways[] = {
            {"up", QT_TR_NOOP("Wrong place: this stroke belongs further up.")},
            {"down", QT_TR_NOOP("Wrong place: this stroke belongs further down.")},
            {"left", QT_TR_NOOP("Wrong place: this stroke belongs further left.")},
            {"right", QT_TR_NOOP("Wrong place: this stroke belongs further right.")},
            {"up and to the left", QT_TR_NOOP("Wrong place: this stroke belongs further up and to the left.")},
            {"up and to the right", QT_TR_NOOP("Wrong place: this stroke belongs further up and to the right.")},
            {"down and to the left", QT_TR_NOOP("Wrong place: this stroke belongs further down and to the left.")},
            {"down and to the right", QT_TR_NOOP("Wrong place: this stroke belongs further down and to the right.")},
        };
        if (lesson) {
            const std::string way = PlaceDirection(verdict.dx, verdict.dy);
            for (const auto& [name, sentence] : Ways)
                if (way == name)
                    return tr(sentence);
        }
        return tr("Wrong place.");
    }
    case Kind::TooShort: return tr("Too short: this stroke is longer.");
    case Kind::TooLong: return tr("Too long: this stroke is shorter.");
    case Kind::WrongShape: return tr("Wrong shape: compare it with the model.");
    case Kind::CharacterComplete: return tr("The character is already complete.");
    }
    return {};
}
