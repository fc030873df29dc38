#include "CategoryRules.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "Random15.h"
#include "ReadingChoices.h"
#include "TestSchedule.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

using Codes = std::vector<std::uint16_t>;
using State = TestSchedule::State;

namespace {
constexpr std::uint16_t Reading = 0;
constexpr std::uint16_t Drawing = 1;
} // namespace

TEST(Random15, MatchesTheClassicGeneratorAndItsUniformFormula)
{
    Random15 r(1);
    // The first values of the classic rand() after srand(1).
    EXPECT_EQ(r.Next(), 41);
    EXPECT_EQ(r.Next(), 18467);
    EXPECT_EQ(r.Next(), 6334);
    Random15 a(12345), b(12345);
    for (int i = 0; i < 1000; ++i) {
        const int v = a.Next();
        EXPECT_GE(v, 0);
        EXPECT_LE(v, Random15::Max);
        const int u = b.Uniform(3, 7);
        EXPECT_EQ(u, 3 + v * 5 / 32768);
    }
}

TEST(TestSchedule, OneCharacterAnsweredCleanlyAlternatesFourQuestions)
{
    TestSchedule s;
    s.Start({42});
    std::vector<std::uint16_t> asked;
    int questions = 0;
    do {
        ASSERT_TRUE(s.HasQuestion());
        EXPECT_EQ(s.CurrentCode(), 42);
        asked.push_back(s.CurrentPage());
        s.Answer(s.CurrentPage(), true);
        ++questions;
    } while (s.Next());
    EXPECT_EQ(questions, 4);
    EXPECT_EQ(asked, (Codes{Reading, Drawing, Reading, Drawing}));
    EXPECT_EQ(s.PassedCodes(), Codes{42});
    EXPECT_TRUE(s.FailedCodes().empty());
    EXPECT_FALSE(s.HasQuestion());
}

TEST(TestSchedule, TwoMissesOnTheReadingFailEvenWithTheDrawingOpen)
{
    TestSchedule s;
    s.Start({7});
    ASSERT_EQ(s.CurrentPage(), Reading);
    s.Answer(Reading, false);
    ASSERT_TRUE(s.Next());
    ASSERT_EQ(s.CurrentPage(), Drawing);
    s.Answer(Drawing, true);
    ASSERT_TRUE(s.Next());
    ASSERT_EQ(s.CurrentPage(), Reading);
    s.Answer(Reading, false);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Failed);
    EXPECT_EQ(s.EntryOf(0, Drawing).state, State::Open);
    EXPECT_EQ(s.Status(0), State::Open); // the first open entry decides while one is open
    // The drawing stays open, so it is still asked until decided; then the character fails.
    ASSERT_TRUE(s.Next());
    EXPECT_EQ(s.CurrentPage(), Drawing);
    s.Answer(Drawing, true);
    EXPECT_FALSE(s.Next());
    EXPECT_EQ(s.FailedCodes(), Codes{7});
}

TEST(TestSchedule, MissedOnceNeedsThreeCleanAnswers)
{
    TestSchedule s;
    s.Start({1});
    s.Answer(Reading, false);
    s.Answer(Reading, true);
    s.Answer(Reading, true);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Open);
    s.Answer(Reading, true);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Passed);
}

TEST(TestSchedule, AnswersToDecidedOrHiddenQuestionsChangeNothing)
{
    TestSchedule s;
    s.Start({1});
    s.Answer(Drawing, false); // not the page asked
    EXPECT_EQ(s.EntryOf(0, Drawing).mistakes, 0);
    s.Answer(Reading, true);
    s.Answer(Reading, true);
    ASSERT_EQ(s.EntryOf(0, Reading).state, State::Passed);
    s.Answer(Reading, false);
    EXPECT_EQ(s.EntryOf(0, Reading).mistakes, 0);
    EXPECT_EQ(s.EntryOf(0, Reading).state, State::Passed);
}

TEST(TestSchedule, TheCharacterJustAskedWaitsForOthersWithFewerAttempts)
{
    TestSchedule s;
    s.Start({10, 20, 30});
    EXPECT_EQ(s.CurrentCode(), 10);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 20);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 30);
    s.Answer(s.CurrentPage(), true);
    s.Next();
    EXPECT_EQ(s.CurrentCode(), 10); // all equal again: the earliest
}

TEST(TestSchedule, EmptyListAsksNothing)
{
    TestSchedule s;
    s.Start({});
    EXPECT_FALSE(s.HasQuestion());
    EXPECT_FALSE(s.Next());
    EXPECT_TRUE(s.PassedCodes().empty());
    EXPECT_THROW(s.EntryOf(0, 0), std::out_of_range);
}

namespace {

/// A database whose characters have the given ON and KUN readings ("" for none).
std::unique_ptr<FileCharacterDatabase> Readings(const std::vector<std::pair<std::string, std::string>>& texts)
{
    DatabaseWriter writer;
    Form form(109, 109);
    form.AppendStroke(Stroke(Point{1, 1}));
    const auto element = writer.AddStrokeElement(form);
    for (const auto& [on, kun] : texts)
        writer.AddCharacter(element, on, kun, "m");
    writer.AddCategory("All", {});
    const auto path = std::filesystem::temp_directory_path() / ("zavoren-readings-" + std::to_string(getpid()));
    const auto bytes = writer.Serialize();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    auto db = std::make_unique<FileCharacterDatabase>(path.string());
    std::filesystem::remove(path);
    return db;
}

} // namespace

