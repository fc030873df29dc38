#include "Named.h"
#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "FittedText.h"
#include "KanjiInfoDialog.h"
#include "ModalAnswerer.h"
#include "Random15.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace testsupport;
using Codes = std::vector<std::uint16_t>;

class CategoryPageTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_standard = std::make_unique<FileCharacterDatabase>(ZAVOREN_STANDARD_DATABASE);
        m_standard->Preload(nullptr);
        m_grade1 = m_standard->LoadCategory(0)->Characters();
    }

    void init()
    {
        m_learner = User();
        m_page = std::make_unique<CategoryPage>(*m_standard, m_prompt, [] { return 777u; });
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void cleanup() { m_page.reset(); }

    void buttonsFollowTheUntestedCount_data()
    {
        QTest::addColumn<int>("untested");
        for (int n : {0, 4, 5, 9, 10})
            QTest::newRow(std::to_string(n).c_str()) << n;
    }
    void buttonsFollowTheUntestedCount()
    {
        QFETCH(int, untested);
        for (int i = 0; i < 6; ++i)
            Grade1().AddLearned(m_grade1[static_cast<std::size_t>(i)]);
        for (int i = 0; i < untested; ++i)
            Grade1().AddUntested(m_grade1[static_cast<std::size_t>(10 + i)]);
        m_page->SetCategory(0, Recorder(0));
        QCOMPARE(Named<QPushButton>(m_page, "testButton")->isEnabled(), untested > 0);
        QCOMPARE(Named<QPushButton>(m_page, "retestButton")->isEnabled(), untested < 5);
        QCOMPARE(Named<QPushButton>(m_page, "lessonButton")->isEnabled(), untested < 10);
        QVERIFY(!Named<QPushButton>(m_page, "forgetButton")->isEnabled());
        QCOMPARE(m_page->DefaultButton(), untested > 0 ? Named<QPushButton>(m_page, "testButton") : Named<QPushButton>(m_page, "lessonButton"));
        QCOMPARE(Named<CharacterGrid>(m_page, "untestedStrip")->Groups()[0].codes.size(), std::size_t(untested));
        QCOMPARE(Named<CharacterGrid>(m_page, "characterGrid")->Groups()[0].codes.size(), 6u);
        QCOMPARE(Named<CharacterGrid>(m_page, "characterGrid")->Groups()[1].codes.size(), m_grade1.size() - 6);
        QCOMPARE(Named<CharacterGrid>(m_page, "characterGrid")->Groups()[0].title, QStringLiteral("Learned Kanji"));
        QCOMPARE(Named<CharacterGrid>(m_page, "characterGrid")->Groups()[1].title, QStringLiteral("Kanji to be Learned"));
        const auto lesson = m_page->PickLessonCharacters(5);
        QCOMPARE(lesson.size(), std::size_t(std::min(5, std::max(0, 10 - untested))));
    }

    void nineUntestedLessonTakesOne()
    {
        for (int i = 0; i < 9; ++i)
            Grade1().AddUntested(m_grade1[static_cast<std::size_t>(i)]);
        m_page->SetCategory(0, Recorder(0));
        QVERIFY(Named<QPushButton>(m_page, "lessonButton")->isEnabled());
        QCOMPARE(m_page->PickLessonCharacters(5), Codes{m_grade1[9]});
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        QTest::mouseClick(Named<QPushButton>(m_page, "lessonButton"), Qt::LeftButton);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(CategoryPage::Lesson));
    }

    void completeCategorySaysSoInTheStrip()
    {
        for (std::uint16_t code : m_grade1)
            Grade1().AddLearned(code);
        m_page->SetCategory(0, Recorder(0));
        QVERIFY(!Named<QPushButton>(m_page, "lessonButton")->isEnabled());
        QCOMPARE(Named<CharacterGrid>(m_page, "untestedStrip")->EmptyMessage(), QStringLiteral("Category complete"));
        m_learner = User();
        m_page->Refresh();
        QCOMPARE(Named<CharacterGrid>(m_page, "untestedStrip")->EmptyMessage(),
            QStringLiteral("To learn characters press 'Lesson' button and then test learned characters by pressing "
                           "'Test' button."));
    }

    void retestWithFiveLearnedAndFourUntested()
    {
        for (int i = 0; i < 5; ++i)
            Grade1().AddLearned(m_grade1[static_cast<std::size_t>(i)]);
        for (int i = 5; i < 9; ++i)
            Grade1().AddUntested(m_grade1[static_cast<std::size_t>(i)]);
        m_page->SetCategory(0, Recorder(0));
        QVERIFY(Named<QPushButton>(m_page, "retestButton")->isEnabled());
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        QTest::mouseClick(Named<QPushButton>(m_page, "retestButton"), Qt::LeftButton);
        QCOMPARE(Grade1().UntestedCount(), 9u);
        QCOMPARE(Grade1().LearnedCount(), 0u);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(CategoryPage::Test));
    }

    void forgetSeveralSelectedCells()
    {
        for (int i = 0; i < 6; ++i)
            Grade1().AddLearned(m_grade1[static_cast<std::size_t>(i)]);
        m_page->SetCategory(0, Recorder(0));
        CharacterGrid* grid = Named<CharacterGrid>(m_page, "characterGrid");
        QVERIFY(!Named<QPushButton>(m_page, "forgetButton")->isEnabled()); // nothing selected
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->CellRect(1).center());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, grid->CellRect(3).center());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, grid->CellRect(4).center());
        QCOMPARE(grid->SelectedCodes(), (Codes{m_grade1[1], m_grade1[3], m_grade1[4]}));
        QVERIFY(Named<QPushButton>(m_page, "forgetButton")->isEnabled());
        QTest::mouseClick(Named<QPushButton>(m_page, "forgetButton"), Qt::LeftButton);
        QCOMPARE(Grade1().Learned(), (Codes{m_grade1[0], m_grade1[2], m_grade1[5]}));
        QCOMPARE(grid->Groups()[0].codes.size(), 3u);
        QVERIFY(!Named<QPushButton>(m_page, "forgetButton")->isEnabled());
        // A cell of "Kanji to be Learned" first: Forget stays disabled.
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->CellRect(5).center());
        QVERIFY(!Named<QPushButton>(m_page, "forgetButton")->isEnabled());
    }

    void keyboardMovesAcrossGroups()
    {
        for (int i = 0; i < 3; ++i)
            Grade1().AddLearned(m_grade1[static_cast<std::size_t>(i)]);
        m_page->SetCategory(0, Recorder(0));
        CharacterGrid* grid = Named<CharacterGrid>(m_page, "characterGrid");
        grid->setFocus();
        const int columns = grid->Columns();
        QVERIFY(columns > 3);
        QTest::keyClick(grid, Qt::Key_Home);
        QCOMPARE(grid->FocusedCell(), 0);
        QTest::keyClick(grid, Qt::Key_Right);
        QCOMPARE(grid->FocusedCell(), 1);
        QTest::keyClick(grid, Qt::Key_Down); // from "Learned Kanji" into the next group, same column
        QCOMPARE(grid->FocusedCell(), 3 + 1);
        QCOMPARE(grid->SelectedCodes(), Codes{m_grade1[4]});
        QVERIFY(!Named<QPushButton>(m_page, "forgetButton")->isEnabled());
        QTest::keyClick(grid, Qt::Key_Up);
        QCOMPARE(grid->FocusedCell(), 1);
        QVERIFY(Named<QPushButton>(m_page, "forgetButton")->isEnabled());
        QTest::keyClick(grid, Qt::Key_Left);
        QTest::keyClick(grid, Qt::Key_Left);
        QCOMPARE(grid->FocusedCell(), 0);
        QTest::keyClick(grid, Qt::Key_End);
        QCOMPARE(grid->FocusedCell(), int(m_grade1.size()) - 1);
        QVERIFY(grid->CellRect(grid->FocusedCell()).bottom() <= grid->viewport()->height()); // scrolled into view
    }

    void nothingSelectedMakesInfoAndLearnDoNothing()
    {
        m_page->SetCategory(0, Recorder(0));
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        ModalAnswerer<KanjiInfoDialog> info([](KanjiInfoDialog& dialog) { dialog.reject(); });
        m_page->ShowInfo(Named<CharacterGrid>(m_page, "characterGrid"));
        QCOMPARE(info.Shown(), 0);
        Named<QMenu>(m_page, "unlearnedMenu")->actions()[1]->trigger(); // Learn
        QCOMPARE(events.count(), 0);
    }

    void contextMenusAndTheirDefaults()
    {
        QCOMPARE(Named<QMenu>(m_page, "learnedMenu")->title(), QStringLiteral("Learned"));
        // What each menu shows (practice sheets off: as the menus always were).
        auto shown = [this](const char* menu) {
            QStringList texts;
            for (QAction* a : Named<QMenu>(m_page, menu)->actions())
                if (a->isVisible())
                    texts << (a->isSeparator() ? QStringLiteral("-") : a->text());
            return texts;
        };
        QCOMPARE(shown("learnedMenu"), (QStringList{"&Info", "&Review", "&Forget"}));
        QCOMPARE(Named<QMenu>(m_page, "learnedMenu")->defaultAction(), Named<QMenu>(m_page, "learnedMenu")->actions()[0]);
        QCOMPARE(shown("unlearnedMenu").size(), 2);
        QCOMPARE(Named<QMenu>(m_page, "unlearnedMenu")->defaultAction()->text(), QStringLiteral("&Info"));
        QCOMPARE(shown("untestedMenu").size(), 1);
        // With practice sheets, each menu ends with its item.
        m_page->SetPracticeSheets(true);
        for (const char* menu : {"learnedMenu", "unlearnedMenu", "untestedMenu"})
            QCOMPARE(shown(menu).mid(shown(menu).size() - 2),
                (QStringList{QStringLiteral("-"), QStringLiteral("&Print practice sheet…")}));
        m_page->SetPracticeSheets(false);
        // Learn on a cell of "Kanji to be Learned" asks for a lesson of that character.
        Grade1().AddLearned(m_grade1[0]);
        m_page->SetCategory(0, Recorder(0));
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        Named<CharacterGrid>(m_page, "characterGrid")->SelectCell(2);
        Named<QMenu>(m_page, "unlearnedMenu")->actions()[1]->trigger();
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(CategoryPage::Learn));
        QCOMPARE(events[0][1].toInt(), int(m_grade1[2]));
        // Review does nothing.
        Named<CharacterGrid>(m_page, "characterGrid")->SelectCell(0);
        const Codes before = Grade1().Learned();
        Named<QMenu>(m_page, "learnedMenu")->actions()[1]->trigger();
        QCOMPARE(events.count(), 1);
        QCOMPARE(Grade1().Learned(), before);
    }

    void rightClickActsOnTheCellUnderThePointer()
    {
        // Everything unlearned: one group of 80 cells, several rows.
        m_page->SetCategory(0, Recorder(0));
        CharacterGrid* grid = Named<CharacterGrid>(m_page, "characterGrid");
        QVERIFY(grid->frameWidth() > 0); // the frame is what a wrong mapping shifts by
        const int columns = grid->Columns();
        QVERIFY(columns >= 3);
        // The second row's third cell, clicked just inside its top-left corner.
        const int cell = columns + 2;
        const QPoint at = grid->CellRect(cell).topLeft();
        QCOMPARE(grid->CellAt(at), cell);
        QSignalSpy requests(grid, &CharacterGrid::contextMenuRequested);
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        QContextMenuEvent click(QContextMenuEvent::Mouse, at, grid->viewport()->mapToGlobal(at));
        QApplication::sendEvent(grid->viewport(), &click);
        QCOMPARE(requests.count(), 1);
        QCOMPARE(requests[0][0].toInt(), cell);
        QCOMPARE(grid->SelectedCodes(), (Codes{m_grade1[static_cast<std::size_t>(cell)]}));
        // The menu that opened acts on that character: Learn asks for its lesson.
        QTRY_VERIFY(Named<QMenu>(m_page, "unlearnedMenu")->isVisible());
        Named<QMenu>(m_page, "unlearnedMenu")->actions()[1]->trigger();
        Named<QMenu>(m_page, "unlearnedMenu")->close();
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(CategoryPage::Learn));
        QCOMPARE(events[0][1].toInt(), int(m_grade1[static_cast<std::size_t>(cell)]));
    }

    void infoOpensTheKanjiInfoDialogForTheFirstSelected()
    {
        Grade1().AddUntested(m_grade1[7]);
        m_page->SetCategory(0, Recorder(0));
        Named<CharacterGrid>(m_page, "untestedStrip")->SelectCell(0);
        QString title;
        QString meaning;
        ModalAnswerer<KanjiInfoDialog> info([&](KanjiInfoDialog& dialog) {
            title = dialog.windowTitle();
            meaning = FullText(dialog.findChild<QLabel*>(QStringLiteral("meaning")));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        Named<QMenu>(m_page, "untestedMenu")->actions()[0]->trigger();
        QCOMPARE(info.Shown(), 1);
        QCOMPARE(title, QStringLiteral(" Kanji Info"));
        // It shows the selected character.
        QCOMPARE(meaning, QString::fromUtf8(m_standard->LoadCharacter(m_grade1[7])->Meaning()));
        QCOMPARE(m_page->focusWidget(), Named<CharacterGrid>(m_page, "untestedStrip")); // focus goes back to the strip
    }

    void backAndEscapeGoBack()
    {
        m_page->SetCategory(0, Recorder(0));
        QSignalSpy events(m_page.get(), &CategoryPage::pageEvent);
        QTest::mouseClick(Named<QPushButton>(m_page, "backButton"), Qt::LeftButton);
        QTest::keyClick(m_page.get(), Qt::Key_Escape);
        QCOMPARE(events.count(), 2);
        QCOMPARE(events[1][0].toInt(), int(CategoryPage::Back));
    }

    void largeCategoryDrawsOnlyVisibleCells()
    {
        // "Secondary school" holds over a thousand characters.
        m_page->SetCategory(6, Recorder(6));
        QVERIFY(Named<CharacterGrid>(m_page, "characterGrid")->Groups()[1].codes.size() > 1000);
        m_page->grab();
        const int afterFirstPaint = Named<CharacterGrid>(m_page, "characterGrid")->RenderedCells();
        QVERIFY(afterFirstPaint > 0);
        QVERIFY(afterFirstPaint < 200);
        m_page->grab();
        QCOMPARE(Named<CharacterGrid>(m_page, "characterGrid")->RenderedCells(), afterFirstPaint); // cached
    }

private:
    ProgressRecorder Recorder(std::uint16_t categoryId)
    {
        return ProgressRecorder(
            m_learner, categoryId, [] { return std::string("2026-11-23T10:00:00+01:00"); },
            [](User& learner, const std::vector<LearnerEvent>& events) {
                for (const LearnerEvent& e : events)
                    learner.AddEvent(e);
            });
    }
    /// The learner's record of Grade 1.
    CategoryProgress& Grade1() { return m_learner.GetProgress(0); }

    std::unique_ptr<FileCharacterDatabase> m_standard;
    RecordingPrompt m_prompt;
    Codes m_grade1;
    User m_learner;
    std::unique_ptr<CategoryPage> m_page;
};

QTEST_MAIN(CategoryPageTest)
#include "CategoryPageTest.moc"

#include <algorithm>
