// The words test as the learner meets it: 学校 written square by square with the mouse, a wrong
// stroke refused in the second square, the word recorded as two graded "word" events and the
// memories moved on; giving up after the first square; Kanji Info from a written square; the
// aid switched off.

#include "CategoryPage.h"
#include "DatabaseKey.h"
#include "FeedbackLine.h"
#include "HistoryStore.h"
#include "KanjiInfoDialog.h"
#include "Lexicon.h"
#include "LexiconWriter.h"
#include "ModalAnswerer.h"
#include "ProgramSettings.h"
#include "WindowActions.h"
#include "WindowFixture.h"
#include "WordsTestPage.h"

#include <QLabel>
#include <QTest>

namespace {

const Lexicon& Standard()
{
    static const Lexicon lexicon{std::string(ZAVOREN_STANDARD_LEXICON)};
    return lexicon;
}

std::uint16_t IdOf(char32_t c)
{
    return Standard().CharacterOf(c);
}

/// A lexicon for the standard database whose only word is 学校 (under 学 and 校), so that a words
/// test of a learner who knows both asks it.
void WriteSchoolLexicon(const std::string& path)
{
    LexiconWriter writer(DatabaseKey::Of(StandardDatabase()));
    const LexiconWriter::Word school{"学校", "がっこう", "school", true};
    for (std::uint16_t id = 0; id < Standard().CharacterCount(); ++id) {
        const char32_t c = Standard().CodePoint(id);
        writer.AddCharacter(c, c == U'学' || c == U'校' ? std::vector<LexiconWriter::Word>{school}
                                                       : std::vector<LexiconWriter::Word>{},
            {}, {}, {});
    }
    const auto bytes = writer.Serialize();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

struct Setting {
    QTemporaryDir dir;
    std::string History() const { return dir.filePath(QStringLiteral("history.db")).toStdString(); }
    std::string LexiconPath() const { return dir.filePath(QStringLiteral("lexicon")).toStdString(); }
    /// Anna learned 学 and 校 in Grade 1 ten days ago.
    std::string Anna() const
    {
        const std::string ago = DayText(EventDay(FixedClock()) - 10) + "T18:00:00+01:00";
        std::string error;
        HistoryStore::Open(History(), error)
            ->Record("Anna",
                {{ago, LearnerEvent::Passed, 0, IdOf(U'学'), 0}, {ago, LearnerEvent::Passed, 0, IdOf(U'校'), 0}}, error);
        return OneLearner("Anna", {}, {IdOf(U'学'), IdOf(U'校')});
    }
};

std::vector<LearnerEvent> StoredEvents(const std::string& path)
{
    std::string error;
    std::vector<LearnerEvent> events;
    HistoryStore::Open(path, error)->Events("Anna", events, error);
    return events;
}

QPushButton* WordsButton(MainWindow& window)
{
    return Named<QPushButton>(ChildOf<CategoryPage>(window), "wordsButton");
}

/// Writes the character's strokes on the canvas, from stroke `from` on.
void WriteStrokes(InputCanvas* canvas, std::uint16_t id, std::uint16_t from = 0)
{
    CharacterDatabase& db = StandardDatabase();
    const auto element = db.LoadElement(db.LoadCharacter(id)->ElementId());
    const Form& glyph = element->GetForm(0);
    for (std::uint16_t k = from; k < glyph.StrokeCount(); ++k)
        DrawInk(canvas, StrokeAsMouse(glyph, k, canvas->ClientRect().width()));
}

} // namespace

class WordsTestPageTest : public QObject {
    Q_OBJECT

private slots:
    void aWordWrittenSquareBySquareIsRecordedAsTwoReviews()
    {
        Setting s;
        WriteSchoolLexicon(s.LexiconPath());
        WindowFixture f(s.Anna(), NoProgressModule, HistoryPlace{true, s.History(), s.LexiconPath()});
        QVERIFY(f.Start());
        const LearnerMemories before = f.Store().Memories(*f.Session().Learner());
        OpenCategory(f.Window(), 0);
        QVERIFY(WordsButton(f.Window())->isVisible());
        QVERIFY(WordsButton(f.Window())->isEnabled());
        QCOMPARE(WordsButton(f.Window())->text(), QStringLiteral("&Words"));
        QTest::mouseClick(WordsButton(f.Window()), Qt::LeftButton);
        WordsTestPage* page = ChildOf<WordsTestPage>(f.Window());
        QCOMPARE(ShownPage(f.Window()), page);
        QCOMPARE(page->Words().size(), std::size_t(1));
        QCOMPARE(Named<QLabel>(page, "reading")->text(), QStringLiteral("がっこう"));
        QCOMPARE(Named<QLabel>(page, "meaning")->text(), QStringLiteral("school"));
        QCOMPARE(Named<QLabel>(page, "position")->text(), QStringLiteral("Word 1 of 1"));
        QVERIFY(Named<QLabel>(page, "printedWord")->text().isEmpty());

        // The first square takes the ink; a hint there is a mistake.
        QCOMPARE(page->ActiveCell(), 0);
        QTest::mouseClick(Named<QPushButton>(page, "hintButton"), Qt::LeftButton);
        WriteStrokes(page->Canvas(0), IdOf(U'学'));
        QCOMPARE(page->ActiveCell(), 1);
        QVERIFY(!page->WordShown());
        // The second: its second stroke first is refused and wiped; then written right.
        WriteStrokes(page->Canvas(1), IdOf(U'校'), 1);
        QCOMPARE(page->Canvas(1)->StrokeCount(), 0);
        // Said on the line under the squares: the second square's own line, shown now.
        QString said;
        for (FeedbackLine* line : page->findChildren<FeedbackLine*>())
            if (line->isVisible())
                said += line->text();
        QVERIFY(!said.isEmpty());
        QCOMPARE(page->ActiveCell(), 1);
        WriteStrokes(page->Canvas(1), IdOf(U'校'));
        // The word passes: it is shown printed beside what was written.
        QVERIFY(page->WordShown());
        QCOMPARE(page->ActiveCell(), -1);
        QCOMPARE(Named<QLabel>(page, "printedWord")->text(), QStringLiteral("学校"));
        QVERIFY(Named<QPushButton>(page, "nextButton")->isEnabled());
        QVERIFY(!Named<QPushButton>(page, "dontKnowButton")->isEnabled());

        // A written square opens its Kanji Info.
        ModalAnswerer<KanjiInfoDialog> info([](KanjiInfoDialog& dialog) { dialog.reject(); });
        QTest::mouseClick(page->Canvas(1), Qt::LeftButton, Qt::NoModifier, page->Canvas(1)->rect().center());
        QCOMPARE(info.Shown(), 1);
        QCOMPARE(page->Canvas(1)->StrokeCount(), ChildOf<WordsTestPage>(f.Window())->Canvas(1)->StrokeCount());

        // Two "word" events: 学 with its hint (Hard), 校 clean (Good); the lists are unchanged.
        const std::vector<LearnerEvent> events = StoredEvents(s.History());
        QCOMPARE(events.size(), std::size_t(4));
        QCOMPARE(events[2], (LearnerEvent{FixedClock(), LearnerEvent::Word, 0, IdOf(U'学'), 1}));
        QCOMPARE(events[3], (LearnerEvent{FixedClock(), LearnerEvent::Word, 0, IdOf(U'校'), 0}));
        const LearnerMemories after = f.Store().Memories(*f.Session().Learner());
        MemoryLedger was, is;
        was.Load(before.memories);
        is.Load(after.memories);
        const MemoryModel model;
        for (const auto& [c, grade] : {std::pair(U'学', MemoryModel::Grade::Hard), std::pair(U'校', MemoryModel::Grade::Good)}) {
            const CharacterMemory* old = was.Find({0, IdOf(c)});
            const CharacterMemory* now = is.Find({0, IdOf(c)});
            QVERIFY(old && now);
            QCOMPARE(now->lastDay, EventDay(FixedClock()));
            QCOMPARE(now->memory.stability, model.Next(old->memory, 10, grade).stability);
        }

        QTest::mouseClick(Named<QPushButton>(page, "nextButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), ChildOf<CategoryPage>(f.Window()));
        f.Close();
        const auto anna = f.Saved("Anna");
        QCOMPARE(anna->GetProgress(0).Learned(), (Codes{IdOf(U'学'), IdOf(U'校')}));
        QVERIFY(anna->GetProgress(0).Untested().empty());
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void givingUpAfterTheFirstSquareKeepsItsGradeAndTheSecondIsAgain()
    {
        Setting s;
        WriteSchoolLexicon(s.LexiconPath());
        WindowFixture f(s.Anna(), NoProgressModule, HistoryPlace{true, s.History(), s.LexiconPath()});
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QTest::mouseClick(WordsButton(f.Window()), Qt::LeftButton);
        WordsTestPage* page = ChildOf<WordsTestPage>(f.Window());
        WriteStrokes(page->Canvas(0), IdOf(U'学'));
        QCOMPARE(page->ActiveCell(), 1);
        QTest::mouseClick(Named<QPushButton>(page, "dontKnowButton"), Qt::LeftButton);
        QVERIFY(page->WordShown());
        QCOMPARE(Named<QLabel>(page, "printedWord")->text(), QStringLiteral("学校"));
        const std::vector<LearnerEvent> events = StoredEvents(s.History());
        QCOMPARE(events.size(), std::size_t(4));
        QCOMPARE(events[2].mistakes, 0);
        QCOMPARE(events[3].id, IdOf(U'校'));
        QCOMPARE(events[3].mistakes, -1);
        QCOMPARE(MemoryLedger::GradeOf(events[2]), std::optional(MemoryModel::Grade::Good));
        QCOMPARE(MemoryLedger::GradeOf(events[3]), std::optional(MemoryModel::Grade::Again));
        // Nothing recorded twice when the test ends.
        QTest::keyClick(page, Qt::Key_Escape);
        QCOMPARE(ShownPage(f.Window()), ChildOf<CategoryPage>(f.Window()));
        QCOMPARE(StoredEvents(s.History()).size(), std::size_t(4));
    }

    void abortHalfWayRecordsTheUnwrittenAsNotRemembered()
    {
        Setting s;
        WriteSchoolLexicon(s.LexiconPath());
        WindowFixture f(s.Anna(), NoProgressModule, HistoryPlace{true, s.History(), s.LexiconPath()});
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QTest::mouseClick(WordsButton(f.Window()), Qt::LeftButton);
        WordsTestPage* page = ChildOf<WordsTestPage>(f.Window());
        WriteStrokes(page->Canvas(0), IdOf(U'学'));
        QTest::mouseClick(Named<QPushButton>(page, "abortButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(f.Window()), ChildOf<CategoryPage>(f.Window()));
        const std::vector<LearnerEvent> events = StoredEvents(s.History());
        QCOMPARE(events.size(), std::size_t(4));
        QCOMPARE(events[2].mistakes, 0);
        QCOMPARE(events[3].mistakes, -1);
    }

    void withoutAWordToAskTheButtonIsDisabled()
    {
        // Only 学 learned: 学校 needs 校.
        Setting s;
        WriteSchoolLexicon(s.LexiconPath());
        WindowFixture f(OneLearner("Anna", {}, {IdOf(U'学')}), NoProgressModule,
            HistoryPlace{true, s.History(), s.LexiconPath()});
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QVERIFY(WordsButton(f.Window())->isVisible());
        QVERIFY(!WordsButton(f.Window())->isEnabled());
    }

    void switchedOffTheCategoryPageIsAsItWas()
    {
        Setting s;
        WriteSchoolLexicon(s.LexiconPath());
        WindowFixture f(s.Anna(), NoProgressModule, HistoryPlace{true, s.History(), s.LexiconPath()});
        CoachingPreferences off;
        off.wordsTest = false;
        ProgramSettings().StoreCoaching(off);
        f.Restart();
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QVERIFY(!WordsButton(f.Window())->isVisible());
        QStringList buttons;
        for (QPushButton* b : ChildOf<CategoryPage>(f.Window())->findChildren<QPushButton*>())
            if (b->isVisible())
                buttons << b->text();
        QCOMPARE(buttons, (QStringList{QStringLiteral("&Lesson"), QStringLiteral("&Test"), QStringLiteral("&Retest"),
                              QStringLiteral("&Forget"), QStringLiteral("&Back")}));
        // Alt+W reaches nothing.
        QTest::keyClick(ChildOf<CategoryPage>(f.Window()), Qt::Key_W, Qt::AltModifier);
        QCOMPARE(ShownPage(f.Window()), ChildOf<CategoryPage>(f.Window()));
    }
};

QTEST_MAIN(WordsTestPageTest)
#include "WordsTestPageTest.moc"