TEST(ReadingChoices, FiveDifferentTextsWithTheRightOneAtARandomPlace)
{
    std::vector<std::pair<std::string, std::string>> texts;
    for (int i = 0; i < 30; ++i)
        texts.emplace_back("ON" + std::to_string(i % 12), "kun" + std::to_string(i % 9));
    auto db = Readings(texts);
    std::set<std::size_t> places;
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        Random15 random(seed);
        const auto character = db->LoadCharacter(5);
        const ReadingChoices c = ReadingChoices::Build(*db, *character, random);
        ASSERT_EQ(c.on.size(), 5u);
        ASSERT_EQ(c.kun.size(), 5u);
        EXPECT_EQ(std::set<std::string>(c.on.begin(), c.on.end()).size(), 5u);
        EXPECT_EQ(std::set<std::string>(c.kun.begin(), c.kun.end()).size(), 5u);
        const auto right = std::find(c.on.begin(), c.on.end(), "ON5");
        ASSERT_NE(right, c.on.end());
        places.insert(static_cast<std::size_t>(right - c.on.begin()));
        EXPECT_NE(std::find(c.kun.begin(), c.kun.end(), "kun5"), c.kun.end());
    }
    EXPECT_EQ(places.size(), 5u); // the right answer lands on every button over the seeds
    // The same seed gives the same choices.
    Random15 a(99), b(99);
    const auto ch = db->LoadCharacter(3);
    EXPECT_EQ(ReadingChoices::Build(*db, *ch, a).on, ReadingChoices::Build(*db, *ch, b).on);
}

TEST(ReadingChoices, MissingReadingIsTheEmptyTextAndNeverRepeated)
{
    std::vector<std::pair<std::string, std::string>> texts{
        {"", "a"}, {"", "b"}, {"X", "c"}, {"Y", "d"}, {"Z", "e"}, {"W", "f"}, {"", "g"}};
    auto db = Readings(texts);
    Random15 random(7);
    const ReadingChoices c = ReadingChoices::Build(*db, *db->LoadCharacter(0), random);
    EXPECT_EQ(std::count(c.on.begin(), c.on.end(), ""), 1);
    EXPECT_EQ(c.on.size(), 5u);
}

TEST(ReadingChoices, TooFewDifferentReadingsEndsTheDrawing)
{
    auto db = Readings({{"A", "a"}, {"A", "a"}, {"B", "b"}});
    Random15 random(3);
    const ReadingChoices c = ReadingChoices::Build(*db, *db->LoadCharacter(0), random, 5, 2000);
    EXPECT_EQ(c.on.size(), 2u);
    EXPECT_EQ(c.kun.size(), 2u);
}

TEST(CategoryRules, ButtonsWithUntestedCountsAround5And10)
{
    for (std::size_t untested : {0u, 4u, 5u, 9u, 10u}) {
        CategoryProgress p;
        for (std::uint16_t i = 0; i < untested; ++i)
            p.AddUntested(i);
        for (std::uint16_t i = 100; i < 106; ++i)
            p.AddLearned(i);
        const CategoryControlState s = DecideCategoryControls(80, p, false);
        EXPECT_EQ(s.testEnabled, untested > 0) << untested;
        EXPECT_EQ(s.testIsDefault, untested > 0) << untested;
        EXPECT_EQ(s.retestEnabled, untested < 5) << untested;
        EXPECT_EQ(s.lessonEnabled, untested < 10) << untested;
        EXPECT_FALSE(s.forgetEnabled);
    }
    CategoryProgress few;
    few.AddLearned(1);
    EXPECT_FALSE(DecideCategoryControls(80, few, true).retestEnabled);
    EXPECT_TRUE(DecideCategoryControls(80, few, true).forgetEnabled);
}

TEST(CategoryRules, CompleteCategoryAllowsNoLesson)
{
    CategoryProgress p;
    for (std::uint16_t i = 0; i < 6; ++i)
        p.AddLearned(i);
    p.AddUntested(6);
    p.AddUntested(7);
    EXPECT_FALSE(DecideCategoryControls(8, p, false).lessonEnabled);
    EXPECT_TRUE(DecideCategoryControls(9, p, false).lessonEnabled);
}

TEST(CategoryRules, LessonTakesFiveOrFewerAndNeverPassesTenUntested)
{
    const Codes category{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    CategoryProgress p;
    p.AddLearned(0);
    p.AddUntested(2);
    EXPECT_EQ(PickLessonCharacters(category, p, 1, 5), (Codes{1, 3, 4, 5, 6}));
    CategoryProgress nine;
    for (std::uint16_t i = 0; i < 9; ++i)
        nine.AddUntested(i);
    EXPECT_EQ(PickLessonCharacters(category, nine, 9, 5), Codes{9});
    EXPECT_TRUE(PickLessonCharacters(category, nine, 10, 5).empty());
    EXPECT_EQ(PickLessonCharacters({3, 4}, CategoryProgress(), 0, 5), (Codes{3, 4}));
}

TEST(CategoryRules, RetestMovesFiveDifferentLearnedCharactersToTheFront)
{
    for (std::uint32_t seed = 1; seed < 50; ++seed) {
        CategoryProgress p;
        for (std::uint16_t i = 10; i < 15; ++i)
            p.AddLearned(i);
        for (std::uint16_t i = 0; i < 4; ++i)
            p.AddUntested(i);
        Random15 random(seed);
        Retest(p, random);
        EXPECT_EQ(p.LearnedCount(), 0u);
        EXPECT_EQ(p.UntestedCount(), 9u);
        EXPECT_EQ(std::set<std::uint16_t>(p.Untested().begin(), p.Untested().begin() + 5),
            (std::set<std::uint16_t>{10, 11, 12, 13, 14}));
        EXPECT_EQ(p.UntestedAt(5), 0);
    }
}

