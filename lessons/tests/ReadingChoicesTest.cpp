#include "ReadingChoices.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "Random15.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <unistd.h>

using Codes = std::vector<std::uint16_t>;

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
