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
    m_panel = new WritingPanel(Input(), WritingCoach::Mode::Test, this);
    // Right under the writing canvas, in the grid's free row.
    m_ui->grid->addWidget(m_panel->Line(), 1, 1);
    connect(m_panel, &WritingPanel::strokeKept, this, &DrawingTestPage::OnStrokeKept);
    connect(Display(), &DisplayCanvas::clicked, this, &DrawingTestPage::OnDisplayClicked);
}

DrawingTestPage::~DrawingTestPage() = default;

const WritingQuiz& DrawingTestPage::Quiz() const
{
    return m_panel->Quiz();
}

FeedbackLine* DrawingTestPage::Feedback() const
{
    return m_panel->Line();
}

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
    m_panel->Start(character ? LoadGlyphOrReport(m_database, character->ElementId(), m_prompt, this) : nullptr);
    ShowFitted(OnReadingLabel(), TextOrNotAvailable(character ? character->OnReading() : nullptr), ReadingLines);
    ShowFitted(KunReadingLabel(), TextOrNotAvailable(character ? character->KunReading() : nullptr), ReadingLines);
    ShowFitted(MeaningLabel(), TextOrNotAvailable(character ? character->Meaning() : nullptr), MeaningLines);
    Display()->StopAnimation();
    Display()->Wipe();
    // Both canvases stay enabled throughout, even once the drawing is complete.
}

bool DrawingTestPage::IsAnswered() const
{
    return Quiz().IsComplete();
}

void DrawingTestPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_panel->SetCoaching(preferences);
}

void DrawingTestPage::OnStrokeKept()
{
    if (!Quiz().IsComplete())
        return;
    if (!Quiz().Peeked()) {
        Reveal();
        emit pageEvent(AnsweredCleanly, 0);
    } else {
        emit pageEvent(AnsweredWithMistakes, 0);
    }
}

void DrawingTestPage::Reveal()
{
    if (const Form* glyph = Quiz().Glyph()) {
        Display()->ShowGlyph(*glyph);
        m_panel->Quiz().Reveal();
    }
}

void DrawingTestPage::OnDisplayClicked()
{
    const Form* glyph = Quiz().Glyph();
    if (!glyph)
        return;
    if (!Quiz().Revealed())
        Reveal();
    else
        Display()->StartAnimation(*glyph);
}
