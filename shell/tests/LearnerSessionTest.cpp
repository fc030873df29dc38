// The open learner's session as the pages meet it: what it tells them (a recorded test, changed
// review rules), and a failure of the learning history during each kind of action, told to the
// learner once, at once, with nothing lost.

#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "HomePage.h"
#include "LearnerFile.h"
#include "LessonPage.h"
#include "ModalAnswerer.h"
#include "Named.h"
#include "ProgressWindow.h"
#include "SessionRecorder.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QFileDialog>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

namespace {

Codes Grade1()
{
    return StandardDatabase().LoadCategory(0)->Characters();
}

/// A history kept with the learners (as when its database is given up), that can be made to
/// fail once: the next use of any kind tells the problem, then keeps the events with the
/// learner's record as the real history does after a failure.
class BreakableHistory : public LearningHistory {
public:
    void BreakAtNextUse() { m_broken = true; }

    void Record(User& learner, const std::vector<LearnerEvent>& events) override
    {
        Use();
        m_kept.Record(learner, events);
    }
    std::vector<LearnerEvent> Events(const User& learner) override
    {
        Use();
        return m_kept.Events(learner);
    }
    void Replace(User& learner) override
    {
        Use();
        m_kept.Replace(learner);
    }
    void Forget(const std::string& learner) override
    {
        Use();
        m_kept.Forget(learner);
    }
    LearnerMemories Memories(const User& learner) override
    {
        Use();
        return m_kept.Memories(learner);
    }
    void OpenAndCheck(RunOnOwner) override { }
    void SetProblemListener(ProblemListener listener) override { m_listener = std::move(listener); }

private:
    void Use()
    {
        if (std::exchange(m_broken, false) && m_listener)
            m_listener({"disk I/O error", ""});
    }

    bool m_broken = false;
    ProblemListener m_listener;
    HistoryDatabase m_kept{""};
};

/// Progress windows made by the view linked into the test.
class StaticProgressViews : public ProgressViewFactory {
public:
    QWidget* CreateProgressView(CharacterDatabase& database, Prompt& prompt, const User& learner,
        std::vector<LearnerEvent> history, const std::string& now, std::optional<ReviewSchedule> reviews,
        LexiconAccess*, QWidget* parent) override
    {
        return new ProgressWindow(database, prompt, learner, std::move(history), now, std::move(reviews), parent);
    }
};

/// Anna has learned the first ten characters of Grade 1 (and has the next five to test, unless
/// `toTest` is false); her history (in her record) has the first passed twenty days ago, due
/// today, the others passed today.
std::string AnnaWithOneDue(bool toTest = true)
{
    const Codes grade1 = Grade1();
    std::string learned, untested, events;
    for (std::size_t i = 0; i < 15; ++i)
        (i < 10 ? learned : untested) += "<Character id=\"" + std::to_string(grade1[i]) + "\"/>";
    for (std::size_t i = 0; i < 10; ++i)
        events += "<Event at=\"" + (i == 0 ? DayText(EventDay(FixedClock()) - 20) + "T18:00:00+01:00" : FixedClock())
            + "\" kind=\"passed\" categoryId=\"0\" id=\"" + std::to_string(grade1[i]) + "\" mistakes=\"0\"/>";
    return "<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"><Progress categoryId=\"0\"><Learned>" + learned
        + "</Learned><Untested>" + (toTest ? untested : std::string()) + "</Untested></Progress><History>" + events
        + "</History></User></Users></Zavoren>";
}

/// A window over a folder of its own whose history can be broken.
class BreakableWindow {
public:
    explicit BreakableWindow(const std::string& config)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath(QStringLiteral("settings")));
        std::ofstream(Config()) << config;
        m_store = std::make_unique<XmlConfigStore>(Config(), StandardDatabase());
        m_session = std::make_unique<LearnerSession>(StandardDatabase(), *m_store, m_history, FixedClock);
        m_window = std::make_unique<MainWindow>(StandardDatabase(), *m_session, m_prompt, FixedSeed, m_urls.Opener(),
            [this](QString&) -> ProgressViewFactory* { return &m_views; });
    }
    ~BreakableWindow() { Close(); }

    MainWindow& Window() { return *m_window; }
    BreakableHistory& History() { return m_history; }
    RecordingPrompt& Prompt() { return m_prompt; }
    QString Path(const char* name) const { return m_dir.filePath(QLatin1String(name)); }
    std::string Config() const { return Path("config.xml").toStdString(); }
    void Close()
    {
        if (m_window)
            m_window->close();
        m_window.reset();
        m_session.reset();
    }
    /// The learner's record as the file holds it.
    std::unique_ptr<User> Saved(const std::string& name) const
    {
        return XmlConfigStore(Config(), StandardDatabase()).LoadUser(name);
    }

