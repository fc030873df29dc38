// Practice sheets from the program: the category page's context menu on selected characters and
// the File menu on the home page (the next lesson's characters), the dialog's choices changing
// its preview and kept, the sheet saved as PDF and printed to a file.

#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "ModalAnswerer.h"
#include "PracticeSheetDialog.h"
#include "ProgramSettings.h"
#include "SheetSettings.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QTest>

namespace {

Codes Grade1()
{
    return StandardDatabase().LoadCategory(0)->Characters();
}

QImage Preview(PracticeSheetDialog& dialog)
{
    return Named<QLabel>(&dialog, "preview")->pixmap().toImage();
}

int PdfPages(const QString& path)
{
    FILE* pipe = popen(("pdfinfo '" + path.toStdString() + "' 2>&1").c_str(), "r");
    char line[512];
    int pages = -1;
    while (fgets(line, sizeof line, pipe))
        if (std::sscanf(line, "Pages: %d", &pages) == 1)
            break;
    pclose(pipe);
    return pages;
}

} // namespace

class PracticeSheetDialogTest : public QObject {
    Q_OBJECT

private slots:
    void theCategoryPagesSelectionPrintedAndSaved()
    {
        const Codes grade1 = Grade1();
        WindowFixture f(OneLearner("Anna", {}, Codes(grade1.begin(), grade1.begin() + 12)));
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        CategoryPage* page = ChildOf<CategoryPage>(f.Window());
        CharacterGrid* grid = Named<CharacterGrid>(page, "characterGrid");
        // Three learned characters selected with the mouse (Ctrl adds).
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->CellRect(0).center());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, grid->CellRect(1).center());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, grid->CellRect(2).center());
        QCOMPARE(grid->SelectedCodes().size(), std::size_t(3));
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("sheet.pdf"));
        const QString printed = dir.filePath(QStringLiteral("printed.pdf"));
        int pages = 0;
        ModalAnswerer<PracticeSheetDialog> sheet([&](PracticeSheetDialog& dialog) {
            // Closed whatever the checks find, so that a failure does not leave it open.
            [&] {
            QCOMPARE(dialog.Sheet().Characters().size(), std::size_t(3));
            QCOMPARE(dialog.Sheet().Characters()[0].id, grade1[0]);
            QCOMPARE(Named<QLabel>(&dialog, "pagesLabel")->text(), QStringLiteral("Pages: 1"));
            const QImage before = Preview(dialog);
            QVERIFY(!before.isNull());
            // More boxes to a row, from the keyboard: the preview follows.
            QSpinBox* boxes = Named<QSpinBox>(&dialog, "boxesBox");
            boxes->setFocus();
            QTest::keyClick(boxes, Qt::Key_Up);
            QCOMPARE(boxes->value(), 9);
            QCOMPARE(dialog.Sheet().Options().boxesPerRow, 9);
            QVERIFY(Preview(dialog) != before);
            QCOMPARE(dialog.Sheet().Pages().front().blocks.front().boxes.size(), std::size_t(9));
            // Without the stroke order, with the mouse.
            QCheckBox* order = Named<QCheckBox>(&dialog, "orderBox");
            QTest::mouseClick(order, Qt::LeftButton, Qt::NoModifier, QPoint(8, order->height() / 2));
            QVERIFY(dialog.Sheet().Pages().front().blocks.front().order.empty());
            // Letter paper.
            Named<QComboBox>(&dialog, "paperBox")->setCurrentIndex(1);
            QCOMPARE(dialog.Sheet().Options().paper, Paper::Letter);
            pages = static_cast<int>(dialog.Sheet().Pages().size());
            {
                ModalAnswerer<QFileDialog> save([&](QFileDialog& files) {
                    files.selectFile(dir.filePath(QStringLiteral("sheet")));
                    static_cast<QDialog&>(files).accept();
                });
                QTest::mouseClick(Named<QPushButton>(&dialog, "pdfButton"), Qt::LeftButton);
                QCOMPARE(save.Shown(), 1);
            }
            {
                ModalAnswerer<QPrintDialog> print([&](QPrintDialog& printing) {
                    // Printed to a file, as the dialog offers where no printer is set up: its
                    // file name typed in.
                    for (QLineEdit* field : printing.findChildren<QLineEdit*>())
                        if (field->objectName() == QStringLiteral("filename"))
                            field->setText(printed);
                    printing.accept();
                });
                QTest::mouseClick(Named<QPushButton>(&dialog, "printButton"), Qt::LeftButton);
                QCOMPARE(print.Shown(), 1);
            }
            }();
            dialog.reject();
        });
        // The learned characters' context menu.
        QMenu* menu = Named<QMenu>(page, "learnedMenu");
        QAction* print = nullptr;
        for (QAction* action : menu->actions())
            if (action->text() == QStringLiteral("&Print practice sheet…"))
                print = action;
        QVERIFY(print);
        print->trigger();
        QCOMPARE(sheet.Shown(), 1);
        // Saved with its ".pdf", and printed, each with every page.
        QCOMPARE(PdfPages(pdf), pages);
        QCOMPARE(PdfPages(printed), pages);
        // The choices are kept for the next sheet.
        const SheetOptions kept = SheetSettings::Load();
        QCOMPARE(kept.boxesPerRow, 9);
        QCOMPARE(kept.strokeOrder, false);
        QCOMPARE(kept.paper, Paper::Letter);
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void theFileMenuOnTheHomePagePrintsTheNextLesson()
    {
        const Codes grade1 = Grade1();
        WindowFixture f(OneLearner("Anna", {}, Codes(grade1.begin(), grade1.begin() + 12)), NoProgressModule,
            HistoryPlace{false, {}, ZAVOREN_STANDARD_LEXICON});
        QVERIFY(f.Start());
        QAction* action = ActionOf(f.Window(), "sheetAction");
        QVERIFY(action && action->isEnabled());
        QCOMPARE(action->text(), QStringLiteral("Print practice sheet…"));
        // Nothing selected: the learner is told how to choose.
        action->trigger();
        QCOMPARE(f.Prompt().messages.size(), 1);
        HomePage* home = ChildOf<HomePage>(f.Window());
        QTreeWidget* list = Named<QTreeWidget>(home, "categoryList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->topLevelItem(0)).center());
        ModalAnswerer<PracticeSheetDialog> sheet([&](PracticeSheetDialog& dialog) {
            [&] {
                // The five characters after the twelve learned.
                QCOMPARE(dialog.Sheet().Characters().size(), std::size_t(5));
                QCOMPARE(dialog.Sheet().Characters()[0].id, grade1[12]);
                // Words and parts are on: each character's common words are offered and shown.
                QVERIFY(!Named<QCheckBox>(&dialog, "wordsBox")->isHidden());
                QVERIFY(!dialog.Sheet().Characters()[0].words.isEmpty());
                QCOMPARE(dialog.Sheet().Pages().front().blocks.front().textLines, 3);
            }();
            dialog.reject();
        });
        action->trigger();
        QCOMPARE(sheet.Shown(), 1);
    }

    void switchedOffNoMenuOffersASheet()
    {
        const Codes grade1 = Grade1();
        WindowFixture f(OneLearner("Anna", {}, Codes(grade1.begin(), grade1.begin() + 12)));
        CoachingPreferences off;
        off.practiceSheets = false;
        ProgramSettings().StoreCoaching(off);
        f.Restart();
        QVERIFY(f.Start());
        QVERIFY(!ActionOf(f.Window(), "sheetAction")->isVisible());
        OpenCategory(f.Window(), 0);
        for (const char* name : {"learnedMenu", "unlearnedMenu", "untestedMenu"})
            for (QAction* action : Named<QMenu>(ChildOf<CategoryPage>(f.Window()), name)->actions())
                QVERIFY(!action->isVisible() || action->text() != QStringLiteral("&Print practice sheet…"));
    }
};

QTEST_MAIN(PracticeSheetDialogTest)
#include "PracticeSheetDialogTest.moc"
