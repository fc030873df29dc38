// A review sitting as the learner meets it: the home page's Review button, every due character
// asked in order (read, then written with the mouse), what each answer changes, the summary,
// stopping half-way, writing only, and the aid switched off.

#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "HistoryStore.h"
#include "KanjiInfoDialog.h"
#include "ModalAnswerer.h"
#include "ProgramSettings.h"
#include "ReviewPage.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QLabel>
#include <QProgressBar>
#include <QTest>

namespace {

Codes Grade(std::uint16_t category)
{
    return StandardDatabase().LoadCategory(category)->Characters();
}

std::string DaysBefore(int days)
{
    return DayText(EventDay(FixedClock()) - days) + "T18:00:00+01:00";
}

std::string List(const char* element, const Codes& codes)
{
    std::string xml = std::string("<") + element + ">";
    for (std::uint16_t code : codes)
        xml += "<Character id=\"" + std::to_string(code) + "\"/>";
    return xml + "</" + element + ">";
}

/// The characters due in the sitting, in the order it asks them: passed once (Good, due two
/// days later) 20, 15, 10, 7 and 5 days ago, alternately from Grade 1 and Grade 2.
struct Due {
    std::uint16_t category;
    std::uint16_t id;
};
std::vector<Due> DueInOrder()
{
    const Codes g1 = Grade(0), g2 = Grade(1);
    return {{0, g1[0]}, {1, g2[0]}, {0, g1[1]}, {1, g2[1]}, {0, g1[2]}};
}

/// Anna has learned six characters of Grade 1 and four of Grade 2; three of Grade 1 and two of
/// Grade 2 are due today, the others were passed today.
std::string AnnaWithFiveDue(const std::string& historyPath)
{
    const Codes g1 = Grade(0), g2 = Grade(1);
    std::vector<LearnerEvent> events;
    const int ago[] = {20, 15, 10, 7, 5};
    int k = 0;
    for (const Due& due : DueInOrder())
        events.push_back({DaysBefore(ago[k++]), LearnerEvent::Passed, due.category, due.id, 0});
    for (std::size_t i = 3; i < 6; ++i)
        events.push_back({FixedClock(), LearnerEvent::Passed, 0, g1[i], 0});
    for (std::size_t i = 2; i < 4; ++i)
        events.push_back({FixedClock(), LearnerEvent::Passed, 1, g2[i], 0});
    std::string error;
    HistoryStore::Open(historyPath, error)->Record("Anna", events, error);
    return std::string("<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"><Progress categoryId=\"0\">")
        + List("Learned", Codes(g1.begin(), g1.begin() + 6)) + List("Untested", {})
        + "</Progress><Progress categoryId=\"1\">" + List("Learned", Codes(g2.begin(), g2.begin() + 4))
        + List("Untested", {}) + "</Progress></User></Users></Zavoren>";
}

std::vector<LearnerEvent> StoredEvents(const std::string& path)
{
    std::string error;
    std::vector<LearnerEvent> events;
    HistoryStore::Open(path, error)->Events("Anna", events, error);
    return events;
}

QPushButton* ReviewButton(MainWindow& window)
{
    return Named<QPushButton>(ChildOf<HomePage>(window), "reviewButton");
}

ReviewPage* Review(MainWindow& window)
{
    return ChildOf<ReviewPage>(window);
}

/// Answers the character asked until the sitting moves on: every question right, or, with
/// `forget`, each reading question with a mistake (two: failed).
void AnswerCharacter(ReviewPage* review, bool forget)
{
    TestContainer* test = review->Test();
    const std::size_t answered = review->Sitting().AnsweredCount();
    for (int guard = 0; guard < 20 && review->Sitting().AnsweredCount() == answered; ++guard)
        AnswerQuestion(test, forget && test->ShownPage() == test->ReadingPage());
    QCOMPARE(review->Sitting().AnsweredCount(), answered + 1);
}

class Folder {
public:
    std::string History() const { return m_dir.filePath(QStringLiteral("history.db")).toStdString(); }

private:
    QTemporaryDir m_dir;
};

} // namespace

