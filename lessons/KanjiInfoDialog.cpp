#include "KanjiInfoDialog.h"

#include <algorithm>

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DisplayCanvas.h"
#include "FittedText.h"
#include "GlyphLoading.h"
#include "GlyphRendering.h"
#include "Page.h"
#include "Prompt.h"
#include "ui_KanjiInfoDialog.h"

#include <QPushButton>

#include "LearnerEvent.h"

#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
/// Width of the texts' column in dialog units, and the lines each text may take before it is
/// shortened (its tooltip holds all of it).
constexpr int TextColumnUnits = 150;
constexpr int TextLines = 3;
/// Pen of a part drawn on its own, in pixels at ratio 1: a little finer than the big canvas's.
constexpr qreal PartPenWidth = 2.0;

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
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
    ShowWordsAndParts(code);
    ShowOtherOrders();
    return true;
}

QPixmap KanjiInfoDialog::OrderStrip(const Form& form) const
{
    // Small frames in rows of at most eight, frame k drawing strokes 1..k.
    constexpr int Frame = 26, Gap = 3, PerRow = 8;
    const int count = form.StrokeCount();
    const int columns = std::min(count, PerRow), rows = (count + PerRow - 1) / PerRow;
    const qreal ratio = devicePixelRatioF();
    QImage image(qRound((columns * (Frame + Gap) - Gap) * ratio), qRound((rows * (Frame + Gap) - Gap) * ratio),
        QImage::Format_RGB32);
    image.fill(palette().color(QPalette::Window));
    const QRgb ink = palette().color(QPalette::WindowText).rgb();
    const QRgb accent = palette().color(QPalette::Highlight).rgb();
    for (int k = 0; k < count; ++k) {
        const QRect frame(qRound((k % PerRow) * (Frame + Gap) * ratio), qRound((k / PerRow) * (Frame + Gap) * ratio),
            qRound(Frame * ratio), qRound(Frame * ratio));
        QImage box(frame.size(), QImage::Format_RGB32);
        box.fill(palette().color(QPalette::Base));
        Form before(form.Width(), form.Height()), newest(form.Width(), form.Height());
        for (int j = 0; j < k; ++j)
            before.AppendStroke(form.GetStroke(static_cast<std::uint16_t>(j)));
        newest.AppendStroke(form.GetStroke(static_cast<std::uint16_t>(k)));
        const QRect inside = box.rect().adjusted(2, 2, -2, -2);
        DrawFormSmooth(box, inside, before, ink, 1.2 * ratio);
        DrawFormSmooth(box, inside, newest, accent, 1.6 * ratio);
        for (int y = 0; y < box.height(); ++y)
            for (int x = 0; x < box.width(); ++x)
                image.setPixel(frame.x() + x, frame.y() + y, box.pixel(x, y));
    }
    image.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(image);
}

void KanjiInfoDialog::ShowOtherOrders()
{
    delete m_orders;
    m_orders = nullptr;
    if (!m_otherOrders || !m_glyph || m_glyph->FormCount() < 2)
        return;
    m_orders = new QWidget(this);
    m_orders->setObjectName(QStringLiteral("otherOrders"));
    auto* layout = new QVBoxLayout(m_orders);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::uint8_t f = 1; f < m_glyph->FormCount(); ++f) {
        QLabel* heading = new QLabel(tr("Other order"), m_orders);
        heading->setObjectName(QStringLiteral("otherOrderHeading%1").arg(f));
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        layout->addWidget(heading);
        auto* strip = new QLabel(m_orders);
        strip->setObjectName(QStringLiteral("otherOrder%1").arg(f));
        strip->setPixmap(OrderStrip(m_glyph->GetForm(f)));
        strip->setAccessibleName(tr("Another stroke order, shown stroke by stroke"));
        layout->addWidget(strip);
    }
    // Under the words and parts (or the texts), above the Close button.
    QWidget* above = m_wordsAndParts ? m_wordsAndParts : static_cast<QWidget*>(m_nextReview);
    m_ui->texts->insertWidget(m_ui->texts->indexOf(above) + 1, m_orders);
}

void KanjiInfoDialog::SetWords(WordContext context)
{
    m_words = std::move(context);
}

void KanjiInfoDialog::ShowWordsAndParts(std::uint16_t code)
{
    delete m_wordsAndParts;
    m_wordsAndParts = nullptr;
    if (!m_words.lexicon)
        return;
    const Lexicon* lexicon = LexiconOrReport(*m_words.lexicon, m_prompt, parentWidget());
    if (!lexicon)
        return;
    std::vector<LexiconWord> words = lexicon->Words(code);
    if (words.size() > MaxWords)
        words.resize(MaxWords);
    const std::vector<LexiconPart> parts = lexicon->Parts(code);
    if (words.empty() && parts.empty())
        return;
    m_wordsAndParts = new QWidget(this);
    m_wordsAndParts->setObjectName(QStringLiteral("wordsAndParts"));
    auto* layout = new QVBoxLayout(m_wordsAndParts);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!words.empty()) {
        // The interface is in English exactly when none of our translations is installed; they
        // translate every text, this heading included.
        const bool english = tr("Words") == QLatin1String("Words");
        layout->addWidget(Heading(english ? tr("Words") : tr("Words (meanings in English)"), "wordsHeading"));
        for (std::size_t i = 0; i < words.size(); ++i) {
            QLabel* row = WordRow(*lexicon, words[i]);
            row->setObjectName(QStringLiteral("word%1").arg(i));
            layout->addWidget(row);
        }
    }
    if (!parts.empty()) {
        layout->addWidget(Heading(tr("Parts"), "partsHeading"));
        auto* row = new QHBoxLayout;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            QWidget* part = PartWidget(parts[i]);
            part->setObjectName(QStringLiteral("part%1").arg(i));
            row->addWidget(part);
        }
        row->addStretch();
        layout->addLayout(row);
    }
    // Under the texts (and the next review), above the Close button.
    m_ui->texts->insertWidget(m_ui->texts->indexOf(m_nextReview) + 1, m_wordsAndParts);
}

