#include "KanjiInfoDialog.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "Page.h"
#include "Prompt.h"
#include "ui_KanjiInfoDialog.h"

#include "LearnerEvent.h"

#include <QDate>
#include <QLocale>

namespace {
/// Width of the texts' column in dialog units, and the lines each text may take before it is
/// shortened (its tooltip holds all of it).
constexpr int TextColumnUnits = 150;
constexpr int TextLines = 3;
} // namespace

KanjiInfoDialog::KanjiInfoDialog(CharacterDatabase& database, Prompt& prompt, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::KanjiInfoDialog>()), m_database(database), m_prompt(prompt)
{
    m_ui->setupUi(this);
    // Fixed boxes for the texts: the dialog has one size whatever the character.
    MakeTextBox(OnReadingLabel(), TextLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(KunReadingLabel(), TextLines, HorizontalUnits(this, TextColumnUnits));
    MakeTextBox(MeaningLabel(), TextLines, HorizontalUnits(this, TextColumnUnits));
    Display()->MakeSquare();
    connect(Display(), &DisplayCanvas::clicked, this, [this] {
        if (m_glyph)
            Display()->StartAnimation(m_glyph->GetForm(0));
    });
    // When the character is next due for review: under the texts, only when it is told.
    m_nextReview = new QLabel(this);
    m_nextReview->setObjectName(QStringLiteral("nextReview"));
    m_nextReview->setWordWrap(true);
    m_nextReview->hide();
    m_ui->texts->insertWidget(m_ui->texts->indexOf(m_ui->meaning) + 1, m_nextReview);
    connect(CloseButton(), &QPushButton::clicked, this, [this] {
        Display()->StopAnimation();
        done(Closed);
    });
}

KanjiInfoDialog::~KanjiInfoDialog() = default;

DisplayCanvas* KanjiInfoDialog::Display() const
{
    return m_ui->displayCanvas;
}
QLabel* KanjiInfoDialog::OnReadingLabel() const
{
    return m_ui->onReading;
}
QLabel* KanjiInfoDialog::KunReadingLabel() const
{
    return m_ui->kunReading;
}
QLabel* KanjiInfoDialog::MeaningLabel() const
{
    return m_ui->meaning;
}
QPushButton* KanjiInfoDialog::CloseButton() const
{
    return m_ui->closeButton;
}

bool KanjiInfoDialog::SetCode(std::uint16_t code)
{
    CharacterWithGlyph loaded = LoadCharacterOrReport(m_database, code, m_prompt, parentWidget());
    if (!loaded.glyph)
        return false;
    m_character = std::move(loaded.character);
    m_glyph = std::move(loaded.glyph);
    return true;
}

void KanjiInfoDialog::SetNextReview(int dueDay, int today)
{
    if (dueDay <= today) {
        m_nextReview->setText(tr("Next review: due now"));
    } else {
        const QDate date = QDate::fromString(QString::fromStdString(DayText(dueDay)), Qt::ISODate);
        m_nextReview->setText(tr("Next review: %1").arg(QLocale().toString(date, QLocale::ShortFormat)));
    }
    m_nextReview->setAccessibleName(m_nextReview->text());
    m_nextReview->show();
}

void KanjiInfoDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!m_character || !m_glyph)
        return;
    ShowFitted(OnReadingLabel(), TextOrNotAvailable(m_character->OnReading()), TextLines);
    ShowFitted(KunReadingLabel(), TextOrNotAvailable(m_character->KunReading()), TextLines);
    ShowFitted(MeaningLabel(), TextOrNotAvailable(m_character->Meaning()), TextLines);
    Display()->ShowGlyph(m_glyph->GetForm(0));
}

void KanjiInfoDialog::reject()
{
    Display()->StopAnimation();
    done(Cancelled);
}
