// Finding a character as the learner does: Ctrl+F from the home page, "みず" typed, 水 written
// stroke by stroke with the mouse, Enter for its Kanji Info and "Show in its category" on
// Grade 1's page; the window without the handwriting model.

#include "CategoryPage.h"
#include "LearnerWindows.h"
#include "CharacterGrid.h"
#include "FindCharacterWindow.h"
#include "KanjiInfoDialog.h"
#include "Lexicon.h"
#include "ModalAnswerer.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

std::uint16_t IdOf(char32_t c)
{
    static const Lexicon lexicon{std::string(ZAVOREN_STANDARD_LEXICON)};
    return lexicon.CharacterOf(c);
}

/// Writes the character on the window's canvas, stroke by stroke; after each stroke, `after`.
void Write(FindCharacterWindow* window, std::uint16_t id, const std::function<void(int)>& after = {})
{
    InputCanvas* canvas = Named<InputCanvas>(window, "inputCanvas");
    CharacterDatabase& db = StandardDatabase();
    const auto element = db.LoadElement(db.LoadCharacter(id)->ElementId());
    const Form& glyph = element->GetForm(0);
    for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
        DrawInk(canvas, StrokeAsMouse(glyph, k, canvas->ClientRect().width()));
        if (after)
            after(k);
    }
}

} // namespace

class FindCharacterTest : public QObject {
    Q_OBJECT

private slots:
    void typedWrittenOpenedAndShownInItsCategory()
    {
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule, HistoryPlace{false, {}, ZAVOREN_STANDARD_LEXICON});
        QVERIFY(f.Start());
        QAction* find = ActionOf(f.Window(), "findAction");
        QVERIFY(find);
        QCOMPARE(find->shortcut(), QKeySequence(QKeySequence::Find));
        QCOMPARE(find->text(), QStringLiteral("Find a character…"));
        // Ctrl+F from the home page.
        f.Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.Window()));
        QTest::keyClick(ChildOf<HomePage>(f.Window()), Qt::Key_F, Qt::ControlModifier);
        FindCharacterWindow* window = f.Window().findChild<LearnerWindows*>()->Finder();
        QVERIFY(window && window->isVisible());
        QVERIFY(window->parent() == nullptr); // a window of its own, beside the main window
        // Typed through the input method, as Japanese is: 水 first.
        QLineEdit* field = Named<QLineEdit>(window, "searchField");
        QInputMethodEvent typed;
        typed.setCommitString(QStringLiteral("みず"));
        QApplication::sendEvent(field, &typed);
        QCOMPARE(field->text(), QStringLiteral("みず"));
        QVERIFY(!window->Results().empty());
        QCOMPARE(window->Results().front(), IdOf(U'水'));
        field->clear();
        QVERIFY(window->Results().empty());

        // Written: after every stroke ten candidates; at the end 水 first.
        window->WaitForModel();
        QVERIFY(window->ModelReady());
        Write(window, IdOf(U'水'), [&](int) { QCOMPARE(window->Results().size(), std::size_t(10)); });
        QCOMPARE(window->Results().front(), IdOf(U'水'));
        // Undo takes the last stroke back; Clear empties the list.
        QTest::mouseClick(Named<QPushButton>(window, "undoButton"), Qt::LeftButton);
        QCOMPARE(window->Results().size(), std::size_t(10));

        // Enter opens its Kanji Info; "Show in its category" shows Grade 1 with 水 selected.
        Write(window, IdOf(U'水'), nullptr);
        QTest::mouseClick(Named<QPushButton>(window, "clearButton"), Qt::LeftButton);
        QVERIFY(window->Results().empty());
        Write(window, IdOf(U'水'));
        ModalAnswerer<KanjiInfoDialog> info([](KanjiInfoDialog& dialog) {
            QTest::mouseClick(Named<QPushButton>(&dialog, "showInCategoryButton"), Qt::LeftButton);
        });
        QTest::keyClick(window->findChild<QTreeWidget*>(QStringLiteral("results")), Qt::Key_Return);
        QCOMPARE(info.Shown(), 1);
        CategoryPage* category = ChildOf<CategoryPage>(f.Window());
        QCOMPARE(ShownPage(f.Window()), category);
        QCOMPARE(category->CategoryId(), std::optional<std::uint16_t>(0));
        QCOMPARE(Named<CharacterGrid>(category, "characterGrid")->SelectedCodes(), (Codes{IdOf(U'水')}));
    }

    void withoutTheModelTextAndTheDatabasesOwnStrokesStillFind()
    {
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule, HistoryPlace{false, {}, ZAVOREN_STANDARD_LEXICON});
        QVERIFY(f.Start());
        FindCharacterWindow window(StandardDatabase(), f.Prompt(), f.Session(), "/no/such/handwriting.model");
        window.show();
        window.WaitForModel();
        QVERIFY(!window.ModelReady());
        QVERIFY(Named<QLabel>(&window, "modelNote")->text().contains(QStringLiteral("not installed")));
        QTest::keyClicks(Named<QLineEdit>(&window, "searchField"), QStringLiteral("water"));
        QCOMPARE(window.Results().front(), IdOf(U'水'));
        Named<QLineEdit>(&window, "searchField")->clear();
        Write(&window, IdOf(U'水'));
        QCOMPARE(window.Results().front(), IdOf(U'水'));
        QVERIFY(f.Prompt().messages.isEmpty());
    }
};

QTEST_MAIN(FindCharacterTest)
#include "FindCharacterTest.moc"
