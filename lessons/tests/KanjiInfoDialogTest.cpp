#include "Named.h"
#include "KanjiInfoDialog.h"
#include "DisplayCanvas.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace testsupport;

class KanjiInfoDialogTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_small.writer.AddCharacter(
            m_small.writer.AddStrokeElement(SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}})), "ジュウ", "",
            "ten");
        m_small.writer.AddCategory("Test", {0});
        m_db = m_small.Open();
    }

    void showsTheCharacterWithNotAvailableForAMissingReading()
    {
        KanjiInfoDialog dialog(*m_db, m_prompt);
        QCOMPARE(dialog.windowTitle(), QStringLiteral(" Kanji Info"));
        QVERIFY(dialog.SetCode(0));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(Named<QLabel>(&dialog, "onReading")->text(), QStringLiteral("ジュウ"));
        QCOMPARE(Named<QLabel>(&dialog, "kunReading")->text(), QStringLiteral("N/A"));
        QCOMPARE(Named<QLabel>(&dialog, "meaning")->text(), QStringLiteral("ten"));
        QVERIFY(CountNot(Named<DisplayCanvas>(&dialog, "displayCanvas")->BackBuffer(), qRgb(255, 255, 255)) > 0);
        QCOMPARE(Named<DisplayCanvas>(&dialog, "displayCanvas")->width(), Named<DisplayCanvas>(&dialog, "displayCanvas")->height());
    }

    void clickingTwiceRestartsTheAnimation()
    {
        KanjiInfoDialog dialog(*m_db, m_prompt);
        dialog.SetCode(0);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        DisplayCanvas* display = Named<DisplayCanvas>(&dialog, "displayCanvas");
        QTest::mouseClick(display, Qt::LeftButton, Qt::NoModifier, display->rect().center());
        QVERIFY(display->IsAnimating());
        QTRY_VERIFY_WITH_TIMEOUT(CountNot(display->BackBuffer(), qRgb(255, 255, 255)) > 0, 5000);
        QTest::mouseClick(display, Qt::LeftButton, Qt::NoModifier, display->rect().center());
        QVERIFY(display->IsAnimating());
        QCOMPARE(CountNot(display->BackBuffer(), qRgb(255, 255, 255)), 0); // from the first stroke again
    }

    void closingWhileAnimatingStopsTheTimer()
    {
        for (bool escape : {false, true}) {
            KanjiInfoDialog dialog(*m_db, m_prompt);
            dialog.SetCode(0);
            bool animatingWhenEnded = true;
            QTimer::singleShot(0, &dialog, [&] {
                QTest::mouseClick(Named<DisplayCanvas>(&dialog, "displayCanvas"), Qt::LeftButton, Qt::NoModifier, Named<DisplayCanvas>(&dialog, "displayCanvas")->rect().center());
                QVERIFY(Named<DisplayCanvas>(&dialog, "displayCanvas")->IsAnimating());
                if (escape)
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                else
                    QTest::mouseClick(Named<QPushButton>(&dialog, "closeButton"), Qt::LeftButton);
                animatingWhenEnded = Named<DisplayCanvas>(&dialog, "displayCanvas")->IsAnimating();
            });
            const int result = dialog.exec();
            QCOMPARE(result, escape ? int(KanjiInfoDialog::Cancelled) : int(KanjiInfoDialog::Closed));
            QVERIFY(!animatingWhenEnded);
        }
    }

    void badCodeReportsAndReturnsFalse()
    {
        KanjiInfoDialog dialog(*m_db, m_prompt);
        // The error box is modal: close it as soon as it shows.
        QTimer::singleShot(0, [] {
            if (QWidget* box = QApplication::activeModalWidget())
                box->close();
        });
        QVERIFY(!dialog.SetCode(5));
    }

private:
    SmallDatabase m_small;
    std::unique_ptr<FileCharacterDatabase> m_db;
    RecordingPrompt m_prompt;
};

QTEST_MAIN(KanjiInfoDialogTest)
#include "KanjiInfoDialogTest.moc"
