#pragma once

#include "CoachingPreferences.h"
#include "LearnerEvent.h"
#include "ProgressModule.h"
#include "ProgressRecorder.h"
#include "Random15.h"
#include "UrlOpener.h"
#include "User.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>
#include <optional>

class CategoryPage;
class CharacterDatabase;
class ConfigStore;
class HomePage;
class LessonPage;
class Page;
class Prompt;
class TestContainer;
class UserManagerDialog;

/// The program's only top-level window: the menu bar and four pages, exactly one shown at a
/// time. Pages report events; this window alone decides which page comes next, what it is
/// given and what is recorded in the learner's progress. It owns the current learner.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    /// Messages go through `prompt`, random draws are seeded from `seeds`, help and links open
    /// through `open`.
    /// History events are dated by `clock`.
    MainWindow(CharacterDatabase& database, ConfigStore& store, Prompt& prompt, SeedSource seeds, UrlOpener open,
        EventClock clock, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Chooses the learner to open: the recorded current one, else the only one, else the User
    /// Manager's choice. False when the User Manager was cancelled (the program ends).
    bool ChooseLearnerAtStart();
    /// Makes the learner chosen at start current and shows the home page.
    void ShowChosenLearner();
    /// Makes a learner current (saving the one before when it is the store's current learner);
    /// none hides the window.
    void SetLearner(std::unique_ptr<User> learner);
    /// File > Users: runs the User Manager and applies its choice.
    void ChooseLearner();
    /// Shows one page and sizes the window to it plus the menu bar.
    /// Gives a page its fixed size, the first time it is shown (again after the coaching aids
    /// change what it holds).
    void FitPage(Page* page);
    void ShowPage(Page* page);

    /// Restores the window position stored in the settings ("WindowPosition", 16 bytes).
    void LoadPlacement();
    /// Stores the window position.
    void SavePlacement();
    /// Moves the window onto the nearest screen when it is off every screen, or so that its
    /// top-left corner is visible when it does not fit its screen.
    void KeepOnScreen();

    Page* ShownPage() const { return m_shown; }
    HomePage* Home() const { return m_home; }
    LessonPage* Lesson() const { return m_lesson; }
    TestContainer* Test() const { return m_test; }
    CategoryPage* Category() const { return m_category; }
    User* Learner() const { return m_learner.get(); }
    /// The learner's record of the opened category, or null.
    CategoryProgress* CurrentCategory() const;
    /// The window's menu actions.
    QAction* UsersAction() const { return m_usersAction; }
    QAction* ExitAction() const { return m_exitAction; }
    QAction* ContentsAction() const { return m_contentsAction; }
    QAction* SiteAction() const { return m_siteAction; }
    QAction* AboutAction() const { return m_aboutAction; }
    QAction* PreferencesAction() const { return m_preferencesAction; }
    QAction* ProgressAction() const { return m_progressAction; }
    QAction* ExportAction() const { return m_exportAction; }
    QAction* ImportAction() const { return m_importAction; }

    /// Where progress windows come from (the progress module beside the program unless set).
    void SetProgressViews(ProgressViewSource source) { m_progressViews = std::move(source); }
    /// Tools > Progress…: opens the current learner's progress window (one at a time).
    void ShowProgress();
    /// The progress window open, or null.
    QWidget* ProgressView() const { return m_progressView; }
    /// Writes the current learner's record to `path`; false after telling the learner why not.
    bool ExportLearnerTo(const QString& path);
    /// Adds the learner of the file at `path` to the store, asking what to do when a learner of
    /// that name exists; false (nothing changed) after telling the learner why not, or when
    /// they cancel.
    bool ImportLearnerFrom(const QString& path);
    /// Switches the writing aids on the lesson and the drawing test.
    void ApplyPreferences(const CoachingPreferences& preferences);
    const CoachingPreferences& Preferences() const { return m_preferences; }

signals:
    /// The window has closed normally (the program ends with exit code 1).
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenu();
    void OnPageEvent(Page* page, quint16 code, quint16 argument);
    void ApplyTestOutcome();
    void ShowCategoryPage();
    void ReportStoreError(const char* message);
    void ChangePreferences();
    void ExportLearner();
    void ImportLearner();
    void UpdateLearnerActions();
    void CloseProgressView();
    /// Asks for a name for an imported learner whose name is taken; empty when cancelled.
    std::string AskImportName(const QString& taken);
    /// The rules for the learner's progress in the open category; none without both.
    std::optional<ProgressRecorder> Recorder();
    int RunUserManager();

    CharacterDatabase& m_database;
    ConfigStore& m_store;
    Prompt& m_prompt;
    SeedSource m_seeds;
    UrlOpener m_open;
    EventClock m_clock;
    QWidget* m_pageArea = nullptr;
    HomePage* m_home = nullptr;
    LessonPage* m_lesson = nullptr;
    TestContainer* m_test = nullptr;
    CategoryPage* m_category = nullptr;
    Page* m_shown = nullptr;
    QList<Page*> m_fittedPages; ///< pages that have taken their fixed size
    std::unique_ptr<User> m_learner;
    std::unique_ptr<User> m_chosenAtStart;
    std::optional<std::uint16_t> m_categoryId;
    std::string m_managerChoice;
    QAction* m_usersAction = nullptr;
    QAction* m_exitAction = nullptr;
    QAction* m_contentsAction = nullptr;
    QAction* m_siteAction = nullptr;
    QAction* m_aboutAction = nullptr;
    QAction* m_preferencesAction = nullptr;
    QAction* m_progressAction = nullptr;
    QAction* m_exportAction = nullptr;
    QAction* m_importAction = nullptr;
    ProgressViewSource m_progressViews = LoadProgressModule;
    QPointer<QWidget> m_progressView;
    CoachingPreferences m_preferences;
    bool m_closing = false;
};