private:
    QTemporaryDir m_dir;
    RecordingPrompt m_prompt;
    RecordingOpener m_urls;
    StaticProgressViews m_views;
    BreakableHistory m_history;
    std::unique_ptr<XmlConfigStore> m_store;
    std::unique_ptr<LearnerSession> m_session;
    std::unique_ptr<MainWindow> m_window;
};

bool HasEvent(const User& learner, const char* kind)
{
    for (const LearnerEvent& e : learner.History())
        if (e.kind == kind)
            return true;
    return false;
}

} // namespace

class LearnerSessionTest : public QObject {
    Q_OBJECT

private slots:
    void aRecordedTestRefreshesTheListeningPages()
    {
        XmlConfigStore store(WriteConfig(OneLearner("Anna", {Grade1()[0]})), StandardDatabase());
        HistoryDatabase history("");
        LearnerSession session(StandardDatabase(), store, history, FixedClock);
        RecordingPrompt prompt;
        HomePage home(StandardDatabase(), prompt, session);
        CategoryPage category(StandardDatabase(), prompt, FixedSeed, session);
        home.show();
        session.Open(store.LoadUser("Anna"));
        QTreeWidget* list = Named<QTreeWidget>(&home, "categoryList");
        QVERIFY(list->topLevelItem(0)->text(0) == QStringLiteral("Grade 1"));
        QVERIFY(category.ShowCategory(0)); // read, then hidden
        QVERIFY(Named<CharacterGrid>(&category, "characterGrid")->Groups()[0].codes.empty());

        // A test recorded elsewhere: the shown home page counts it at once, the hidden category
        // page when it is shown.
        RecorderFor(session, 0, session.Reviews())->TestTaken({Grade1()[0]}, {}, {});
        QVERIFY(list->topLevelItem(0)->text(0).startsWith(QStringLiteral("Grade 1 (1 of ")));
        QVERIFY(Named<CharacterGrid>(&category, "characterGrid")->Groups()[0].codes.empty());
        category.show();
        QCOMPARE(Named<CharacterGrid>(&category, "characterGrid")->Groups()[0].codes, Codes{Grade1()[0]});
        QVERIFY(prompt.messages.isEmpty());
    }

    void aCharacterTaughtInAnotherCategoryNowTakesItsProgressThere()
    {
        // The record has Grade 1's first character under Grade 2, as a database built from an
        // older KANJIDIC2 that taught it there would have left it.
        const std::string record
            = "<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"><Progress categoryId=\"1\">"
              "<Learned><Character id=\""
            + std::to_string(Grade1()[0])
            + "\"/></Learned><Untested/></Progress>"
              "</User></Users></Zavoren>";
        XmlConfigStore store(WriteConfig(record), StandardDatabase());
        HistoryDatabase history("");
        LearnerSession session(StandardDatabase(), store, history, FixedClock);
        session.Open(store.LoadUser("Anna"));
        QCOMPARE(session.Learner()->GetProgress(0).Learned(), Codes{Grade1()[0]});
        QVERIFY(session.Learner()->GetProgress(1).Learned().empty());
        session.SaveLearner(); // kept so
        QCOMPARE(store.LoadUser("Anna")->GetProgress(0).Learned(), Codes{Grade1()[0]});
    }

    void aReviewRuleChangeReschedulesAtOnce()
    {
        XmlConfigStore store(WriteConfig(AnnaWithOneDue()), StandardDatabase());
        HistoryDatabase history("");
        LearnerSession session(StandardDatabase(), store, history, FixedClock);
        RecordingPrompt prompt;
        HomePage home(StandardDatabase(), prompt, session);
        home.show();
        session.Open(store.LoadUser("Anna"));
        auto* due = Named<QLabel>(&home, "dueTotal");
        QTreeWidget* list = Named<QTreeWidget>(&home, "categoryList");
        QCOMPARE(due->text(), QStringLiteral("Due for review today: 1"));
        QVERIFY(list->topLevelItem(0)->text(0).endsWith(QStringLiteral(", 1 due)")));
        session.SetReviewRules({false, 0.90, 365});
        QVERIFY(due->isHidden());
        QVERIFY(!list->topLevelItem(0)->text(0).contains(QStringLiteral("due")));
        session.SetReviewRules({true, 0.90, 365});
        QVERIFY(due->isVisible());
        QCOMPARE(due->text(), QStringLiteral("Due for review today: 1"));
    }

    void aHistoryFailureDuringAnActionIsToldOnceAndLosesNothing_data()
    {
        QTest::addColumn<QString>("action");
        for (const char* action : {"lesson", "test", "retest", "forget", "import", "export", "progress"})
            QTest::newRow(action) << QString::fromLatin1(action);
    }

