#include "Named.h"
#include "DatabaseKey.h"
#include "DisplayCanvas.h"
#include "DrawingTestPage.h"
#include "FeedbackLine.h"
#include "InputCanvas.h"
#include "LexiconAccess.h"
#include "LexiconWriter.h"
#include "Random15.h"
#include "ReadingTestPage.h"
#include "RecordingPrompt.h"
#include "TestContainer.h"
#include "TestSupport.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace testsupport;

namespace {

void Pick(QRadioButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

/// Index of the choice equal to (or, with `wrong`, different from) the text.
int ChoiceIndex(const std::vector<std::string>& choices, const char* right, bool wrong, int skip = -1)
{
    const std::string text = right ? right : "";
    for (int i = 0; i < static_cast<int>(choices.size()); ++i)
        if ((choices[static_cast<std::size_t>(i)] == text) != wrong && i != skip)
            return i;
    return -1;
}

void DrawAll(DrawingTestPage& page)
{
    for (std::uint16_t k = 0; k < page.Glyph()->StrokeCount(); ++k)
        DrawInk(Named<InputCanvas>(&page, "inputCanvas"), StrokeAsMouse(*page.Glyph(), k, Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width()));
}

} // namespace

/// Repeatable distractors.
std::uint32_t RepeatableSeeds()
{
    return 4242;
}

class TestPagesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // 0: no ON reading; 1..: varied readings so that distractors exist.
        const Form two = SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}});
        const auto element = m_small.writer.AddStrokeElement(two);
        m_small.writer.AddCharacter(element, "", "kun0", "zero");
        for (int i = 1; i < 12; ++i)
            m_small.writer.AddCharacter(element, "ON" + std::to_string(i), i % 4 ? "kun" + std::to_string(i) : "", "m");
        m_small.writer.AddCategory("Test", {0, 1, 2});
        m_db = m_small.Open();
        m_standard = std::make_unique<FileCharacterDatabase>(ZAVOREN_STANDARD_DATABASE);
        m_standard->Preload(nullptr);
    }

    void readingWithoutOnReadingOffersNotAvailable()
    {
        ReadingTestPage page(*m_db, m_prompt, RepeatableSeeds);
        page.show();
        auto character = m_db->LoadCharacter(0);
        page.SetCharacter(character.get());
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("?"));
        QCOMPARE(Named<QLabel>(&page, "kunReading")->text(), QStringLiteral("?"));
        QCOMPARE(Named<QLabel>(&page, "meaning")->text(), QStringLiteral("zero"));
        const int right = ChoiceIndex(page.Choices().on, "", false);
        QVERIFY(right >= 0);
        QCOMPARE(page.OnButton(right)->text(), QStringLiteral("N/A"));
        QCOMPARE(std::count(page.Choices().on.begin(), page.Choices().on.end(), std::string()), 1);
        for (int i = 0; i < 5; ++i) {
            QVERIFY(page.OnButton(i)->isEnabled());
            QVERIFY(page.KunButton(i)->isEnabled());
        }
        Pick(page.OnButton(right));
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("N/A"));
    }

    void rightAfterTwoWrongPicksIsAnAnswerWithMistakes()
    {
        ReadingTestPage page(*m_db, m_prompt, RepeatableSeeds);
        page.show();
        QSignalSpy events(&page, &QuestionPage::pageEvent);
        auto character = m_db->LoadCharacter(5);
        page.SetCharacter(character.get());
        const int wrong1 = ChoiceIndex(page.Choices().on, "ON5", true);
        const int wrong2 = ChoiceIndex(page.Choices().on, "ON5", true, wrong1);
        const int right = ChoiceIndex(page.Choices().on, "ON5", false);
        Pick(page.OnButton(wrong1));
        QVERIFY(page.OnButton(wrong1)->isChecked());
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("?"));
        Pick(page.OnButton(wrong2));
        for (int i = 0; i < 5; ++i)
            QVERIFY(page.OnButton(i)->isEnabled());
        Pick(page.OnButton(right));
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("ON5"));
        for (int i = 0; i < 5; ++i)
            QCOMPARE(page.OnButton(i)->isEnabled(), i == right);
        QVERIFY(!page.Perfect());
        QCOMPARE(events.count(), 0);
        Pick(page.KunButton(ChoiceIndex(page.Choices().kun, "kun5", false)));
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(QuestionPage::AnsweredWithMistakes));
        QVERIFY(page.IsAnswered());
        // Further picks are ignored.
        Pick(page.OnButton(right));
        QCOMPARE(events.count(), 1);
    }

    void bothRightAtTheFirstTryIsClean()
    {
        ReadingTestPage page(*m_db, m_prompt, RepeatableSeeds);
        page.show();
        QSignalSpy events(&page, &QuestionPage::pageEvent);
        auto character = m_db->LoadCharacter(4); // no KUN reading: its right choice is N/A
        page.SetCharacter(character.get());
        Pick(page.KunButton(ChoiceIndex(page.Choices().kun, nullptr, false)));
        QCOMPARE(Named<QLabel>(&page, "kunReading")->text(), QStringLiteral("N/A"));
        Pick(page.OnButton(ChoiceIndex(page.Choices().on, "ON4", false)));
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(QuestionPage::AnsweredCleanly));
        // A new question resets the page.
        page.SetCharacter(character.get());
        QVERIFY(!page.IsAnswered());
        QVERIFY(page.Perfect());
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("?"));
    }

    void drawingCompletedWithoutPeekingRevealsAndIsClean()
    {
        DrawingTestPage page(*m_db, m_prompt);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy events(&page, &QuestionPage::pageEvent);
        auto character = m_db->LoadCharacter(3);
        page.SetCharacter(character.get());
        QCOMPARE(Named<QLabel>(&page, "onReading")->text(), QStringLiteral("ON3"));
        QCOMPARE(CountNot(Named<DisplayCanvas>(&page, "displayCanvas")->BackBuffer(), qRgb(255, 255, 255)), 0); // hidden glyph
        // Many rejected strokes cost nothing.
        for (int i = 0; i < 5; ++i)
            DrawInk(Named<InputCanvas>(&page, "inputCanvas"), {{5, 5}, {40, 200}});
        QCOMPARE(Named<InputCanvas>(&page, "inputCanvas")->StrokeCount(), 0);
        DrawAll(page);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(QuestionPage::AnsweredCleanly));
        QVERIFY(page.Revealed());
        QVERIFY(CountNot(Named<DisplayCanvas>(&page, "displayCanvas")->BackBuffer(), qRgb(255, 255, 255)) > 0);
        // The input canvas stays enabled; an extra stroke is scored beyond the last stroke and wiped.
        QVERIFY(Named<InputCanvas>(&page, "inputCanvas")->isEnabled());
        DrawInk(Named<InputCanvas>(&page, "inputCanvas"), StrokeAsMouse(*page.Glyph(), 0, Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width()));
        QCOMPARE(Named<InputCanvas>(&page, "inputCanvas")->StrokeCount(), 2);
        QCOMPARE(events.count(), 1);
    }

    void peekingBeforeTheEndIsAMistakeAndASecondClickAnimates()
    {
        DrawingTestPage page(*m_db, m_prompt);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy events(&page, &QuestionPage::pageEvent);
        auto character = m_db->LoadCharacter(2);
        page.SetCharacter(character.get());
        DrawInk(Named<InputCanvas>(&page, "inputCanvas"), StrokeAsMouse(*page.Glyph(), 0, Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width()));
        QTest::mouseClick(Named<DisplayCanvas>(&page, "displayCanvas"), Qt::LeftButton, Qt::NoModifier, Named<DisplayCanvas>(&page, "displayCanvas")->rect().center());
        QVERIFY(page.Revealed());
        QVERIFY(page.Peeked());
        QVERIFY(!Named<DisplayCanvas>(&page, "displayCanvas")->IsAnimating());
        QTest::mouseClick(Named<DisplayCanvas>(&page, "displayCanvas"), Qt::LeftButton, Qt::NoModifier, Named<DisplayCanvas>(&page, "displayCanvas")->rect().center());
        QVERIFY(Named<DisplayCanvas>(&page, "displayCanvas")->IsAnimating());
        QVERIFY(page.Peeked());
        QCOMPARE(events.count(), 0);
        DrawInk(Named<InputCanvas>(&page, "inputCanvas"), StrokeAsMouse(*page.Glyph(), 1, Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width()));
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(QuestionPage::AnsweredWithMistakes));
    }

    void emptyTestAsksNothing()
    {
        TestContainer test(*m_db, m_prompt, RepeatableSeeds);
        test.show();
        QSignalSpy events(&test, &TestContainer::pageEvent);
        test.StartTest({});
        QCOMPARE(test.ShownPage(), nullptr);
        QVERIFY(!Named<QPushButton>(&test, "nextButton")->isEnabled());
        QCOMPARE(test.DefaultButton(), Named<QPushButton>(&test, "abortButton"));
        QTest::keyClick(&test, Qt::Key_Escape);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(TestContainer::Aborted));
    }

    void aWordFollowsEachRightAnswerWithTheAidOn()
    {
        // Character 1 (ON1, kun1) has a word for each reading; character 2 has words but none
        // for its readings.
        LexiconWriter writer(DatabaseKey::Of(*m_db));
        for (std::uint16_t id = 0; id < m_db->CharacterCount(); ++id) {
            if (id == 1)
                writer.AddCharacter(U'一', {{"一つ", "ひとつ", "one", true}}, {}, LexiconWriter::Word{"一日", "いちにち", "one day", true},
                    LexiconWriter::Word{"一つ", "ひとつ", "one", true});
            else
                writer.AddCharacter(0x4E00 + 0x100 + id, {{"語", "ご", "word", true}}, {}, std::nullopt, std::nullopt);
        }
        LexiconAccess words(std::make_unique<Lexicon>(writer.Serialize()));
        ReadingTestPage page(*m_db, m_prompt, RepeatableSeeds);
        page.SetWordAid(&words);
        page.show();
        auto character = m_db->LoadCharacter(1);
        page.SetCharacter(character.get());
        auto* on = Named<FeedbackLine>(&page, "onWord");
        auto* kun = Named<FeedbackLine>(&page, "kunWord");
        QVERIFY(on->isVisible() && kun->isVisible());
        QCOMPARE(on->accessibleName(), QStringLiteral("A word with this ON reading"));
        QVERIFY(on->text().isEmpty());
        QSignalSpy announced(on, &FeedbackLine::announced);
        // A wrong pick shows nothing; the right one shows the word, under the ON choices only.
        Pick(page.OnButton(ChoiceIndex(page.Choices().on, "ON1", true)));
        QVERIFY(on->text().isEmpty());
        Pick(page.OnButton(ChoiceIndex(page.Choices().on, "ON1", false)));
        QCOMPARE(on->text(), QStringLiteral("一日  いちにち \u2014 one day"));
        QCOMPARE(announced.count(), 1);
        QVERIFY(kun->text().isEmpty());
        Pick(page.KunButton(ChoiceIndex(page.Choices().kun, "kun1", false)));
        QCOMPARE(kun->text(), QStringLiteral("一つ  ひとつ \u2014 one"));
        // Until the next question.
        auto other = m_db->LoadCharacter(2);
        page.SetCharacter(other.get());
        QVERIFY(on->text().isEmpty() && kun->text().isEmpty());
        // A character without a word for its readings: the lines stay empty, their room kept.
        const QSize size = page.size();
        Pick(page.OnButton(ChoiceIndex(page.Choices().on, "ON2", false)));
        QVERIFY(on->text().isEmpty());
        QCOMPARE(page.size(), size);
    }

    void withTheAidOffThePageShowsNoWords()
    {
        ReadingTestPage plain(*m_db, m_prompt, RepeatableSeeds);
        QVERIFY(!plain.findChild<FeedbackLine*>(QStringLiteral("onWord")));
        const QSize without = plain.sizeHint();
        // Switched on, then off again: the lines are gone from the page and from its size.
        LexiconAccess words(std::make_unique<Lexicon>(LexiconWriter(0).Serialize()));
        ReadingTestPage page(*m_db, m_prompt, RepeatableSeeds);
        page.SetWordAid(&words);
        QVERIFY(page.sizeHint().height() > without.height());
        page.SetWordAid(nullptr);
        QCOMPARE(page.sizeHint(), without);
        page.show();
        auto character = m_db->LoadCharacter(1);
        page.SetCharacter(character.get());
        Pick(page.OnButton(ChoiceIndex(page.Choices().on, "ON1", false)));
        QVERIFY(!Named<FeedbackLine>(&page, "onWord")->isVisible());
        QVERIFY(Named<FeedbackLine>(&page, "onWord")->text().isEmpty());
    }

    void aWholeTestOnTwoRealCharacters()
    {
        TestContainer test(*m_standard, m_prompt, RepeatableSeeds);
        test.show();
        QVERIFY(QTest::qWaitForWindowExposed(&test));
        QSignalSpy events(&test, &TestContainer::pageEvent);
        const std::uint16_t passer = 0, failer = 1;
        test.StartTest({passer, failer});
        std::map<std::uint16_t, std::vector<int>> pages; // per character, 0 reading and 1 drawing
        std::vector<std::pair<int, int>> asked; // (character, page) in order
        std::map<std::uint16_t, int> readingsAsked;
        for (int question = 0; question < 20 && events.isEmpty(); ++question) {
            const std::uint16_t code = *test.Schedule().CurrentCode();
            auto character = m_standard->LoadCharacter(code);
            if (test.ShownPage() == test.ReadingPage()) {
                pages[code].push_back(0);
                asked.emplace_back(code, 0);
                ReadingTestPage* page = test.ReadingPage();
                if (code == failer)
                    Pick(page->OnButton(ChoiceIndex(page->Choices().on, character->OnReading(), true)));
                Pick(page->OnButton(ChoiceIndex(page->Choices().on, character->OnReading(), false)));
                Pick(page->KunButton(ChoiceIndex(page->Choices().kun, character->KunReading(), false)));
                ++readingsAsked[code];
            } else {
                QCOMPARE(test.ShownPage(), test.DrawingPage());
                pages[code].push_back(1);
                asked.emplace_back(code, 1);
                DrawAll(*test.DrawingPage());
            }
            QVERIFY(Named<QPushButton>(&test, "nextButton")->isEnabled());
            QCOMPARE(test.DefaultButton(), Named<QPushButton>(&test, "nextButton"));
            QTest::mouseClick(Named<QPushButton>(&test, "nextButton"), Qt::LeftButton);
        }
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(TestContainer::Finished));
        // The questions alternate reading, drawing, reading, drawing as the page rule goes: after
        // A's reading, B (fewer attempts) gets the page after it, a drawing; then A's drawing has
        // fewer attempts than its reading, and so on.
        const std::vector<std::pair<int, int>> expected{{0, 0}, {1, 1}, {0, 1}, {1, 0}, {0, 1}, {1, 0}, {0, 0}, {1, 1}};
        using Asked = std::vector<std::pair<int, int>>;
        const Asked firstFour(asked.begin(), asked.begin() + std::min<std::size_t>(4, asked.size()));
        QVERIFY(firstFour == Asked(expected.begin(), expected.begin() + 4));
        QVERIFY(asked == Asked(expected.begin(), expected.begin() + std::min(asked.size(), expected.size())));
        QCOMPARE(test.PassedCodes(), std::vector<std::uint16_t>{passer});
        QCOMPARE(test.FailedCodes(), std::vector<std::uint16_t>{failer});
        QCOMPARE(readingsAsked[failer], 2); // failed for good after the second miss
    }

private:
    SmallDatabase m_small;
    std::unique_ptr<FileCharacterDatabase> m_db;
    RecordingPrompt m_prompt;
    std::unique_ptr<FileCharacterDatabase> m_standard;
};

QTEST_MAIN(TestPagesTest)
#include "TestPagesTest.moc"

#include <algorithm>
