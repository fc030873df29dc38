#include "WritingPanel.h"

#include "FeedbackLine.h"
#include "InkSteadier.h"
#include "InputCanvas.h"
#include "WritingCursor.h"

WritingPanel::WritingPanel(InputCanvas* canvas, WritingCoach::Mode mode, QWidget* page)
    : QObject(page), m_canvas(canvas), m_line(new FeedbackLine(page)), m_coach(canvas, m_line, mode)
{
    m_quiz.SetOwnFrame(m_coach.Preferences().ownFrame);
    m_quiz.SetOtherOrders(m_coach.Preferences().otherOrders);
    m_canvas->MakeSquare();
    m_canvas->setCursor(WritingCursor());
    connect(m_canvas, &InputCanvas::strokeStarted, this, [this] { m_coach.Quiet(); });
    connect(m_canvas, &InputCanvas::strokeEnded, this, &WritingPanel::OnStrokeEnded, Qt::DirectConnection);
    connect(
        m_canvas, &InputCanvas::strokeKept, this,
        [this] {
            m_quiz.StrokeKept(m_acceptedInk);
            if (m_quiz.TakeOrderChange())
                m_coach.OtherOrderTaken();
            emit strokeKept();
        },
        Qt::DirectConnection);
}

WritingPanel::~WritingPanel() = default;

void WritingPanel::Start(std::unique_ptr<Element> glyph)
{
    const QRect client = m_canvas->ClientRect();
    m_quiz.Start(std::move(glyph),
        CanvasRect{0, 0, static_cast<std::uint16_t>(client.width()), static_cast<std::uint16_t>(client.height())});
    m_coach.Quiet();
    m_canvas->Wipe();
    m_canvas->Clear();
}

void WritingPanel::OnStrokeEnded()
{
    // The canvas keeps the ink as drawn; the quiz, the coach and the own frame see it steadied.
    const StrokePath drawn = m_canvas->CurrentStroke();
    const StrokePath ink = m_coach.Preferences().steadyInk ? InkSteadier::Steady(drawn) : drawn;
    // One judgement: accepted exactly when the checker accepts the stroke, which the canvas
    // then keeps (and reports as kept).
    const StrokeVerdict verdict = m_quiz.Judge(ink);
    if (verdict.kind == StrokeVerdict::Kind::Accepted) {
        m_acceptedInk = ink; // joins the learner's character once the canvas keeps it
        return;
    }
    m_canvas->Undo();
    m_quiz.StrokeRefused();
    m_coach.Refused(verdict, ink, m_quiz.Glyph());
    emit strokeRefused();
}
