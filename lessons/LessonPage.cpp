#include "LessonPage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FeedbackLine.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "InputCanvas.h"
#include "Prompt.h"
#include "ui_LessonPage.h"

namespace {

/// Width of the column of the display canvas and the three check boxes, in dialog units.
constexpr int LeftColumnUnits = 120;
/// Lines a check box caption may take before it is shortened (the full text is its tooltip).
constexpr int CaptionLines = 2;

void SetCaption(QCheckBox* box, const char* text)
{
    ShowFitted(box, TextOrNotAvailable(text), CaptionLines);
}

} // namespace

LessonPage::LessonPage(CharacterDatabase& database, Prompt& prompt, QWidget* parent)
    : Page(parent), m_ui(std::make_unique<Ui::LessonPage>()), m_database(database), m_prompt(prompt)
{
    m_ui->setupUi(this);
    // The captions take the character's texts: their boxes have a fixed size, so that the
    // canvases never move with the length of a meaning.
    for (QCheckBox* box : {OnReadingBox(), KunReadingBox(), MeaningBox()})
        MakeTextBox(box, CaptionLines, HorizontalUnits(this, LeftColumnUnits));
    Display()->MakeSquare();
    m_panel = new WritingPanel(Input(), WritingCoach::Mode::Lesson, this);
    // Right under the writing canvas: its column grows by the line, nothing else moves.
    m_ui->rightColumn->insertWidget(m_ui->rightColumn->indexOf(Input()) + 1, m_panel->Line());
    connect(m_panel, &WritingPanel::strokeRefused, this, &LessonPage::OnStrokeRefused);
    connect(m_panel, &WritingPanel::strokeKept, this, &LessonPage::RefreshControls);
    connect(Display(), &DisplayCanvas::clicked, this, [this] {
        if (const Form* glyph = m_panel->Quiz().Glyph())
            Display()->StartAnimation(*glyph);
    });
    for (QCheckBox* box : {OnReadingBox(), KunReadingBox(), MeaningBox()})
        connect(box, &QCheckBox::toggled, this, &LessonPage::RefreshControls);
    connect(ClearButton(), &QPushButton::clicked, this, [this] {
        Input()->Clear();
        m_panel->Quiz().Restart();
        RefreshControls();
    });
    connect(UndoButton(), &QPushButton::clicked, this, [this] {
        Input()->Undo();
        m_panel->Quiz().StrokeUndone();
        RefreshControls();
    });
    connect(HintButton(), &QPushButton::clicked, this, &LessonPage::ShowHint);
    connect(AbortButton(), &QPushButton::clicked, this, &LessonPage::Cancel);
    connect(NextButton(), &QPushButton::clicked, this, &LessonPage::OnNext);
    RefreshControls();
}

LessonPage::~LessonPage() = default;

DisplayCanvas* LessonPage::Display() const
{
    return m_ui->displayCanvas;
}
InputCanvas* LessonPage::Input() const
{
    return m_ui->inputCanvas;
}
QCheckBox* LessonPage::OnReadingBox() const
{
    return m_ui->onReading;
}
QCheckBox* LessonPage::KunReadingBox() const
{
    return m_ui->kunReading;
}
QCheckBox* LessonPage::MeaningBox() const
{
    return m_ui->meaning;
}
QPushButton* LessonPage::ClearButton() const
{
    return m_ui->clearButton;
}
QPushButton* LessonPage::UndoButton() const
{
    return m_ui->undoButton;
}
QPushButton* LessonPage::HintButton() const
{
    return m_ui->hintButton;
}
QPushButton* LessonPage::AbortButton() const
{
    return m_ui->abortButton;
}
QPushButton* LessonPage::NextButton() const
{
    return m_ui->nextButton;
}

const Form* LessonPage::Glyph() const
{
    return m_panel->Quiz().Glyph();
}

FeedbackLine* LessonPage::Feedback() const
{
    return m_panel->Line();
}

void LessonPage::StartLesson(const std::vector<std::uint16_t>& codes)
{
    m_session.Start(codes);
    LoadCharacter();
    RefreshControls();
}

void LessonPage::LoadCharacter()
{
    for (QCheckBox* box : {OnReadingBox(), KunReadingBox(), MeaningBox()}) {
        const QSignalBlocker block(box);
        box->setChecked(false);
    }
    m_panel->Start(nullptr);
    m_character.reset();
    Display()->StopAnimation();
    const auto code = m_session.Current();
    if (!code) {
        Display()->Wipe();
        return;
    }
    CharacterWithGlyph loaded = LoadCharacterOrReport(m_database, *code, m_prompt, this);
    if (!loaded.glyph)
        return;
    m_character = std::move(loaded.character);
    m_panel->Start(std::move(loaded.glyph));
    Display()->ShowGlyph(*Glyph());
    SetCaption(OnReadingBox(), m_character->OnReading());
    SetCaption(KunReadingBox(), m_character->KunReading());
    SetCaption(MeaningBox(), m_character->Meaning());
}

void LessonPage::RefreshControls()
{
    const bool ticked = OnReadingBox()->isChecked() && KunReadingBox()->isChecked() && MeaningBox()->isChecked();
    const WritingQuiz& quiz = m_panel->Quiz();
    const LessonControlState s
        = DecideLessonControls(quiz.Glyph() != nullptr, quiz.StrokeCount(), quiz.Kept(), ticked, quiz.HintShown());
    Input()->setEnabled(s.inputEnabled);
    NextButton()->setEnabled(s.nextEnabled);
    SetDefaultButton(s.nextIsDefault ? NextButton() : AbortButton());
    HintButton()->setEnabled(s.hintEnabled);
    ClearButton()->setEnabled(s.clearAndUndoEnabled);
    UndoButton()->setEnabled(s.clearAndUndoEnabled);
}

void LessonPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_panel->SetCoaching(preferences);
}

void LessonPage::ShowHint()
{
    const Form* glyph = Glyph();
    if (!glyph)
        return;
    Input()->ShowHint(*glyph, m_panel->Quiz().Kept());
    m_panel->Quiz().ShowHint();
    RefreshControls();
}

void LessonPage::OnStrokeRefused()
{
    // Three misses of one stroke: its start is shown, as Hint would show it.
    if (m_panel->Coaching().hintAfterMisses && m_panel->Quiz().NeedsHelp())
        ShowHint();
    RefreshControls();
}

void LessonPage::OnNext()
{
    if (!NextButton()->isEnabled())
        return;
    if (m_session.Next()) {
        LoadCharacter();
        RefreshControls();
    } else {
        emit pageEvent(Finished, 0);
    }
}

void LessonPage::Cancel()
{
    emit pageEvent(Aborted, 0);
}

void LessonPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    RefreshControls();
}

void LessonPage::hideEvent(QHideEvent* event)
{
    Display()->StopAnimation();
    Page::hideEvent(event);
}
