#include "CategoryPage.h"

#include <algorithm>

#include "CategoryRules.h"
#include "CharacterDatabase.h"
#include "CharacterGrid.h"
#include "DatabaseLoadException.h"
#include "GlyphLoading.h"
#include "FittedText.h"
#include "KanjiInfoDialog.h"
#include "LearnerSession.h"
#include "PracticeSheetDialog.h"
#include "Prompt.h"
#include "SessionRecorder.h"
#include "ui_CategoryPage.h"

#include <QMenu>

namespace {
/// String 223: shown in the empty strip while a lesson is possible.
const char* const LessonHint = QT_TRANSLATE_NOOP("CategoryPage",
    "To learn characters press 'Lesson' button and then test learned characters by pressing 'Test' button.");
/// String 225: shown in the empty strip when no lesson is possible.
const char* const CategoryComplete = QT_TRANSLATE_NOOP("CategoryPage", "Category complete");
} // namespace

CategoryPage::CategoryPage(CharacterDatabase& database, Prompt& prompt, SeedSource seeds, QWidget* parent)
    : Page(parent), m_ui(std::make_unique<Ui::CategoryPage>()), m_database(database), m_prompt(prompt),
      m_seeds(std::move(seeds)), m_glyphs(database)
{
    m_ui->setupUi(this);
    MakeTextBox(m_ui->categoryName, 1);
    Grid()->setAccessibleName(tr("Characters of the category"));
    Strip()->setAccessibleName(tr("Untested characters"));
    for (CharacterGrid* grid : {Grid(), Strip()}) {
        grid->SetGlyphSource([this](std::uint16_t code) { return m_glyphs(code); });
        connect(grid, &CharacterGrid::selectionChanged, this, &CategoryPage::RefreshButtons);
        connect(grid, &CharacterGrid::contextMenuRequested, this,
            [this, grid](int cell, const QPoint& at) { OnContextMenu(grid, cell, at); });
    }
    // Context menus; each one's first item is its default.
    m_learnedMenu = new QMenu(tr("Learned"), this);
    m_learnedMenu->setObjectName(QStringLiteral("learnedMenu"));
    QAction* info = m_learnedMenu->addAction(tr("&Info"), this, [this] { ShowInfo(Grid()); });
    m_learnedMenu->setDefaultAction(info);
    m_learnedMenu->addAction(tr("&Review"), this, [] {
        // Review is offered but does nothing, deliberately.
    });
    m_learnedMenu->addAction(tr("&Forget"), this, &CategoryPage::OnForget);
    m_unlearnedMenu = new QMenu(tr("Unlearned"), this);
    m_unlearnedMenu->setObjectName(QStringLiteral("unlearnedMenu"));
    m_unlearnedMenu->setDefaultAction(m_unlearnedMenu->addAction(tr("&Info"), this, [this] { ShowInfo(Grid()); }));
    m_learnAction = m_unlearnedMenu->addAction(tr("&Learn"), this, &CategoryPage::OnLearn);
    m_untestedMenu = new QMenu(tr("Untested"), this);
    m_untestedMenu->setObjectName(QStringLiteral("untestedMenu"));
    m_untestedMenu->setDefaultAction(m_untestedMenu->addAction(tr("&Info"), this, [this] { ShowInfo(Strip()); }));
    // Every menu prints a practice sheet of the characters selected where it was opened.
    for (auto [menu, grid] : {std::pair(m_learnedMenu, Grid()), std::pair(m_unlearnedMenu, Grid()),
             std::pair(m_untestedMenu, Strip())}) {
        m_sheetActions << menu->addSeparator();
        m_sheetActions << menu->addAction(tr("&Print practice sheet…"), this, [this, grid] {
            PracticeSheetDialog::Open(m_database, m_words.lexicon, m_prompt, grid->SelectedCodes(), this);
        });
    }
    SetPracticeSheets(false);

    connect(LessonButton(), &QPushButton::clicked, this, [this] { emit pageEvent(Lesson, 0); });
    connect(TestButton(), &QPushButton::clicked, this, [this] { emit pageEvent(Test, 0); });
    connect(RetestButton(), &QPushButton::clicked, this, &CategoryPage::OnRetest);
    connect(ForgetButton(), &QPushButton::clicked, this, &CategoryPage::OnForget);
    connect(BackButton(), &QPushButton::clicked, this, &CategoryPage::Cancel);
    // The words test's button, after Forget; only there while the words test is on.
    m_wordsButton = new QPushButton(tr("&Words"), this);
    m_wordsButton->setObjectName(QStringLiteral("wordsButton"));
    m_wordsButton->setToolTip(tr("Write whole words made of the characters you have learned"));
    m_wordsButton->hide();
    m_ui->buttons->insertWidget(m_ui->buttons->indexOf(ForgetButton()) + 1, m_wordsButton);
    connect(m_wordsButton, &QPushButton::clicked, this, [this] {
        if (m_wordsButton->isEnabled() && m_category)
            emit pageEvent(Words, m_category->Id());
    });
    RefreshButtons();
}

