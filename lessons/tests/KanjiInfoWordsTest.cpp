// Kanji Info with words and parts: what it shows under the texts, which characters it dims,
// parts that open their own Kanji Info, and nothing at all where there is nothing to show.

#include "DatabaseKey.h"
#include "KanjiInfoDialog.h"
#include "LexiconAccess.h"
#include "LexiconWriter.h"
#include "ModalAnswerer.h"
#include "Named.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <fstream>

using namespace testsupport;
using Word = LexiconWriter::Word;

namespace {

/// The interface in another language, as far as the headings go.
class HeadingsInFrench : public QTranslator {
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        if (qstrcmp(source, "Words") == 0)
            return QStringLiteral("Mots");
        if (qstrcmp(source, "Words (meanings in English)") == 0)
            return QStringLiteral("Mots (sens en anglais)");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class KanjiInfoWordsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // 日 (4 strokes), 月 (4), 明 (日 then 月: 8), 十 (2).
        auto box = [](Form& form, float left) {
            const Form lines = SmallDatabase::Lines({{left, 20, left, 90}, {left, 20, left + 30, 20},
                {left + 30, 20, left + 30, 90}, {left, 55, left + 30, 55}});
            for (const Stroke& s : lines.Strokes())
                form.AppendStroke(s);
        };
        Form sun(109, 109), moon(109, 109), bright(109, 109);
        box(sun, 40);
        box(moon, 40);
        box(bright, 10);
        box(bright, 60);
        auto& w = m_small.writer;
        w.AddCharacter(w.AddStrokeElement(sun), "ニチ", "ひ", "day");
        w.AddCharacter(w.AddStrokeElement(moon), "ゲツ", "つき", "moon");
        w.AddCharacter(w.AddStrokeElement(bright), "メイ", "あか.るい", "bright");
        w.AddCharacter(
            w.AddStrokeElement(SmallDatabase::Lines({{10, 50, 99, 50}, {54, 10, 54, 99}})), "ジュウ", "とお", "ten");
        w.AddCategory("Test", {0, 1, 2, 3});
        m_db = m_small.Open();

        LexiconWriter lexicon(DatabaseKey::Of(*m_db));
        lexicon.AddCharacter(U'日', {{"日", "ひ", "day; sun", true}, {"明日", "あす", "tomorrow", true}}, {},
            std::nullopt, std::nullopt);
        lexicon.AddCharacter(U'月', {{"月", "つき", "moon", true}}, {}, std::nullopt, std::nullopt);
        lexicon.AddCharacter(U'明',
            {{"明日", "あす", "tomorrow", true}, {"明るい", "あかるい", "light", true},
                {"明月", "めいげつ", "bright moon", true}, {"説明", "せつめい", "explanation", true},
                {"明白", "めいはく", "obvious", false}, {"明暗", "めいあん", "light and shade", false},
                {"文明", "ぶんめい", "civilization", false}},
            {{U'日', 0, 0x0F}, {U'月', 1, 0xF0}, {U'⺍', 0xFFFF, 0x01}, {U'丶', 0xFFFF, 0}}, std::nullopt,
            std::nullopt);
        lexicon.AddCharacter(U'十', {}, {}, std::nullopt, std::nullopt);
        m_lexiconBytes = lexicon.Serialize();
    }

    void upToFiveWordsWithWhatIsNotLearnedDimmed()
    {
        LexiconAccess words(std::make_unique<Lexicon>(m_lexiconBytes));
        KanjiInfoDialog dialog(*m_db, m_prompt);
        // The learner has learned 日 only.
        dialog.SetWords(WordContext{&words, [](std::uint16_t id) { return id == 0; }});
        QVERIFY(dialog.SetCode(2));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(Named<QLabel>(&dialog, "wordsHeading")->text(), QStringLiteral("Words"));
        for (int i = 0; i < 5; ++i)
            QVERIFY(Named<QLabel>(&dialog, QStringLiteral("word%1").arg(i).toLatin1()));
        QVERIFY(!dialog.findChild<QLabel*>(QStringLiteral("word5")));
        QLabel* tomorrow = Named<QLabel>(&dialog, "word0");
        QCOMPARE(tomorrow->accessibleName(), QStringLiteral("明日, あす, tomorrow"));
        QCOMPARE(tomorrow->property("dimmed").toString(), QStringLiteral("明"));
        QCOMPARE(tomorrow->accessibleDescription(), QStringLiteral("Not learned yet: 明"));
        // Only 日 is in the normal colour; 明 and 月 wear the dimmed one.
        const QString dim = dialog.palette().color(QPalette::Disabled, QPalette::WindowText).name();
        QVERIFY(tomorrow->text().contains(QStringLiteral("<span style=\"color:%1\">明</span>日").arg(dim)));
        QCOMPARE(Named<QLabel>(&dialog, "word2")->property("dimmed").toString(), QStringLiteral("明月"));
        // Kana are always readable.
        QCOMPARE(Named<QLabel>(&dialog, "word1")->property("dimmed").toString(), QStringLiteral("明"));
        QVERIFY(Named<QLabel>(&dialog, "word1")->text().contains(QStringLiteral("るい")));
    }

