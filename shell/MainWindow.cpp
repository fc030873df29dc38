#include "MainWindow.h"

#include "CategoryPage.h"
#include "CategoryRules.h"
#include "CharacterDatabase.h"
#include "ConfigException.h"
#include "ConfigStore.h"
#include "DrawingTestPage.h"
#include "HelpActions.h"
#include "HomePage.h"
#include "LearnerTransfer.h"
#include "LessonPage.h"
#include "LexiconAccess.h"
#include "PageStack.h"
#include "PreferencesDialog.h"
#include "ReadingTestPage.h"
#include "Prompt.h"
#include "ScreenPlacement.h"
#include "StoredPicture.h"
#include "TestContainer.h"
#include "UserManagerDialog.h"
#include "WindowKeys.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>

using ZavorenCommon::ConfigException;

MainWindow::MainWindow(CharacterDatabase& database, ConfigStore& store, Prompt& prompt, SeedSource seeds,
    UrlOpener open, EventClock clock, ProgressViewSource progressViews, QWidget* parent)
    : QMainWindow(parent), m_database(database), m_store(store), m_prompt(prompt), m_seeds(std::move(seeds)),
      m_open(std::move(open)), m_clock(clock), m_progress(database, prompt, std::move(clock), std::move(progressViews))
{
    setObjectName(QStringLiteral("Zavoren Mainframe Class"));
    setWindowTitle(QStringLiteral("Zavoren!"));
    setWindowIcon(ProgramIcon());
    BuildMenu();
    m_pages = new PageStack(this);
    setCentralWidget(m_pages);
    m_home = new HomePage(database, prompt);
    m_lesson = new LessonPage(database, prompt);
    m_test = new TestContainer(database, prompt, m_seeds);
    m_category = new CategoryPage(database, prompt, m_seeds);
    // The coaching aids decide whether the feedback line is there: set before any page takes
    // its size.
    m_preferences = m_settings.Coaching();
    m_lesson->SetCoaching(m_preferences);
    m_test->DrawingPage()->SetCoaching(m_preferences);
    // Words and parts come from the file "lexicon" beside the database, read only when a page
    // first shows one.
    m_lexicon = std::make_unique<LexiconAccess>("lexicon", database);
    ApplyWordAids();
    for (Page* page : std::initializer_list<Page*>{m_home, m_lesson, m_test, m_category}) {
        m_pages->Add(page);
        connect(
            page, &Page::pageEvent, this,
            [this, page](quint16 code, quint16 argument) { OnPageEvent(page, code, argument); }, Qt::DirectConnection);
    }
    InstallWindowKeys(this);
}

MainWindow::~MainWindow() = default;

void MainWindow::SetLexicon(std::unique_ptr<LexiconAccess> lexicon)
{
    m_lexicon = std::move(lexicon);
    ApplyWordAids();
}

LexiconAccess* MainWindow::KanjiInfoWords() const
{
    return m_preferences.wordsAndParts ? m_lexicon.get() : nullptr;
}

void MainWindow::ApplyWordAids()
{
    WordContext context;
    if (m_preferences.wordsAndParts) {
        context.lexicon = m_lexicon.get();
        // Read when Kanji Info opens, so it follows the learner open then.
        context.learned = [this](std::uint16_t id) { return m_learner && HasLearned(*m_learner, id); };
    }
    m_category->SetWords(std::move(context));
    m_test->ReadingPage()->SetWordAid(m_preferences.wordAfterAnswer ? m_lexicon.get() : nullptr);
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
    add(file, tr("Exit"), "exitAction", &QWidget::close);
    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    // Progress and export need a learner: enabled only while one is open.
    m_learnerActions << add(tools, tr("Progress…"), "progressAction", [this] {
        if (!m_learner)
            return;
        std::vector<LearnerEvent> history = m_store.History(*m_learner);
        auto reviews = Reviews();
        TellHistoryProblem();
        m_progress.Open(m_learner.get(), std::move(history), std::move(reviews), KanjiInfoWords(), this);
    });
    m_learnerActions << add(tools, tr("Export learner…"), "exportAction", [this] {
        LearnerTransfer(m_database, m_store, m_prompt, this).ExportAsked(m_learner.get());
        TellHistoryProblem();
    });
    add(tools, tr("Import learner…"), "importAction", &MainWindow::ImportLearner);
    tools->addSeparator();
    add(tools, tr("Preferences…"), "preferencesAction", &MainWindow::ChangePreferences);
    for (QAction* action : m_learnerActions)
        action->setEnabled(false);
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    add(help, tr("Contents"), "contentsAction", [this] { OpenHelpContents(m_open); });
    QMenu* links = help->addMenu(tr("Links"));
    add(links, tr("Quelmar Software site"), "siteAction", [this] {
        OpenMakerSite(m_open);
    })->setStatusTip(tr("Open Quelmar Software web site"));
    help->addSeparator();
    add(help, tr("About"), "aboutAction", [this] { ShowAbout(m_open, this); })->setStatusTip(tr("About Zavoren"));
}

