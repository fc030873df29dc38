#include "KanjiInfoDialog.h"
#include "DisplayCanvas.h"
#include "LearnerEvent.h"
#include "Named.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QDate>
#include <QLabel>
#include <QLocale>
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

    void otherStrokeOrdersAreShownStrokeByStrokeWhenAsked()
    {
        // 三-like: the top, the vertical, the bottom; the other order draws the vertical last.
        SmallDatabase small;
        const Form standard = SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}, {10, 80, 99, 80}});
        const Form verticalLast = SmallDatabase::Lines({{10, 30, 99, 30}, {10, 80, 99, 80}, {54, 10, 54, 99}});
        small.writer.AddCharacter(
            small.writer.AddStrokeElement(std::vector<Form>{standard, verticalLast}), "", "", "with another order");
        small.writer.AddCharacter(small.writer.AddStrokeElement(standard), "", "", "in one order");
        small.writer.AddCategory("Test", {0, 1});
        auto db = small.Open();
        RecordingPrompt prompt;
        for (bool on : {true, false}) {
            KanjiInfoDialog info(*db, prompt);
            info.SetOtherOrders(on);
            QVERIFY(info.SetCode(0));
            info.show();
            QVERIFY(QTest::qWaitForWindowExposed(&info));
            auto* orders = info.findChild<QWidget*>(QStringLiteral("otherOrders"));
            QCOMPARE(orders != nullptr, on);
            if (!on)
                continue;
            QCOMPARE(
                info.findChild<QLabel*>(QStringLiteral("otherOrderHeading1"))->text(), QStringLiteral("Other order"));
            auto* strip = info.findChild<QLabel*>(QStringLiteral("otherOrder1"));
            QVERIFY(strip && !strip->accessibleName().isEmpty());
            // Three frames, the last drawing the vertical in the accent colour.
            const QImage picture = strip->pixmap().toImage();
            QVERIFY(picture.width() > 3 * picture.height());
            const QImage last = picture.copy(picture.width() * 2 / 3, 0, picture.width() / 3, picture.height());
            QVERIFY(CountNear(last, info.palette().color(QPalette::Highlight), 40) > 0);
            QVERIFY(CountNear(picture.copy(0, 0, picture.width() / 3, picture.height()),
                        info.palette().color(QPalette::Highlight), 40)
                > 0); // the first frame: its one stroke, the newest
            // A character in one order only shows none.
            QVERIFY(info.SetCode(1));
            QVERIFY(!info.findChild<QWidget*>(QStringLiteral("otherOrders")));
        }
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
        QCOMPARE(Named<DisplayCanvas>(&dialog, "displayCanvas")->width(),
            Named<DisplayCanvas>(&dialog, "displayCanvas")->height());
    }

    void theNextReviewIsToldOnlyWhenGiven()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        KanjiInfoDialog plain(*m_db, m_prompt);
        QVERIFY(plain.SetCode(0));
        plain.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plain));
        QVERIFY(!Named<QLabel>(&plain, "nextReview")->isVisible());
        const QSize without = plain.size();

        const int today = DayOfDate(2026, 11, 23);
        KanjiInfoDialog later(*m_db, m_prompt);
        QVERIFY(later.SetCode(0));
        later.SetNextReview(today + 10, today);
        later.show();
        QVERIFY(QTest::qWaitForWindowExposed(&later));
        QLabel* next = Named<QLabel>(&later, "nextReview");
        QVERIFY(next->isVisible());
        QCOMPARE(next->text(),
            QStringLiteral("Next review: %1").arg(QLocale().toString(QDate(2026, 12, 3), QLocale::ShortFormat)));
        QCOMPARE(next->accessibleName(), next->text());
        QVERIFY(later.height() >= without.height());

        KanjiInfoDialog due(*m_db, m_prompt);
        QVERIFY(due.SetCode(0));
        due.SetNextReview(today - 3, today);
        QCOMPARE(Named<QLabel>(&due, "nextReview")->text(), QStringLiteral("Next review: due now"));
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
                QTest::mouseClick(Named<DisplayCanvas>(&dialog, "displayCanvas"), Qt::LeftButton, Qt::NoModifier,
                    Named<DisplayCanvas>(&dialog, "displayCanvas")->rect().center());
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