    void aLearnerWhoKnowsEveryCharacterSeesNothingDimmed()
    {
        LexiconAccess words(std::make_unique<Lexicon>(m_lexiconBytes));
        KanjiInfoDialog dialog(*m_db, m_prompt);
        dialog.SetWords(WordContext{&words, [](std::uint16_t) { return true; }});
        QVERIFY(dialog.SetCode(2));
        for (int i = 0; i < 5; ++i) {
            QLabel* row = Named<QLabel>(&dialog, QStringLiteral("word%1").arg(i).toLatin1());
            // 説 and 白 are no characters of this database: never learned.
            const QString dimmed = i == 3 ? QStringLiteral("説") : i == 4 ? QStringLiteral("白") : QString();
            QCOMPARE(row->property("dimmed").toString(), dimmed);
        }
    }

    void partsAreDrawnAndOpenTheirOwnKanjiInfo()
    {
        LexiconAccess words(std::make_unique<Lexicon>(m_lexiconBytes));
        KanjiInfoDialog dialog(*m_db, m_prompt);
        dialog.SetWords(WordContext{&words, {}});
        QVERIFY(dialog.SetCode(2));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(Named<QLabel>(&dialog, "partsHeading")->text(), QStringLiteral("Parts"));
        // 日 and 月 are characters of the database: buttons showing their strokes of 明.
        auto* sun = Named<QToolButton>(&dialog, "part0");
        QCOMPARE(sun->accessibleName(), QStringLiteral("Part 日, opens its Kanji Info"));
        QVERIFY(!sun->icon().isNull());
        QVERIFY(qobject_cast<QToolButton*>(Named<QWidget>(&dialog, "part1")));
        // ⺍ is not: shown, drawn, not clickable; 丶 has no strokes told: shown as text.
        auto* dots = qobject_cast<QLabel*>(Named<QWidget>(&dialog, "part2"));
        QVERIFY(dots);
        QVERIFY(!dots->pixmap().isNull());
        QCOMPARE(dots->accessibleName(), QStringLiteral("Part ⺍"));
        auto* dot = qobject_cast<QLabel*>(Named<QWidget>(&dialog, "part3"));
        QVERIFY(dot);
        QCOMPARE(dot->text(), QStringLiteral("丶"));

        // The part drawn is 明's left half, fitted: ink in the middle of the picture.
        const QImage picture = sun->icon().pixmap(sun->iconSize()).toImage();
        QVERIFY(CountNot(picture, picture.pixel(0, 0)) > 20);

        // A click opens 日's Kanji Info over this one; closing it comes back.
        QString opened;
        ModalAnswerer<KanjiInfoDialog> answer([&opened](KanjiInfoDialog& part) {
            opened = Named<QLabel>(&part, "meaning")->text();
            QVERIFY(part.findChild<QLabel*>(QStringLiteral("wordsHeading")));
            part.reject();
        });
        QTest::mouseClick(sun, Qt::LeftButton);
        QCOMPARE(answer.Shown(), 1);
        QCOMPARE(opened, QStringLiteral("day"));
        QVERIFY(dialog.isVisible());
    }

