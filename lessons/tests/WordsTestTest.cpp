// The words test's choice of words (learned characters and kana only, the category's share,
// common words more often, no repeats, the one-character rule) and what writing a word records.

#include "LexiconWriter.h"
#include "ReviewSchedule.h"
#include "WordsTest.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using Word = LexiconWriter::Word;
using Codes = std::vector<std::uint16_t>;

/// Characters 0 学 1 校 2 生 3 先 4 大 5 小 6 山 7 川; words of each as given.
Lexicon MakeLexicon(const std::map<int, std::vector<Word>>& words)
{
    const char32_t points[] = {U'学', U'校', U'生', U'先', U'大', U'小', U'山', U'川'};
    LexiconWriter writer(42);
    for (int id = 0; id < 8; ++id) {
        const auto found = words.find(id);
        writer.AddCharacter(points[id], found != words.end() ? found->second : std::vector<Word>{}, {}, {}, {});
    }
    return Lexicon(writer.Serialize());
}

WordsTest::Learned LearnedOf(std::initializer_list<std::uint16_t> ids)
{
    const Codes learned(ids);
    return [learned](std::uint16_t id) { return std::find(learned.begin(), learned.end(), id) != learned.end(); };
}

std::vector<std::string> Writings(const std::vector<WordQuestion>& words)
{
    std::vector<std::string> out;
    for (const WordQuestion& w : words)
        out.push_back(w.writing);
    return out;
}

} // namespace

TEST(WordsTest, OnlyWordsOfLearnedCharactersAndKanaFromTheCategory)
{
    const Lexicon lexicon = MakeLexicon({
        {0, {{"学校", "がっこう", "school", true}, {"学生", "がくせい", "student", true}, {"大学", "だいがく", "university", true},
                {"学ぶ", "まなぶ", "to learn", true}, {"見学", "けんがく", "tour", false}}},
        {1, {{"学校", "がっこう", "school", true}, {"校長", "こうちょう", "principal", false}}},
        {5, {{"小学生", "しょうがくせい", "schoolchild", true}}},
    });
    // Learned: 学 and 校 in this category, 生 elsewhere; 大 and 小 not learned.
    const std::vector<WordQuestion> eligible = WordsTest::Eligible(lexicon, {0, 1}, LearnedOf({0, 1, 2}));
    // 大学 (大 unlearned), 見学 and 校長 (not in the database) are out; 学校 once.
    EXPECT_EQ(Writings(eligible), (std::vector<std::string>{"学校", "学生", "学ぶ"}));
    const WordQuestion& manabu = eligible[2];
    EXPECT_EQ(manabu.characters, (Codes{0, Lexicon::NoCharacter}));
    EXPECT_EQ(manabu.KanjiCount(), 1u);
    EXPECT_EQ(manabu.reading, "まなぶ");
    EXPECT_EQ(manabu.meaning, "to learn");
    EXPECT_TRUE(manabu.common);
    // A word of another category's character is not this category's (小学生 is 小's).
    EXPECT_TRUE(WordsTest::Eligible(lexicon, {5}, LearnedOf({0, 1, 2, 5})).size() == 1);
    EXPECT_TRUE(WordsTest::Eligible(lexicon, {2}, LearnedOf({0, 1, 2, 5})).empty());
    EXPECT_TRUE(WordsTest::IsKana(U'ぶ') && WordsTest::IsKana(U'カ') && WordsTest::IsKana(U'ー'));
    EXPECT_FALSE(WordsTest::IsKana(U'学') || WordsTest::IsKana(U'々') || WordsTest::IsKana(U'a'));
}

TEST(WordsTest, WordsOfOneCharacterOnlyWhenTooFewLongerOnes)
{
    std::vector<Word> few{{"学", "がく", "learning", true}, {"学校", "がっこう", "school", true},
        {"学生", "がくせい", "student", true}};
    EXPECT_EQ(Writings(WordsTest::Eligible(MakeLexicon({{0, few}}), {0}, LearnedOf({0, 1, 2}))),
        (std::vector<std::string>{"学校", "学生", "学"}));
    std::vector<Word> many{{"学", "がく", "learning", true}, {"学校", "がっこう", "school", true},
        {"学生", "がくせい", "student", true}, {"学ぶ", "まなぶ", "to learn", true},
        {"先生", "せんせい", "teacher", true}, {"小学校", "しょうがっこう", "primary school", true}};
    std::map<int, std::vector<Word>> words{{0, many}, {3, {{"先生", "せんせい", "teacher", true}}}};
    const auto eligible = WordsTest::Eligible(MakeLexicon(words), {0, 3}, LearnedOf({0, 1, 2, 3, 5}));
    EXPECT_EQ(Writings(eligible), (std::vector<std::string>{"学校", "学生", "学ぶ", "先生", "小学校"}));
}