bool MainWindow::ChooseLearnerAtStart()
{
    try {
        std::string name = m_store.CurrentUserName();
        if (name.empty() && m_store.UserCount() == 1)
            name = m_store.UserName(0);
        m_chosenAtStart = m_store.LoadUser(name);
        if (!m_chosenAtStart) {
            if (RunUserManager() != UserManagerDialog::Open)
                return false;
            m_chosenAtStart = m_store.LoadUser(m_managerChoice);
        }
    } catch (const ConfigException& e) {
        m_prompt.StoreError(nullptr, ConfigurationErrorTitle, e.what());
        return false;
    }
    // Sized to the home page; centred, or where it was.
    resize(m_home->width(), m_home->height() + menuBar()->sizeHint().height());
    move(StartPosition(frameGeometry(), m_settings.StoredPosition(frameGeometry()), m_preferences.keepOnScreen));
    return true;
}

bool MainWindow::ShowChosenLearner()
{
    SetLearner(std::move(m_chosenAtStart));
    return m_learner != nullptr;
}

void MainWindow::SetLearner(std::unique_ptr<User> learner, SaveOpenLearner save)
{
    try {
        if (save == SaveOpenLearner::Yes && m_learner && m_learner->Name()
            && m_store.CurrentUserName() == m_learner->Name())
            m_store.SaveUser(*m_learner);
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
    }
    m_progress.Close();
    m_learner = std::move(learner);
    m_categoryId.reset();
    for (QAction* action : m_learnerActions)
        action->setEnabled(m_learner != nullptr);
    m_home->SetUser(m_learner.get());
    if (!m_learner) {
        hide();
        return;
    }
    m_home->SetReviews(Reviews());
    show();
    ShowPage(m_home);
    TellHistoryProblem();
    // The history is not needed to show the home page: its database is opened once the page
    // has been painted for the first time.
    if (!m_historyOpened)
        m_home->installEventFilter(this);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_home && event->type() == QEvent::Paint && !m_historyOpened) {
        m_historyOpened = true;
        m_home->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] {
            if (m_closing)
                return;
            m_store.OpenHistory();
            TellHistoryProblem();
            // Its full check goes on in the background: what it finds is told when it is over.
            auto* watch = new QTimer(this);
            connect(watch, &QTimer::timeout, this, [this, watch] {
                if (m_store.HistoryBeingChecked())
                    return;
                watch->stop();
                watch->deleteLater();
                TellHistoryProblem();
            });
            watch->start(50);
        });
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::TellHistoryProblem()
{
    const HistoryProblem problem = m_store.TakeHistoryProblem();
    if (problem.reason.empty())
        return;
    QString text = tr("The learning history cannot be kept: %1").arg(QString::fromStdString(problem.reason));
    if (!problem.keptAs.empty())
        text += QLatin1Char('\n') + tr("The damaged file is kept as \"%1\".").arg(QString::fromStdString(problem.keptAs));
    text += QLatin1Char('\n') + tr("Until it can be kept again, your progress and history are saved in config.xml.");
    m_prompt.Ask(isVisible() ? this : nullptr, QMessageBox::Warning, tr("Learning history"), text);
}

int MainWindow::RunUserManager()
{
    QWidget* owner = QApplication::activeWindow();
    UserManagerDialog manager(m_store, m_prompt, owner && owner->isVisible() ? owner : (isVisible() ? this : nullptr));
    connect(&manager, &UserManagerDialog::currentUserDeleted, this, [this] { SetLearner(nullptr); });
    connect(&manager, &UserManagerDialog::storeFailed, this,
        [this](const QString& message) { ReportStoreError(message.toUtf8().constData()); });
    const int result = manager.exec();
    m_managerChoice = manager.SelectedUserName();
    TellHistoryProblem();
    return result;
}

