// Reviews when due, as the learner meets them: the home page's counts, Retest sending the due
// characters back first, the aid switched off, and a whole path from a test to a review.

#include "CategoryPage.h"
#include "ModalAnswerer.h"
#include "CategoryRules.h"
#include "HistoryStore.h"
#include "PreferencesDialog.h"
#include "ProgramSettings.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

namespace {

/// Grade 1's characters, in the database's order.
Codes Grade1()
{
    return StandardDatabase().LoadCategory(0)->Characters();
}

std::string DaysBefore(int days)
{
    return DayText(EventDay(FixedClock()) - days) + "T18:00:00+01:00";
}

/// Anna has learned the first ten characters of Grade 1. Her history makes exactly three of them
/// due today (FixedClock): the first passed 20 days ago, the second 10 days ago, the third 5 days
/// ago (each first seen then: due two days later); the seven others passed today.
std::string AnnaWithThreeDue(const std::string& historyPath)
{
    const Codes grade1 = Grade1();
    std::string error;
    auto histories = HistoryStore::Open(historyPath, error);
    std::vector<LearnerEvent> events;
    const int ago[] = {20, 10, 5};
    for (int i = 0; i < 10; ++i)
        events.push_back({i < 3 ? DaysBefore(ago[i]) : FixedClock(), LearnerEvent::Passed, 0,
            grade1[static_cast<std::size_t>(i)], 0});
    histories->Record("Anna", events, error);
    return OneLearner("Anna", {}, Codes(grade1.begin(), grade1.begin() + 10));
}

QString CategoryLine(MainWindow& window, int row)
{
    return Named<QTreeWidget>(ChildOf<HomePage>(window), "categoryList")->topLevelItem(row)->text(0);
}

/// Clicks Retest on the open category page; the test it starts is left untouched.
void ClickRetest(MainWindow& window)
{
    QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(window), "retestButton"), Qt::LeftButton);
}

/// The untested list after a retest of this record under the rule without reviews, drawn as
/// the category page draws (seeded by FixedSeed).
Codes RandomRetest(CategoryProgress progress)
{
    Random15 random;
    random.Seed(FixedSeed());
    Retest(progress, random);
    return progress.Untested();
}

} // namespace

