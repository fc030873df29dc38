#include "MainWindow.h"
#include "AddUserDialog.h"
#include "CategoryPage.h"
#include "CharacterDatabase.h"
#include "CharacterGrid.h"
#include "ConfigStore.h"
#include "DrawingTestPage.h"
#include "FeedbackLine.h"
#include "HelpActions.h"
#include "HomePage.h"
#include "InputCanvas.h"
#include "LessonPage.h"
#include "ModalAnswerer.h"
#include "PreferencesDialog.h"
#include "ProgressWindow.h"
#include "ReadingTestPage.h"
#include "RecordingOpener.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "SplashWindow.h"
#include "TestContainer.h"
#include "TestSupport.h"
#include "UserManagerDialog.h"
#include "UserRecordXml.h"
#include "XmlConfigStore.h"

#include <QBarSet>
#include <QCheckBox>
#include <QLineSeries>
#include <QPluginLoader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <sys/stat.h>
#include <QWhatsThis>
#include <QtEndian>

#include <pugixml.hpp>

using namespace testsupport;

using Codes = std::vector<std::uint16_t>;

namespace {

void ClickRadio(QRadioButton* b)
{
    QTest::mouseClick(b, Qt::LeftButton, Qt::NoModifier, QPoint(8, b->height() / 2));
}

void Tick(QCheckBox* box)
{
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

void WriteAll(InputCanvas* canvas, const Form& glyph)
{
    for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k)
        DrawInk(canvas, StrokeAsMouse(glyph, k, canvas->ClientRect().width()));
}

/// Answers every question of the test shown right, until it finishes.
void AnswerTestRight(MainWindow& window)
{
    TestContainer* test = window.Test();
    CharacterDatabase& db = GetDatabase();
    for (int guard = 0; guard < 100 && window.ShownPage() == test; ++guard) {
        const auto character = db.LoadCharacter(*test->Schedule().CurrentCode());
        if (test->ShownPage() == test->ReadingPage()) {
            ReadingTestPage* page = test->ReadingPage();
            for (int i = 0; i < 5; ++i) {
                if (page->Choices().on[static_cast<std::size_t>(i)]
                    == (character->OnReading() ? character->OnReading() : ""))
                    ClickRadio(page->OnButton(i));
                if (page->Choices().kun[static_cast<std::size_t>(i)]
                    == (character->KunReading() ? character->KunReading() : ""))
                    ClickRadio(page->KunButton(i));
            }
        } else {
            WriteAll(test->DrawingPage()->Input(), *test->DrawingPage()->Glyph());
        }
        QVERIFY(test->NextButton()->isEnabled());
        QTest::mouseClick(test->NextButton(), Qt::LeftButton);
    }
}

void OpenCategory(MainWindow& window, int row)
{
    QTreeWidget* list = window.Home()->CategoryList();
    const QRect r = list->visualItemRect(list->topLevelItem(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    QTest::mouseClick(window.Home()->OpenButton(), Qt::LeftButton);
}

/// Progress windows made by the view linked into the tests, as the module makes them.
class StaticProgressViews : public ProgressViewFactory {
public:
    QWidget* CreateProgressView(CharacterDatabase& database, Prompt& prompt, const User& learner,
        const std::string& now, QWidget* parent) override
    {
        return new ProgressWindow(database, prompt, learner, now, parent);
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
    void init()
    {
        m_prompt = RecordingPrompt();
        m_urls.opened.clear();
    }
    void aLearnersWholePathSurvivesARestart()
    {
        DataFolder folder;
        std::size_t grade1Size = 0;
        Codes taught;
        {
            // An empty learner file: the User Manager opens; add Anna and open her.
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            ModalAnswerer<AddUserDialog> add([](AddUserDialog& dialog) {
                dialog.NameEdit()->setText(QStringLiteral("Anna"));
                QTest::mouseClick(dialog.OkButton(), Qt::LeftButton);
            });
            ModalAnswerer<UserManagerDialog> manager([](UserManagerDialog& dialog) {
                QTest::mouseClick(dialog.AddButton(), Qt::LeftButton);
                QTest::mouseClick(dialog.OpenButton(), Qt::LeftButton);
            });
            QVERIFY(window.ChooseLearnerAtStart());
            QCOMPARE(manager.Shown(), 1);
            QCOMPARE(add.Shown(), 1);
            window.ShowChosenLearner();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QCOMPARE(window.ShownPage(), window.Home());
            QCOMPARE(window.Home()->UserNameLabel()->text(), QStringLiteral("Anna"));
            // The window is the page plus the menu bar.
            QCOMPARE(window.width(), window.Home()->width());
            QCOMPARE(window.height(), window.Home()->height() + window.menuBar()->sizeHint().height());

            OpenCategory(window, 0);
            QCOMPARE(window.ShownPage(), window.Category());
            grade1Size = GetDatabase().LoadCategory(0)->CharacterCount();

            // A lesson: every stroke of each character, the three boxes, Next.
            QTest::mouseClick(window.Category()->LessonButton(), Qt::LeftButton);
            QCOMPARE(window.ShownPage(), window.Lesson());
            LessonPage* lesson = window.Lesson();
            for (int c = 0; c < 5; ++c) {
                WriteAll(lesson->Input(), *lesson->Glyph());
                for (QCheckBox* box : {lesson->OnReadingBox(), lesson->KunReadingBox(), lesson->MeaningBox()})
                    Tick(box);
                QVERIFY(lesson->NextButton()->isEnabled());
                QTest::mouseClick(lesson->NextButton(), Qt::LeftButton);
            }
            QCOMPARE(window.ShownPage(), window.Category());
            taught = window.CurrentCategory()->Untested();
            QCOMPARE(taught.size(), 5u);
            QCOMPARE(window.Category()->Strip()->Groups()[0].codes, taught);

            // A test answered right throughout.
            QTest::mouseClick(window.Category()->TestButton(), Qt::LeftButton);
            QCOMPARE(window.ShownPage(), window.Test());
            AnswerTestRight(window);
            QCOMPARE(window.ShownPage(), window.Category());
            QCOMPARE(window.CurrentCategory()->Learned(), taught);
            QCOMPARE(window.CurrentCategory()->UntestedCount(), 0u);
            QTest::mouseClick(window.Category()->BackButton(), Qt::LeftButton);
            QCOMPARE(window.ShownPage(), window.Home());
            window.close();
        }
        ReleaseDataStores();
        // The file: Anna current, the characters learned in category 0, a Progress per category.
        pugi::xml_document doc;
        QVERIFY(doc.load_file("config.xml"));
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
        QCOMPARE(progresses, int(GetDatabase().CategoryCount()));
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
        ReleaseDataStores();
        // Started again: Anna opens directly and the home page shows her progress.
        MainWindow again(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        ModalAnswerer<UserManagerDialog> manager(
            [](UserManagerDialog& dialog) { QTest::mouseClick(dialog.CloseButton(), Qt::LeftButton); });
        QVERIFY(again.ChooseLearnerAtStart());
        QCOMPARE(manager.Shown(), 0);
        again.ShowChosenLearner();
        QCOMPARE(again.Home()->CategoryList()->topLevelItem(0)->text(0),
            QStringLiteral("Grade 1 (5 of %1)").arg(grade1Size));
        // Tools > Progress…: five characters learned today.
        StaticProgressViews views;
        again.SetProgressViews(views.Source());
        QVERIFY(again.ProgressAction()->isEnabled());
        again.ProgressAction()->trigger();
        auto* progress = qobject_cast<ProgressWindow*>(again.ProgressView());
        QVERIFY(progress);
        QVERIFY(progress->isVisible());
        QCOMPARE(progress->LearnedSeries()->count(), 1); // the history began today
        QCOMPARE(progress->LearnedSeries()->at(0).y(), 5.0);
        QCOMPARE(progress->PassedBars()->at(0), 5.0);
        again.close();
        QVERIFY(!again.ProgressView()); // it goes with the window
    }

    void theOnlyLearnerOpensWithoutAsking()
    {
        DataFolder folder(R"(<Z><Users><User name="Solo"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        QCOMPARE(QString::fromUtf8(window.Learner()->Name()), QStringLiteral("Solo"));
        window.close();
    }

    void cancellingTheManagerAtStartEndsTheProgram()
    {
        DataFolder folder(R"(<Z><Users><User name="A"/><User name="B"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        ModalAnswerer<UserManagerDialog> manager(
            [](UserManagerDialog& dialog) { QTest::mouseClick(dialog.CloseButton(), Qt::LeftButton); });
        QVERIFY(!window.ChooseLearnerAtStart());
        QCOMPARE(manager.Shown(), 1);
        QVERIFY(!window.isVisible());
    }

    void testsTakeAtMostFiveUntestedInListOrder()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        OpenCategory(window, 0);
        const Codes grade1 = GetDatabase().LoadCategory(0)->Characters();
        // None: the test gets an empty list and asks nothing.
        emit window.Category()->pageEvent(CategoryPage::Test, 0);
        QCOMPARE(window.ShownPage(), window.Test());
        QVERIFY(window.Test()->Schedule().Codes().empty());
        QTest::mouseClick(window.Test()->AbortButton(), Qt::LeftButton);
        // Three: all of them; seven: the first five.
        for (int i = 0; i < 3; ++i)
            window.CurrentCategory()->AddUntested(grade1[static_cast<std::size_t>(i)]);
        emit window.Category()->pageEvent(CategoryPage::Test, 0);
        QCOMPARE(window.Test()->Schedule().Codes(), (Codes{grade1[0], grade1[1], grade1[2]}));
        QTest::mouseClick(window.Test()->AbortButton(), Qt::LeftButton);
        for (int i = 3; i < 7; ++i)
            window.CurrentCategory()->AddUntested(grade1[static_cast<std::size_t>(i)]);
        emit window.Category()->pageEvent(CategoryPage::Test, 0);
        QCOMPARE(window.Test()->Schedule().Codes(), Codes(grade1.begin(), grade1.begin() + 5));
        // Learn on one character starts a lesson of it alone.
        QTest::mouseClick(window.Test()->AbortButton(), Qt::LeftButton);
        emit window.Category()->pageEvent(CategoryPage::Learn, grade1[20]);
        QCOMPARE(window.ShownPage(), window.Lesson());
        QTest::mouseClick(window.Lesson()->AbortButton(), Qt::LeftButton);
        QCOMPARE(window.ShownPage(), window.Category());
        QCOMPARE(window.CurrentCategory()->UntestedCount(), 7u); // an aborted lesson records nothing
        window.close();
    }

    void closingDuringATestAppliesTheAnswersSoFar()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        const Codes grade1 = GetDatabase().LoadCategory(0)->Characters();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            OpenCategory(window, 0);
            window.CurrentCategory()->AddUntested(grade1[0]);
            window.Category()->Refresh();
            QTest::mouseClick(window.Category()->TestButton(), Qt::LeftButton);
            // Two wrong ON picks on the reading question fail the character.
            TestContainer* test = window.Test();
            QCOMPARE(test->ShownPage(), static_cast<QuestionPage*>(test->ReadingPage()));
            const auto character = GetDatabase().LoadCharacter(grade1[0]);
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
                QTest::mouseClick(test->NextButton(), Qt::LeftButton);
            };
            answerWithMistake();
            // Drawing next, answered right; then the reading again, missed again.
            WriteAll(test->DrawingPage()->Input(), *test->DrawingPage()->Glyph());
            QTest::mouseClick(test->NextButton(), Qt::LeftButton);
            answerWithMistake();
            QCOMPARE(test->FailedCodes(), Codes{}); // the drawing is still open
            // The drawing answered right a second time decides it; Next is not pressed.
            WriteAll(test->DrawingPage()->Input(), *test->DrawingPage()->Glyph());
            QCOMPARE(test->FailedCodes(), Codes{grade1[0]});
            QCOMPARE(window.ShownPage(), window.Test());
            window.close(); // in the middle of the test
        }
        ReleaseDataStores();
        auto user = GetConfigStore().LoadUser("A");
        // The failure was applied before saving: not learned, no longer untested.
        QCOMPARE(user->GetProgress(0).UntestedCount(), 0u);
        QCOMPARE(user->GetProgress(0).LearnedCount(), 0u);
        ReleaseDataStores();
    }

    void deletingTheCurrentLearnerHidesTheWindowUntilOneIsChosen()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/><User name="B"/></Users></Z>)");
        m_prompt.answer = QMessageBox::Yes;
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        QVERIFY(window.isVisible());
        bool hiddenDuring = false;
        ModalAnswerer<UserManagerDialog> managerAnswer([&](UserManagerDialog& manager) {
            QCOMPARE(manager.SelectedUserName(), std::string("A"));
            QTest::mouseClick(manager.DeleteButton(), Qt::LeftButton);
            hiddenDuring = !window.isVisible();
            QCOMPARE(window.Home()->UserNameLabel()->text(), QStringLiteral("N/A"));
            QCOMPARE(manager.SelectedUserName(), std::string("B"));
            QTest::mouseClick(manager.OpenButton(), Qt::LeftButton);
        });
        window.UsersAction()->trigger();
        QVERIFY(hiddenDuring);
        QVERIFY(window.isVisible());
        QCOMPARE(QString::fromUtf8(window.Learner()->Name()), QStringLiteral("B"));
        QCOMPARE(window.ShownPage(), window.Home());
        window.close();
    }