void CategoryPage::SetPracticeSheets(bool on)
{
    for (QAction* action : m_sheetActions)
        action->setVisible(on);
}

void CategoryPage::SetWordsTest(WordsAvailable available)
{
    m_wordsAvailable = std::move(available);
    m_wordsButton->setVisible(static_cast<bool>(m_wordsAvailable));
    if (m_category)
        Refresh();
}

CategoryPage::CategoryPage(
    CharacterDatabase& database, Prompt& prompt, SeedSource seeds, LearnerSession& session, QWidget* parent)
    : CategoryPage(database, prompt, std::move(seeds), parent)
{
    m_session = &session;
    // Read again when next shown, or once the event at hand is over when shown: an action of
    // this page's own recorder is still under way while the session tells of it.
    connect(&session, &LearnerSession::progressChanged, this, [this] {
        m_stale = true;
        if (isVisible())
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (m_stale && isVisible() && m_category)
                        ShowCategory(m_category->Id());
                },
                Qt::QueuedConnection);
    });
    connect(&session, &LearnerSession::learnerChanged, this, [this] {
        m_recorder.reset();
        m_category.reset();
    });
}

CategoryPage::~CategoryPage() = default;

bool CategoryPage::ShowCategory(std::uint16_t categoryId)
{
    if (!m_session)
        return false;
    m_stale = false;
    // Read once: Kanji Info's next reviews and Retest's due characters come from the same schedule.
    SetReviews(m_session->Reviews());
    return SetCategory(categoryId, RecorderFor(*m_session, categoryId, m_reviews));
}

std::optional<std::uint16_t> CategoryPage::CategoryId() const
{
    return m_category ? std::optional<std::uint16_t>(m_category->Id()) : std::nullopt;
}

void CategoryPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    if (m_stale && m_session && m_category)
        ShowCategory(m_category->Id());
}

CharacterGrid* CategoryPage::Grid() const
{
    return m_ui->characterGrid;
}
CharacterGrid* CategoryPage::Strip() const
{
    return m_ui->untestedStrip;
}
QPushButton* CategoryPage::LessonButton() const
{
    return m_ui->lessonButton;
}
QPushButton* CategoryPage::TestButton() const
{
    return m_ui->testButton;
}
QPushButton* CategoryPage::RetestButton() const
{
    return m_ui->retestButton;
}
QPushButton* CategoryPage::ForgetButton() const
{
    return m_ui->forgetButton;
}
QPushButton* CategoryPage::BackButton() const
{
    return m_ui->backButton;
}

bool CategoryPage::SetCategory(std::uint16_t categoryId, std::optional<ProgressRecorder> recorder)
{
    m_recorder = std::move(recorder);
    try {
        m_category = m_database.LoadCategory(categoryId);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        m_category.reset();
        m_prompt.StoreError(this, DatabaseErrorTitle, e.what());
        Refresh();
        return false;
    }
    ShowFitted(m_ui->categoryName, QString::fromUtf8(m_category->Name() ? m_category->Name() : ""), 1);
    Refresh();
    return true;
}

void CategoryPage::Refresh()
{
    const CategoryProgress* record = Progress();
    std::vector<std::uint16_t> learned, toLearn;
    if (m_category && record) {
        for (std::uint16_t code : m_category->Characters())
            (record->IsLearned(code) ? learned : toLearn).push_back(code);
    } else if (m_category) {
        toLearn = m_category->Characters();
    }
    Grid()->SetGroups({{tr("Learned Kanji"), learned}, {tr("Kanji to be Learned"), toLearn}});
    Strip()->SetGroups({{QString(), record ? record->Untested() : std::vector<std::uint16_t>{}}});
    m_wordsFound = m_wordsAvailable && m_category && record && m_wordsAvailable(m_category->Id());
    RefreshButtons();
}

