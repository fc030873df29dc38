#include "WordsTestPage.h"

#include "CharacterDatabase.h"
#include "FeedbackLine.h"
#include "GlyphLoading.h"
#include "InputCanvas.h"
#include "KanjiInfoDialog.h"
#include "LearnerSession.h"
#include "Prompt.h"
#include "Utf8.h"
#include "WritingPanel.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
/// The row of squares: as wide as four squares of the smallest side, the squares of shorter
/// words larger, up to the largest side (logical pixels).
constexpr int RowWidth = 540;
constexpr int LargestSide = 220;
constexpr int Gap = 8;

int SideFor(std::size_t count)
{
    const int n = static_cast<int>(std::max<std::size_t>(count, 1));
    return std::min(LargestSide, (RowWidth - (n - 1) * Gap) / n);
}

/// A large font for the printed word and its kana.
QFont LargeFont(const QWidget* widget, double factor)
{
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}
} // namespace

WordsTestPage::WordsTestPage(
    CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session, QWidget* parent)
    : Page(parent), m_database(database), m_prompt(prompt), m_seeds(std::move(seeds)), m_session(session)
{
    setWindowTitle(tr("Words test"));
    auto* column = new QVBoxLayout(this);
    m_position = new QLabel(this);
    m_position->setObjectName(QStringLiteral("position"));
    column->addWidget(m_position);
    m_reading = new QLabel(this);
    m_reading->setObjectName(QStringLiteral("reading"));
    m_reading->setFont(LargeFont(this, 1.6));
    m_reading->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(m_reading);
    m_meaning = new QLabel(this);
    m_meaning->setObjectName(QStringLiteral("meaning"));
    m_meaning->setWordWrap(true);
    m_meaning->setMinimumHeight(2 * m_meaning->fontMetrics().lineSpacing());
    m_meaning->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    column->addWidget(m_meaning);
    // The squares, in a row of fixed size whatever the word.
    m_row = new QWidget(this);
    m_row->setObjectName(QStringLiteral("cells"));
    m_row->setFixedSize(RowWidth, LargestSide + 8);
    m_rowLayout = new QHBoxLayout(m_row);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setSpacing(Gap);
    column->addWidget(m_row, 0, Qt::AlignHCenter);
    m_lines = new QStackedWidget(this);
    m_lines->addWidget(new QLabel(m_lines)); // while no square takes ink
    column->addWidget(m_lines);
    m_printed = new QLabel(this);
    m_printed->setObjectName(QStringLiteral("printedWord"));
    m_printed->setFont(LargeFont(this, 2.2));
    m_printed->setAlignment(Qt::AlignCenter);
    m_printed->setMinimumHeight(m_printed->fontMetrics().lineSpacing());
    column->addWidget(m_printed);
    column->addStretch(1);
    auto* buttons = new QHBoxLayout;
    m_hint = new QPushButton(tr("&Hint"), this);
    m_hint->setObjectName(QStringLiteral("hintButton"));
    m_dontKnow = new QPushButton(tr("I &don't know"), this);
    m_dontKnow->setObjectName(QStringLiteral("dontKnowButton"));
    m_abort = new QPushButton(tr("&Abort"), this);
    m_abort->setObjectName(QStringLiteral("abortButton"));
    m_next = new QPushButton(tr("&Next"), this);
    m_next->setObjectName(QStringLiteral("nextButton"));
    buttons->addWidget(m_hint);
    buttons->addWidget(m_dontKnow);
    buttons->addStretch(1);
    buttons->addWidget(m_abort);
    buttons->addWidget(m_next);
    column->addLayout(buttons);
    connect(m_hint, &QPushButton::clicked, this, &WordsTestPage::OnHint);
    connect(m_dontKnow, &QPushButton::clicked, this, &WordsTestPage::GiveUp);
    connect(m_abort, &QPushButton::clicked, this, &WordsTestPage::Cancel);
    connect(m_next, &QPushButton::clicked, this, &WordsTestPage::OnNext);
    connect(&session, &LearnerSession::learnerChanged, this, [this] {
        m_previous.clear();
        m_test.clear();
        ClearCells();
    });
    RefreshButtons();
}

WordsTestPage::~WordsTestPage() = default;

std::vector<WordQuestion> WordsTestPage::Eligible(std::uint16_t categoryId)
{
    User* learner = m_session.Learner();
    const Lexicon* lexicon = learner ? LexiconOrReport(m_session.Lexicon(), m_prompt, this) : nullptr;
    if (!lexicon)
        return {};
    std::vector<std::uint16_t> learned = learner->GetProgress(categoryId).Learned();
    return WordsTest::Eligible(*lexicon, learned, [this](std::uint16_t id) { return m_session.HasLearned(id); });
}

