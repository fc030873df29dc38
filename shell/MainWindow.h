#pragma once

#include "PreferencesEditor.h"
#include "ProgramSettings.h"
#include "ProgressViewer.h"
#include "Random15.h"
#include "UrlOpener.h"
#include "User.h"

#include <QMainWindow>

#include <memory>
#include <string>

class CategoryPage;
class ReviewPage;
class LearnerWindows;
class WordsTestPage;
class CharacterDatabase;
class HomePage;
class LearnerSession;
class LessonPage;
class Page;
class PageStack;
class Prompt;
class TestContainer;

/// The program's only top-level window: the menu bar and four pages, exactly one shown at a
/// time. It builds the pages, switches between them on their events, owns the menus and opens
/// and closes learners; the open learner and what belongs to them is the session's, and each
/// menu action's work is a class of its own.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    /// The open learner lives in `session`; messages go through `prompt`, random draws are
    /// seeded from `seeds`, help and links open through `open`, progress windows come from
    /// `progressViews`.
    MainWindow(CharacterDatabase& database, LearnerSession& session, Prompt& prompt, SeedSource seeds, UrlOpener open,
        ProgressViewSource progressViews, QWidget* parent = nullptr);

    /// Chooses the learner to open: the recorded current one, else the only one, else the User
    /// Manager's choice. False when the User Manager was cancelled (the program ends).
    bool ChooseLearnerAtStart();
    /// Makes the learner chosen at start current and shows the home page; false when there is
    /// none (the program ends).
    bool ShowChosenLearner();

signals:
    /// The window has closed normally (the program ends with exit code 1).
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// Whether SetLearner first saves the learner who was open.
    enum class SaveOpenLearner { Yes, No };
    /// Makes a learner current; none hides the window.
    void SetLearner(std::unique_ptr<User> learner, SaveOpenLearner save = SaveOpenLearner::Yes);
    /// File > Users: runs the User Manager and applies its choice.
    void ChooseLearner();
    int RunUserManager();
    void ReportStoreError(const char* message);
    void ImportLearner();

    void BuildMenu();
    /// Shows one page and sizes the window to it plus the menu bar.
    void ShowPage(Page* page);
    void FitToPage();
    void OnPageEvent(Page* page, quint16 code, quint16 argument);
    /// Records what the test taken so far showed, and empties it.
    void ApplyTestOutcome();

    CharacterDatabase& m_database;
    LearnerSession& m_session;
    Prompt& m_prompt;
    SeedSource m_seeds;
    UrlOpener m_open;
    ProgressViewer m_progress;
    ProgramSettings m_settings;
    PageStack* m_pages = nullptr;
    HomePage* m_home = nullptr;
    LessonPage* m_lesson = nullptr;
    TestContainer* m_test = nullptr;
    CategoryPage* m_category = nullptr;
    ReviewPage* m_review = nullptr;
    WordsTestPage* m_words = nullptr;
    QAction* m_sheetAction = nullptr;
    LearnerWindows* m_windows = nullptr;
    std::unique_ptr<PreferencesEditor> m_preferences;
    std::unique_ptr<User> m_chosenAtStart;
    std::string m_managerChoice;
    QList<QAction*> m_learnerActions; ///< what needs a learner: enabled only while one is open
    bool m_closing = false;
    bool m_historyOpened = false; ///< asked for once the home page was first painted
};