class ReviewsTest : public QObject {
    Q_OBJECT

private slots:
    void theHomePageCountsWhatIsDueAndRetestSendsItBackFirst()
    {
        QTemporaryDir folder;
        const std::string history = folder.filePath(QStringLiteral("history.db")).toStdString();
        WindowFixture f(AnnaWithThreeDue(history), NoProgressModule, HistoryPlace{true, history});
        QVERIFY(f.Start());
        const QString total = QString::number(Grade1().size());
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (10 of %1, 3 due)").arg(total));
        QCOMPARE(CategoryLine(f.Window(), 1), QStringLiteral("Grade 2"));
        QLabel* due = Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal");
        QVERIFY(due->isVisible());
        QCOMPARE(due->text(), QStringLiteral("Due for review today: 3"));

        OpenCategory(f.Window(), 0);
        ClickRetest(f.Window());
        f.Close();
        // The three due first, the least likely recalled (the longest ago) first, then two of
        // the seven others.
        const Codes grade1 = Grade1();
        const Codes sent = f.Saved("Anna")->GetProgress(0).Untested();
        QCOMPARE(sent.size(), std::size_t(5));
        QCOMPARE(Codes(sent.begin(), sent.begin() + 3), (Codes{grade1[0], grade1[1], grade1[2]}));
        for (std::size_t i = 3; i < 5; ++i)
            QVERIFY(std::find(grade1.begin() + 3, grade1.begin() + 10, sent[i]) != grade1.begin() + 10);
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void switchedOffThePagesAreAsTheyWere()
    {
        QTemporaryDir folder;
        const std::string history = folder.filePath(QStringLiteral("history.db")).toStdString();
        WindowFixture f(AnnaWithThreeDue(history), NoProgressModule, HistoryPlace{true, history});
        CoachingPreferences off;
        off.reviewWhenDue = false;
        ProgramSettings().StoreCoaching(off);
        f.Restart();
        QVERIFY(f.Start());
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (10 of %1)").arg(Grade1().size()));
        QVERIFY(!Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->isVisible());
        const CategoryProgress before = *f.Saved("Anna")->Progress().begin();
        OpenCategory(f.Window(), 0);
        ClickRetest(f.Window());
        f.Close();
        QCOMPARE(f.Saved("Anna")->GetProgress(0).Untested(), RandomRetest(before));
    }

    void withNothingDueRetestIsRandomAsAlways()
    {
        const Codes grade1 = Grade1();
        WindowFixture f(OneLearner("Anna", {}, Codes(grade1.begin(), grade1.begin() + 10)), NoProgressModule,
            HistoryPlace{true, {}});
        QVERIFY(f.Start());
        // Learned before any history: passed Good today, due in two days.
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (10 of %1)").arg(grade1.size()));
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Nothing is due for review today."));
        const CategoryProgress before = *f.Saved("Anna")->Progress().begin();
        OpenCategory(f.Window(), 0);
        ClickRetest(f.Window());
        f.Close();
        QCOMPARE(f.Saved("Anna")->GetProgress(0).Untested(), RandomRetest(before));
    }

    void aCharacterPassedWithAMistakeFallsDueFirst()
    {
        const Codes grade1 = Grade1();
        WindowFixture f(LearnerWithFiveToTest("Anna"), NoProgressModule, HistoryPlace{true, {}});
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(f.Window()), "testButton"), Qt::LeftButton);
        // The third is passed with one mistake (Hard: due the next day), the others cleanly
        // (Good: due in two days).
        AnswerTestRight(f.Window(), {grade1[2]});
        QCOMPARE(ShownPage(f.Window()), ChildOf<CategoryPage>(f.Window()));
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(f.Window()), "backButton"), Qt::LeftButton);
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (5 of %1)").arg(grade1.size()));

        // The next day, started again.
        f.Close();
        f.Restart();
        f.SetNow(DayText(EventDay(FixedClock()) + 1) + "T08:00:00+01:00");
        QVERIFY(f.Start());
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (5 of %1, 1 due)").arg(grade1.size()));
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Due for review today: 1"));
        OpenCategory(f.Window(), 0);
        ClickRetest(f.Window());
        f.Close();
        const Codes sent = f.Saved("Anna")->GetProgress(0).Untested();
        QCOMPARE(sent.size(), std::size_t(5));
        QCOMPARE(sent.front(), grade1[2]);
    }

    void changingTheRetentionTakesEffectAtOnce()
    {
        QTemporaryDir folder;
        const std::string history = folder.filePath(QStringLiteral("history.db")).toStdString();
        WindowFixture f(AnnaWithThreeDue(history), NoProgressModule, HistoryPlace{true, history});
        QVERIFY(f.Start());
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Due for review today: 3"));
        // The maximum interval at its least and the retention at its highest: nothing passed today
        // becomes due, the three stay due; the file keeps every event.
        {
        ModalAnswerer<PreferencesDialog> change([](PreferencesDialog& dialog) {
            auto* retention = Named<QDoubleSpinBox>(&dialog, "retentionBox");
            QCOMPARE(retention->value(), 0.90);
            QCOMPARE(retention->accessibleName(), QStringLiteral("Desired retention"));
            QCOMPARE(Named<QLabel>(&dialog, "retentionMeaning")->text(),
                QStringLiteral("higher: more reviews, fewer characters forgotten"));
            retention->setValue(0.97);
            Named<QSpinBox>(&dialog, "intervalBox")->setValue(30);
            dialog.accept();
        });
        ActionOf(f.Window(), "preferencesAction")->trigger();
        QCOMPARE(change.Shown(), 1);
        }
        QCOMPARE(ProgramSettings().Coaching().retention, 0.97);
        QCOMPARE(ProgramSettings().Coaching().maximumInterval, 30);
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Due for review today: 3"));
        // Switched off in the dialog: the counts go at once.
        ModalAnswerer<PreferencesDialog> off([](PreferencesDialog& dialog) {
            for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
                if (box->text() == QStringLiteral("Review characters when they are due"))
                    Tick(box);
            QVERIFY(!Named<QDoubleSpinBox>(&dialog, "retentionBox")->isEnabled());
            dialog.accept();
        });
        ActionOf(f.Window(), "preferencesAction")->trigger();
        QCOMPARE(CategoryLine(f.Window(), 0), QStringLiteral("Grade 1 (10 of %1)").arg(Grade1().size()));
        QVERIFY(!Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->isVisible());
        std::string error;
        std::vector<LearnerEvent> events;
        f.Close();
        QVERIFY(HistoryStore::Open(history, error)->Events("Anna", events, error));
        QCOMPARE(events.size(), std::size_t(10));
    }
};

QTEST_MAIN(ReviewsTest)
#include "ReviewsTest.moc"

#include <algorithm>