void MainWindow::ChooseLearner()
{
    const int result = RunUserManager();
    if (result == UserManagerDialog::Open) {
        try {
            SetLearner(m_store.LoadUser(m_managerChoice));
        } catch (const ConfigException& e) {
            ReportStoreError(e.what());
        }
    } else if (!m_learner) {
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
    if (m_learner) {
        // A test in progress counts as taken so far.
        if (m_pages->Shown() == m_test)
            ApplyTestOutcome();
        try {
            m_store.SaveUser(*m_learner);
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

void MainWindow::ShowCategoryPage()
{
    if (m_categoryId) {
        auto recorder = Recorder();
        auto reviews = Reviews();
        if (recorder && reviews)
            recorder->SetDueFirst(reviews->DueFirst(*m_categoryId));
        m_category->SetReviews(std::move(reviews));
        m_category->SetCategory(*m_categoryId, std::move(recorder));
    }
    ShowPage(m_category);
    TellHistoryProblem();
}

std::optional<ReviewSchedule> MainWindow::Reviews()
{
    if (!m_learner || !m_preferences.reviewWhenDue)
        return std::nullopt;
    const int today = EventDay(m_clock ? m_clock() : LocalTimeNow());
    return ReviewSchedule(*m_learner, m_store.Memories(*m_learner),
        MemoryModel(m_preferences.retention, m_preferences.maximumInterval), today);
}

std::optional<ProgressRecorder> MainWindow::Recorder()
{
    if (!m_learner || !m_categoryId)
        return std::nullopt;
    return ProgressRecorder(
        *m_learner, *m_categoryId, m_clock, [this](User& learner, const std::vector<LearnerEvent>& events) {
            m_store.Record(learner, events);
            TellHistoryProblem();
        });
}

void MainWindow::OnPageEvent(Page* page, quint16 code, quint16 argument)
{
    if (page == m_home && code == HomePage::OpenCategory) {
        m_categoryId = m_home->ChosenCategory();
        ShowCategoryPage();
    } else if (page == m_category) {
        auto recorder = Recorder();
        switch (code) {
        case CategoryPage::Lesson:
            m_lesson->StartLesson(m_category->PickLessonCharacters(LessonSize));
            ShowPage(m_lesson);
            break;
        case CategoryPage::Learn:
            if (recorder)
                recorder->LearnOne(argument);
            m_lesson->StartLesson({argument});
            ShowPage(m_lesson);
            break;
        case CategoryPage::Test:
            m_test->StartTest(recorder ? recorder->TestCharacters() : std::vector<std::uint16_t>{});
            ShowPage(m_test);
            break;
        case CategoryPage::Back:
            // With the reviews every category's due count may have moved, not only this one's.
            if (m_preferences.reviewWhenDue)
                m_home->SetReviews(Reviews());
            else
                m_home->RefreshSelectedCategory();
            ShowPage(m_home);
            TellHistoryProblem();
            break;
        }
    } else if (page == m_lesson) {
        if (code == LessonPage::Finished)
            if (auto recorder = Recorder())
                recorder->LessonFinished(m_lesson->DoneCodes());
        if (code == LessonPage::Finished || code == LessonPage::Aborted)
            ShowCategoryPage();
    } else if (page == m_test) {
        if (code == TestContainer::Finished || code == TestContainer::Aborted) {
            ApplyTestOutcome();
            ShowCategoryPage();
        }
    }
}

void MainWindow::ApplyTestOutcome()
{
    if (auto recorder = Recorder())
        recorder->TestTaken(m_test->PassedCodes(), m_test->FailedCodes(),
            [this](std::uint16_t code) { return m_test->Schedule().MistakesOf(code); });
    m_test->StartTest({});
}

void MainWindow::ChangePreferences()
{
    PreferencesDialog dialog(m_preferences, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_preferences = dialog.Chosen();
    m_settings.StoreCoaching(m_preferences);
    m_lesson->SetCoaching(m_preferences);
    m_test->DrawingPage()->SetCoaching(m_preferences);
    ApplyWordAids();
    // The feedback line shows or hides under the canvases: the pages take their new sizes.
    for (Page* page : {static_cast<Page*>(m_lesson), static_cast<Page*>(m_test)})
        m_pages->Refit(page);
    FitToPage();
    // The reviews follow the new schedule at once.
    if (m_learner) {
        m_home->SetReviews(Reviews());
        if (m_pages->Shown() == m_category)
            ShowCategoryPage();
        TellHistoryProblem();
    }
}

void MainWindow::ImportLearner()
{
    try {
        const std::string open = m_learner && m_learner->Name() ? m_learner->Name() : "";
        LearnerTransfer::Outcome outcome = LearnerTransfer(m_database, m_store, m_prompt, this).ImportAsked(open);
        // The open learner's record was replaced: they become the imported one, not saved over it.
        if (outcome.replacedOpen)
            SetLearner(std::move(outcome.replacedOpen), SaveOpenLearner::No);
        TellHistoryProblem();
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
    }
}
