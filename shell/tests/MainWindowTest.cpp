#include "MainWindow.h"
#include "AddUserDialog.h"
#include "CategoryPage.h"
#include "CharacterDatabase.h"
#include "CharacterGrid.h"
#include "ConfigStore.h"
#include "DrawingTestPage.h"
#include "FeedbackLine.h"
#include "HelpActions.h"
#include "HistoryStore.h"
#include "HomePage.h"
#include "InputCanvas.h"
#include "LessonPage.h"
#include "ModalAnswerer.h"
#include "Named.h"
#include "PreferencesDialog.h"
#include "ProgressWindow.h"
#include "ReadingTestPage.h"
#include "RecordingOpener.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "TestContainer.h"
#include "TestSupport.h"
#include "UserManagerDialog.h"
#include "UserRecordXml.h"
#include "WindowActions.h"
#include "WindowFixture.h"
#include "XmlConfigStore.h"

#include <QBarSet>
#include <QChartView>
#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QListWidget>
#include <QMenuBar>
#include <QPluginLoader>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <QWhatsThis>
#include <QtEndian>
#include <sys/stat.h>

#include <pugixml.hpp>

using namespace testsupport;

using Codes = std::vector<std::uint16_t>;

namespace {

/// Progress windows made by the view linked into the tests, as the module makes them.
class StaticProgressViews : public ProgressViewFactory {
public:
    QWidget* CreateProgressView(CharacterDatabase& database, Prompt& prompt, const User& learner,
        std::vector<LearnerEvent> history, const std::string& now, std::optional<ReviewSchedule> reviews,
        LexiconAccess* words, QWidget* parent) override
    {
        auto* window
            = new ProgressWindow(database, prompt, learner, std::move(history), now, std::move(reviews), parent);
        window->SetWords(words);
        return window;
    }
    ProgressViewSource Source()
    {
        return [this](QString&) -> ProgressViewFactory* { return this; };
    }
};

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void aLearnersWholePathSurvivesARestart()
    {
        StaticProgressViews views;
        WindowFixture f("<Zavoren><Users/></Zavoren>", views.Source());
        const std::size_t grade1Size = StandardDatabase().LoadCategory(0)->CharacterCount();
        Codes taught;
        {
            // An empty learner file: the User Manager opens; add Anna and open her.
            ModalAnswerer<AddUserDialog> add([](AddUserDialog& dialog) {
                Named<QLineEdit>(&dialog, "nameEdit")->setText(QStringLiteral("Anna"));
                QTest::mouseClick(Named<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
            });
            ModalAnswerer<UserManagerDialog> manager([](UserManagerDialog& dialog) {
                QTest::mouseClick(Named<QPushButton>(&dialog, "addButton"), Qt::LeftButton);
                QTest::mouseClick(Named<QPushButton>(&dialog, "openButton"), Qt::LeftButton);
            });
            QVERIFY(f.Start());
            QCOMPARE(manager.Shown(), 1);
            QCOMPARE(add.Shown(), 1);
        }
        MainWindow& window = f.Window();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        HomePage* home = ChildOf<HomePage>(window);
        CategoryPage* category = ChildOf<CategoryPage>(window);
        LessonPage* lesson = ChildOf<LessonPage>(window);
        QCOMPARE(ShownPage(window), home);
        QCOMPARE(Named<QLabel>(home, "userName")->text(), QStringLiteral("Anna"));
        // The window is the page plus the menu bar.
        QCOMPARE(window.width(), home->width());
        QCOMPARE(window.height(), home->height() + window.menuBar()->sizeHint().height());

        OpenCategory(window, 0);
        QCOMPARE(ShownPage(window), category);
        // A lesson: every stroke of each character, the three boxes, Next.
        QTest::mouseClick(Named<QPushButton>(category, "lessonButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(window), lesson);
        for (int c = 0; c < 5; ++c) {
            WriteAll(Named<InputCanvas>(lesson, "inputCanvas"), *lesson->Glyph());
            for (QCheckBox* box : {Named<QCheckBox>(lesson, "onReading"), Named<QCheckBox>(lesson, "kunReading"),
                     Named<QCheckBox>(lesson, "meaning")})
                Tick(box);
            QVERIFY(Named<QPushButton>(lesson, "nextButton")->isEnabled());
            QTest::mouseClick(Named<QPushButton>(lesson, "nextButton"), Qt::LeftButton);
        }
        QCOMPARE(ShownPage(window), category);
        // The first five of Grade 1, now in the strip of untested characters.
        const Codes grade1 = StandardDatabase().LoadCategory(0)->Characters();
        taught = Codes(grade1.begin(), grade1.begin() + 5);
        QCOMPARE(Named<CharacterGrid>(category, "untestedStrip")->Groups()[0].codes, taught);

        // A test answered right throughout: the five are learned, the strip is empty.
        QTest::mouseClick(Named<QPushButton>(category, "testButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(window), ChildOf<TestContainer>(window));
        AnswerTestRight(window);
        QCOMPARE(ShownPage(window), category);
        QCOMPARE(Sorted(Named<CharacterGrid>(category, "characterGrid")->Groups()[0].codes), Sorted(taught));
        QVERIFY(Named<CharacterGrid>(category, "untestedStrip")->Groups()[0].codes.empty());
        QTest::mouseClick(Named<QPushButton>(category, "backButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(window), home);
        f.Close();

        // The file: Anna current, the characters learned in category 0, a Progress per category.
        pugi::xml_document doc;
        QVERIFY(doc.load_file(f.ConfigPath().c_str()));
        const pugi::xml_node users = doc.document_element().child("Users");
        QCOMPARE(std::string(users.attribute("currentUser").value()), std::string("Anna"));
        const pugi::xml_node anna = users.find_child_by_attribute("User", "name", "Anna");
        QVERIFY(anna);
        int progresses = 0;
        for (pugi::xml_node p : anna.children("Progress")) {
            QCOMPARE(p.attribute("categoryId").as_int(), progresses);
            if (progresses == 0) {
                Codes learned;
                for (pugi::xml_node c : p.child("Learned").children("Character"))
                    learned.push_back(static_cast<std::uint16_t>(c.attribute("id").as_uint()));
                QCOMPARE(learned, taught);
            }
            ++progresses;
        }
        QCOMPARE(progresses, int(StandardDatabase().CategoryCount()));
        // The history: each of the five taught, then each of the five passed, dated by the clock.
        QStringList kinds;
        User record;
        ReadUserRecord(anna, record);
        for (const LearnerEvent& e : record.History()) {
            QCOMPARE(QString::fromStdString(e.at), QString::fromStdString(FixedClock()));
            QCOMPARE(e.categoryId, 0);
            kinds << QString::fromStdString(e.kind);
        }
        QCOMPARE(kinds,
            (QStringList{
                "lesson", "lesson", "lesson", "lesson", "lesson", "passed", "passed", "passed", "passed", "passed"}));

        // Started again: Anna opens directly and the home page shows her progress.
        f.Restart();
        ModalAnswerer<UserManagerDialog> manager([](UserManagerDialog& dialog) {
            QTest::mouseClick(Named<QPushButton>(&dialog, "closeButton"), Qt::LeftButton);
        });
        QVERIFY(f.Start());
        QCOMPARE(manager.Shown(), 0);
        QCOMPARE(Named<QTreeWidget>(ChildOf<HomePage>(f.Window()), "categoryList")->topLevelItem(0)->text(0),
            QStringLiteral("Grade 1 (5 of %1)").arg(grade1Size));
        // Tools > Progress…: five characters learned today.
        QAction* progressAction = ActionOf(f.Window(), "progressAction");
        QVERIFY(progressAction->isEnabled());
        progressAction->trigger();
        auto* progress = ChildOf<ProgressWindow>(f.Window());
        QVERIFY(progress);
        QVERIFY(progress->isVisible());
        QCOMPARE(Named<QLineSeries>(Named<QChartView>(progress, "learnedChart")->chart(), "learnedSeries")->count(),
            1); // the history began today
        QCOMPARE(
            Named<QLineSeries>(Named<QChartView>(progress, "learnedChart")->chart(), "learnedSeries")->at(0).y(), 5.0);
        QCOMPARE(Named<QBarSet>(Named<QChartView>(progress, "testsChart")->chart(), "passedBars")->at(0), 5.0);
        QPointer<ProgressWindow> watched(progress);
        f.Window().close();
        QVERIFY(!watched); // it goes with the window
    }

    void theOnlyLearnerOpensWithoutAsking()
    {
        WindowFixture f(R"(<Z><Users><User name="Solo"/></Users></Z>)");
        QVERIFY(f.Start());
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "userName")->text(), QStringLiteral("Solo"));
    }

    void cancellingTheManagerAtStartEndsTheProgram()
    {
        WindowFixture f(R"(<Z><Users><User name="A"/><User name="B"/></Users></Z>)");
        ModalAnswerer<UserManagerDialog> manager([](UserManagerDialog& dialog) {
            QTest::mouseClick(Named<QPushButton>(&dialog, "closeButton"), Qt::LeftButton);
        });
        QVERIFY(!f.Window().ChooseLearnerAtStart());
        QCOMPARE(manager.Shown(), 1);
        QVERIFY(!f.Window().isVisible());
    }

    void aTestTakesAtMostFiveUntestedInListOrder_data()
    {
        QTest::addColumn<int>("untested");
        QTest::addColumn<int>("tested");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("three") << 3 << 3;
        QTest::newRow("seven") << 7 << 5;
    }
    void aTestTakesAtMostFiveUntestedInListOrder()
    {
        QFETCH(int, untested);
        QFETCH(int, tested);
        const Codes grade1 = StandardDatabase().LoadCategory(0)->Characters();
        WindowFixture f(OneLearner("A", Codes(grade1.begin(), grade1.begin() + untested)));
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        auto* category = ChildOf<CategoryPage>(f.Window());
        auto* test = ChildOf<TestContainer>(f.Window());
        if (untested == 0) {
            // Nothing to test: the button is off, and the page stays.
            QVERIFY(!Named<QPushButton>(category, "testButton")->isEnabled());
            QTest::mouseClick(Named<QPushButton>(category, "testButton"), Qt::LeftButton);
            QCOMPARE(ShownPage(f.Window()), category);
            return;
        }
        QTest::mouseClick(Named<QPushButton>(category, "testButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), test);
        QCOMPARE(test->Schedule().Codes(), Codes(grade1.begin(), grade1.begin() + tested));
        QTest::mouseClick(Named<QPushButton>(test, "abortButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), category);
    }

    void learnStartsALessonOfOneCharacterAndAnAbortedLessonRecordsNothing()
    {
        const Codes grade1 = StandardDatabase().LoadCategory(0)->Characters();
        WindowFixture f(OneLearner("A", {grade1[0], grade1[1]}));
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        auto* category = ChildOf<CategoryPage>(f.Window());
        auto* lesson = ChildOf<LessonPage>(f.Window());
        // Learn from the grid's context menu on a character to be learned.
        CharacterGrid* grid = Named<CharacterGrid>(category, "characterGrid");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->CellRect(20).center());
        QCOMPARE(grid->SelectedCodes(), Codes{grade1[20]});
        Named<QMenu>(category, "unlearnedMenu")->actions().value(1)->trigger(); // Info, Learn
        QCOMPARE(ShownPage(f.Window()), lesson);
        QCOMPARE(lesson->Glyph()->StrokeCount(),
            StandardDatabase()
                .LoadElement(StandardDatabase().LoadCharacter(grade1[20])->ElementId())
                ->GetForm(0)
                .StrokeCount());
        QTest::mouseClick(Named<QPushButton>(lesson, "abortButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), category);
        QCOMPARE(Named<CharacterGrid>(category, "untestedStrip")->Groups()[0].codes, (Codes{grade1[0], grade1[1]}));
        f.Close();
        const auto saved = f.Saved("A");
        QCOMPARE(saved->GetProgress(0).Untested(), (Codes{grade1[0], grade1[1]}));
        QCOMPARE(saved->History().size(), 1u); // "learn" only: an aborted lesson records nothing
        QCOMPARE(saved->History()[0].kind, std::string(LearnerEvent::Learn));
    }

    void theHistoryDatabaseOpensAfterTheFirstPaintAndKeepsEachTest()
    {
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule, HistoryPlace{true, {}});
        QVERIFY(f.Start());
        QVERIFY(!QFile::exists(QString::fromStdString(f.HistoryPath()))); // the home page needs none
        MainWindow& window = f.Window();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(QFile::exists(QString::fromStdString(f.HistoryPath())));
        OpenCategory(window, 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(window), "testButton"), Qt::LeftButton);
        AnswerTestRight(window);
        QCOMPARE(ShownPage(window), ChildOf<CategoryPage>(window));
        // The page has moved on: the five results are in the database, before any save.
        std::string error;
        auto histories = HistoryStore::Open(f.HistoryPath(), error);
        QVERIFY2(histories, error.c_str());
        std::vector<LearnerEvent> events;
        QVERIFY(histories->Events("Anna", events, error));
        QCOMPARE(events.size(), 5u);
        for (const LearnerEvent& e : events)
            QCOMPARE(QString::fromStdString(e.kind), QStringLiteral("passed"));
        f.Close();
        QVERIFY(f.ReadConfig().find("History") == std::string::npos);
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void aHistoryThatCannotBeKeptIsToldOnceAndGoesToConfigXml()
    {
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule,
            HistoryPlace{true, QDir::tempPath().toStdString() + "/no-such-zavoren-folder/history.db"});
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(f.Prompt().messages.size(), 1);
        QCOMPARE(f.Prompt().messages[0],
            QStringLiteral("Learning history: The learning history cannot be kept: unable to open database file\n"
                           "Until it can be kept again, your progress and history are saved in config.xml."));
        OpenCategory(window, 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(window), "testButton"), Qt::LeftButton);
        AnswerTestRight(window);
        QCOMPARE(f.Prompt().messages.size(), 1); // told once
        f.Close();
        const auto saved = f.Saved("Anna");
        QCOMPARE(saved->History().size(), 5u);
    }

    void damageFoundByTheCheckAfterTheFirstPaintIsTold()
    {
        QTemporaryDir folder;
        const std::string history = folder.filePath(QStringLiteral("history.db")).toStdString();
        {
            std::string error;
            auto histories = HistoryStore::Open(history, error);
            std::vector<LearnerEvent> many;
            for (std::uint16_t i = 0; i < 3000; ++i)
                many.push_back({FixedClock(), LearnerEvent::Lesson, 0, i, -1});
            QVERIFY(histories->Record("Anna", many, error));
        }
        {
            std::fstream file(history, std::ios::in | std::ios::out | std::ios::binary);
            file.seekp(3 * 4096);
            file << std::string(8 * 4096, '\x5A');
        }
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule, HistoryPlace{true, history});
        QVERIFY(f.Start());
        QVERIFY(QTest::qWaitForWindowExposed(&f.Window()));
        QTRY_COMPARE(f.Prompt().messages.size(), 1);
        QVERIFY(f.Prompt().messages[0].startsWith(
            QStringLiteral("Learning history: The learning history cannot be kept: ")));
        QVERIFY(f.Prompt().messages[0].contains(QStringLiteral("The damaged file is kept as \"")
            + QString::fromStdString(history) + QStringLiteral(".damaged-")));
        QVERIFY(!QFile::exists(QString::fromStdString(history))); // put aside, not written over
    }

    void closingDuringATestAppliesTheAnswersSoFar()
    {
        const Codes grade1 = StandardDatabase().LoadCategory(0)->Characters();
        WindowFixture f(OneLearner("A", {grade1[0]}));
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        OpenCategory(window, 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(window), "testButton"), Qt::LeftButton);
        // Two wrong ON picks on the reading question fail the character.
        TestContainer* test = ChildOf<TestContainer>(window);
        QCOMPARE(test->ShownPage(), static_cast<QuestionPage*>(test->ReadingPage()));
        const auto character = StandardDatabase().LoadCharacter(grade1[0]);
        auto answerWithMistake = [&] {
            ReadingTestPage* page = test->ReadingPage();
            const std::string right = character->OnReading() ? character->OnReading() : "";
            for (int i = 0; i < 5; ++i)
                if (page->Choices().on[static_cast<std::size_t>(i)] != right) {
                    ClickRadio(page->OnButton(i));
                    break;
                }
            for (int i = 0; i < 5; ++i) {
                if (page->Choices().on[static_cast<std::size_t>(i)] == right)
                    ClickRadio(page->OnButton(i));
                if (page->Choices().kun[static_cast<std::size_t>(i)]
                    == (character->KunReading() ? character->KunReading() : ""))
                    ClickRadio(page->KunButton(i));
            }
            QTest::mouseClick(Named<QPushButton>(test, "nextButton"), Qt::LeftButton);
        };
        answerWithMistake();
        // Drawing next, answered right; then the reading again, missed again.
        WriteAll(Named<InputCanvas>(test->DrawingPage(), "inputCanvas"), *test->DrawingPage()->Glyph());
        QTest::mouseClick(Named<QPushButton>(test, "nextButton"), Qt::LeftButton);
        answerWithMistake();
        QCOMPARE(test->FailedCodes(), Codes{}); // the drawing is still open
        // The drawing answered right a second time decides it; Next is not pressed.
        WriteAll(Named<InputCanvas>(test->DrawingPage(), "inputCanvas"), *test->DrawingPage()->Glyph());
        QCOMPARE(test->FailedCodes(), Codes{grade1[0]});
        QCOMPARE(ShownPage(window), test);
        f.Close(); // in the middle of the test
        // The failure was applied before saving: not learned, no longer untested.
        const auto user = f.Saved("A");
        QCOMPARE(user->GetProgress(0).UntestedCount(), 0u);
        QCOMPARE(user->GetProgress(0).LearnedCount(), 0u);
    }

    void deletingTheCurrentLearnerHidesTheWindowUntilOneIsChosen()
    {
        WindowFixture f(R"(<Z><Users currentUser="A"><User name="A"/><User name="B"/></Users></Z>)");
        f.Prompt().answer = QMessageBox::Yes;
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        QVERIFY(window.isVisible());
        QAction* progress = ActionOf(window, "progressAction");
        bool hiddenDuring = false, progressOffDuring = false;
        ModalAnswerer<UserManagerDialog> managerAnswer([&](UserManagerDialog& manager) {
            QCOMPARE(manager.SelectedUserName(), std::string("A"));
            QTest::mouseClick(Named<QPushButton>(&manager, "deleteButton"), Qt::LeftButton);
            hiddenDuring = !window.isVisible();
            progressOffDuring = !progress->isEnabled();
            QCOMPARE(Named<QLabel>(ChildOf<HomePage>(window), "userName")->text(), QStringLiteral("N/A"));
            QCOMPARE(manager.SelectedUserName(), std::string("B"));
            QTest::mouseClick(Named<QPushButton>(&manager, "openButton"), Qt::LeftButton);
        });
        ActionOf(window, "usersAction")->trigger();
        QVERIFY(hiddenDuring);
        QVERIFY(progressOffDuring); // nothing that needs a learner while there is none
        QVERIFY(window.isVisible());
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(window), "userName")->text(), QStringLiteral("B"));
        QCOMPARE(ShownPage(window), ChildOf<HomePage>(window));
        QVERIFY(progress->isEnabled());
    }

    void placementIsStoredAndRestoredEvenOffScreen()
    {
        WindowFixture f(OneLearner("A"));
        QVERIFY(f.Start());
        f.Window().move(123, 45);
        f.Close();
        QSettings settings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
        const QByteArray stored = settings.value(QStringLiteral("WindowPosition")).toByteArray();
        QCOMPARE(stored.size(), 16);
        QCOMPARE(qFromLittleEndian<qint32>(stored.constData()), 123);
        QCOMPARE(qFromLittleEndian<qint32>(stored.constData() + 4), 45);
        QVERIFY(qFromLittleEndian<qint32>(stored.constData() + 8) > 123);
        // Off every screen: restored there all the same when the window is not kept on screen.
        QByteArray far(16, '\0');
        qToLittleEndian<qint32>(-5000, far.data());
        qToLittleEndian<qint32>(9000, far.data() + 4);
        settings.setValue(QStringLiteral("WindowPosition"), far);
        settings.setValue(QStringLiteral("Preferences/KeepWindowOnScreen"), false);
        settings.sync();
        f.Restart();
        // (Each window below closes before the settings change: closing stores its placement.)
        QVERIFY(f.Window().ChooseLearnerAtStart());
        QCOMPARE(f.Window().pos(), QPoint(-5000, 9000));
        // Kept on screen (the default): it comes back onto the nearest screen, wholly visible.
        f.Close();
        settings.remove(QStringLiteral("Preferences/KeepWindowOnScreen"));
        settings.sync();
        f.Restart();
        QVERIFY(f.Window().ChooseLearnerAtStart());
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(f.Window().frameGeometry()));
        QCOMPARE(f.Window().frameGeometry().left(), screen.left()); // nearest: the left edge
        QCOMPARE(f.Window().frameGeometry().bottom(), screen.bottom()); // and the bottom
        // Without the value: centred.
        f.Close();
        settings.remove(QStringLiteral("WindowPosition"));
        settings.sync();
        f.Restart();
        QVERIFY(f.Window().ChooseLearnerAtStart());
        QVERIFY(qAbs(f.Window().frameGeometry().center().x() - screen.center().x()) <= 1);
    }

    void anUnchangedPlacementIsNotWrittenAgain()
    {
        WindowFixture f(OneLearner("A"));
        QSettings settings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
        // A value that is not a placement is replaced at close.
        settings.setValue(QStringLiteral("WindowPosition"), QStringLiteral("left"));
        settings.sync();
        const QString file = settings.fileName();
        QVERIFY(f.Start());
        f.Window().move(200, 100);
        f.Close();
        settings.sync();
        QCOMPARE(settings.value(QStringLiteral("WindowPosition")).toByteArray().size(), 16);
        // Closed where it was restored: the file is left as it is (every save replaces it with
        // a new file, so the same inode means no save).
        const auto inode = [](const QString& path) {
            struct stat status { };
            return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : ino_t(0);
        };
        const ino_t inodeBefore = inode(file);
        QVERIFY(inodeBefore != 0);
        f.Restart();
        QVERIFY(f.Start());
        QCOMPARE(f.Window().pos(), QPoint(200, 100));
        f.Close();
        QCOMPARE(inode(file), inodeBefore);
        QVERIFY(!QFile::exists(file + QStringLiteral(".lock")));
        // Moved: written.
        f.Restart();
        QVERIFY(f.Start());
        f.Window().move(210, 100);
        f.Close();
        QVERIFY(inode(file) != inodeBefore);
        settings.sync();
        QCOMPARE(
            qFromLittleEndian<qint32>(settings.value(QStringLiteral("WindowPosition")).toByteArray().constData()), 210);
    }

    void menuAndIgnoredKeys()
    {
        WindowFixture f(OneLearner("A"));
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        QCOMPARE(window.objectName(), QStringLiteral("Zavoren Mainframe Class"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Zavoren!"));
        QStringList menus;
        for (QAction* a : window.menuBar()->actions())
            menus << a->text();
        QCOMPARE(menus, (QStringList{"&File", "&Tools", "&Help"}));
        QCOMPARE(ActionOf(window, "usersAction")->text(), QStringLiteral("Users"));
        QCOMPARE(ActionOf(window, "exitAction")->text(), QStringLiteral("Exit"));
        QCOMPARE(ActionOf(window, "contentsAction")->text(), QStringLiteral("Contents"));
        QCOMPARE(ActionOf(window, "siteAction")->text(), QStringLiteral("Quelmar Software site"));
        QCOMPARE(ActionOf(window, "aboutAction")->text(), QStringLiteral("About"));
        // The site link opens the maker's site through the opener.
        ActionOf(window, "siteAction")->trigger();
        QCOMPARE(f.Urls().opened, QList<QUrl>{QUrl(QString::fromLatin1(MakerSite))});
        // Shift+F1 asks for context help: the next click shows a control's help text.
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F1, Qt::ShiftModifier);
        QVERIFY(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
        // The ignored keys never reach a page: Ctrl+Z does not undo a stroke.
        OpenCategory(window, 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(window), "lessonButton"), Qt::LeftButton);
        LessonPage* lesson = ChildOf<LessonPage>(window);
        DrawInk(Named<InputCanvas>(lesson, "inputCanvas"),
            StrokeAsMouse(*lesson->Glyph(), 0, Named<InputCanvas>(lesson, "inputCanvas")->ClientRect().width()));
        QCOMPARE(Named<InputCanvas>(lesson, "inputCanvas")->StrokeCount(), 1);
        QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&window, Qt::Key_F6);
        QCOMPARE(Named<InputCanvas>(lesson, "inputCanvas")->StrokeCount(), 1);
        QCOMPARE(ShownPage(window), lesson);
        // Exit closes and saves.
        ActionOf(window, "exitAction")->trigger();
        QVERIFY(!window.isVisible());
    }

    void preferencesSwitchTheWritingAidsAndAreKept()
    {
        WindowFixture f(OneLearner("A"));
        QVERIFY(f.Start());
        MainWindow& window = f.Window();
        LessonPage* lesson = ChildOf<LessonPage>(window);
        QAction* preferences = ActionOf(window, "preferencesAction");
        QVERIFY(preferences->isEnabled());
        QCOMPARE(preferences->text(), QStringLiteral("Preferences…"));
        // All on at first: the guide lines and the feedback line are there.
        QVERIFY(Named<InputCanvas>(lesson, "inputCanvas")->GuideLines());
        QVERIFY(Named<FeedbackLine>(lesson, "strokeFeedback")->isVisibleTo(lesson));
        const QSize withLine = lesson->size();
        {
            ModalAnswerer<PreferencesDialog> untick([](PreferencesDialog& dialog) {
                // The checks return early when one fails; the dialog is closed all the same.
                [&dialog] {
                    // Under a heading for what they change: writing, reviews, words, the window.
                    QStringList headings;
                    for (QGroupBox* group : dialog.findChildren<QGroupBox*>())
                        headings << group->title();
                    QCOMPARE(headings,
                        (QStringList{QStringLiteral("Writing"), QStringLiteral("Reviews"), QStringLiteral("Words"),
                            QStringLiteral("Window")}));
                    const QStringList captions{QStringLiteral("Explain refused strokes"),
                        QStringLiteral("Practice grid"),
                        QStringLiteral("Show where a stroke starts after three misses"),
                        QStringLiteral("Judge place by my own character"), QStringLiteral("Accept other stroke orders"),
                        QStringLiteral("Steady my ink"), QStringLiteral("Words test"),
                        QStringLiteral("Review characters when they are due"),
                        QStringLiteral("Review by writing only"), QStringLiteral("Show words and parts in Kanji Info"),
                        QStringLiteral("Show a word after each answer"),
                        QStringLiteral("Bring the window onto the screen at start"),
                        QStringLiteral("Print practice sheets")};
                    const QList<QCheckBox*> boxes = dialog.findChildren<QCheckBox*>();
                    QCOMPARE(boxes.size(), captions.size());
                    for (int i = 0; i < boxes.size(); ++i) {
                        QCOMPARE(boxes[i]->text(), captions[i]);
                        QCOMPARE(boxes[i]->accessibleName(), captions[i]);
                        // Writing only is a way to review, not an aid: off at first, and off with
                        // the reviews.
                        if (captions[i] == QStringLiteral("Review by writing only")) {
                            QVERIFY(!boxes[i]->isChecked());
                            QVERIFY(!boxes[i]->isEnabled());
                            continue;
                        }
                        QVERIFY(boxes[i]->isChecked());
                        QTest::mouseClick(boxes[i], Qt::LeftButton, Qt::NoModifier, QPoint(8, boxes[i]->height() / 2));
                    }
                }();
                dialog.accept();
            });
            preferences->trigger();
            QCOMPARE(untick.Shown(), 1);
        }
        QVERIFY(!Named<InputCanvas>(lesson, "inputCanvas")->GuideLines());
        QVERIFY(!Named<InputCanvas>(ChildOf<TestContainer>(window)->DrawingPage(), "inputCanvas")->GuideLines());
        // The feedback line is gone, and the page takes no room for it.
        QVERIFY(!Named<FeedbackLine>(lesson, "strokeFeedback")->isVisibleTo(lesson));
        QVERIFY(lesson->height() <= withLine.height());
        // Kept for the next start, and shown as kept.
        f.Restart();
        QVERIFY(!Named<FeedbackLine>(ChildOf<LessonPage>(f.Window()), "strokeFeedback")
                     ->isVisibleTo(ChildOf<LessonPage>(f.Window())));
        QVERIFY(!Named<InputCanvas>(ChildOf<LessonPage>(f.Window()), "inputCanvas")->GuideLines());
        ModalAnswerer<PreferencesDialog> look([](PreferencesDialog& dialog) {
            for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
                QVERIFY(!box->isChecked());
            dialog.reject();
        });
        QVERIFY(f.Start());
        ActionOf(f.Window(), "preferencesAction")->trigger();
        QCOMPARE(look.Shown(), 1);
    }

    void theToolsMenuOffersProgressAndExportForALearner()
    {
        // A module whose loading the test decides.
        bool moduleThere = false;
        WindowFixture f(OneLearner("A"), [&moduleThere](QString& why) -> ProgressViewFactory* {
            if (!moduleThere) {
                why = QStringLiteral("no module here");
                return nullptr;
            }
            QPluginLoader loader(QStringLiteral(ZAVOREN_PROGRESS_MODULE));
            auto* factory = qobject_cast<ProgressViewFactory*>(loader.instance());
            if (!factory)
                why = loader.errorString();
            return factory;
        });
        MainWindow& window = f.Window();
        QAction* progress = ActionOf(window, "progressAction");
        QAction* exportAction = ActionOf(window, "exportAction");
        QCOMPARE(progress->text(), QStringLiteral("Progress…"));
        QCOMPARE(exportAction->text(), QStringLiteral("Export learner…"));
        QCOMPARE(ActionOf(window, "importAction")->text(), QStringLiteral("Import learner…"));
        QVERIFY(!progress->isEnabled()); // no learner open yet
        QVERIFY(!exportAction->isEnabled());
        QVERIFY(f.Start());
        QVERIFY(progress->isEnabled());
        QVERIFY(exportAction->isEnabled());
        // A module that cannot be loaded is said so, and nothing opens.
        progress->trigger();
        QCOMPARE(f.Prompt().messages.value(0),
            QStringLiteral("Progress: The progress window cannot be opened: no module here"));
        QVERIFY(!window.findChild<QWidget*>(QStringLiteral("ProgressWindow")));
        // The real module, beside the program.
        moduleThere = true;
        progress->trigger();
        QVERIFY2(window.findChild<QWidget*>(QStringLiteral("ProgressWindow")),
            qPrintable(f.Prompt().messages.join(QLatin1Char('\n'))));
    }

    void importingOverTheOpenLearnerShowsTheImportedRecord()
    {
        // Anna with character 7 learned, in a file of her own.
        const QString exported = QDir(m_files.path()).filePath(QStringLiteral("anna.xml"));
        {
            WindowFixture other(OneLearner("Anna", {}, {7}));
            ModalAnswerer<QFileDialog> save([&](QFileDialog& dialog) {
                QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
                dialog.selectFile(exported);
                static_cast<QDialog&>(dialog).accept();
            });
            QVERIFY(other.Start());
            ActionOf(other.Window(), "exportAction")->trigger();
            QCOMPARE(save.Shown(), 1);
            QVERIFY(QFile::exists(exported));
        }
        WindowFixture f(OneLearner("Anna"));
        QVERIFY(f.Start());
        f.Prompt().answer = QMessageBox::Yes; // replace Anna's record
        ModalAnswerer<QFileDialog> open([&](QFileDialog& dialog) {
            dialog.selectFile(exported);
            static_cast<QDialog&>(dialog).accept();
        });
        ActionOf(f.Window(), "importAction")->trigger();
        QCOMPARE(open.Shown(), 1);
        QVERIFY(f.Prompt().messages.value(0).startsWith(QStringLiteral("Import learner: A learner named \"Anna\"")));
        // The open learner is now the imported record: the home page counts one learned.
        QVERIFY(Named<QTreeWidget>(ChildOf<HomePage>(f.Window()), "categoryList")
                    ->topLevelItem(0)
                    ->text(0)
                    .startsWith(QStringLiteral("Grade 1 (1 of ")));
        f.Close(); // saving at close keeps the imported record
        QCOMPARE(f.Saved("Anna")->GetProgress(0).Learned(), Codes{7});
    }

private:
    QTemporaryDir m_files;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