TEST(WordsTest, FiveDifferentWordsCommonOnesMoreOftenAndNotTheLastTestsAgain)
{
    // Sixty eligible words, twenty of them common.
    std::vector<WordQuestion> eligible;
    for (int i = 0; i < 60; ++i)
        eligible.push_back({"w" + std::to_string(i), "", "", i < 20, {U'学'}, {0}});
    Random15 random(7);
    std::map<std::string, int> drawn;
    std::set<std::string> previous;
    int repeats = 0;
    for (int test = 0; test < 3000; ++test) {
        const std::vector<WordQuestion> chosen = WordsTest::Choose(eligible, random, previous);
        ASSERT_EQ(chosen.size(), WordsTest::TestSize);
        std::set<std::string> now;
        for (const WordQuestion& w : chosen) {
            EXPECT_TRUE(now.insert(w.writing).second) << "twice in one test";
            repeats += previous.count(w.writing) > 0;
            ++drawn[w.writing];
        }
        previous = now;
    }
    // Enough words are left outside the last test's five: none of those is drawn again at once.
    EXPECT_EQ(repeats, 0);
    // Every word comes up; a common word about three times as often as another (a little less:
    // a word just drawn stands aside for one test).
    ASSERT_EQ(drawn.size(), 60u);
    int common = 0, other = 0;
    for (const auto& [writing, count] : drawn)
        (std::stoi(writing.substr(1)) < 20 ? common : other) += count;
    const double ratio = (common / 20.0) / (other / 40.0);
    EXPECT_GT(ratio, 2.3);
    EXPECT_LT(ratio, 3.2);
}

TEST(WordsTest, TheLastTestsWordsComeBackOnlyWhenTooFewAreLeft)
{
    std::vector<WordQuestion> eligible;
    for (int i = 0; i < 7; ++i)
        eligible.push_back({"w" + std::to_string(i), "", "", false, {U'学'}, {0}});
    Random15 random(3);
    const std::vector<WordQuestion> first = WordsTest::Choose(eligible, random, {});
    std::set<std::string> previous;
    for (const WordQuestion& w : first)
        previous.insert(w.writing);
    const std::vector<WordQuestion> second = WordsTest::Choose(eligible, random, previous);
    ASSERT_EQ(second.size(), 5u);
    // The two not asked first come first; three of the others fill the test.
    EXPECT_FALSE(previous.count(second[0].writing));
    EXPECT_FALSE(previous.count(second[1].writing));
    for (std::size_t i = 2; i < 5; ++i)
        EXPECT_TRUE(previous.count(second[i].writing));
    // Fewer eligible than five: all of them.
    EXPECT_EQ(WordsTest::Choose({eligible[0], eligible[1]}, random, {}).size(), 2u);
    EXPECT_TRUE(WordsTest::Choose({}, random, {}).empty());
}

TEST(WordsTest, WritingAWordRecordsAGradedEventPerKanjiWhereItWasLearned)
{
    User learner;
    learner.GetProgress(1).AddLearned(0); // 学 learned in category 1
    learner.GetProgress(1).AddLearned(1);
    learner.GetProgress(0).AddLearned(1); // 校 in both: this category's record
    const WordQuestion word{"学校だ", "", "", true, {U'学', U'校', U'だ'}, {0, 1, Lexicon::NoCharacter}};
    const std::string at = "2026-11-24T10:00:00+01:00";
    const std::vector<LearnerEvent> events = WordsTest::Events(learner, 0, word, {0, 2, 0}, at);
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0], (LearnerEvent{at, LearnerEvent::Word, 1, 0, 0}));
    EXPECT_EQ(events[1], (LearnerEvent{at, LearnerEvent::Word, 0, 1, 2}));
    // Given up on the second: not written, Again; the first keeps its grade.
    const std::vector<LearnerEvent> gaveUp = WordsTest::Events(learner, 0, word, {0, -1, -1}, at);
    EXPECT_EQ(gaveUp[1].mistakes, -1);
    using G = MemoryModel::Grade;
    EXPECT_EQ(MemoryLedger::GradeOf(gaveUp[0]), G::Good);
    EXPECT_EQ(MemoryLedger::GradeOf(events[1]), G::Hard);
    EXPECT_EQ(MemoryLedger::GradeOf(gaveUp[1]), G::Again);
    // Nothing moved between the lists.
    EXPECT_EQ(learner.GetProgress(1).Learned(), (Codes{0, 1}));
    EXPECT_TRUE(learner.GetProgress(0).Untested().empty());
}
