#include "MainWindow.h"

#include "CategoryPage.h"
#include "CategoryRules.h"
#include "ConfigException.h"
#include "ConfigStore.h"
#include "FirstPaint.h"
#include "HelpActions.h"
#include "HistoryNotice.h"
#include "HomePage.h"
#include "LearnerSession.h"
#include "LearnerTransfer.h"
#include "LearnerWindows.h"
#include "LessonPage.h"
#include "PageStack.h"
#include "Prompt.h"
#include "ReviewPage.h"
#include "ScreenPlacement.h"
#include "StoredPicture.h"
#include "TestContainer.h"
#include "UserManagerDialog.h"
#include "WindowKeys.h"
#include "WordsTestPage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>

using ZavorenCommon::ConfigException;

MainWindow::MainWindow(CharacterDatabase& database, LearnerSession& session, Prompt& prompt, SeedSource seeds,
    UrlOpener open, ProgressViewSource progressViews, QWidget* parent)
    : QMainWindow(parent), m_database(database), m_session(session), m_prompt(prompt), m_seeds(std::move(seeds)),
      m_open(std::move(open)), m_progress(database, prompt, session.Clock(), std::move(progressViews))
{
    setObjectName(QStringLiteral("Zavoren Mainframe Class"));
    setWindowTitle(QStringLiteral("Zavoren!"));
    setWindowIcon(ProgramIcon());
    BuildMenu();
    m_pages = new PageStack(this);
    setCentralWidget(m_pages);
    m_home = new HomePage(database, prompt, session);
    m_lesson = new LessonPage(database, prompt);
    m_test = new TestContainer(database, prompt, m_seeds);
    m_category = new CategoryPage(database, prompt, m_seeds, session);
    m_review = new ReviewPage(database, prompt, m_seeds, session);
    m_words = new WordsTestPage(database, prompt, m_seeds, session);
    // The aids decide whether the feedback line is there: applied before any page takes its size.
    m_preferences = std::make_unique<PreferencesEditor>(
        PreferenceTargets{m_lesson, m_test, m_category, &session, m_review, m_words, m_sheetAction});
    for (Page* page : std::initializer_list<Page*>{m_home, m_lesson, m_test, m_category, m_review, m_words}) {
        m_pages->Add(page);
        connect(
            page, &Page::pageEvent, this,
            [this, page](quint16 code, quint16 argument) { OnPageEvent(page, code, argument); }, Qt::DirectConnection);
    }
    new HistoryNotice(session, prompt, this);
    m_windows = new LearnerWindows(database, prompt, session, *m_preferences, {*m_pages, *m_home, *m_category}, this);
    InstallWindowKeys(this);
}

void MainWindow::BuildMenu()
{
    auto add = [this](QMenu* menu, const QString& text, const char* name, auto slot) {
        QAction* action = menu->addAction(text, this, slot);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    QMenu* file = menuBar()->addMenu(tr("&File"));
    add(file, tr("Users"), "usersAction", &MainWindow::ChooseLearner);
    file->addSeparator();
    m_learnerActions << (m_sheetAction
        = add(file, tr("Print practice sheet…"), "sheetAction", [this] { m_windows->PrintSheet(); }));
    file->addSeparator();
    add(file, tr("Exit"), "exitAction", &QWidget::close);
    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    add(tools, tr("Find a character…"), "findAction", [this] {
        m_windows->FindCharacter();
    })->setShortcut(QKeySequence::Find);
    // Progress and export need a learner: enabled only while one is open.
    m_learnerActions << add(tools, tr("Progress…"), "progressAction",
        [this] { m_progress.Open(m_session, m_preferences->Current().wordsAndParts, this); });
    m_learnerActions << add(tools, tr("Export learner…"), "exportAction",
        [this] { LearnerTransfer(m_database, m_session, m_prompt, this).ExportAsked(m_session.Learner()); });
    add(tools, tr("Import learner…"), "importAction", &MainWindow::ImportLearner);
    tools->addSeparator();
    add(tools, tr("Preferences…"), "preferencesAction", [this] {
        if (!m_preferences->Edit(this))
            return;
        // The feedback line shows or hides under the canvases: the pages take their new sizes.
        for (Page* page : std::initializer_list<Page*>{m_lesson, m_test, m_review, m_words})
            m_pages->Refit(page);
        FitToPage();
    });
    for (QAction* action : m_learnerActions)
        action->setEnabled(false);
    AddHelpMenu(menuBar(), m_open, this);
}

bool MainWindow::ChooseLearnerAtStart()
{
    ConfigStore& store = m_session.Store();
    try {
        m_chosenAtStart = store.LoadUser(store.StartUserName());
        if (!m_chosenAtStart) {
            if (RunUserManager() != UserManagerDialog::Open)
                return false;
            m_chosenAtStart = store.LoadUser(m_managerChoice);
        }
    } catch (const ConfigException& e) {
        m_prompt.StoreError(nullptr, ConfigurationErrorTitle, e.what());
        return false;
    }
    // Sized to the home page; centred, or where it was.
    resize(m_home->width(), m_home->height() + menuBar()->sizeHint().height());
    move(StartPosition(
        frameGeometry(), m_settings.StoredPosition(frameGeometry()), m_preferences->Current().keepOnScreen));
    return true;
}

bool MainWindow::ShowChosenLearner()
{
    SetLearner(std::move(m_chosenAtStart));
    return m_session.Learner() != nullptr;
}

void MainWindow::SetLearner(std::unique_ptr<User> learner, SaveOpenLearner save)
{
    try {
        if (save == SaveOpenLearner::Yes)
            m_session.SaveLearner(true);
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
    }
    m_progress.Close();
    const bool none = learner == nullptr;
    m_session.Open(std::move(learner));
    for (QAction* action : m_learnerActions)
        action->setEnabled(!none);
    if (none) {
        hide();
        return;
    }
    show();
    ShowPage(m_home);
    // The history is not needed to show the home page: its database is opened once the page
    // has been painted for the first time.
    if (!std::exchange(m_historyOpened, true))
        AfterFirstPaint(m_home, [this] {
            if (!m_closing)
                m_session.OpenHistory();
        });
}

int MainWindow::RunUserManager()
{
    QWidget* owner = QApplication::activeWindow();
    UserManagerDialog manager(
        m_session.Store(), m_prompt, owner && owner->isVisible() ? owner : (isVisible() ? this : nullptr));
    connect(&manager, &UserManagerDialog::currentUserDeleted, this, [this] { SetLearner(nullptr); });
    connect(&manager, &UserManagerDialog::storeFailed, this,
        [this](const QString& message) { ReportStoreError(message.toUtf8().constData()); });
    const int result = manager.exec();
    m_managerChoice = manager.SelectedUserName();
    return result;
}

void MainWindow::ChooseLearner()
{
    const int result = RunUserManager();
    if (result == UserManagerDialog::Open) {
        try {
            SetLearner(m_session.Store().LoadUser(m_managerChoice));
        } catch (const ConfigException& e) {
            ReportStoreError(e.what());
        }
    } else if (!m_session.Learner()) {
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }
}

void MainWindow::ReportStoreError(const char* message)
{
    m_prompt.StoreError(this, ConfigurationErrorTitle, message);
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_closing) {
        event->accept();
        return;
    }
    m_closing = true;
    m_progress.Close();
    if (m_session.Learner()) {
        // A test in progress counts as taken so far.
        if (m_pages->Shown() == m_test)
            ApplyTestOutcome();
        try {
            m_session.SaveLearner();
        } catch (const ConfigException& e) {
            m_prompt.StoreError(this, ConfigurationErrorTitle, e.what());
        }
    }
    m_settings.StorePlacement(frameGeometry());
    event->accept();
    emit closed();
}