bool WordsTestPage::Start(std::uint16_t categoryId)
{
    m_categoryId = categoryId;
    m_random.Seed(m_seeds());
    m_test = WordsTest::Choose(Eligible(categoryId), m_random, m_previous[categoryId]);
    std::set<std::string>& previous = m_previous[categoryId];
    previous.clear();
    for (const WordQuestion& word : m_test)
        previous.insert(word.writing);
    m_index = 0;
    if (m_test.empty()) {
        ClearCells();
        return false;
    }
    AskWord();
    return true;
}

void WordsTestPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_coaching = preferences;
    for (Cell& cell : m_cells)
        if (cell.panel) {
            cell.panel->SetCoaching(preferences);
            cell.canvas->SetGuideLines(preferences.practiceGrid);
        }
}

InputCanvas* WordsTestPage::Canvas(std::size_t i) const
{
    return i < m_cells.size() ? m_cells[i].canvas : nullptr;
}

void WordsTestPage::ClearCells()
{
    for (Cell& cell : m_cells) {
        if (cell.panel)
            m_lines->removeWidget(cell.panel->Line());
        delete cell.frame; // with its canvas, panel and line
    }
    m_cells.clear();
    m_active = -1;
    m_shown = false;
    m_printed->clear();
    RefreshButtons();
}

void WordsTestPage::AskWord()
{
    ClearCells();
    m_recorded = false;
    const WordQuestion& word = m_test.at(m_index);
    m_position->setText(tr("Word %1 of %2").arg(m_index + 1).arg(m_test.size()));
    m_reading->setText(QString::fromStdString(word.reading));
    m_reading->setAccessibleName(tr("Reading: %1").arg(m_reading->text()));
    m_meaning->setText(QString::fromStdString(word.meaning));
    m_meaning->setAccessibleName(tr("Meaning: %1").arg(m_meaning->text()));
    const int side = SideFor(word.codePoints.size());
    for (std::size_t i = 0; i < word.codePoints.size(); ++i) {
        Cell cell;
        cell.frame = new QFrame(m_row);
        cell.frame->setObjectName(QStringLiteral("cell%1").arg(i));
        cell.frame->setFixedSize(side + 8, side + 8);
        cell.frame->setFrameShape(QFrame::NoFrame);
        auto* inside = new QVBoxLayout(cell.frame);
        inside->setContentsMargins(4, 4, 4, 4);
        if (word.characters[i] == Lexicon::NoCharacter) {
            // A kana, printed in its square.
            auto* kana = new QLabel(QString::fromStdString(EncodeUtf8(word.codePoints[i])), cell.frame);
            QFont font = kana->font();
            font.setPixelSize(side * 2 / 3);
            kana->setFont(font);
            kana->setAlignment(Qt::AlignCenter);
            kana->setAutoFillBackground(true);
            kana->setBackgroundRole(QPalette::Base);
            kana->setFrameShape(QFrame::StyledPanel);
            inside->addWidget(kana);
            cell.written = true;
        } else {
            cell.canvas = new InputCanvas(cell.frame);
            cell.canvas->setFixedSize(side, side);
            cell.canvas->setAccessibleName(tr("Square %1 of the word").arg(i + 1));
            cell.canvas->installEventFilter(this);
            inside->addWidget(cell.canvas);
            cell.panel = new WritingPanel(cell.canvas, WritingCoach::Mode::Test, this);
            cell.panel->SetCoaching(m_coaching);
            cell.canvas->SetGuideLines(m_coaching.practiceGrid);
            m_lines->addWidget(cell.panel->Line());
            cell.panel->Start(LoadCharacterOrReport(m_database, word.characters[i], m_prompt, this).glyph);
            connect(cell.panel, &WritingPanel::strokeKept, this, [this, i] { OnStrokeKept(i); });
        }
        m_rowLayout->addWidget(cell.frame);
        m_cells.push_back(cell);
    }
    int first = -1;
    for (std::size_t i = 0; i < m_cells.size() && first < 0; ++i)
        if (!m_cells[i].written)
            first = static_cast<int>(i);
    Activate(first);
}

