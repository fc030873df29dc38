#include "ReviewPage.h"

#include "CharacterDatabase.h"
#include "CharacterGrid.h"
#include "ConfigException.h"
#include "DatabaseLoadException.h"
#include "DrawingTestPage.h"
#include "GlyphLoading.h"
#include "KanjiInfoDialog.h"
#include "LearnerSession.h"
#include "Prompt.h"
#include "ReadingTestPage.h"
#include "SessionRecorder.h"
#include "TestContainer.h"
#include "TestSchedule.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <numeric>

ReviewPage::ReviewPage(
    CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session, QWidget* parent)
    : Page(parent), m_database(database), m_prompt(prompt), m_seeds(std::move(seeds)), m_session(session),
      m_glyphs(database)
{
    setWindowTitle(tr("Review"));
    auto* column = new QVBoxLayout(this);
    auto* where = new QHBoxLayout;
    m_position = new QLabel(this);
    m_position->setObjectName(QStringLiteral("position"));
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("progress"));
    m_bar->setAccessibleName(tr("Reviews answered"));
    m_bar->setTextVisible(false);
    m_category = new QLabel(this);
    m_category->setObjectName(QStringLiteral("category"));
    where->addWidget(m_position);
    where->addWidget(m_bar, 1);
    where->addWidget(m_category);
    column->addLayout(where);

    m_stack = new QStackedWidget(this);
    BuildSummary();
    m_stack->addWidget(m_summary);
    column->addWidget(m_stack);
    // Another learner's sitting is not this one's.
    connect(&session, &LearnerSession::learnerChanged, this, [this] {
        m_sitting = ReviewSitting();
        if (m_test)
            m_test->StartTest({});
    });
}

void ReviewPage::MakeTest()
{
    // Made for the first sitting, not with the main window: a start pays nothing for it.
    if (m_test)
        return;
    m_test = new TestContainer(m_database, m_prompt, m_seeds, m_stack);
    m_test->layout()->setContentsMargins(0, 0, 0, 0);
    m_test->DrawingPage()->SetCoaching(m_coaching);
    m_test->ReadingPage()->SetWordAid(m_wordAid);
    connect(m_test, &Page::pageEvent, this, [this](quint16 code, quint16) { OnTestEvent(code); });
    m_stack->insertWidget(0, m_test);
}

void ReviewPage::SetCoaching(const CoachingPreferences& preferences)
{
    m_coaching = preferences;
    if (m_test)
        m_test->DrawingPage()->SetCoaching(preferences);
}

void ReviewPage::SetWordAid(LexiconAccess* lexicon)
{
    m_wordAid = lexicon;
    if (m_test)
        m_test->ReadingPage()->SetWordAid(lexicon);
}

ReviewPage::~ReviewPage() = default;

void ReviewPage::BuildSummary()
{
    m_summary = new QWidget(m_stack);
    m_summary->setObjectName(QStringLiteral("summary"));
    auto* column = new QVBoxLayout(m_summary);
    auto* title = new QLabel(tr("The reviews are over."), m_summary);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    column->addWidget(title);
    m_counts = new QLabel(m_summary);
    m_counts->setObjectName(QStringLiteral("counts"));
    m_counts->setTextFormat(Qt::PlainText);
    column->addWidget(m_counts);
    m_forgottenTitle = new QLabel(tr("Forgotten, to be learned again:"), m_summary);
    column->addWidget(m_forgottenTitle);
    m_forgotten = new CharacterGrid(m_summary);
    m_forgotten->setObjectName(QStringLiteral("forgotten"));
    m_forgotten->setAccessibleName(tr("Forgotten characters"));
    m_forgotten->SetGlyphSource([this](std::uint16_t code) { return m_glyphs(code); });
    m_forgottenTitle->setBuddy(m_forgotten);
    column->addWidget(m_forgotten, 1);
    m_next = new QLabel(m_summary);
    m_next->setObjectName(QStringLiteral("nextReviews"));
    column->addWidget(m_next);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    m_info = new QPushButton(tr("&Info"), m_summary);
    m_info->setObjectName(QStringLiteral("infoButton"));
    m_back = new QPushButton(tr("&Back"), m_summary);
    m_back->setObjectName(QStringLiteral("backButton"));
    buttons->addWidget(m_info);
    buttons->addWidget(m_back);
    column->addLayout(buttons);
    connect(m_forgotten, &CharacterGrid::selectionChanged, this,
        [this] { m_info->setEnabled(!m_forgotten->SelectedCodes().empty()); });
    connect(m_forgotten, &CharacterGrid::cellActivated, this, &ReviewPage::ShowInfo);
    connect(m_forgotten, &CharacterGrid::contextMenuRequested, this, [this](int cell, const QPoint&) {
        if (cell >= 0)
            ShowInfo();
    });
    connect(m_info, &QPushButton::clicked, this, &ReviewPage::ShowInfo);
    connect(m_back, &QPushButton::clicked, this, [this] { emit pageEvent(Back, 0); });
}

void ReviewPage::SetSitting(int size, bool writingOnly)
{
    m_size = std::clamp(size, ReviewSitting::MinimumSize, ReviewSitting::MaximumSize);
    m_writingOnly = writingOnly;
}

bool ReviewPage::ShowsSummary() const
{
    return m_stack->currentWidget() == m_summary;
}

