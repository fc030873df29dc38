// Words and parts in the program: Kanji Info from the category page shows the standard
// lexicon's words with what the learner has learned in the normal colour, the reading test shows
// a word after each answer, and both aids switched off in Preferences leave the pages as they were.

#include "CategoryPage.h"
#include "CharacterGrid.h"
#include "FeedbackLine.h"
#include "KanjiInfoDialog.h"
#include "Lexicon.h"
#include "LexiconAccess.h"
#include "ModalAnswerer.h"
#include "PreferencesDialog.h"
#include "ReadingTestPage.h"
#include "WindowActions.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolButton>

namespace {

std::uint16_t IdOf(char32_t c)
{
    static const Lexicon lexicon{std::string(ZAVOREN_STANDARD_LEXICON)};
    return lexicon.CharacterOf(c);
}

/// Selects the character in the open category page's grid and opens its Kanji Info, handing it
/// to `look`.
void OpenInfo(MainWindow& window, std::uint16_t code, const std::function<void(KanjiInfoDialog&)>& look)
{
    CategoryPage* page = ChildOf<CategoryPage>(window);
    CharacterGrid* grid = Named<CharacterGrid>(page, "characterGrid");
    for (int cell = 0; cell < 400; ++cell) {
        grid->SelectCell(cell);
        if (!grid->SelectedCodes().empty() && grid->SelectedCodes().front() == code)
            break;
    }
    QCOMPARE(grid->SelectedCodes().front(), code);
    ModalAnswerer<KanjiInfoDialog> info([&look](KanjiInfoDialog& dialog) {
        look(dialog);
        dialog.reject();
    });
    Named<QMenu>(page, "unlearnedMenu")->actions()[0]->trigger();
    QCOMPARE(info.Shown(), 1);
}

/// Ticks or unticks the Preferences box with this caption.
void SetPreference(MainWindow& window, const QString& caption, bool on)
{
    ModalAnswerer<PreferencesDialog> answer([&](PreferencesDialog& dialog) {
        for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
            if (box->text() == caption)
                box->setChecked(on);
        dialog.accept();
    });
    ActionOf(window, "preferencesAction")->trigger();
    QCOMPARE(answer.Shown(), 1);
}

/// The history with the learners, the words from the standard lexicon.
HistoryPlace WithStandardLexicon()
{
    HistoryPlace place;
    place.lexicon = ZAVOREN_STANDARD_LEXICON;
    return place;
}

} // namespace

class WordAidsTest : public QObject {
    Q_OBJECT

private slots:
    void kanjiInfoShowsWordsWithTheLearnersOwnCharacters()
    {
        // Anna has learned 大 (and nothing else): in 大学, 大 is in the normal colour, 学 dimmed.
        WindowFixture f(OneLearner("Anna", {}, {IdOf(U'大')}), NoProgressModule, WithStandardLexicon());
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QStringList rows;
        QString dimmedInUniversity = QStringLiteral("(none)");
        OpenInfo(f.Window(), IdOf(U'学'), [&](KanjiInfoDialog& dialog) {
            QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("wordsHeading")));
            for (int i = 0; i < 5; ++i) {
                auto* row = dialog.findChild<QLabel*>(QStringLiteral("word%1").arg(i));
                QVERIFY(row);
                rows << row->accessibleName();
                if (row->accessibleName().startsWith(QStringLiteral("大学,")))
                    dimmedInUniversity = row->property("dimmed").toString();
            }
            // 学: ⺍, 冖 (drawn, not characters of the database) and 子 (a button to its Kanji Info).
            QVERIFY(qobject_cast<QToolButton*>(dialog.findChild<QWidget*>(QStringLiteral("part2"))));
        });
        QVERIFY2(dimmedInUniversity == QStringLiteral("学"), qPrintable(rows.join(QStringLiteral(" | "))));
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void bothAidsSwitchedOffShowNoWords()
    {
        // 日 waits for its test; 学 is still to be learned.
        WindowFixture f(OneLearner("Anna", {IdOf(U'日')}, {IdOf(U'大')}), NoProgressModule, WithStandardLexicon());
        QVERIFY(f.Start());
        SetPreference(f.Window(), QStringLiteral("Show words and parts in Kanji Info"), false);
        SetPreference(f.Window(), QStringLiteral("Show a word after each answer"), false);
        OpenCategory(f.Window(), 0);
        bool plain = false;
        OpenInfo(f.Window(), IdOf(U'学'), [&plain](KanjiInfoDialog& dialog) {
            plain = !dialog.findChild<QWidget*>(QStringLiteral("wordsAndParts"));
        });
        QVERIFY(plain);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(f.Window()), "testButton"), Qt::LeftButton);
        ReadingTestPage* reading = ChildOf<TestContainer>(f.Window())->ReadingPage();
        QVERIFY(reading->isVisible());
        const auto character = StandardDatabase().LoadCharacter(IdOf(U'日'));
        for (int i = 0; i < 5; ++i)
            if (reading->Choices().on.at(static_cast<std::size_t>(i)) == character->OnReading())
                ClickRadio(reading->OnButton(i));
        auto* line = reading->findChild<FeedbackLine*>(QStringLiteral("onWord"));
        QVERIFY(!line || (!line->isVisibleTo(reading) && line->text().isEmpty()));
        // On again: the next Kanji Info has its words.
        SetPreference(f.Window(), QStringLiteral("Show words and parts in Kanji Info"), true);
        QVERIFY(f.Prompt().messages.isEmpty());
    }

    void theReadingTestShowsAWordAfterTheRightAnswer()
    {
        WindowFixture f(OneLearner("Anna", {IdOf(U'学')}), NoProgressModule, WithStandardLexicon());
        QVERIFY(f.Start());
        OpenCategory(f.Window(), 0);
        QTest::mouseClick(Named<QPushButton>(ChildOf<CategoryPage>(f.Window()), "testButton"), Qt::LeftButton);
        ReadingTestPage* reading = ChildOf<TestContainer>(f.Window())->ReadingPage();
        QVERIFY(reading->isVisible());
        const auto character = StandardDatabase().LoadCharacter(IdOf(U'学'));
        auto* kun = Named<FeedbackLine>(reading, "kunWord");
        QVERIFY(kun->isVisible());
        QVERIFY(kun->text().isEmpty());
        for (int i = 0; i < 5; ++i)
            if (reading->Choices().kun.at(static_cast<std::size_t>(i)) == character->KunReading())
                ClickRadio(reading->KunButton(i));
        // 学ぶ まなぶ with its glosses as the lexicon has them (EDICT's wording moves between
        // releases: "to study (in depth); to learn", "to learn; to study").
        const Lexicon lexicon(ZAVOREN_STANDARD_LEXICON);
        const auto word = lexicon.ReadingWord(IdOf(U'学'), Lexicon::Reading::Kun);
        QVERIFY(word);
        QCOMPARE(QString::fromUtf8(word->writing.data(), qsizetype(word->writing.size())), QStringLiteral("学ぶ"));
        QCOMPARE(QString::fromUtf8(word->reading.data(), qsizetype(word->reading.size())), QStringLiteral("まなぶ"));
        QVERIFY(QString::fromUtf8(word->meaning.data(), qsizetype(word->meaning.size()))
                    .contains(QStringLiteral("to learn")));
        QCOMPARE(kun->text(),
            QStringLiteral("学ぶ  まなぶ \u2014 ")
                + QString::fromUtf8(word->meaning.data(), qsizetype(word->meaning.size())));
    }
};

QTEST_MAIN(WordAidsTest)
#include "WordAidsTest.moc"
