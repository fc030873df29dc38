#include "LessonPage.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FeedbackLine.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "InputCanvas.h"
#include "Prompt.h"
#include "WritingCursor.h"
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
    Input()->MakeSquare();
    Input()->setCursor(WritingCursor());
    // Right under the writing canvas: its column grows by the line, nothing else moves.
    m_feedback = new FeedbackLine(this);
    m_ui->rightColumn->insertWidget(m_ui->rightColumn->indexOf(Input()) + 1, m_feedback);
    m_coach = std::make_unique<WritingCoach>(Input(), m_feedback, WritingCoach::Mode::Lesson);
    connect(Input(), &InputCanvas::strokeStarted, this, [this] { m_coach->Quiet(); });
    connect(Input(), &InputCanvas::strokeEnded, this, &LessonPage::OnStrokeEnded, Qt::DirectConnection);
    connect(Input(), &InputCanvas::strokeKept, this, &LessonPage::OnStrokeKept, Qt::DirectConnection);
    connect(Display(), &DisplayCanvas::clicked, this, [this] {
        if (const Form* glyph = m_quiz.Glyph())
            Display()->StartAnimation(*glyph, 10);
    });
    for (QCheckBox* box : {OnReadingBox(), KunReadingBox(), MeaningBox()})
        connect(box, &QCheckBox::toggled, this, &LessonPage::RefreshControls);
    connect(ClearButton(), &QPushButton::clicked, this, [this] {
        Input()->Clear();
        m_quiz.Restart();
        RefreshControls();
    });
    connect(UndoButton(), &QPushButton::clicked, this, [this] {
        Input()->Undo();
        m_quiz.StrokeUndone();
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
    return m_quiz.Glyph();
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
    m_quiz.Start(nullptr, {});
    m_coach->Quiet();
    m_character.reset();
    Display()->StopAnimation();
    const auto code = m_session.Current();
    if (!code) {
        Display()->Wipe();
        Input()->Wipe();
        Input()->Clear();
        return;
    }
    CharacterWithGlyph loaded = LoadCharacterOrReport(m_database, *code, m_prompt, this);
    if (!loaded.glyph)
        return;
    m_character = std::move(loaded.character);
    const QRect client = Input()->ClientRect();
    m_quiz.Start(std::move(loaded.glyph),
        CanvasRect{0, 0, static_cast<std::uint16_t>(client.width()), static_cast<std::uint16_t>(client.height())});
    Display()->ShowGlyph(*m_quiz.Glyph());
    SetCaption(OnReadingBox(), m_character->OnReading());
    SetCaption(KunReadingBox(), m_character->KunReading());
    SetCaption(MeaningBox(), m_character->Meaning());
    Input()->Wipe();
    Input()->Clear();
}

void LessonPage::RefreshControls()
{
    const bool ticked = OnReadingBox()->isChecked() && KunReadingBox()->isChecked() && MeaningBox()->isChecked();
    const LessonControlState s = DecideLessonControls(
        m_quiz.Glyph() != nullptr, m_quiz.StrokeCount(), m_quiz.Kept(), ticked, m_quiz.HintShown());
    Input()->setEnabled(s.inputEnabled);
    NextButton()->setEnabled(s.nextEnabled);
    SetDefaultButton(s.nextIsDefault ? NextButton() : AbortButton());
    HintButton()->setEnabled(s.hintEnabled);
    ClearButton()->setEnabled(s.clearAndUndoEnabled);
    UndoButton()->setEnabled(s.clearAndUndoEnabled);
}

void LessonPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_coach->SetPreferences(preferences);
}

void LessonPage::ShowHint()
{
    const Form* glyph = m_quiz.Glyph();
    if (!glyph)
        return;
    Input()->ShowHint(*glyph, m_quiz.Kept());
    m_quiz.ShowHint();
    RefreshControls();
}

void LessonPage::OnStrokeEnded()
{
    const StrokePath ink = Input()->CurrentStroke();
    // One judgement: accepted exactly when the checker's score accepts the stroke.
    const StrokeVerdict verdict = m_quiz.Judge(ink);
    if (verdict.kind != StrokeVerdict::Kind::Accepted) {
        Input()->Undo();
        m_quiz.StrokeRefused();
        m_coach->Refused(verdict, ink, m_quiz.Glyph());
        // Three misses of one stroke: its start is shown, as Hint would show it.
        if (m_coach->Preferences().hintAfterMisses && m_quiz.NeedsHelp())
            ShowHint();
    }
    RefreshControls();
}

void LessonPage::OnStrokeKept()
{
    m_quiz.StrokeKept();
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