    void aHistoryFailureDuringAnActionIsToldOnceAndLosesNothing()
    {
        QFETCH(QString, action);
        // Retest needs nothing left to test.
        BreakableWindow w(AnnaWithOneDue(action != QLatin1String("retest")));
        MainWindow& window = w.Window();
        QVERIFY(window.ChooseLearnerAtStart() && window.ShowChosenLearner());
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        OpenCategory(window, 0);
        auto* category = ChildOf<CategoryPage>(window);
        QVERIFY(w.Prompt().messages.isEmpty());
        w.History().BreakAtNextUse();
        const char* kept = nullptr; // the kind of event the action keeps
        const QString exported = w.Path("anna.xml");
        if (action == QLatin1String("lesson")) {
            LessonPage* lesson = ChildOf<LessonPage>(window);
            QTest::mouseClick(Named<QPushButton>(category, "lessonButton"), Qt::LeftButton);
            for (int c = 0; c < 5 && ShownPage(window) == lesson; ++c) {
                WriteAll(Named<InputCanvas>(lesson, "inputCanvas"), *lesson->Glyph());
                for (const char* box : {"onReading", "kunReading", "meaning"})
                    Tick(Named<QCheckBox>(lesson, box));
                QTest::mouseClick(Named<QPushButton>(lesson, "nextButton"), Qt::LeftButton);
            }
            kept = LearnerEvent::Lesson;
        } else if (action == QLatin1String("test")) {
            QTest::mouseClick(Named<QPushButton>(category, "testButton"), Qt::LeftButton);
            AnswerTestRight(window);
            kept = LearnerEvent::Passed;
        } else if (action == QLatin1String("retest")) {
            // Five learned go back to be tested; the test they start is left at once.
            QTest::mouseClick(Named<QPushButton>(category, "retestButton"), Qt::LeftButton);
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, Qt::Key_Escape);
            kept = LearnerEvent::Retest;
        } else if (action == QLatin1String("forget")) {
            CharacterGrid* grid = Named<CharacterGrid>(category, "characterGrid");
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->CellRect(0).center());
            QTest::mouseClick(Named<QPushButton>(category, "forgetButton"), Qt::LeftButton);
            kept = LearnerEvent::Forget;
        } else if (action == QLatin1String("import")) {
            User ben;
            ben.SetName("Ben");
            ben.GetProgress(0).AddLearned(Grade1()[1]);
            ben.AddEvent({FixedClock(), LearnerEvent::Passed, 0, Grade1()[1], 0});
            QVERIFY(
                LearnerFile::Export(exported.toStdString(), ben, ben.History(), StandardDatabase().CategoryCount()));
            ModalAnswerer<QFileDialog> open([&](QFileDialog& dialog) {
                dialog.selectFile(exported);
                static_cast<QDialog&>(dialog).accept();
            });
            ActionOf(window, "importAction")->trigger();
            QCOMPARE(open.Shown(), 1);
        } else if (action == QLatin1String("export")) {
            ModalAnswerer<QFileDialog> save([&](QFileDialog& dialog) {
                dialog.selectFile(exported);
                static_cast<QDialog&>(dialog).accept();
            });
            ActionOf(window, "exportAction")->trigger();
            QCOMPARE(save.Shown(), 1);
        } else {
            ActionOf(window, "progressAction")->trigger();
            QVERIFY(window.findChild<ProgressWindow*>());
        }
        // Told once, when it happened: no waiting, nothing asked afterwards.
        QCOMPARE(w.Prompt().messages.size(), 1);
        QCOMPARE(w.Prompt().messages[0],
            QStringLiteral("Learning history: The learning history cannot be kept: disk I/O error\n"
                           "Until it can be kept again, your progress and history are saved in config.xml."));
        QTest::qWait(20);
        QCOMPARE(w.Prompt().messages.size(), 1);
        w.Close();
        // Nothing lost: the action's events are in config.xml, the imported learner whole, the
        // exported file written.
        if (kept)
            QVERIFY2(HasEvent(*w.Saved("Anna"), kept), kept);
        if (action == QLatin1String("import")) {
            auto ben = w.Saved("Ben");
            QVERIFY(ben);
            QVERIFY(HasEvent(*ben, LearnerEvent::Passed));
        }
        if (action == QLatin1String("export"))
            QVERIFY(LearnerFile::Import(exported.toStdString(), StandardDatabase()).learner);
        QVERIFY(HasEvent(*w.Saved("Anna"), LearnerEvent::Passed)); // the old history stays too
    }

private:
    std::string WriteConfig(const std::string& text)
    {
        const std::string path = m_dir.filePath(QStringLiteral("config-%1.xml").arg(++m_files)).toStdString();
        std::ofstream(path) << text;
        return path;
    }

    QTemporaryDir m_dir;
    int m_files = 0;
};

QTEST_MAIN(LearnerSessionTest)
#include "LearnerSessionTest.moc"
