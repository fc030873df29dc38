#include "MainWindow.h"

#include "CategoryPage.h"
#include "AddUserDialog.h"
#include "CategoryRules.h"
#include "CharacterDatabase.h"
#include "ConfigException.h"
#include "ConfigStore.h"
#include "DrawingTestPage.h"
#include "HelpActions.h"
#include "HomePage.h"
#include "LearnerFile.h"
#include "LessonPage.h"
#include "PreferencesDialog.h"
#include "ProgressRecorder.h"
#include "Prompt.h"
#include "ScreenPlacement.h"
#include "StoredPicture.h"
#include "TestContainer.h"
#include "UserManagerDialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QWhatsThis>
#include <QtEndian>

using ZavorenCommon::ConfigException;

namespace {


/// Keys the window takes and ignores, so that the pages never see them.
const QKeySequence IgnoredKeys[] = {
    QKeySequence(Qt::CTRL | Qt::Key_C),
    QKeySequence(Qt::CTRL | Qt::Key_Insert),
    QKeySequence(Qt::SHIFT | Qt::Key_Delete),
    QKeySequence(Qt::CTRL | Qt::Key_X),
    QKeySequence(Qt::CTRL | Qt::Key_V),
    QKeySequence(Qt::SHIFT | Qt::Key_Insert),
    QKeySequence(Qt::ALT | Qt::Key_Backspace),
    QKeySequence(Qt::CTRL | Qt::Key_Z),
    QKeySequence(Qt::CTRL | Qt::Key_N),
    QKeySequence(Qt::CTRL | Qt::Key_O),
    QKeySequence(Qt::CTRL | Qt::Key_P),
    QKeySequence(Qt::CTRL | Qt::Key_S),
    QKeySequence(Qt::Key_F6),
    QKeySequence(Qt::SHIFT | Qt::Key_F6),
};

} // namespace

MainWindow::MainWindow(CharacterDatabase& database, ConfigStore& store, Prompt& prompt, SeedSource seeds,
    UrlOpener open, EventClock clock, QWidget* parent)
    : QMainWindow(parent), m_database(database), m_store(store), m_prompt(prompt), m_seeds(std::move(seeds)),
      m_open(std::move(open)), m_clock(std::move(clock))
{
    setObjectName(QStringLiteral("Zavoren Mainframe Class"));
    setWindowTitle(QStringLiteral("Zavoren!"));
    setWindowIcon(ProgramIcon());
    BuildMenu();
    m_pageArea = new QWidget(this);
    setCentralWidget(m_pageArea);
    m_home = new HomePage(database, prompt, m_pageArea);
    m_lesson = new LessonPage(database, prompt, m_pageArea);
    m_test = new TestContainer(database, prompt, m_seeds, m_pageArea);
    m_category = new CategoryPage(database, prompt, m_seeds, m_pageArea);
    // The coaching aids decide whether the feedback line is there: set before any page takes
    // its size.
    m_preferences = LoadCoachingPreferences();
    m_lesson->SetCoaching(m_preferences);
    m_test->DrawingPage()->SetCoaching(m_preferences);
    for (Page* page : {static_cast<Page*>(m_home), static_cast<Page*>(m_lesson), static_cast<Page*>(m_test),
             static_cast<Page*>(m_category)}) {
        page->hide();
        connect(
            page, &Page::pageEvent, this,
            [this, page](quint16 code, quint16 argument) { OnPageEvent(page, code, argument); }, Qt::DirectConnection);
    }
    for (const QKeySequence& keys : IgnoredKeys)
        new QShortcut(
            keys, this, [] {}, Qt::WindowShortcut);
    // Context help: Shift+F1, then a click on a control shows its help text, if it has one.
    new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F1), this, [] { QWhatsThis::enterWhatsThisMode(); });
}

MainWindow::~MainWindow() = default;

void MainWindow::ApplyPreferences(const CoachingPreferences& preferences)
{
    m_preferences = preferences;
    m_lesson->SetCoaching(preferences);
    m_test->DrawingPage()->SetCoaching(preferences);
    // The feedback line shows or hides under the canvases: the pages take their new sizes.
    for (Page* page : {static_cast<Page*>(m_lesson), static_cast<Page*>(m_test)}) {
        page->setMinimumSize(0, 0);
        page->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        m_fittedPages.removeOne(page);
    }
    if (Page* shown = m_shown) {
        m_shown = nullptr;
        ShowPage(shown);
    }
}