void CategoryPage::RefreshButtons()
{
    static const CategoryProgress none;
    const CategoryProgress& progress = Progress() ? *Progress() : none;
    const std::size_t size = m_category ? m_category->CharacterCount() : 0;
    const CategoryControlState s = DecideCategoryControls(size, progress, Grid()->FirstSelectedGroup() == LearnedGroup);
    ForgetButton()->setEnabled(s.forgetEnabled);
    TestButton()->setEnabled(s.testEnabled);
    RetestButton()->setEnabled(s.retestEnabled);
    LessonButton()->setEnabled(s.lessonEnabled);
    m_wordsButton->setEnabled(m_wordsFound);
    m_learnAction->setEnabled(s.lessonEnabled);
    Strip()->SetEmptyMessage(tr(s.lessonEnabled ? LessonHint : CategoryComplete));
    SetDefaultButton(s.testIsDefault ? TestButton() : LessonButton());
}

std::vector<std::uint16_t> CategoryPage::TestCharacters() const
{
    return m_recorder ? m_recorder->TestCharacters() : std::vector<std::uint16_t>{};
}

void CategoryPage::LessonFinished(const std::vector<std::uint16_t>& taught)
{
    if (m_recorder)
        m_recorder->LessonFinished(taught);
}

void CategoryPage::TestTaken(const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed,
    const ProgressRecorder::MistakeCount& mistakes)
{
    if (m_recorder)
        m_recorder->TestTaken(passed, failed, mistakes);
}

std::vector<std::uint16_t> CategoryPage::PickLessonCharacters(std::size_t max) const
{
    const CategoryProgress* record = Progress();
    if (!m_category || !record)
        return {};
    return ::PickLessonCharacters(m_category->Characters(), *record, record->UntestedCount(), max);
}

void CategoryPage::OnContextMenu(CharacterGrid* grid, int cell, const QPoint& globalPosition)
{
    if (cell < 0)
        return;
    QMenu* menu = grid == Strip() ? m_untestedMenu
                                  : (grid->FirstSelectedGroup() == LearnedGroup ? m_learnedMenu : m_unlearnedMenu);
    menu->popup(globalPosition, menu->defaultAction());
}

bool CategoryPage::SelectCharacter(std::uint16_t code)
{
    const int cell = Grid()->CellOf(code);
    if (cell < 0)
        return false;
    Grid()->SelectCell(cell);
    Grid()->setFocus();
    return true;
}

void CategoryPage::RevealCharacter(std::uint16_t categoryId, std::uint16_t code)
{
    if (!ShowCategory(categoryId))
        return;
    SelectCharacter(code);
    emit pageEvent(Reveal, code);
}

std::vector<std::uint16_t> CategoryPage::SelectedCharacters() const
{
    const std::vector<std::uint16_t> selected = Grid()->SelectedCodes();
    return selected.empty() ? Strip()->SelectedCodes() : selected;
}

void CategoryPage::ShowInfo(CharacterGrid* grid)
{
    const std::vector<std::uint16_t> selected = grid->SelectedCodes();
    if (selected.empty())
        return;
    KanjiInfoDialog dialog(m_database, m_prompt, this);
    dialog.SetWords(m_words);
    dialog.SetOtherOrders(m_otherOrders);
    if (m_reviews && m_recorder)
        if (const ReviewSchedule::Review* review
            = m_reviews->Find(m_recorder->Progress().CategoryId(), selected.front()))
            dialog.SetNextReview(review->dueDay, m_reviews->Today());
    if (dialog.SetCode(selected.front()))
        dialog.exec();
    grid->setFocus();
    RefreshButtons();
}

void CategoryPage::OnForget()
{
    if (!m_recorder || Grid()->FirstSelectedGroup() != LearnedGroup)
        return;
    m_recorder->Forget(Grid()->SelectedCodes());
    Refresh();
}

void CategoryPage::OnRetest()
{
    if (!m_recorder || !RetestButton()->isEnabled())
        return;
    m_random.Seed(m_seeds());
    m_recorder->Retest(m_random);
    Refresh();
    emit pageEvent(Test, 0);
}

void CategoryPage::OnLearn()
{
    const std::vector<std::uint16_t> selected = Grid()->SelectedCodes();
    if (selected.empty() || !m_learnAction->isEnabled())
        return;
    if (m_recorder)
        m_recorder->LearnOne(selected.front());
    emit pageEvent(Learn, selected.front());
}

void CategoryPage::Cancel()
{
    emit pageEvent(Back, 0);
}
