#include "DrawingTestPage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "GlyphLoading.h"
#include "InputCanvas.h"
#include "MessageBox.h"
#include "Page.h"
#include "WritingCursor.h"
#include "ui_DrawingTestPage.h"

DrawingTestPage::DrawingTestPage(CharacterDatabase& database, QWidget* parent)
    : QuestionPage(parent), m_ui(std::make_unique<Ui::DrawingTestPage>()), m_database(database)
{
    m_ui->setupUi(this);
    Display()->MakeSquare();
    Input()->MakeSquare();
    Input()->setCursor(WritingCursor());
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
    m_revealed = m_peeked = false;
    m_checker.reset();
    m_glyph.reset();
    if (character) {
        m_glyph = LoadGlyphOrReport(m_database, character->ElementId(), this);
        if (m_glyph) {
            const QRect client = Input()->ClientRect();
            m_checker = std::make_unique<StrokeChecker>(m_glyph->GetForm(0),
                CanvasRect{
                    0, 0, static_cast<std::uint16_t>(client.width()), static_cast<std::uint16_t>(client.height())},
                StrokeChecker::PageSampleCount);
        }
    }
    OnReadingLabel()->setText(TextOrNotAvailable(character ? character->OnReading() : nullptr));
    KunReadingLabel()->setText(TextOrNotAvailable(character ? character->KunReading() : nullptr));
    MeaningLabel()->setText(TextOrNotAvailable(character ? character->Meaning() : nullptr));
    Display()->StopAnimation();
    Display()->Wipe();
    Input()->Wipe();
    Input()->Clear();
    // Both canvases stay enabled throughout, even once the drawing is complete.
}

bool DrawingTestPage::IsAnswered() const
{
    return m_glyph && Input()->StrokeCount() == m_glyph->GetForm(0).StrokeCount();
}

void DrawingTestPage::OnStrokeEnded()
{
    // A stroke beyond the glyph's last one is scored at that index too, which refuses it.
    const int index = Input()->StrokeCount() - 1;
    const float score
        = m_checker ? m_checker->Score(Input()->CurrentStroke(), static_cast<std::uint16_t>(index)) : -1.0f;
    if (score < 1.0f)
        Input()->Undo();
}

void DrawingTestPage::OnStrokeKept()
{
    if (!IsAnswered())
        return;
    if (!m_peeked) {
        Reveal();
        emit pageEvent(AnsweredCleanly, 0);
    } else {
        emit pageEvent(AnsweredWithMistakes, 0);
    }
}

void DrawingTestPage::Reveal()
{
    if (!m_glyph)
        return;
    Display()->ShowGlyph(m_glyph->GetForm(0));
    m_revealed = true;
    if (!IsAnswered())
        m_peeked = true;
}

void DrawingTestPage::OnDisplayClicked()
{
    if (!m_glyph)
        return;
    if (!m_revealed)
        Reveal();
    else
        Display()->StartAnimation(m_glyph->GetForm(0), 10);
}