void MainWindow::ChangePreferences()
{
    PreferencesDialog dialog(m_preferences, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    ApplyPreferences(dialog.Chosen());
    SaveCoachingPreferences(m_preferences);
}

void MainWindow::BuildMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    m_usersAction = file->addAction(tr("Users"), this, &MainWindow::ChooseLearner);
    file->addSeparator();
    m_exitAction = file->addAction(tr("Exit"), this, &QWidget::close);
    QMenu* tools = menuBar()->addMenu(tr("&Tools"));
    m_progressAction = tools->addAction(tr("Progress…"), this, &MainWindow::ShowProgress);
    m_exportAction = tools->addAction(tr("Export learner…"), this, &MainWindow::ExportLearner);
    m_importAction = tools->addAction(tr("Import learner…"), this, &MainWindow::ImportLearner);
    tools->addSeparator();
    m_preferencesAction = tools->addAction(tr("Preferences…"), this, &MainWindow::ChangePreferences);
    UpdateLearnerActions();
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    m_contentsAction = help->addAction(tr("Contents"), this, [this] { OpenHelpContents(m_open); });
    QMenu* links = help->addMenu(tr("Links"));
    m_siteAction = links->addAction(tr("Quelmar Software site"), this, [this] { OpenMakerSite(m_open); });
    m_siteAction->setStatusTip(tr("Open Quelmar Software web site"));
    help->addSeparator();
    m_aboutAction = help->addAction(tr("About"), this, [this] { ShowAbout(m_open, this); });
    m_aboutAction->setStatusTip(tr("About Zavoren"));
}

std::optional<ProgressRecorder> MainWindow::Recorder()
{
    if (!m_learner || !m_categoryId)
        return std::nullopt;
    return ProgressRecorder(*m_learner, *m_categoryId, m_clock);
}

CategoryProgress* MainWindow::CurrentCategory() const
{
    if (!m_learner || !m_categoryId)
        return nullptr;
    return &m_learner->GetProgress(*m_categoryId);
}