    void nothingToShowMeansNoHeadings()
    {
        LexiconAccess words(std::make_unique<Lexicon>(m_lexiconBytes));
        KanjiInfoDialog plain(*m_db, m_prompt);
        QVERIFY(plain.SetCode(3));
        plain.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plain));
        KanjiInfoDialog ten(*m_db, m_prompt);
        ten.SetWords(WordContext{&words, {}});
        QVERIFY(ten.SetCode(3));
        ten.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ten));
        QVERIFY(!ten.findChild<QWidget*>(QStringLiteral("wordsAndParts")));
        QCOMPARE(ten.size(), plain.size());
        // Words but no parts: a Words heading only.
        KanjiInfoDialog moon(*m_db, m_prompt);
        moon.SetWords(WordContext{&words, {}});
        QVERIFY(moon.SetCode(1));
        QVERIFY(moon.findChild<QLabel*>(QStringLiteral("wordsHeading")));
        QVERIFY(!moon.findChild<QLabel*>(QStringLiteral("partsHeading")));
        // No lexicon at all (the aid off): the dialog as it always was.
        KanjiInfoDialog off(*m_db, m_prompt);
        off.SetWords(WordContext{});
        QVERIFY(off.SetCode(2));
        QVERIFY(!off.findChild<QWidget*>(QStringLiteral("wordsAndParts")));
    }

    void inAnotherLanguageTheHeadingSaysTheMeaningsAreEnglish()
    {
        HeadingsInFrench french;
        QCoreApplication::installTranslator(&french);
        LexiconAccess words(std::make_unique<Lexicon>(m_lexiconBytes));
        KanjiInfoDialog dialog(*m_db, m_prompt);
        dialog.SetWords(WordContext{&words, {}});
        QVERIFY(dialog.SetCode(2));
        QCOMPARE(Named<QLabel>(&dialog, "wordsHeading")->text(), QStringLiteral("Mots (sens en anglais)"));
        QVERIFY(Named<QLabel>(&dialog, "word0")->text().contains(QStringLiteral("tomorrow")));
        QCoreApplication::removeTranslator(&french);
    }

    void aDamagedLexiconIsToldOnceAndAMissingOneNotAtAll()
    {
        QTemporaryDir dir;
        const std::string damaged = dir.filePath(QStringLiteral("lexicon")).toStdString();
        std::vector<std::uint8_t> bytes = m_lexiconBytes;
        bytes[bytes.size() / 2] ^= 0xFF;
        std::ofstream(damaged, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        LexiconAccess words(damaged, *m_db);
        RecordingPrompt prompt;
        for (int i = 0; i < 2; ++i) {
            KanjiInfoDialog dialog(*m_db, prompt);
            dialog.SetWords(WordContext{&words, {}});
            QVERIFY(dialog.SetCode(2));
            QVERIFY(!dialog.findChild<QWidget*>(QStringLiteral("wordsAndParts")));
        }
        QCOMPARE(prompt.messages,
            QStringList{
                QStringLiteral("Words and parts: Words and parts cannot be shown: The lexicon file is damaged")});
        QCOMPARE(prompt.icons.value(0), QMessageBox::Warning);

        LexiconAccess none(dir.filePath(QStringLiteral("none")).toStdString(), *m_db);
        KanjiInfoDialog dialog(*m_db, prompt);
        dialog.SetWords(WordContext{&none, {}});
        QVERIFY(dialog.SetCode(2));
        QCOMPARE(prompt.messages.size(), 1);
    }

    void aLexiconOfAnotherDatabaseShowsNothing()
    {
        QTemporaryDir dir;
        const std::string path = dir.filePath(QStringLiteral("lexicon")).toStdString();
        LexiconWriter other(12345);
        other.AddCharacter(U'日', {{"日", "ひ", "day", true}}, {}, std::nullopt, std::nullopt);
        const auto bytes = other.Serialize();
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        LexiconAccess words(path, *m_db);
        RecordingPrompt prompt;
        KanjiInfoDialog dialog(*m_db, prompt);
        dialog.SetWords(WordContext{&words, {}});
        QVERIFY(dialog.SetCode(0));
        QVERIFY(!dialog.findChild<QWidget*>(QStringLiteral("wordsAndParts")));
        QVERIFY(prompt.messages.isEmpty());
    }

private:
    SmallDatabase m_small;
    std::unique_ptr<FileCharacterDatabase> m_db;
    std::vector<std::uint8_t> m_lexiconBytes;
    RecordingPrompt m_prompt;
};

QTEST_MAIN(KanjiInfoWordsTest)
#include "KanjiInfoWordsTest.moc"