bool ReviewPage::Start()
{
    const std::optional<ReviewSchedule> reviews = m_session.Reviews();
    m_sitting = ReviewSitting(
        reviews ? ReviewSitting::DueList(*reviews, static_cast<std::size_t>(m_size)) : std::vector<ReviewSitting::Item>{});
    m_bar->setRange(0, static_cast<int>(m_sitting.Items().size()));
    MakeTest();
    m_stack->setCurrentWidget(m_test);
    setFocusProxy(m_test);
    if (m_sitting.Items().empty()) {
        m_test->StartTest({});
        return false;
    }
    AskCurrent();
    return true;
}

QString ReviewPage::CategoryName(std::uint16_t categoryId)
{
    auto found = m_categoryNames.find(categoryId);
    if (found == m_categoryNames.end()) {
        QString name;
        try {
            const auto category = m_database.LoadCategory(categoryId);
            name = QString::fromUtf8(category->Name() ? category->Name() : "");
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            name = TextOrNotAvailable(nullptr);
        }
        found = m_categoryNames.insert(categoryId, name);
    }
    return *found;
}

void ReviewPage::AskCurrent()
{
    const std::optional<ReviewSitting::Item> item = m_sitting.Current();
    if (!item)
        return;
    const int total = static_cast<int>(m_sitting.Items().size());
    const int number = static_cast<int>(m_sitting.AnsweredCount()) + 1;
    m_position->setText(tr("Review %1 of %2").arg(number).arg(total));
    m_bar->setValue(number - 1);
    m_category->setText(CategoryName(item->categoryId));
    m_category->setAccessibleName(tr("Category: %1").arg(m_category->text()));
    m_test->StartTest({item->id}, !m_writingOnly);
}

bool ReviewPage::RecordCurrent()
{
    const std::optional<ReviewSitting::Item> item = m_sitting.Current();
    if (!m_test)
        return false;
    const TestSchedule& schedule = m_test->Schedule();
    if (!item || schedule.Codes().size() != 1 || schedule.Codes().front() != item->id
        || schedule.Status(0) == TestSchedule::State::Open)
        return false;
    const bool passed = schedule.Status(0) == TestSchedule::State::Passed;
    const int mistakes = schedule.MistakesOf(item->id);
    m_sitting.Answer(ReviewSitting::Judge(passed, mistakes));
    try {
        RecordReview(m_session, *item, passed, mistakes);
    } catch (const ZavorenCommon::ConfigException& e) {
        m_prompt.StoreError(this, ConfigurationErrorTitle, e.what());
    }
    return true;
}

void ReviewPage::OnTestEvent(quint16 code)
{
    RecordCurrent();
    if (code == TestContainer::Finished && m_sitting.Current()) {
        AskCurrent();
        return;
    }
    // Finished with the last one, or stopped: what was answered is kept, the rest stays due.
    if (m_test)
        m_test->StartTest({});
    if (m_sitting.AnsweredCount() == 0) {
        emit pageEvent(Back, 0);
        return;
    }
    ShowSummary();
}

void ReviewPage::ShowSummary()
{
    const int answered = static_cast<int>(m_sitting.AnsweredCount());
    m_bar->setValue(answered);
    m_position->setText(tr("Reviewed %1 of %2").arg(answered).arg(m_sitting.Items().size()));
    m_category->clear();
    m_category->setAccessibleName(QString());
    const int forgotten = static_cast<int>(m_sitting.Forgotten().size());
    m_counts->setText(tr("Reviewed: %1\nRemembered without mistakes: %2\nRemembered with mistakes: %3\nForgotten: %4")
                          .arg(answered)
                          .arg(m_sitting.Remembered())
                          .arg(m_sitting.RememberedWithMistakes())
                          .arg(forgotten));
    m_counts->setAccessibleName(m_counts->text());
    std::vector<std::uint16_t> codes;
    for (const ReviewSitting::Item& item : m_sitting.Forgotten())
        codes.push_back(item.id);
    m_forgotten->SetGroups({{QString(), codes}});
    m_forgottenTitle->setVisible(forgotten > 0);
    m_forgotten->setVisible(forgotten > 0);
    m_info->setVisible(forgotten > 0);
    m_info->setEnabled(false);
    // What falls due next, under the schedule as the sitting left it.
    const std::optional<ReviewSchedule> reviews = m_session.Reviews();
    const std::vector<int> week = reviews ? reviews->DuePerDay(7) : std::vector<int>(7, 0);
    m_next->setText(tr("Next reviews: tomorrow %1, this week %2")
                        .arg(week.empty() ? 0 : week.front())
                        .arg(std::accumulate(week.begin(), week.end(), 0)));
    m_next->setAccessibleName(m_next->text());
    m_stack->setCurrentWidget(m_summary);
    SetDefaultButton(m_back);
    setFocusProxy(forgotten > 0 ? static_cast<QWidget*>(m_forgotten) : m_back);
    setFocus();
}

void ReviewPage::ShowInfo()
{
    const std::vector<std::uint16_t> selected = m_forgotten->SelectedCodes();
    if (selected.empty())
        return;
    KanjiInfoDialog dialog(m_database, m_prompt, this);
    dialog.SetWords(m_words);
    dialog.SetOtherOrders(m_otherOrders);
    if (dialog.SetCode(selected.front()))
        dialog.exec();
    m_forgotten->setFocus();
}

void ReviewPage::Cancel()
{
    if (ShowsSummary())
        emit pageEvent(Back, 0);
    else
        OnTestEvent(TestContainer::Aborted);
}