void MainWindow::ReportStoreError(const char* message)
{
    m_prompt.StoreError(this, ConfigurationErrorTitle, message);
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
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
    return result;
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
    // Sized to the home page, centred; a stored position wins.
    resize(m_home->width(), m_home->height() + menuBar()->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    LoadPlacement();
    if (m_preferences.keepOnScreen)
        KeepOnScreen();
    return true;
}

void MainWindow::ShowChosenLearner()
{
    SetLearner(std::move(m_chosenAtStart));
}

void MainWindow::SetLearner(std::unique_ptr<User> learner)
{
    try {
        if (m_learner && m_learner->Name() && m_store.CurrentUserName() == m_learner->Name())
            m_store.SaveUser(*m_learner);
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
    }
    CloseProgressView();
    m_learner = std::move(learner);
    m_categoryId.reset();
    UpdateLearnerActions();
    if (!m_learner) {
        m_home->SetUser(nullptr);
        hide();
        return;
    }
    m_home->SetUser(m_learner.get());
    show();
    ShowPage(m_home);
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

void MainWindow::FitPage(Page* page)
{
    // Measured when first shown: a page not shown yet costs nothing to lay out at start.
    if (m_fittedPages.contains(page))
        return;
    page->adjustSize();
    page->setFixedSize(page->size());
    m_fittedPages.append(page);
}

void MainWindow::ShowPage(Page* page)
{
    if (page == m_shown)
        return;
    FitPage(page);
    Page* previous = m_shown;
    m_shown = page;
    page->move(0, 0);
    page->show();
    if (previous)
        previous->hide();
    m_pageArea->setFixedSize(page->size());
    setFixedSize(page->width(), page->height() + menuBar()->sizeHint().height());
    page->setFocus();
}

void MainWindow::ShowCategoryPage()
{
    if (m_categoryId)
        m_category->SetCategory(*m_categoryId, Recorder());
    ShowPage(m_category);
}

void MainWindow::OnPageEvent(Page* page, quint16 code, quint16 argument)
{
    if (page == m_home && code == HomePage::OpenCategory) {
        m_categoryId = m_home->ChosenCategory();
        ShowCategoryPage();
    } else if (page == m_category) {
        CategoryProgress* progress = CurrentCategory();
        switch (code) {
        case CategoryPage::Lesson:
            m_lesson->StartLesson(m_category->PickLessonCharacters(LessonSize));
            ShowPage(m_lesson);
            break;
        case CategoryPage::Learn:
            if (auto recorder = Recorder())
                recorder->LearnOne(argument);
            m_lesson->StartLesson({argument});
            ShowPage(m_lesson);
            break;
        case CategoryPage::Test:
            m_test->StartTest(progress ? Recorder()->TestCharacters() : std::vector<std::uint16_t>{});
            ShowPage(m_test);
            break;
        case CategoryPage::Back:
            m_home->RefreshSelectedCategory();
            ShowPage(m_home);
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

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_closing) {
        event->accept();
        return;
    }
    m_closing = true;
    CloseProgressView();
    if (m_learner) {
        // A test in progress counts as taken so far.
        if (m_shown == m_test)
            ApplyTestOutcome();
        try {
            m_store.SaveUser(*m_learner);
        } catch (const ConfigException& e) {
            m_prompt.StoreError(this, ConfigurationErrorTitle, e.what());
        }
    }
    SavePlacement();
    event->accept();
    emit closed();
}

void MainWindow::LoadPlacement()
{
    QSettings settings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
    const QVariant value = settings.value(QStringLiteral("WindowPosition"));
    if (!value.isValid())
        return;
    const QByteArray bytes = value.toByteArray();
    if (bytes.size() > 16 || bytes.isEmpty())
        return; // a longer value is not a placement; ignored
    // Left, top, right, bottom as little-endian 32-bit numbers; a shorter value replaces only
    // the leading fields.
    const QRect frame = frameGeometry();
    qint32 fields[4] = {frame.left(), frame.top(), frame.left() + frame.width(), frame.top() + frame.height()};
    for (int i = 0; i < 4 && (i + 1) * 4 <= bytes.size(); ++i)
        fields[i] = qFromLittleEndian<qint32>(bytes.constData() + 4 * i);
    // As stored, even off every screen, unless the learner keeps the window on screen.
    move(fields[0], fields[1]);
}

void MainWindow::KeepOnScreen()
{
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens << screen->availableGeometry();
    move(PlaceOnScreens(frameGeometry(), screens));
}

void MainWindow::SavePlacement()
{
    const QRect frame = frameGeometry();
    QByteArray bytes(16, '\0');
    const qint32 fields[4] = {frame.left(), frame.top(), frame.left() + frame.width(), frame.top() + frame.height()};
    for (int i = 0; i < 4; ++i)
        qToLittleEndian<qint32>(fields[i], bytes.data() + 4 * i);
    // Written only when it changed: every write locks, writes and syncs the settings file.
    QSettings settings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
    const QString key = QStringLiteral("WindowPosition");
    const QVariant stored = settings.value(key);
    if (stored.typeId() != QMetaType::QByteArray || stored.toByteArray() != bytes)
        settings.setValue(key, bytes);
}

void MainWindow::UpdateLearnerActions()
{
    // What needs a learner is there only while one is open.
    for (QAction* action : {m_progressAction, m_exportAction})
        if (action)
            action->setEnabled(m_learner != nullptr);
}

void MainWindow::CloseProgressView()
{
    // The window shows the learner it was opened for: it goes when they do.
    delete m_progressView;
}

void MainWindow::ShowProgress()
{
    if (!m_learner)
        return;
    CloseProgressView();
    QString error;
    ProgressViewFactory* factory = m_progressViews ? m_progressViews(error) : nullptr;
    if (!factory) {
        m_prompt.Ask(this, QMessageBox::Warning, tr("Progress"),
            tr("The progress window cannot be opened: %1").arg(error));
        return;
    }
    try {
        m_progressView = factory->CreateProgressView(
            m_database, m_prompt, *m_learner, m_clock ? m_clock() : LocalTimeNow(), this);
    } catch (const std::exception& e) {
        m_prompt.Ask(this, QMessageBox::Warning, tr("Progress"),
            tr("The progress window cannot be opened: %1").arg(QString::fromUtf8(e.what())));
        return;
    }
    if (m_progressView)
        m_progressView->show();
}

void MainWindow::ExportLearner()
{
    if (!m_learner)
        return;
    // The learner's name as a file name: a slash would name a folder.
    QString name = QString::fromUtf8(m_learner->Name() ? m_learner->Name() : "");
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    const QString suggested = QDir::home().filePath(name + QStringLiteral(".zavoren-learner.xml"));
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export learner"), suggested, tr("Zavoren! learners (*.xml);;All files (*)"));
    if (!path.isEmpty())
        ExportLearnerTo(path);
}

void MainWindow::ImportLearner()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import learner"), QDir::homePath(), tr("Zavoren! learners (*.xml);;All files (*)"));
    if (!path.isEmpty())
        ImportLearnerFrom(path);
}

bool MainWindow::ExportLearnerTo(const QString& path)
{
    if (!m_learner)
        return false;
    const auto problem = LearnerFile::Export(QFile::encodeName(path).toStdString(), *m_learner, m_database.CategoryCount());
    if (problem == LearnerFile::Problem::None)
        return true;
    m_prompt.Ask(this, QMessageBox::Warning, tr("Export learner"),
        tr("The learner could not be written to \"%1\". Nothing was changed.").arg(QDir::toNativeSeparators(path)));
    return false;
}

bool MainWindow::ImportLearnerFrom(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    LearnerFile::Imported imported = LearnerFile::Import(QFile::encodeName(path).toStdString(), m_database);
    QString refusal;
    switch (imported.problem) {
    case LearnerFile::Problem::None: break;
    case LearnerFile::Problem::CannotWrite:
    case LearnerFile::Problem::CannotRead: refusal = tr("The file \"%1\" cannot be read.").arg(shown); break;
    case LearnerFile::Problem::NotAnExport:
        refusal = tr("\"%1\" is not a learner exported by Zavoren!.").arg(shown);
        break;
    case LearnerFile::Problem::Damaged: refusal = tr("The learner file \"%1\" is damaged.").arg(shown); break;
    case LearnerFile::Problem::OtherDatabase:
        refusal = tr("The learner file \"%1\" was written with a character database of %2 categories; this one has %3.")
                      .arg(shown)
                      .arg(imported.fileCategories)
                      .arg(m_database.CategoryCount());
        break;
    }
    if (!refusal.isEmpty()) {
        m_prompt.Ask(this, QMessageBox::Warning, tr("Import learner"), refusal + QLatin1Char(' ') + tr("Nothing was imported."));
        return false;
    }
    User& learner = *imported.learner;
    std::string name = learner.Name() ? learner.Name() : "";
    bool taken = false;
    for (std::uint16_t i = 0; i < m_store.UserCount(); ++i)
        taken = taken || m_store.UserName(i) == name;
    try {
        if (taken) {
            const auto answer = m_prompt.Ask(this, QMessageBox::Question, tr("Import learner"),
                tr("A learner named \"%1\" already exists. Replace their record with the imported one?\n\n"
                   "Yes replaces it; No imports the learner under another name.")
                    .arg(QString::fromStdString(name)),
                QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
            if (answer == QMessageBox::Yes) {
                const bool current = m_learner && m_learner->Name() && name == m_learner->Name();
                m_store.SaveUser(learner);
                if (current) {
                    // The open learner becomes the imported one, not saved over it at close.
                    CloseProgressView();
                    m_learner = std::move(imported.learner);
                    m_categoryId.reset();
                    m_home->SetUser(m_learner.get());
                    ShowPage(m_home);
                }
                return true;
            }
            if (answer != QMessageBox::No)
                return false;
            name = AddLearnerByName(m_store, m_prompt, this, QString::fromStdString(name));
            if (name.empty())
                return false;
            learner.SetName(name);
        } else if (!m_store.AddUser(name)) {
            m_prompt.Ask(this, QMessageBox::Warning, tr("Import learner"),
                tr("The learner file \"%1\" is damaged.").arg(shown) + QLatin1Char(' ') + tr("Nothing was imported."));
            return false;
        }
        m_store.SaveUser(learner);
    } catch (const ConfigException& e) {
        ReportStoreError(e.what());
        return false;
    }
    return true;
}