QLabel* KanjiInfoDialog::Heading(const QString& text, const char* name)
{
    auto* label = new QLabel(text, m_wordsAndParts);
    label->setObjectName(QLatin1String(name));
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QLabel* KanjiInfoDialog::WordRow(const Lexicon& lexicon, const LexiconWord& word)
{
    // Characters not learned yet are dimmed, so the learner sees which words they can read.
    const QString dim = palette().color(QPalette::Disabled, QPalette::WindowText).name();
    QString html;
    QStringList unknown;
    for (const WordPiece& piece : SplitByKnowledge(lexicon, word.writing, m_words.learned)) {
        const QString text = QString::fromStdString(piece.text);
        if (piece.known) {
            html += text.toHtmlEscaped();
        } else {
            html += QStringLiteral("<span style=\"color:%1\">%2</span>").arg(dim, text.toHtmlEscaped());
            unknown << text;
        }
    }
    const QString writing = Text(word.writing);
    const QString reading = Text(word.reading);
    const QString meaning = Text(word.meaning);
    auto* row = new QLabel(m_wordsAndParts);
    row->setTextFormat(Qt::RichText);
    row->setWordWrap(true);
    row->setText(
        QStringLiteral("%1&nbsp;&nbsp;%2 \u2014 %3").arg(html, reading.toHtmlEscaped(), meaning.toHtmlEscaped()));
    row->setAccessibleName(QStringLiteral("%1, %2, %3").arg(writing, reading, meaning));
    if (!unknown.isEmpty())
        row->setAccessibleDescription(tr("Not learned yet: %1").arg(unknown.join(QLatin1Char(' '))));
    // For tests and for whoever looks at the widget: which characters are dimmed.
    row->setProperty("dimmed", unknown.join(QString()));
    return row;
}

QWidget* KanjiInfoDialog::PartWidget(const LexiconPart& part)
{
    // Each part is drawn from the character's own strokes, so that every part shows, whatever
    // the fonts hold (many parts, like ⺍, are in none of them); the font is the fallback.
    const int side = 2 * fontMetrics().height() + 4;
    const qreal ratio = devicePixelRatioF();
    const bool drawn = part.strokes != 0;
    auto picture = [&](QPalette::ColorRole background) {
        QImage image(qRound(side * ratio), qRound(side * ratio), QImage::Format_RGB32);
        image.fill(palette().color(background));
        DrawStrokesFitted(image, m_glyph->GetForm(0), part.strokes, qRound(4 * ratio),
            palette().color(QPalette::WindowText).rgb(), PartPenWidth * ratio);
        image.setDevicePixelRatio(ratio);
        return QPixmap::fromImage(image);
    };
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    const QString text = QString::fromUcs4(&part.codePoint, 1);
    QWidget* shown = nullptr;
    if (part.characterId != Lexicon::NoCharacter && m_database.CharacterExists(part.characterId)) {
        auto* button = new QToolButton(m_wordsAndParts);
        if (drawn) {
            button->setIcon(picture(QPalette::Button));
            button->setIconSize(QSize(side, side));
        } else {
            button->setText(text);
            button->setFont(large);
        }
        button->setToolTip(tr("Open the Kanji Info of %1").arg(text));
        button->setAccessibleName(tr("Part %1, opens its Kanji Info").arg(text));
        button->setCursor(Qt::PointingHandCursor);
        const std::uint16_t target = part.characterId;
        connect(button, &QToolButton::clicked, this, [this, target] { OpenPart(target); });
        shown = button;
    } else {
        auto* label = new QLabel(m_wordsAndParts);
        if (drawn) {
            label->setPixmap(picture(QPalette::Window));
        } else {
            label->setText(text);
            label->setFont(large);
        }
        label->setToolTip(text);
        label->setAccessibleName(tr("Part %1").arg(text));
        label->setAlignment(Qt::AlignCenter);
        shown = label;
    }
    shown->setFixedSize(side + 8, side + 8);
    return shown;
}

void KanjiInfoDialog::OpenPart(std::uint16_t code)
{
    KanjiInfoDialog part(m_database, m_prompt, this);
    part.SetWords(m_words);
    if (part.SetCode(code))
        part.exec();
}

void KanjiInfoDialog::OfferShowInCategory()
{
    auto* show = new QPushButton(tr("&Show in its category"), this);
    show->setObjectName(QStringLiteral("showInCategoryButton"));
    m_ui->buttons->insertWidget(m_ui->buttons->indexOf(m_ui->closeButton), show);
    connect(show, &QPushButton::clicked, this, [this] { done(ShowInCategory); });
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
