#pragma once

#include "CoachingPreferences.h"
#include "LearnerEvent.h"
#include "ProgramSettings.h"
#include "ProgressRecorder.h"
#include "ProgressViewer.h"
#include "Random15.h"
#include "ReviewSchedule.h"
#include "UrlOpener.h"
#include "User.h"

#include <QMainWindow>

#include <memory>
#include <optional>

class CategoryPage;
class CharacterDatabase;
class ConfigStore;
class HomePage;
class LessonPage;
class Page;
class PageStack;
class LexiconAccess;
class Prompt;
class TestContainer;

/// The program's only top-level window: the menu bar and four pages, exactly one shown at a
/// time. Pages report events; this window alone decides which page comes next, what it is
/// given and what is recorded in the learner's progress. It owns the current learner.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    /// Messages go through `prompt`, random draws are seeded from `seeds`, help and links open
    /// through `open`, history events are dated by `clock`, progress windows come from
    /// `progressViews`.
    MainWindow(CharacterDatabase& database, ConfigStore& store, Prompt& prompt, SeedSource seeds, UrlOpener open,
        EventClock clock, ProgressViewSource progressViews, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Takes words and parts from `lexicon` instead of the file "lexicon" beside the database.
    void SetLexicon(std::unique_ptr<LexiconAccess> lexicon);

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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether SetLearner first saves the learner who was open.
    enum class SaveOpenLearner { Yes, No };
    /// Makes a learner current; none hides the window.
    void SetLearner(std::unique_ptr<User> learner, SaveOpenLearner save = SaveOpenLearner::Yes);
    /// File > Users: runs the User Manager and applies its choice.
    void ChooseLearner();
    int RunUserManager();
    void ReportStoreError(const char* message);
    /// Tells the learner, once, why the history is no longer kept in its database.
    void TellHistoryProblem();

    void BuildMenu();
    /// Shows one page and sizes the window to it plus the menu bar.
    void ShowPage(Page* page);
    void FitToPage();
    void ShowCategoryPage();
    void OnPageEvent(Page* page, quint16 code, quint16 argument);
    void ApplyTestOutcome();
    /// The rules for the learner's progress in the open category; none without both.
    std::optional<ProgressRecorder> Recorder();
    /// What is due for review today for the open learner; none without one or with the aid off.
    std::optional<ReviewSchedule> Reviews();

    /// Tools > Preferences…: the writing aids, switched on the lesson and the drawing test.
    void ChangePreferences();
    /// Gives the lexicon to the pages whose aids show words (and takes it from the others).
    void ApplyWordAids();
    /// The lexicon for Kanji Info, or null with its aid off.
    LexiconAccess* KanjiInfoWords() const;

    void ImportLearner();

    CharacterDatabase& m_database;
    ConfigStore& m_store;
    Prompt& m_prompt;
    SeedSource m_seeds;
    UrlOpener m_open;
    EventClock m_clock;
    ProgressViewer m_progress;
    ProgramSettings m_settings;
    PageStack* m_pages = nullptr;
    HomePage* m_home = nullptr;
    LessonPage* m_lesson = nullptr;
    TestContainer* m_test = nullptr;
    CategoryPage* m_category = nullptr;
    std::unique_ptr<User> m_learner;
    std::unique_ptr<User> m_chosenAtStart;
    std::optional<std::uint16_t> m_categoryId;
    std::string m_managerChoice;
    QList<QAction*> m_learnerActions; ///< what needs a learner: enabled only while one is open
    CoachingPreferences m_preferences;
    std::unique_ptr<LexiconAccess> m_lexicon; ///< opened when a page first needs it
    bool m_closing = false;
    bool m_historyOpened = false; ///< asked for once the home page was first painted
};
