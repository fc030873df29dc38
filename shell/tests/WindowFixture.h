#pragma once

// A main window over a data folder of the test's own: the window takes the test's database and
// learner store by reference, as the program gives it the process's; its settings file lies in
// the folder too. Nothing changes the current folder or goes through the process-wide stores.

#include "FileCharacterDatabase.h"
#include "LearnerSession.h"
#include "MainWindow.h"
#include "Page.h"
#include "ProgressModule.h"
#include "RecordingOpener.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "StoreWithHistory.h"

#include <QAction>
#include <QSettings>
#include <QTemporaryDir>

#include <fstream>
#include <memory>

/// The standard database, read once for the whole test program.
inline CharacterDatabase& StandardDatabase()
{
    static FileCharacterDatabase database(ZAVOREN_STANDARD_DATABASE);
    return database;
}

/// Progress windows that cannot be had: the window says so.
inline ProgressViewFactory* NoProgressModule(QString& error)
{
    error = QStringLiteral("no module in the tests");
    return nullptr;
}

/// Where the window's store keeps the history: with the learners in config.xml, or in a
/// history database (history.db beside config.xml, or another path).
struct HistoryPlace {
    bool database = false;
    std::string path; ///< empty: history.db in the folder
    std::string lexicon = "lexicon"; ///< where the session's words and parts come from
};

class WindowFixture {
public:
    /// A folder whose config.xml holds `config`; the window is built at once.
    explicit WindowFixture(
        const std::string& config, ProgressViewSource views = NoProgressModule, HistoryPlace history = {})
        : m_views(std::move(views)), m_history(std::move(history))
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath(QStringLiteral("settings")));
        std::ofstream(ConfigPath()) << config;
        Open();
    }
    ~WindowFixture() { Close(); }

    MainWindow& Window() { return *m_window; }
    StoreWithHistory& Store() { return *m_store; }
    LearnerSession& Session() { return *m_session; }
    RecordingPrompt& Prompt() { return m_prompt; }
    RecordingOpener& Urls() { return m_urls; }
    QString Path() const { return m_dir.path(); }
    std::string ConfigPath() const { return m_dir.filePath(QStringLiteral("config.xml")).toStdString(); }
    std::string HistoryPath() const
    {
        return m_history.path.empty() ? m_dir.filePath(QStringLiteral("history.db")).toStdString() : m_history.path;
    }

    /// Moves the clock that dates events and says what day it is (FixedClock() at first).
    void SetNow(std::string at) { m_now = std::move(at); }

    /// Starts as the program does: the learner chosen at start opens on the home page.
    bool Start() { return m_window->ChooseLearnerAtStart() && m_window->ShowChosenLearner(); }
    /// Closes the window (it saves) and the store.
    void Close()
    {
        if (m_window)
            m_window->close();
        m_window.reset();
        m_session.reset();
        m_store.reset();
    }
    /// Closes everything and opens it again from the folder, as a new start of the program.
    void Restart()
    {
        Close();
        Open();
    }
    /// The learner's record as the file holds it, read by a store of its own.
    std::unique_ptr<User> Saved(const std::string& name) const
    {
        XmlConfigStore store(ConfigPath(), StandardDatabase());
        return store.LoadUser(name);
    }
    std::string ReadConfig() const
    {
        std::ifstream file(ConfigPath());
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

private:
    void Open()
    {
        m_store = std::make_unique<StoreWithHistory>(
            ConfigPath(), StandardDatabase(), m_history.database ? HistoryPath() : std::string());
        m_session = std::make_unique<LearnerSession>(
            StandardDatabase(), *m_store, m_store->Histories(), [this] { return m_now; }, m_history.lexicon);
        m_window = std::make_unique<MainWindow>(
            StandardDatabase(), *m_session, m_prompt, FixedSeed, m_urls.Opener(), m_views);
    }

    QTemporaryDir m_dir;
    RecordingPrompt m_prompt;
    RecordingOpener m_urls;
    ProgressViewSource m_views;
    HistoryPlace m_history;
    std::string m_now = FixedClock();
    std::unique_ptr<StoreWithHistory> m_store;
    std::unique_ptr<LearnerSession> m_session;
    std::unique_ptr<MainWindow> m_window;
};

/// The window's child of type T (its pages, its dialogs, the progress window).
template<typename T> T* ChildOf(QWidget& window)
{
    return window.findChild<T*>();
}

/// The page the window shows.
inline Page* ShownPage(QMainWindow& window)
{
    for (Page* page : window.centralWidget()->findChildren<Page*>(Qt::FindDirectChildrenOnly))
        if (page->isVisible())
            return page;
    return nullptr;
}

/// A menu action of the window by its object name ("usersAction", "progressAction"…).
inline QAction* ActionOf(QWidget& window, const char* name)
{
    return window.findChild<QAction*>(QLatin1String(name));
}

/// A config.xml with one learner, current, whose Grade 1 record holds these untested and
/// learned characters.
inline std::string OneLearner(
    const char* name, const std::vector<std::uint16_t>& untested = {}, const std::vector<std::uint16_t>& learned = {})
{
    auto list = [](const char* element, const std::vector<std::uint16_t>& codes) {
        std::string xml = std::string("<") + element + ">";
        for (std::uint16_t code : codes)
            xml += "<Character id=\"" + std::to_string(code) + "\"/>";
        return xml + "</" + element + ">";
    };
    return std::string("<Zavoren><Users currentUser=\"") + name + "\"><User name=\"" + name
        + "\"><Progress categoryId=\"0\">" + list("Learned", learned) + list("Untested", untested)
        + "</Progress></User></Users></Zavoren>";
}

/// A config.xml with one learner, current, with the first five characters of Grade 1 to test,
/// so that every page can be reached.
inline std::string LearnerWithFiveToTest(const char* name)
{
    const std::vector<std::uint16_t> grade1 = StandardDatabase().LoadCategory(0)->Characters();
    return OneLearner(name, {grade1.begin(), grade1.begin() + 5});
}