void WordsTestPage::Activate(int cell)
{
    m_active = cell;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        Cell& c = m_cells[i];
        const bool active = static_cast<int>(i) == cell;
        // The square being written stands out with the selection colour around it.
        c.frame->setFrameShape(active ? QFrame::Box : QFrame::NoFrame);
        c.frame->setLineWidth(active ? 2 : 0);
        QPalette palette = c.frame->palette();
        palette.setColor(QPalette::WindowText, palette.color(QPalette::Highlight));
        c.frame->setPalette(palette);
        if (c.canvas)
            c.canvas->setAttribute(Qt::WA_TransparentForMouseEvents, !active && !c.written);
    }
    if (cell >= 0 && m_cells[static_cast<std::size_t>(cell)].panel) {
        m_lines->setCurrentWidget(m_cells[static_cast<std::size_t>(cell)].panel->Line());
        m_cells[static_cast<std::size_t>(cell)].canvas->setFocus();
    }
    RefreshButtons();
}

void WordsTestPage::OnStrokeKept(std::size_t index)
{
    Cell& cell = m_cells.at(index);
    if (static_cast<int>(index) != m_active || !cell.panel->Quiz().IsComplete())
        return;
    cell.written = true;
    cell.canvas->setToolTip(tr("Click for Kanji Info"));
    for (std::size_t i = index + 1; i < m_cells.size(); ++i)
        if (!m_cells[i].written) {
            Activate(static_cast<int>(i));
            return;
        }
    EndWord();
}

void WordsTestPage::OnHint()
{
    if (m_active < 0)
        return;
    Cell& cell = m_cells[static_cast<std::size_t>(m_active)];
    const Form* glyph = cell.panel->Quiz().Glyph();
    if (!glyph)
        return;
    cell.canvas->ShowHint(*glyph, cell.panel->Quiz().Kept());
    cell.panel->Quiz().ShowHint();
    ++cell.hints;
}

void WordsTestPage::GiveUp()
{
    if (m_shown || m_test.empty())
        return;
    EndWord();
}

void WordsTestPage::EndWord()
{
    // Each kanji's grade: written with its hints, or not written (given up).
    if (!m_recorded) {
        m_recorded = true;
        std::vector<int> mistakes;
        for (const Cell& cell : m_cells)
            mistakes.push_back(cell.written ? cell.hints : -1);
        if (User* learner = m_session.Learner()) {
            const auto events = WordsTest::Events(*learner, m_categoryId, m_test.at(m_index), mistakes, m_session.Now());
            if (!events.empty())
                m_session.Record(*learner, events);
        }
    }
    m_shown = true;
    Activate(-1);
    // The word printed beside what was written.
    const WordQuestion& word = m_test.at(m_index);
    m_printed->setText(QString::fromStdString(word.writing));
    m_printed->setAccessibleName(tr("The word: %1, read %2").arg(m_printed->text(), m_reading->text()));
    for (Cell& cell : m_cells)
        if (cell.canvas && !cell.written)
            cell.canvas->setEnabled(false);
    RefreshButtons();
}

void WordsTestPage::OnNext()
{
    if (!m_shown)
        return;
    if (m_index + 1 < m_test.size()) {
        ++m_index;
        AskWord();
        return;
    }
    ClearCells();
    emit pageEvent(Finished, 0);
}

void WordsTestPage::Cancel()
{
    // A word left half-written: the kanji not written are not remembered.
    if (!m_test.empty() && !m_shown && !m_recorded)
        EndWord();
    ClearCells();
    m_test.clear();
    emit pageEvent(Finished, 0);
}

void WordsTestPage::RefreshButtons()
{
    const bool asking = !m_test.empty() && !m_shown;
    m_hint->setEnabled(asking && m_active >= 0);
    m_dontKnow->setEnabled(asking);
    m_next->setEnabled(m_shown);
    SetDefaultButton(m_shown ? m_next : m_abort);
}

bool WordsTestPage::eventFilter(QObject* watched, QEvent* event)
{
    // A written square takes no more ink: a click or its context menu opens its Kanji Info.
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        if (m_cells[i].canvas != watched || !m_cells[i].written)
            continue;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return true;
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
                ShowInfo(i);
            return true;
        case QEvent::ContextMenu:
            ShowInfo(i);
            return true;
        default: return false;
        }
    }
    return Page::eventFilter(watched, event);
}

void WordsTestPage::ShowInfo(std::size_t cell)
{
    if (m_index >= m_test.size() || cell >= m_test[m_index].characters.size())
        return;
    KanjiInfoDialog dialog(m_database, m_prompt, this);
    dialog.SetWords(m_words);
    dialog.SetOtherOrders(m_otherOrders);
    if (dialog.SetCode(m_test[m_index].characters[cell]))
        dialog.exec();
}
