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
    MakeTextBox(m_ui->onReading, ReadingLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(m_ui->kunReading, ReadingLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(m_ui->meaning, MeaningLines, HorizontalUnits(this, TextColumnUnits));
    m_ui->displayCanvas->MakeSquare();
    m_panel = new WritingPanel(m_ui->inputCanvas, WritingCoach::Mode::Test, this);
    // Right under the writing canvas, in the grid's free row.
    m_ui->grid->addWidget(m_panel->Line(), 1, 1);
    connect(m_panel, &WritingPanel::strokeKept, this, &DrawingTestPage::OnStrokeKept);
    connect(m_ui->displayCanvas, &DisplayCanvas::clicked, this, &DrawingTestPage::OnDisplayClicked);
}

DrawingTestPage::~DrawingTestPage() = default;

const WritingQuiz& DrawingTestPage::Quiz() const
{
    return m_panel->Quiz();
}

void DrawingTestPage::SetCharacter(const Character* character)
{
    m_character = character;
    m_panel->Start(character ? LoadGlyphOrReport(m_database, character->ElementId(), m_prompt, this) : nullptr);
    ShowFitted(m_ui->onReading, TextOrNotAvailable(character ? character->OnReading() : nullptr), ReadingLines);
    ShowFitted(m_ui->kunReading, TextOrNotAvailable(character ? character->KunReading() : nullptr), ReadingLines);
    ShowFitted(m_ui->meaning, TextOrNotAvailable(character ? character->Meaning() : nullptr), MeaningLines);
    m_ui->displayCanvas->StopAnimation();
    m_ui->displayCanvas->Wipe();
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
        m_ui->displayCanvas->ShowGlyph(*glyph);
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
        m_ui->displayCanvas->StartAnimation(*glyph);
}