class ReviewSessionTest : public QObject {
    Q_OBJECT

private slots:
    void aSittingAsksEveryDueCharacterInOrderAndRecordsEachAnswer()
    {
        Folder folder;
        WindowFixture f(AnnaWithFiveDue(folder.History()), NoProgressModule, HistoryPlace{true, folder.History()});
        QVERIFY(f.Start());
        QVERIFY(ReviewButton(f.Window())->isVisible());
        QCOMPARE(ReviewButton(f.Window())->text(), QStringLiteral("&Review (5)"));
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Due for review today: 5"));
        QTest::mouseClick(ReviewButton(f.Window()), Qt::LeftButton);
        ReviewPage* review = Review(f.Window());
        QCOMPARE(ShownPage(f.Window()), review);

        const std::vector<Due> due = DueInOrder();
        const std::size_t before = StoredEvents(folder.History()).size();
        for (std::size_t i = 0; i < due.size(); ++i) {
            QCOMPARE(Named<QLabel>(review, "position")->text(), QStringLiteral("Review %1 of 5").arg(i + 1));
            QCOMPARE(Named<QProgressBar>(review, "progress")->value(), static_cast<int>(i));
            QCOMPARE(Named<QLabel>(review, "category")->text(),
                QString::fromUtf8(StandardDatabase().LoadCategory(due[i].category)->Name()));
            QCOMPARE(*review->Test()->Schedule().CurrentCode(), due[i].id);
            // Read first, as a test asks.
            QCOMPARE(review->Test()->ShownPage(), review->Test()->ReadingPage());
            AnswerCharacter(review, i == 3);
            // Each answer is in the history as soon as it is given.
            QCOMPARE(StoredEvents(folder.History()).size(), before + i + 1);
        }

        // The summary: four remembered (none with mistakes), Grade 2's second forgotten.
        QVERIFY(review->ShowsSummary());
        QCOMPARE(Named<QLabel>(review, "counts")->text(),
            QStringLiteral("Reviewed: 5\nRemembered without mistakes: 4\nRemembered with mistakes: 0\nForgotten: 1"));
        CharacterGrid* forgotten = Named<CharacterGrid>(review, "forgotten");
        QVERIFY(forgotten->isVisible());
        QCOMPARE(forgotten->Groups().front().codes, (Codes{due[3].id}));
        // Drawn large enough to read, and opening Kanji Info.
        QVERIFY(forgotten->CellSide() >= 40);
        ModalAnswerer<KanjiInfoDialog> info([](KanjiInfoDialog& dialog) { dialog.reject(); });
        QTest::mouseDClick(forgotten->viewport(), Qt::LeftButton, Qt::NoModifier, forgotten->CellRect(0).center());
        QCOMPARE(info.Shown(), 1);
        // Everything reviewed today: what falls due next is after today.
        QVERIFY(Named<QLabel>(review, "nextReviews")->text().startsWith(QStringLiteral("Next reviews: tomorrow ")));

        QTest::mouseClick(Named<QPushButton>(review, "backButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), ChildOf<HomePage>(f.Window()));
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Nothing is due for review today."));
        QVERIFY(!ReviewButton(f.Window())->isVisible());
        f.Close();

        // The forgotten character left Grade 2's learned list; the others stayed learned.
        const auto anna = f.Saved("Anna");
        QVERIFY(!anna->GetProgress(1).IsLearned(due[3].id));
        QVERIFY(!anna->GetProgress(1).IsUntested(due[3].id));
        for (std::size_t i : {0u, 1u, 2u, 4u})
            QVERIFY(anna->GetProgress(due[i].category).IsLearned(due[i].id));
        // The five results, each in its own category, with the test's kinds.
        const std::vector<LearnerEvent> events = StoredEvents(folder.History());
        QCOMPARE(events.size(), before + 5);
        for (std::size_t i = 0; i < 5; ++i) {
            const LearnerEvent& e = events[before + i];
            QCOMPARE(e.id, due[i].id);
            QCOMPARE(e.categoryId, due[i].category);
            QCOMPARE(e.kind, std::string(i == 3 ? LearnerEvent::Failed : LearnerEvent::Passed));
            QCOMPARE(e.mistakes, i == 3 ? 2 : 0);
        }
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void stoppingAfterTwoKeepsThemAndTheRestStaysDue()
    {
        Folder folder;
        WindowFixture f(AnnaWithFiveDue(folder.History()), NoProgressModule, HistoryPlace{true, folder.History()});
        QVERIFY(f.Start());
        const std::size_t before = StoredEvents(folder.History()).size();
        QTest::mouseClick(ReviewButton(f.Window()), Qt::LeftButton);
        ReviewPage* review = Review(f.Window());
        AnswerCharacter(review, false);
        AnswerCharacter(review, false);
        // Half-way through the third: Escape ends the sitting; the third is not answered.
        AnswerQuestion(review->Test());
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : review, Qt::Key_Escape);
        QVERIFY(review->ShowsSummary());
        QCOMPARE(Named<QLabel>(review, "counts")->text(),
            QStringLiteral("Reviewed: 2\nRemembered without mistakes: 2\nRemembered with mistakes: 0\nForgotten: 0"));
        QVERIFY(!Named<CharacterGrid>(review, "forgotten")->isVisible());
        QTest::keyClick(review, Qt::Key_Escape);
        QCOMPARE(ShownPage(f.Window()), ChildOf<HomePage>(f.Window()));
        QCOMPARE(Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->text(),
            QStringLiteral("Due for review today: 3"));
        QCOMPARE(ReviewButton(f.Window())->text(), QStringLiteral("&Review (3)"));
        QCOMPARE(StoredEvents(folder.History()).size(), before + 2);

        // Abort at the first question of the next sitting: nothing answered, straight home.
        QTest::mouseClick(ReviewButton(f.Window()), Qt::LeftButton);
        QCOMPARE(*review->Test()->Schedule().CurrentCode(), DueInOrder()[2].id);
        QTest::mouseClick(Named<QPushButton>(review->Test(), "abortButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), ChildOf<HomePage>(f.Window()));
        QCOMPARE(StoredEvents(folder.History()).size(), before + 2);
    }

    void writingOnlyAsksNoReadingQuestion()
    {
        Folder folder;
        WindowFixture f(AnnaWithFiveDue(folder.History()), NoProgressModule, HistoryPlace{true, folder.History()});
        CoachingPreferences writingOnly;
        writingOnly.reviewWritingOnly = true;
        writingOnly.reviewsPerSitting = 10;
        ProgramSettings().StoreCoaching(writingOnly);
        f.Restart();
        QVERIFY(f.Start());
        QTest::mouseClick(ReviewButton(f.Window()), Qt::LeftButton);
        ReviewPage* review = Review(f.Window());
        for (int n = 0; n < 40 && !review->ShowsSummary(); ++n) {
            QCOMPARE(review->Test()->ShownPage(), review->Test()->DrawingPage());
            AnswerQuestion(review->Test());
        }
        QVERIFY(review->ShowsSummary());
        QCOMPARE(review->Sitting().Remembered(), 5);
    }

    void theSittingTakesAtMostItsSize()
    {
        // Twelve due in Grade 1, a sitting of ten: the ten least likely recalled.
        Folder folder;
        const Codes g1 = Grade(0);
        std::vector<LearnerEvent> events;
        for (int i = 0; i < 12; ++i)
            events.push_back({DaysBefore(30 - i), LearnerEvent::Passed, 0, g1[static_cast<std::size_t>(i)], 0});
        std::string error;
        HistoryStore::Open(folder.History(), error)->Record("Anna", events, error);
        WindowFixture f(OneLearner("Anna", {}, Codes(g1.begin(), g1.begin() + 12)), NoProgressModule,
            HistoryPlace{true, folder.History()});
        CoachingPreferences ten;
        ten.reviewsPerSitting = 10;
        ProgramSettings().StoreCoaching(ten);
        f.Restart();
        QVERIFY(f.Start());
        QCOMPARE(ReviewButton(f.Window())->text(), QStringLiteral("&Review (12)"));
        QTest::mouseClick(ReviewButton(f.Window()), Qt::LeftButton);
        ReviewPage* review = Review(f.Window());
        QCOMPARE(Named<QLabel>(review, "position")->text(), QStringLiteral("Review 1 of 10"));
        std::vector<std::uint16_t> asked;
        for (const ReviewSitting::Item& item : review->Sitting().Items())
            asked.push_back(item.id);
        QCOMPARE(asked, Codes(g1.begin(), g1.begin() + 10));
    }

    void switchedOffThereIsNoButton()
    {
        Folder folder;
        WindowFixture f(AnnaWithFiveDue(folder.History()), NoProgressModule, HistoryPlace{true, folder.History()});
        CoachingPreferences off;
        off.reviewWhenDue = false;
        ProgramSettings().StoreCoaching(off);
        f.Restart();
        QVERIFY(f.Start());
        QVERIFY(!ReviewButton(f.Window())->isVisible());
        QVERIFY(!Named<QLabel>(ChildOf<HomePage>(f.Window()), "dueTotal")->isVisible());
        // The home page's keys reach no review either.
        QTest::keyClick(ChildOf<HomePage>(f.Window()), Qt::Key_R, Qt::AltModifier);
        QCOMPARE(ShownPage(f.Window()), ChildOf<HomePage>(f.Window()));
    }
};

QTEST_MAIN(ReviewSessionTest)
#include "ReviewSessionTest.moc"
