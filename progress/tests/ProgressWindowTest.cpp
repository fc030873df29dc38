#include "Named.h"
#include "ProgressViewFactory.h"
#include "ProgressWindow.h"

#include "Contrast.h"
#include "FileCharacterDatabase.h"
#include "FittedText.h"
#include "KanjiInfoDialog.h"
#include "LexiconAccess.h"
#include "ModalAnswerer.h"
#include "RecordingPrompt.h"
#include "ReviewSchedule.h"
#include "User.h"

#include <QBarSet>
#include <QDateTimeAxis>
#include <QHeaderView>
#include <QPointer>
#include <QChart>
#include <QChartView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineSeries>
#include <QListWidget>
#include <QPluginLoader>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <map>

using namespace testsupport;

namespace {

constexpr int Today = 20779; // 2026-11-22
const std::string Now = "2026-11-22T20:00:00+01:00";

std::string At(int day, const char* time)
{
    return DayText(day) + time;
}

} // namespace

class ProgressWindowTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_db = std::make_unique<FileCharacterDatabase>(ZAVOREN_STANDARD_DATABASE);
        m_db->Preload(nullptr);
        // A year of work: every other day a lesson of one grade 1 character, then its test,
        // failed every fifth time with some mistakes; grade 2 on Sundays.
        m_learner.SetName("Anna");
        const auto grade1 = m_db->LoadCategory(0)->Characters();
        const auto grade2 = m_db->LoadCategory(1)->Characters();
        int n = 0;
        for (int day = Today - 365; day <= Today; day += 2, ++n) {
            const bool sunday = ((day % 7) + 7 + 3) % 7 == 6;
            const std::uint16_t category = sunday ? 1 : 0;
            const auto& codes = sunday ? grade2 : grade1;
            const std::uint16_t id = codes[static_cast<std::size_t>(n) % codes.size()];
            m_learner.AddEvent({At(day, "T18:00:00+01:00"), LearnerEvent::Lesson, category, id, -1});
            const bool fails = n % 5 == 0;
            const int mistakes = n % 3;
            m_learner.AddEvent(
                {At(day, "T18:30:00+01:00"), fails ? LearnerEvent::Failed : LearnerEvent::Passed, category, id, mistakes});
            CategoryProgress& progress = m_learner.GetProgress(category);
            if (fails) {
                if (!progress.IsUntested(id) && !progress.IsLearned(id))
                    progress.AddUntested(id);
            } else if (!progress.IsLearned(id)) {
                progress.AddLearned(id);
            }
        }
    }

    void theChartsHoldADayAndAWeekPerPoint()
    {
        ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.windowTitle(), QStringLiteral("Progress of Anna"));
        // 2025-11-22 to 2026-11-22: 366 days.
        QCOMPARE(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->count(), 366);
        std::size_t learned = 0;
        for (const CategoryProgress& p : m_learner.Progress())
            learned += p.Learned().size();
        QCOMPARE(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->at(365).y(), static_cast<qreal>(learned));
        QVERIFY(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->at(0).y() <= 1);
        // One category: its own count.
        Named<QComboBox>(&window, "categoryPicker")->setCurrentIndex(2); // grade 2
        QCOMPARE(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->count(), 366);
        QCOMPARE(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->at(365).y(), static_cast<qreal>(m_learner.GetProgress(1).Learned().size()));
        QCOMPARE(Named<QComboBox>(&window, "categoryPicker")->count(), m_db->CategoryCount() + 1);
        // Weeks from Monday 2025-11-17 to Monday 2026-11-16.
        QCOMPARE(Named<QBarSet>(Named<QChartView>(&window, "testsChart")->chart(), "passedBars")->count(), 53);
        QCOMPARE(Named<QBarSet>(Named<QChartView>(&window, "testsChart")->chart(), "failedBars")->count(), 53);
        qreal passed = 0, failed = 0;
        for (int i = 0; i < 53; ++i)
            passed += Named<QBarSet>(Named<QChartView>(&window, "testsChart")->chart(), "passedBars")->at(i), failed += Named<QBarSet>(Named<QChartView>(&window, "testsChart")->chart(), "failedBars")->at(i);
        int wantPassed = 0, wantFailed = 0;
        for (const LearnerEvent& e : m_learner.History())
            wantPassed += e.kind == LearnerEvent::Passed, wantFailed += e.kind == LearnerEvent::Failed;
        QCOMPARE(passed, static_cast<qreal>(wantPassed));
        QCOMPARE(failed, static_cast<qreal>(wantFailed));
    }

    void theCategoryTableCountsEveryCategory()
    {
        ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now);
        QTableWidget* table = Named<QTableWidget>(&window, "categoryTable");
        QCOMPARE(table->rowCount(), static_cast<int>(m_db->CategoryCount()));
        QCOMPARE(table->item(0, 0)->text(), QStringLiteral("Grade 1"));
        QCOMPARE(table->item(0, 1)->text().toInt(), static_cast<int>(m_learner.GetProgress(0).Learned().size()));
        QCOMPARE(table->item(0, 2)->text().toInt(), static_cast<int>(m_learner.GetProgress(0).Untested().size()));
        QCOMPARE(table->item(0, 3)->text().toInt(), static_cast<int>(m_db->LoadCategory(0)->CharacterCount()));
        QVERIFY(table->cellWidget(0, 4) != nullptr); // the bar
        QVERIFY(!table->cellWidget(0, 4)->accessibleName().isEmpty());
    }

    void theTroubleListIsOrderedAndOpensKanjiInfo()
    {
        ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now);
        // Kanji Info opened from here shows the character's words, as from the category page.
        LexiconAccess words(ZAVOREN_STANDARD_LEXICON, *m_db);
        window.SetWords(&words);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        Named<QTabWidget>(&window, "progressTabs")->setCurrentIndex(3);
        QListWidget* list = Named<QListWidget>(&window, "troubleList");
        QVERIFY(list->count() > 3);
        // Counted here from the history: mistakes and failures of each character.
        std::map<std::uint16_t, int> trouble;
        for (const LearnerEvent& e : m_learner.History())
            if (e.kind == LearnerEvent::Passed || e.kind == LearnerEvent::Failed)
                trouble[e.id] += e.mistakes + (e.kind == LearnerEvent::Failed ? 1 : 0);
        int previous = 1 << 30;
        for (int i = 0; i < list->count(); ++i) {
            const int score = trouble[static_cast<std::uint16_t>(list->item(i)->data(Qt::UserRole).toUInt())];
            QVERIFY(score > 0);
            QVERIFY(score <= previous);
            previous = score;
            QVERIFY(!list->item(i)->icon().isNull());
        }
        const std::uint16_t second = static_cast<std::uint16_t>(list->item(1)->data(Qt::UserRole).toUInt());
        QString meaning;
        bool withWords = false;
        ModalAnswerer<KanjiInfoDialog> info([&](KanjiInfoDialog& dialog) {
            meaning = FullText(dialog.findChild<QLabel*>(QStringLiteral("meaning")));
            withWords = dialog.findChild<QLabel*>(QStringLiteral("wordsHeading")) != nullptr;
            dialog.reject();
        });
        QApplication::processEvents(); // the icons are laid out
        const QRect cell = list->visualItemRect(list->item(1));
        QVERIFY(list->viewport()->rect().contains(cell.center()));
        // A double click is a press and a release, then a double-click press and its release.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        QCOMPARE(info.Shown(), 1);
        QCOMPARE(meaning, QString::fromUtf8(m_db->LoadCharacter(second)->Meaning()));
        QVERIFY(withWords);
    }

    void partsHaveAccessibleNamesAndFollowTheDarkPalette()
    {
        ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now);
        for (QWidget* part : {static_cast<QWidget*>(Named<QTabWidget>(&window, "progressTabs")), static_cast<QWidget*>(Named<QComboBox>(&window, "categoryPicker")),
                 static_cast<QWidget*>(Named<QChartView>(&window, "learnedChart")), static_cast<QWidget*>(Named<QChartView>(&window, "testsChart")),
                 static_cast<QWidget*>(Named<QTableWidget>(&window, "categoryTable")), static_cast<QWidget*>(Named<QListWidget>(&window, "troubleList"))})
            QVERIFY2(!part->accessibleName().isEmpty(), part->metaObject()->className());
        QCOMPARE(Named<QChartView>(&window, "learnedChart")->chart()->backgroundBrush().color(), window.palette().color(QPalette::Base));
        window.setPalette(DarkPalette());
        const QColor paper = DarkPalette().color(QPalette::Base);
        QCOMPARE(Named<QChartView>(&window, "learnedChart")->chart()->backgroundBrush().color(), paper);
        QVERIFY(Contrast(Named<QChartView>(&window, "learnedChart")->chart()->titleBrush().color(), paper) >= 7.0);
        QVERIFY(Contrast(Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries")->pen().color(), paper) >= 3.0);
        // The Reviews tab too.
        ProgressWindow withReviews(*m_db, m_prompt, m_learner, m_learner.History(), Now,
            ReviewSchedule(m_learner, MemoryLedger::Fold(m_learner.History()), MemoryModel(), Today));
        for (const char* name : {"reviewsChart", "reviewsTable"})
            QVERIFY2(!Named<QWidget>(&withReviews, name)->accessibleName().isEmpty(), name);
        withReviews.setPalette(DarkPalette());
        QCOMPARE(Named<QChartView>(&withReviews, "reviewsChart")->chart()->backgroundBrush().color(), paper);
    }

    void aFirstDayShowsItsValueOnAWeekLongAxis()
    {
        // Five characters learned today, and nothing before.
        User first;
        first.SetName("Ben");
        std::vector<LearnerEvent> history;
        const auto grade1 = m_db->LoadCategory(0)->Characters();
        for (std::size_t i = 0; i < 5; ++i) {
            first.GetProgress(0).AddLearned(grade1[i]);
            history.push_back({At(Today, "T10:00:00+01:00"), LearnerEvent::Passed, 0, grade1[i], 0});
        }
        ProgressWindow window(*m_db, m_prompt, first, history, Now);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* series = Named<QLineSeries>(Named<QChartView>(&window, "learnedChart")->chart(), "learnedSeries");
        QCOMPARE(series->count(), 1);
        QCOMPARE(series->at(0).y(), 5.0);
        QVERIFY(series->pointsVisible()); // a marker where a line of one point draws nothing
        QDateTimeAxis* days = nullptr;
        for (QAbstractAxis* axis : Named<QChartView>(&window, "learnedChart")->chart()->axes())
            if (auto* d = qobject_cast<QDateTimeAxis*>(axis))
                days = d;
        QVERIFY(days);
        QVERIFY(days->min().date().daysTo(days->max().date()) >= 6);
        // And its marker is drawn: ink of the series' colour near the right end of the plot.
        const QImage picture = Named<QChartView>(&window, "learnedChart")->grab().toImage();
        const QColor line = series->color();
        int marked = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = picture.width() / 2; x < picture.width(); ++x) {
                const QColor c = picture.pixelColor(x, y);
                marked += std::abs(c.red() - line.red()) + std::abs(c.green() - line.green())
                        + std::abs(c.blue() - line.blue()) < 60;
            }
        QVERIFY2(marked > 10, qPrintable(QString::number(marked)));
    }

    void escapeAndTheCloseShortcutCloseItCentredOverItsOwner()
    {
        QWidget owner;
        owner.setGeometry(300, 200, 800, 600);
        owner.show();
        QVERIFY(QTest::qWaitForWindowExposed(&owner));
        for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)}) {
            if (keys.isEmpty())
                continue; // a platform without a close shortcut
            QPointer<ProgressWindow> window(new ProgressWindow(*m_db, m_prompt, m_learner, m_learner.History(), Now,
                std::nullopt, &owner));
            window->setAttribute(Qt::WA_DeleteOnClose, true);
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QVERIFY((window->frameGeometry().center() - owner.frameGeometry().center()).manhattanLength() <= 2);
            QTest::keySequence(window, keys);
            QTRY_VERIFY(!window);
        }
    }

    void theReviewsTabShowsWhatFallsDueAndEachCharactersRecall()
    {
        const ReviewSchedule reviews(m_learner, MemoryLedger::Fold(m_learner.History()), MemoryModel(), Today);
        {
            // The aid off: no such tab.
            ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now);
            QCOMPARE(Named<QTabWidget>(&window, "progressTabs")->count(), 4);
        }
        ProgressWindow window(*m_db, m_prompt, m_learner, m_learner.History(), Now, reviews);
        window.resize(720, 560);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* tabs = Named<QTabWidget>(&window, "progressTabs");
        QCOMPARE(tabs->count(), 5);
        QCOMPARE(tabs->tabText(4), QStringLiteral("Re&views"));
        tabs->setCurrentIndex(4);
        // One bar a day for 30 days, as the schedule says.
        auto* bars = Named<QBarSet>(Named<QChartView>(&window, "reviewsChart")->chart(), "dueBars");
        const std::vector<int> perDay = reviews.DuePerDay(30);
        QCOMPARE(bars->count(), 30);
        for (int i = 0; i < 30; ++i)
            QCOMPARE(bars->at(i), double(perDay[static_cast<std::size_t>(i)]));
        // Every learned character, the least likely recalled first; sorted again by due date.
        auto* table = Named<QTableWidget>(&window, "reviewsTable");
        QCOMPARE(table->rowCount(), int(reviews.Reviews().size()));
        QVERIFY(table->rowCount() > 50);
        for (int r = 1; r < table->rowCount(); ++r)
            QVERIFY(table->item(r - 1, 2)->data(Qt::UserRole).toDouble() <= table->item(r, 2)->data(Qt::UserRole).toDouble());
        QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
            QPoint(table->horizontalHeader()->sectionViewportPosition(3) + 5, table->horizontalHeader()->height() / 2));
        for (int r = 1; r < table->rowCount(); ++r)
            QVERIFY(table->item(r - 1, 3)->data(Qt::UserRole).toInt() <= table->item(r, 3)->data(Qt::UserRole).toInt());
        // Due ones say so; each row's recall is the schedule's.
        const auto* first = table->item(0, 0);
        const auto* review = reviews.Find(static_cast<std::uint16_t>(first->data(Qt::UserRole).toUInt()),
            static_cast<std::uint16_t>(first->data(Qt::UserRole + 1).toUInt()));
        QVERIFY(review);
        QCOMPARE(table->item(0, 2)->text(), QStringLiteral("%1 %").arg(qRound(review->recall * 100)));
        if (review->Due(Today))
            QCOMPARE(table->item(0, 3)->text(), QStringLiteral("due now"));
        // Activated: Kanji Info with the next review.
        ModalAnswerer<KanjiInfoDialog> info([](KanjiInfoDialog& dialog) {
            QVERIFY(Named<QLabel>(&dialog, "nextReview")->isVisible());
            QVERIFY(Named<QLabel>(&dialog, "nextReview")->text().startsWith(QStringLiteral("Next review: ")));
            dialog.reject();
        });
        table->setCurrentCell(0, 1);
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(info.Shown(), 1);
        // The trouble list adds each learned character's recall.
        auto* trouble = Named<QListWidget>(&window, "troubleList");
        bool withRecall = false;
        for (int i = 0; i < trouble->count(); ++i)
            withRecall = withRecall || trouble->item(i)->text().contains(QStringLiteral("recall "));
        QVERIFY(withRecall);
    }

    void theModuleMakesTheWindow()
    {
        QPluginLoader loader(QStringLiteral(ZAVOREN_PROGRESS_MODULE));
        QObject* instance = loader.instance();
        QVERIFY2(instance, qPrintable(loader.errorString()));
        auto* factory = qobject_cast<ProgressViewFactory*>(instance);
        QVERIFY(factory);
        QWidget* view = factory->CreateProgressView(*m_db, m_prompt, m_learner, m_learner.History(), Now, std::nullopt, nullptr, nullptr);
        QVERIFY(view);
        QCOMPARE(QString::fromLatin1(view->metaObject()->className()), QStringLiteral("ProgressWindow"));
        QVERIFY(view->testAttribute(Qt::WA_DeleteOnClose));
        delete view;
    }

private:
    std::unique_ptr<FileCharacterDatabase> m_db;
    User m_learner;
    RecordingPrompt m_prompt;
};

QTEST_MAIN(ProgressWindowTest)
#include "ProgressWindowTest.moc"