void MainWindow::ShowPage(Page* page)
{
    m_pages->Show(page);
    FitToPage();
}

void MainWindow::FitToPage()
{
    setFixedSize(m_pages->width(), m_pages->height() + menuBar()->sizeHint().height());
}

void MainWindow::OnPageEvent(Page* page, quint16 code, quint16 argument)
{
    if (page == m_home && code == HomePage::OpenCategory) {
        m_category->ShowCategory(m_home->ChosenCategory());
        ShowPage(m_category);
    } else if (page == m_home && code == HomePage::Review) {
        ShowPage(m_review->Start() ? static_cast<Page*>(m_review) : m_home);
    } else if (page == m_review || page == m_words) { // over: back to where each was opened from
        ShowPage(page == m_review ? static_cast<Page*>(m_home) : m_category);
    } else if (page == m_category) {
        switch (code) {
        case CategoryPage::Lesson: m_lesson->StartLesson(m_category->PickLessonCharacters(LessonSize)); break;
        case CategoryPage::Learn: m_lesson->StartLesson({argument}); break;
        case CategoryPage::Test: m_test->StartTest(m_category->TestCharacters()); break;
        case CategoryPage::Back: ShowPage(m_home); return;
        case CategoryPage::Reveal:
            ShowPage(m_category);
            activateWindow();
            return;
        case CategoryPage::Words: ShowPage(m_words->Start(argument) ? static_cast<Page*>(m_words) : m_category); return;
        }
        ShowPage(code == CategoryPage::Test ? static_cast<Page*>(m_test) : m_lesson);
    } else if (page == m_lesson && (code == LessonPage::Finished || code == LessonPage::Aborted)) {
        if (code == LessonPage::Finished)
            m_category->LessonFinished(m_lesson->DoneCodes());
        ShowPage(m_category);
    } else if (page == m_test && (code == TestContainer::Finished || code == TestContainer::Aborted)) {
        ApplyTestOutcome();
        ShowPage(m_category);
    }
}

void MainWindow::ApplyTestOutcome()
{
    m_category->TestTaken(m_test->PassedCodes(), m_test->FailedCodes(),
        [this](std::uint16_t code) { return m_test->Schedule().MistakesOf(code); });
    m_test->StartTest({});
}

void MainWindow::ImportLearner()
{
    try {
        LearnerTransfer::Outcome outcome
            = LearnerTransfer(m_database, m_session, m_prompt, this).ImportAsked(m_session.LearnerName());
        // The open learner's record was replaced: they become the imported one, not saved over it.
        if (outcome.replacedOpen)
            SetLearner(std::move(outcome.replacedOpen), SaveOpenLearner::No);
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
    }
}
