#include "DrawingTestPage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FeedbackLine.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "InputCanvas.h"
#include "Page.h"
#include "Prompt.h"
#include "WritingCursor.h"
#include "ui_DrawingTestPage.h"

namespace {
/// Width of the column of the display canvas and the texts, in dialog units.
constexpr int TextColumnUnits = 120;
/// Lines each text may take before it is shortened (its tooltip holds all of it).
constexpr int ReadingLines = 2;
constexpr int MeaningLines = 3;
} // namespace

DrawingTestPage::DrawingTestPage(CharacterDatabase& database, Prompt& prompt, QWidget* parent)
    : QuestionPage(parent), m_ui(std::make_unique<Ui::DrawingTestPage>()), m_database(database), m_prompt(prompt)
{
    m_ui->setupUi(this);
    // The texts have boxes of a fixed size: the canvases never move with their length.
    MakeTextBox(OnReadingLabel(), ReadingLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(KunReadingLabel(), ReadingLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(MeaningLabel(), MeaningLines, HorizontalUnits(this, TextColumnUnits));
    Display()->MakeSquare();
    Input()->MakeSquare();
    Input()->setCursor(WritingCursor());
    // Right under the writing canvas, in the grid's free row.
    m_feedback = new FeedbackLine(this);
    m_ui->grid->addWidget(m_feedback, 1, 1);
    m_coach = std::make_unique<WritingCoach>(Input(), m_feedback, WritingCoach::Mode::Test);
    connect(Input(), &InputCanvas::strokeStarted, this, [this] { m_coach->Quiet(); });
    connect(Input(), &InputCanvas::strokeEnded, this, &DrawingTestPage::OnStrokeEnded, Qt::DirectConnection);
    connect(Input(), &InputCanvas::strokeKept, this, &DrawingTestPage::OnStrokeKept, Qt::DirectConnection);
    connect(Display(), &DisplayCanvas::clicked, this, &DrawingTestPage::OnDisplayClicked);
}

DrawingTestPage::~DrawingTestPage() = default;

DisplayCanvas* DrawingTestPage::Display() const
{
    return m_ui->displayCanvas;
}
InputCanvas* DrawingTestPage::Input() const
{
    return m_ui->inputCanvas;
}
QLabel* DrawingTestPage::OnReadingLabel() const
{
    return m_ui->onReading;
}
QLabel* DrawingTestPage::KunReadingLabel() const
{
    return m_ui->kunReading;
}
QLabel* DrawingTestPage::MeaningLabel() const
{
    return m_ui->meaning;
}

void DrawingTestPage::SetCharacter(const Character* character)
{
    m_character = character;
    const QRect client = Input()->ClientRect();
    m_quiz.Start(character ? LoadGlyphOrReport(m_database, character->ElementId(), m_prompt, this) : nullptr,
        CanvasRect{0, 0, static_cast<std::uint16_t>(client.width()), static_cast<std::uint16_t>(client.height())});
    ShowFitted(OnReadingLabel(), TextOrNotAvailable(character ? character->OnReading() : nullptr), ReadingLines);
    ShowFitted(KunReadingLabel(), TextOrNotAvailable(character ? character->KunReading() : nullptr), ReadingLines);
    ShowFitted(MeaningLabel(), TextOrNotAvailable(character ? character->Meaning() : nullptr), MeaningLines);
    m_coach->Quiet();
    Display()->StopAnimation();
    Display()->Wipe();
    Input()->Wipe();
    Input()->Clear();
    // Both canvases stay enabled throughout, even once the drawing is complete.
}

bool DrawingTestPage::IsAnswered() const
{
    return m_quiz.IsComplete();
}

void DrawingTestPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_coach->SetPreferences(preferences);
}

void DrawingTestPage::OnStrokeEnded()
{
    const StrokePath ink = Input()->CurrentStroke();
    // One judgement: accepted exactly when the checker's score accepts the stroke.
    const StrokeVerdict verdict = m_quiz.Judge(ink);
    if (verdict.kind != StrokeVerdict::Kind::Accepted) {
        Input()->Undo();
        m_quiz.StrokeRefused();
        m_coach->Refused(verdict, ink, m_quiz.Glyph());
    }
}

void DrawingTestPage::OnStrokeKept()
{
    m_quiz.StrokeKept();
    if (!m_quiz.IsComplete())
        return;
    if (!m_quiz.Peeked()) {
        Reveal();
        emit pageEvent(AnsweredCleanly, 0);
    } else {
        emit pageEvent(AnsweredWithMistakes, 0);
    }
}

void DrawingTestPage::Reveal()
{
    if (const Form* glyph = m_quiz.Glyph()) {
        Display()->ShowGlyph(*glyph);
        m_quiz.Reveal();
    }
}

void DrawingTestPage::OnDisplayClicked()
{
    const Form* glyph = m_quiz.Glyph();
    if (!glyph)
        return;
    if (!m_quiz.Revealed())
        Reveal();
    else
        Display()->StartAnimation(*glyph, 10);
}