    void placementIsStoredAndRestoredEvenOffScreen()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            window.move(123, 45);
            window.close();
        }
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
        ReleaseDataStores();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            QCOMPARE(window.pos(), QPoint(-5000, 9000));
        }
        // Kept on screen (the default): it comes back onto the nearest screen, wholly visible.
        settings.remove(QStringLiteral("Preferences/KeepWindowOnScreen"));
        settings.sync();
        ReleaseDataStores();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            QVERIFY(screen.contains(window.frameGeometry()));
            QCOMPARE(window.frameGeometry().left(), screen.left()); // nearest: the left edge
            QCOMPARE(window.frameGeometry().bottom(), screen.bottom()); // and the bottom
        }
        // Without the value: centred.
        settings.remove(QStringLiteral("WindowPosition"));
        settings.sync();
        ReleaseDataStores();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            QVERIFY(qAbs(window.frameGeometry().center().x() - screen.center().x()) <= 1);
        }
    }

    void anUnchangedPlacementIsNotWrittenAgain()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        QSettings settings(QStringLiteral("Zavoren"), QStringLiteral("Zavoren"));
        // A value that is not a placement is replaced at close.
        settings.setValue(QStringLiteral("WindowPosition"), QStringLiteral("left"));
        settings.sync();
        const QString file = settings.fileName();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            window.move(200, 100);
            window.close();
        }
        settings.sync();
        QCOMPARE(settings.value(QStringLiteral("WindowPosition")).toByteArray().size(), 16);
        // Closed where it was restored: the file is left as it is (every save replaces it with
        // a new file, so the same inode means no save).
        const auto inode = [](const QString& path) {
            struct stat status {};
            return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : ino_t(0);
        };
        const ino_t inodeBefore = inode(file);
        QVERIFY(inodeBefore != 0);
        ReleaseDataStores();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            QCOMPARE(window.pos(), QPoint(200, 100));
            window.close();
        }
        QCOMPARE(inode(file), inodeBefore);
        QVERIFY(!QFile::exists(file + QStringLiteral(".lock")));
        // Moved: written.
        ReleaseDataStores();
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            window.move(210, 100);
            window.close();
        }
        QVERIFY(inode(file) != inodeBefore);
        settings.sync();
        QCOMPARE(qFromLittleEndian<qint32>(settings.value(QStringLiteral("WindowPosition")).toByteArray().constData()), 210);
    }

    void menuAndIgnoredKeys()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        QCOMPARE(window.objectName(), QStringLiteral("Zavoren Mainframe Class"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Zavoren!"));
        QStringList menus;
        for (QAction* a : window.menuBar()->actions())
            menus << a->text();
        QCOMPARE(menus, (QStringList{"&File", "&Tools", "&Help"}));
        QCOMPARE(window.UsersAction()->text(), QStringLiteral("Users"));
        QCOMPARE(window.ExitAction()->text(), QStringLiteral("Exit"));
        QCOMPARE(window.ContentsAction()->text(), QStringLiteral("Contents"));
        QCOMPARE(window.SiteAction()->text(), QStringLiteral("Quelmar Software site"));
        QCOMPARE(window.AboutAction()->text(), QStringLiteral("About"));
        // Contents without the help document opens nothing; with it, the document itself.
        window.ContentsAction()->trigger();
        QVERIFY(m_urls.opened.isEmpty());
        std::ofstream("Zavoren.html") << "<html></html>";
        window.ContentsAction()->trigger();
        QCOMPARE(m_urls.opened,
            QList<QUrl>{QUrl::fromLocalFile(QDir(folder.Path()).filePath(QStringLiteral("Zavoren.html")))});
        // The site link opens the maker's site.
        window.SiteAction()->trigger();
        QCOMPARE(m_urls.opened.size(), 2);
        QCOMPARE(m_urls.opened.last(), QUrl(QString::fromLatin1(MakerSite)));
        // Shift+F1 asks for context help: the next click shows a control's help text.
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F1, Qt::ShiftModifier);
        QVERIFY(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
        // The ignored keys never reach a page: Ctrl+Z does not undo a stroke.
        OpenCategory(window, 0);
        QTest::mouseClick(window.Category()->LessonButton(), Qt::LeftButton);
        LessonPage* lesson = window.Lesson();
        DrawInk(lesson->Input(), StrokeAsMouse(*lesson->Glyph(), 0, lesson->Input()->ClientRect().width()));
        QCOMPARE(lesson->Input()->StrokeCount(), 1);
        QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&window, Qt::Key_F6);
        QCOMPARE(lesson->Input()->StrokeCount(), 1);
        QCOMPARE(window.ShownPage(), window.Lesson());
        // Exit closes and saves.
        window.ExitAction()->trigger();
        QVERIFY(!window.isVisible());
    }

    void preferencesSwitchTheWritingAidsAndAreKept()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        {
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            QCOMPARE(window.Preferences(), CoachingPreferences{}); // all on at first
            QVERIFY(window.PreferencesAction()->isEnabled());
            QCOMPARE(window.PreferencesAction()->text(), QStringLiteral("Preferences…"));
            const QSize withLine = window.Lesson()->size();
            ModalAnswerer<PreferencesDialog> untick([](PreferencesDialog& dialog) {
                QCOMPARE(dialog.ExplainBox()->text(), QStringLiteral("Explain refused strokes"));
                QCOMPARE(dialog.GridBox()->text(), QStringLiteral("Practice grid"));
                QCOMPARE(dialog.HintBox()->text(), QStringLiteral("Show where a stroke starts after three misses"));
                QCOMPARE(dialog.OnScreenBox()->text(), QStringLiteral("Bring the window onto the screen at start"));
                for (QCheckBox* box : {dialog.ExplainBox(), dialog.GridBox(), dialog.HintBox(), dialog.OnScreenBox()}) {
                    QVERIFY(box->isChecked());
                    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
                }
                dialog.accept();
            });
            window.PreferencesAction()->trigger();
            QCOMPARE(untick.Shown(), 1);
            QCOMPARE(window.Preferences(), CoachingPreferences::AllOff());
            QVERIFY(!window.Lesson()->Input()->GuideLines());
            QVERIFY(!window.Test()->DrawingPage()->Input()->GuideLines());
            // The feedback line is gone, and the page takes no room for it.
            QVERIFY(!window.Lesson()->Feedback()->isVisibleTo(window.Lesson()));
            QVERIFY(window.Lesson()->height() <= withLine.height());
            window.close();
        }
        ReleaseDataStores();
        MainWindow again(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QCOMPARE(again.Preferences(), CoachingPreferences::AllOff());
        QVERIFY(!again.Lesson()->Feedback()->isVisibleTo(again.Lesson()));
    }

    void splashStartsAtThreeQuartersThenFollowsTheReader()
    {
        SplashWindow splash;
        QVERIFY(splash.HasPicture());
        QVERIFY(splash.height() >= 240);
        QCOMPARE(splash.Bar()->geometry().top(), 230);
        QCOMPARE(splash.Bar()->geometry().bottom(), 239);
        QCOMPARE(splash.Bar()->minimum(), 0);
        QCOMPARE(splash.Bar()->maximum(), 100);
        QCOMPARE(splash.Bar()->value(), 75);
        // It must never cover the User Manager shown while it is up.
        QVERIFY(!(splash.windowFlags() & Qt::WindowStaysOnTopHint));
        splash.show();
        // The bar is drawn filled in the highlight colour as far as its value.
        const auto filledShare = [&splash] {
            const QImage shot = splash.Bar()->grab().toImage();
            const QRgb highlight = splash.Bar()->palette().color(QPalette::Highlight).rgb();
            const int row = shot.height() / 2;
            int filled = 0;
            for (int x = 0; x < shot.width(); ++x)
                filled += shot.pixel(x, row) == highlight;
            return double(filled) / shot.width();
        };
        QVERIFY2(qAbs(filledShare() - 0.75) < 0.05, qPrintable(QString::number(filledShare())));
        // Repaints follow the bar's visible fill, not every one of thousands of reports.
        struct PaintCounter : QObject {
            int paints = 0;
            bool eventFilter(QObject*, QEvent* e) override
            {
                paints += e->type() == QEvent::Paint;
                return false;
            }
        } counter;
        splash.Bar()->installEventFilter(&counter);
        // Each paint of the bar shows a fill it did not show before.
        struct FillRecorder : QObject {
            QProgressBar* bar = nullptr;
            QList<int> fills;
            bool eventFilter(QObject*, QEvent* e) override
            {
                if (e->type() == QEvent::Paint) {
                    const qint64 span = qint64(bar->maximum()) - bar->minimum();
                    fills.append(span > 0 ? int((qint64(bar->value()) - bar->minimum()) * bar->width() / span) : 0);
                }
                return false;
            }
        } recorder;
        recorder.bar = splash.Bar();
        splash.Bar()->installEventFilter(&recorder);
        DataFolder folder;
        FileCharacterDatabase db("database");
        db.Preload(&splash);
        QVERIFY(counter.paints > 0);
        QVERIFY2(counter.paints <= splash.Bar()->width() + 2, qPrintable(QString::number(counter.paints)));
        for (qsizetype i = 1; i < recorder.fills.size(); ++i)
            QVERIFY2(recorder.fills[i] != recorder.fills[i - 1], qPrintable(QString::number(i)));
        // The last report always shows: the bar ends full.
        QCOMPARE(recorder.fills.last(), splash.Bar()->width() - 1);
        QVERIFY2(filledShare() > 0.95, qPrintable(QString::number(filledShare())));
        QCOMPARE(splash.Bar()->maximum(), int(db.CharacterCount()) + int(db.ElementCount()));
        QCOMPARE(splash.Bar()->value(), int(db.CharacterCount()) + int(db.ElementCount()) - 1);
    }

    void theToolsMenuOffersProgressExportAndImportForALearner()
    {
        DataFolder folder(R"(<Z><Users currentUser="A"><User name="A"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QCOMPARE(window.ProgressAction()->text(), QStringLiteral("Progress…"));
        QCOMPARE(window.ExportAction()->text(), QStringLiteral("Export learner…"));
        QCOMPARE(window.ImportAction()->text(), QStringLiteral("Import learner…"));
        QVERIFY(!window.ProgressAction()->isEnabled()); // no learner open yet
        QVERIFY(!window.ExportAction()->isEnabled());
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        QVERIFY(window.ProgressAction()->isEnabled());
        QVERIFY(window.ExportAction()->isEnabled());
        // A module that cannot be loaded is said so, and nothing opens.
        window.SetProgressViews([](QString& error) -> ProgressViewFactory* {
            error = QStringLiteral("no module here");
            return nullptr;
        });
        window.ProgressAction()->trigger();
        QVERIFY(!window.ProgressView());
        QCOMPARE(m_prompt.messages.value(0),
            QStringLiteral("Progress: The progress window cannot be opened: no module here"));
        // The real module, beside the program.
        QString error;
        window.SetProgressViews([](QString& why) {
            QPluginLoader loader(QStringLiteral(ZAVOREN_PROGRESS_MODULE));
            auto* factory = qobject_cast<ProgressViewFactory*>(loader.instance());
            if (!factory)
                why = loader.errorString();
            return factory;
        });
        window.ProgressAction()->trigger();
        QVERIFY2(window.ProgressView(), qPrintable(m_prompt.messages.join(QLatin1Char('\n'))));
        window.SetLearner(nullptr);
        QVERIFY(!window.ProgressView()); // closed with its learner
        QVERIFY(!window.ProgressAction()->isEnabled());
    }

    void anExportedLearnerImportsIntoAnEmptyFile()
    {
        const QString exported = QDir(m_files.path()).filePath(QStringLiteral("anna.xml"));
        std::vector<LearnerEvent> history;
        {
            DataFolder folder(R"(<Z><Users currentUser="Anna"><User name="Anna"/></Users></Z>)");
            MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
            QVERIFY(window.ChooseLearnerAtStart());
            window.ShowChosenLearner();
            window.Learner()->GetProgress(0).AddLearned(5);
            window.Learner()->GetProgress(1).AddUntested(90);
            window.Learner()->AddEvent({FixedClock(), LearnerEvent::Passed, 0, 5, 2});
            history = window.Learner()->History();
            QVERIFY(window.ExportLearnerTo(exported));
            QVERIFY(m_prompt.messages.isEmpty());
        }
        DataFolder empty;
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ImportLearnerFrom(exported));
        QVERIFY(m_prompt.messages.isEmpty());
        ReleaseDataStores();
        const auto anna = GetConfigStore().LoadUser("Anna");
        QVERIFY(anna);
        QCOMPARE(anna->GetProgress(0).Learned(), Codes{5});
        QCOMPARE(anna->GetProgress(1).Untested(), Codes{90});
        QVERIFY(anna->History() == history);
    }

    void anImportedNameThatIsTakenIsReplacedOrRenamedOrLeft()
    {
        const QString exported = ExportAnnaWithOneLearned();
        QVERIFY(!exported.isEmpty());
        DataFolder folder(R"(<Z><Users currentUser="Ben"><User name="Anna"/><User name="Ben"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        // Cancel: the file is not touched.
        const std::string before = folder.ReadConfig();
        m_prompt.answer = QMessageBox::Cancel;
        QVERIFY(!window.ImportLearnerFrom(exported));
        QVERIFY(m_prompt.messages.value(0).startsWith(QStringLiteral("Import learner: A learner named \"Anna\" already exists.")));
        QCOMPARE(folder.ReadConfig(), before);
        // No: under another name, asked with the Add dialog's rules (a taken name is refused).
        m_prompt.answers = {QMessageBox::No};
        m_prompt.answer = QMessageBox::Ok;
        QStringList offered;
        int round = 0;
        ModalAnswerer<AddUserDialog> rename([&](AddUserDialog& dialog) {
            offered << dialog.NameEdit()->text();
            dialog.NameEdit()->setText(round++ == 0 ? QStringLiteral("Ben") : QStringLiteral("Anna 2"));
            QTest::mouseClick(dialog.OkButton(), Qt::LeftButton);
        });
        QVERIFY(window.ImportLearnerFrom(exported));
        QCOMPARE(offered, (QStringList{QStringLiteral("Anna"), QStringLiteral("Ben")}));
        QVERIFY(m_prompt.messages.contains(QStringLiteral("Can't create user: User already exists. Try another user name")));
        // Yes: the existing record is replaced.
        m_prompt.answers = {QMessageBox::Yes};
        QVERIFY(window.ImportLearnerFrom(exported));
        QCOMPARE(window.Learner()->Name(), std::string("Ben")); // the open learner is not changed
        window.close();
        ReleaseDataStores();
        QCOMPARE(GetConfigStore().LoadUser("Anna 2")->GetProgress(0).Learned(), Codes{7});
        QCOMPARE(GetConfigStore().LoadUser("Anna")->GetProgress(0).Learned(), Codes{7});
        QVERIFY(GetConfigStore().LoadUser("Ben")->GetProgress(0).Learned().empty());
    }

    void replacingTheOpenLearnerShowsTheImportedRecord()
    {
        const QString exported = ExportAnnaWithOneLearned();
        QVERIFY(!exported.isEmpty());
        DataFolder folder(R"(<Z><Users currentUser="Anna"><User name="Anna"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        m_prompt.answer = QMessageBox::Yes;
        QVERIFY(window.ImportLearnerFrom(exported));
        QCOMPARE(window.Learner()->GetProgress(0).Learned(), Codes{7});
        window.close(); // saving at close keeps the imported record
        ReleaseDataStores();
        QCOMPARE(GetConfigStore().LoadUser("Anna")->GetProgress(0).Learned(), Codes{7});
    }

    void aDamagedOrForeignFileChangesNothing()
    {
        DataFolder folder(R"(<Z><Users currentUser="Anna"><User name="Anna"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        QVERIFY(window.ChooseLearnerAtStart());
        window.ShowChosenLearner();
        const std::string before = folder.ReadConfig();
        const QString path = QDir(m_files.path()).filePath(QStringLiteral("bad.xml"));
        const QString categories = QString::number(GetDatabase().CategoryCount());
        const QStringList files{
            QStringLiteral("<ZavorenLearner version=\"1\" categories=\"%1\"><User name=\"Z\">").arg(categories),
            QStringLiteral("<Zavoren><Users/></Zavoren>"),
            QStringLiteral("<ZavorenLearner version=\"1\" categories=\"2\"><User name=\"Z\"/></ZavorenLearner>"),
        };
        const QStringList said{QStringLiteral("is damaged."), QStringLiteral("is not a learner exported by Zavoren!."),
            QStringLiteral("was written with a character database of 2 categories; this one has %1.").arg(categories)};
        for (int i = 0; i < files.size(); ++i) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(files[i].toUtf8());
            file.close();
            m_prompt.messages.clear();
            QVERIFY(!window.ImportLearnerFrom(path));
            QCOMPARE(m_prompt.messages.size(), 1);
            QVERIFY2(m_prompt.messages[0].contains(said[i]), qPrintable(m_prompt.messages[0]));
            QVERIFY(m_prompt.messages[0].endsWith(QStringLiteral("Nothing was imported.")));
            QCOMPARE(folder.ReadConfig(), before);
        }
        QCOMPARE(GetConfigStore().UserCount(), 1);
        // An export to a place that cannot be written is said so.
        m_prompt.messages.clear();
        QVERIFY(!window.ExportLearnerTo(QDir(m_files.path()).filePath(QStringLiteral("no/such/folder.xml"))));
        QVERIFY(m_prompt.messages.value(0).startsWith(QStringLiteral("Export learner: The learner could not be written")));
    }

private:
    /// Anna with character 7 learned, exported from a data folder of her own; the file's path,
    /// or an empty one when the export failed.
    QString ExportAnnaWithOneLearned()
    {
        const QString exported = QDir(m_files.path()).filePath(QStringLiteral("anna.xml"));
        DataFolder folder(R"(<Z><Users currentUser="Anna"><User name="Anna"/></Users></Z>)");
        MainWindow window(GetDatabase(), GetConfigStore(), m_prompt, FixedSeed, m_urls.Opener(), FixedClock);
        if (!window.ChooseLearnerAtStart())
            return QString();
        window.ShowChosenLearner();
        window.Learner()->GetProgress(0).AddLearned(7);
        return window.ExportLearnerTo(exported) ? exported : QString();
    }

    RecordingPrompt m_prompt;
    RecordingOpener m_urls;
    QTemporaryDir m_files;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
