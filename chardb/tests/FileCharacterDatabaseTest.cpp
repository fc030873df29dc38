#include "FileCharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "RawDatabaseFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>

using namespace testdb;
using ZavorenCommon::DatabaseLoadException;

namespace {

#define EXPECT_LOAD_ERROR(statement, message)                                                                          \
    do {                                                                                                               \
        try {                                                                                                          \
            statement;                                                                                                 \
            ADD_FAILURE() << "expected DatabaseLoadException \"" << message << "\"";                                   \
        } catch (const DatabaseLoadException& e) {                                                                     \
            EXPECT_STREQ(e.what(), message);                                                                           \
        }                                                                                                              \
    } while (0)

Bytes OneLineElement()
{
    return ElementRecord({StrokeFormBytes(100, 100).Stroke(10, 10).Line(90, 10).Build()});
}

/// A small sound file: two elements, three characters (the middle one a hole), one category.
RawDatabaseFile SmallFile()
{
    RawDatabaseFile f;
    f.elements.push_back({OneLineElement()});
    f.elements.push_back({ElementRecord({StrokeFormBytes(100, 100).Stroke(50, 0).Line(50, 100).Build()})});
    f.characters.push_back({CharacterRecord(0, "イチ", "ひと", "one")});
    f.characters.push_back({{}, true});
    f.characters.push_back({CharacterRecord(1, "", "", "")});
    f.categories.push_back({CategoryRecord("Grade 1", {0, 2})});
    return f;
}

class DatabaseFileTest : public ::testing::Test {
protected:
    std::string Write(const RawDatabaseFile& file) { return Write(file.Build()); }
    std::string Write(const Bytes& bytes)
    {
        const auto path = m_dir / ("db" + std::to_string(m_count++));
        WriteFile(path, bytes);
        return path.string();
    }
    TempDir m_dir;
    int m_count = 0;
};

class RecordingProgress : public DatabaseProgress {
public:
    void SetPosition(std::uint32_t position) override { positions.push_back(position); }
    void SetRange(std::uint32_t lowest, std::uint32_t highest) override { ranges.emplace_back(lowest, highest); }
    std::vector<std::uint32_t> positions;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> ranges;
};

} // namespace

TEST_F(DatabaseFileTest, OpensAndReadsCounts)
{
    FileCharacterDatabase db(Write(SmallFile()));
    EXPECT_EQ(db.ElementCount(), 2);
    EXPECT_EQ(db.CharacterCount(), 3);
    EXPECT_EQ(db.CategoryCount(), 1);
}

TEST_F(DatabaseFileTest, MissingFileCannotBeOpened)
{
    EXPECT_LOAD_ERROR(FileCharacterDatabase((m_dir / "nothing").string()), "Unable to open database");
}

TEST_F(DatabaseFileTest, HeaderShorterThanTwelveBytes)
{
    EXPECT_LOAD_ERROR(
        FileCharacterDatabase(Write(Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11})), "Unable to read database header");
    EXPECT_LOAD_ERROR(FileCharacterDatabase(Write(Bytes{})), "Unable to read database header");
}

TEST_F(DatabaseFileTest, DictionaryWithFewerEntriesThanItsCount)
{
    Bytes bytes = SmallFile().Build();
    // Cut the file inside the character dictionary (which starts after 12 + 2 + 2 * 6 bytes).
    bytes.resize(12 + 2 + 12 + 2 + 6);
    EXPECT_LOAD_ERROR(FileCharacterDatabase(Write(bytes)), "Unable to read dictionary");
}

TEST_F(DatabaseFileTest, DictionaryOffsetPastTheEnd)
{
    Bytes bytes = SmallFile().Build();
    bytes[8] = 0xF0; // category dictionary offset far beyond the file
    bytes[9] = 0xFF;
    EXPECT_LOAD_ERROR(FileCharacterDatabase(Write(bytes)), "Unable to read dictionary");
}

TEST_F(DatabaseFileTest, CharacterWithTextsAndHole)
{
    FileCharacterDatabase db(Write(SmallFile()));
    EXPECT_TRUE(db.CharacterExists(0));
    auto c = db.LoadCharacter(0);
    EXPECT_EQ(c->Id(), 0);
    EXPECT_EQ(c->ElementId(), 0);
    EXPECT_STREQ(c->OnReading(), "イチ");
    EXPECT_STREQ(c->KunReading(), "ひと");
    EXPECT_STREQ(c->Meaning(), "one");

    EXPECT_FALSE(db.CharacterExists(1));
    EXPECT_LOAD_ERROR(db.LoadCharacter(1), "Character does not exist");
}

TEST_F(DatabaseFileTest, EmptyStringsBecomeNullTexts)
{
    FileCharacterDatabase db(Write(SmallFile()));
    auto c = db.LoadCharacter(2);
    EXPECT_EQ(c->OnReading(), nullptr);
    EXPECT_EQ(c->KunReading(), nullptr);
    EXPECT_EQ(c->Meaning(), nullptr);
    EXPECT_EQ(Character().Id(), 0xFFFF);
}

TEST_F(DatabaseFileTest, IdsOutOfRange)
{
    FileCharacterDatabase db(Write(SmallFile()));
    EXPECT_FALSE(db.CharacterExists(3));
    EXPECT_FALSE(db.ElementExists(2));
    EXPECT_LOAD_ERROR(db.LoadCharacter(3), "Character id out of range");
    EXPECT_LOAD_ERROR(db.LoadElement(2), "Element id out of range");
    EXPECT_LOAD_ERROR(db.LoadCategory(2), "No such category");
}

TEST_F(DatabaseFileTest, EmptyDictionariesGiveZeroCountsAndCategoryZeroReadsFollowingBytes)
{
    RawDatabaseFile f;
    // With no categories, the six bytes after the category dictionary's count are read as the
    // entry of category 0: make them point at a category record placed right after them.
    const std::uint32_t categoryRecordOffset = 12 + 2 + 2 + 2 + 6;
    Put32(f.trailingAfterCategoryDictionary, categoryRecordOffset);
    const Bytes record = CategoryRecord("Ghost", {7});
    Put16(f.trailingAfterCategoryDictionary, static_cast<std::uint16_t>(record.size()));
    f.trailingAfterCategoryDictionary.insert(f.trailingAfterCategoryDictionary.end(), record.begin(), record.end());
    FileCharacterDatabase db(Write(f));
    EXPECT_EQ(db.CharacterCount(), 0);
    EXPECT_EQ(db.ElementCount(), 0);
    EXPECT_EQ(db.CategoryCount(), 0);
    EXPECT_LOAD_ERROR(db.LoadCharacter(0), "Character id out of range");
    EXPECT_LOAD_ERROR(db.LoadElement(0), "Element id out of range");
    auto category = db.LoadCategory(0);
    EXPECT_STREQ(category->Name(), "Ghost");
    ASSERT_EQ(category->CharacterCount(), 1u);
    EXPECT_EQ(category->CharacterAt(0), 7);
    EXPECT_LOAD_ERROR(db.LoadCategory(1), "No such category");
}

TEST_F(DatabaseFileTest, CategoryIdEqualToCountReadsBytesAfterLastEntry)
{
    RawDatabaseFile f = SmallFile();
    // Nothing follows the category dictionary but the records: the element 0 record's first
    // six bytes are then taken as an entry, which points nowhere sensible.
    FileCharacterDatabase db(Write(f));
    EXPECT_LOAD_ERROR(db.LoadCategory(1), "Unable to load category");
    EXPECT_LOAD_ERROR(db.LoadCategory(2), "No such category");
}

TEST_F(DatabaseFileTest, CategoryRecords)
{
    FileCharacterDatabase db(Write(SmallFile()));
    auto category = db.LoadCategory(0);
    EXPECT_EQ(category->Id(), 0);
    EXPECT_STREQ(category->Name(), "Grade 1");
    EXPECT_EQ(category->Characters(), (std::vector<std::uint16_t>{0, 2}));
    EXPECT_THROW(category->CharacterAt(2), std::out_of_range);
}

TEST_F(DatabaseFileTest, CategoryWithEmptyNameHasNullName)
{
    RawDatabaseFile f = SmallFile();
    f.categories[0].bytes = CategoryRecord("", {});
    FileCharacterDatabase db(Write(f));
    EXPECT_EQ(db.LoadCategory(0)->Name(), nullptr);
}

TEST_F(DatabaseFileTest, RecordsThatCannotBeRead)
{
    RawDatabaseFile f = SmallFile();
    f.characters[2].forcedOffset = 0x7FFFFF00; // past the end
    f.elements[1].forcedOffset = 0x7FFFFF00;
    f.categories[0].forcedOffset = 0x7FFFFF00;
    FileCharacterDatabase db(Write(f));
    EXPECT_FALSE(db.CharacterExists(2));
    EXPECT_LOAD_ERROR(db.LoadCharacter(2), "Unable to load character");
    EXPECT_FALSE(db.ElementExists(1));
    EXPECT_LOAD_ERROR(db.LoadElement(1), "Unable to load element");
    EXPECT_LOAD_ERROR(db.LoadCategory(0), "Unable to load category");
}

TEST_F(DatabaseFileTest, ElementHoleOffsetFailsAtTheRead)
{
    RawDatabaseFile f = SmallFile();
    f.elements[1].hole = true;
    FileCharacterDatabase db(Write(f));
    EXPECT_FALSE(db.ElementExists(1));
    EXPECT_LOAD_ERROR(db.LoadElement(1), "Unable to load element");
}

TEST_F(DatabaseFileTest, ContentsClaimingMoreThanTheRecordHoldsAreNeverReadPastItsEnd)
{
    RawDatabaseFile f = SmallFile();
    Bytes character = CharacterRecord(0, "abc", "", "");
    character[2] = 200; // ON reading claims 200 bytes
    f.characters[0].bytes = character;
    Bytes element = OneLineElement();
    element[0] = 3; // three forms claimed, one present
    f.elements[0].bytes = element;
    Bytes category = CategoryRecord("Cat", {0});
    category[4] = 50; // 50 members claimed
    f.categories[0].bytes = category;
    FileCharacterDatabase db(Write(f));
    EXPECT_TRUE(db.CharacterExists(0)); // the record itself reads
    EXPECT_LOAD_ERROR(db.LoadCharacter(0), "Unable to load character");
    EXPECT_LOAD_ERROR(db.LoadElement(0), "Unable to load element");
    EXPECT_LOAD_ERROR(db.LoadCategory(0), "Unable to load category");
}

TEST_F(DatabaseFileTest, RecordSizeSmallerThanContents)
{
    RawDatabaseFile f = SmallFile();
    f.elements[0].forcedSize = 10;
    FileCharacterDatabase db(Write(f));
    EXPECT_TRUE(db.ElementExists(0));
    EXPECT_LOAD_ERROR(db.LoadElement(0), "Unable to load element");
}

TEST_F(DatabaseFileTest, PreloadReportsProgressAndStoresNullForHoles)
{
    FileCharacterDatabase db(Write(SmallFile()));
    RecordingProgress progress;
    db.Preload(&progress);
    ASSERT_EQ(progress.ranges.size(), 1u);
    EXPECT_EQ(progress.ranges[0], (std::pair<std::uint32_t, std::uint32_t>(0, 5)));
    EXPECT_EQ(progress.positions, (std::vector<std::uint32_t>{0, 1, 2, 3, 4}));
    EXPECT_FALSE(db.CharacterExists(1));
    EXPECT_LOAD_ERROR(db.LoadCharacter(1), "Character does not exist");
    EXPECT_TRUE(db.CharacterExists(2));
    EXPECT_TRUE(db.ElementExists(1));
}

TEST_F(DatabaseFileTest, PreloadWithoutProgress)
{
    FileCharacterDatabase db(Write(SmallFile()));
    db.Preload(nullptr);
    EXPECT_STREQ(db.LoadCharacter(0)->Meaning(), "one");
}

TEST_F(DatabaseFileTest, AfterPreloadLoadsAreIndependentCopies)
{
    FileCharacterDatabase db(Write(SmallFile()));
    db.Preload(nullptr);
    {
        auto c = db.LoadCharacter(0);
        c->SetMeaning("changed");
        auto e = db.LoadElement(0);
        ASSERT_EQ(e->GetForm(0).StrokeCount(), 1);
    } // both deleted here
    EXPECT_STREQ(db.LoadCharacter(0)->Meaning(), "one");
    auto again = db.LoadElement(0);
    EXPECT_EQ(again->GetForm(0).GetStroke(0).GetSegment(0).P1(), (Point{90, 10}));
}

TEST_F(DatabaseFileTest, UnreadableElementBecomesNullSlotAfterPreload)
{
    RawDatabaseFile f = SmallFile();
    f.elements[1].forcedOffset = 0x7FFFFF00;
    FileCharacterDatabase db(Write(f));
    db.Preload(nullptr);
    EXPECT_FALSE(db.ElementExists(1));
    EXPECT_LOAD_ERROR(db.LoadElement(1), "Element does not exist");
}

TEST_F(DatabaseFileTest, FailedPreloadLeavesReaderUsable)
{
    RawDatabaseFile f = SmallFile();
    Bytes broken = CharacterRecord(0, "abc", "", "");
    broken[2] = 200;
    f.characters[2].bytes = broken;
    FileCharacterDatabase db(Write(f));
    EXPECT_LOAD_ERROR(db.Preload(nullptr), "Unable to load character");
    // Not preloaded: loads still read from the file.
    EXPECT_STREQ(db.LoadCharacter(0)->OnReading(), "イチ");
}

TEST_F(DatabaseFileTest, PreloadedCharactersAreTheCharactersReadBeforePreloading)
{
    const std::string path = Write(SmallFile());
    FileCharacterDatabase plain(path);
    FileCharacterDatabase preloaded(path);
    preloaded.Preload(nullptr);
    for (std::uint16_t id = 0; id < 3; ++id) {
        ASSERT_EQ(plain.CharacterExists(id), preloaded.CharacterExists(id));
        if (!plain.CharacterExists(id))
            continue;
        const auto a = plain.LoadCharacter(id);
        const auto b = preloaded.LoadCharacter(id);
        EXPECT_EQ(a->Id(), b->Id());
        EXPECT_EQ(a->ElementId(), b->ElementId());
        EXPECT_STREQ(a->OnReading(), b->OnReading());
        EXPECT_STREQ(a->KunReading(), b->KunReading());
        EXPECT_STREQ(a->Meaning(), b->Meaning());
    }
    EXPECT_FALSE(preloaded.CharacterExists(3));
    EXPECT_LOAD_ERROR(preloaded.LoadCharacter(3), "Character id out of range");
}

TEST_F(DatabaseFileTest, PreloadChecksEveryTextOfEveryCharacter)
{
    // The meaning, the last text of the record, claims more bytes than the record holds.
    RawDatabaseFile f = SmallFile();
    Bytes broken = CharacterRecord(1, "a", "b", "c");
    broken[broken.size() - 2] = 5;
    f.characters[2].bytes = broken;
    FileCharacterDatabase db(Write(f));
    EXPECT_LOAD_ERROR(db.LoadCharacter(2), "Unable to load character");
    EXPECT_LOAD_ERROR(db.Preload(nullptr), "Unable to load character");
    // A record one byte short of its element id is refused too.
    f.characters[2].bytes = Bytes{1};
    FileCharacterDatabase shorter(Write(f));
    EXPECT_LOAD_ERROR(shorter.Preload(nullptr), "Unable to load character");
}

TEST_F(DatabaseFileTest, ComposedElementsAreResolvedThroughTheReader)
{
    RawDatabaseFile f;
    f.elements.push_back({OneLineElement()}); // 0: can never be placed
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(10, 0).Build()})});
    // 2: places element 1 twice; 3: places 2, nested composition.
    f.elements.push_back(
        {ElementRecord({ComposedFormBytes(100, 100, {{1, 1, 0, 0, 50, 50}, {1, 1, 50, 50, 50, 50}})})});
    f.elements.push_back({ElementRecord({ComposedFormBytes(200, 200, {{2, 1, 10, 20, 200, 200}})})});
    f.characters.push_back({CharacterRecord(3, "", "", "")});
    FileCharacterDatabase db(Write(f));
    auto two = db.LoadElement(2);
    ASSERT_EQ(two->GetForm(0).StrokeCount(), 2);
    EXPECT_EQ(two->GetForm(0).Width(), 100);
    EXPECT_EQ(two->GetForm(0).GetStroke(1).Start(), (Point{50, 50}));
    EXPECT_EQ(two->GetForm(0).GetStroke(1).GetSegment(0).P1(), (Point{100, 50}));
    auto three = db.LoadElement(3);
    ASSERT_EQ(three->GetForm(0).StrokeCount(), 2);
    EXPECT_EQ(three->GetForm(0).GetStroke(1).Start(), (Point{110, 120}));
    EXPECT_EQ(three->GetForm(0).GetStroke(1).GetSegment(0).P1(), (Point{210, 120}));
    db.Preload(nullptr);
    EXPECT_EQ(db.LoadElement(3)->GetForm(0).StrokeCount(), 2);
}

TEST_F(DatabaseFileTest, ElementPlacingItselfIsRefused)
{
    RawDatabaseFile f;
    f.elements.push_back({OneLineElement()});
    f.elements.push_back({ElementRecord({ComposedFormBytes(10, 10, {{1, 1, 0, 0, 10, 10}})})});
    // 2 and 3 place each other.
    f.elements.push_back({ElementRecord({ComposedFormBytes(10, 10, {{3, 1, 0, 0, 10, 10}})})});
    f.elements.push_back({ElementRecord({ComposedFormBytes(10, 10, {{2, 1, 0, 0, 10, 10}})})});
    FileCharacterDatabase db(Write(f));
    EXPECT_LOAD_ERROR(db.LoadElement(1), "Unable to load element");
    EXPECT_LOAD_ERROR(db.LoadElement(2), "Unable to load element");
    EXPECT_LOAD_ERROR(db.Preload(nullptr), "Unable to load element");
}

TEST_F(DatabaseFileTest, CompositionDepthIsLimited)
{
    // Element 1 has strokes; element k + 1 places element k. A chain of n placed levels.
    auto chain = [&](int levels) {
        RawDatabaseFile f;
        f.elements.push_back({OneLineElement()});
        f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(10, 0).Build()})});
        for (int k = 1; k <= levels; ++k)
            f.elements.push_back(
                {ElementRecord({ComposedFormBytes(10, 10, {{static_cast<std::uint16_t>(k), 1, 0, 0, 10, 10}})})});
        return f;
    };
    const int limit = static_cast<int>(FileCharacterDatabase::MaxCompositionDepth);
    FileCharacterDatabase ok(Write(chain(limit)));
    EXPECT_EQ(ok.LoadElement(static_cast<std::uint16_t>(limit + 1))->GetForm(0).StrokeCount(), 1);
    FileCharacterDatabase deep(Write(chain(limit + 1)));
    EXPECT_LOAD_ERROR(deep.LoadElement(static_cast<std::uint16_t>(limit + 2)), "Unable to load element");
}

TEST_F(DatabaseFileTest, WideSharedCompositionStaysCheap)
{
    // Each level places the one below four times: without sharing, 4^20 loads.
    RawDatabaseFile f;
    f.elements.push_back({OneLineElement()});
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Build()})});
    for (std::uint16_t k = 1; k <= 20; ++k)
        f.elements.push_back({ElementRecord({ComposedFormBytes(
            10, 10, {{k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}})})});
    FileCharacterDatabase db(Write(f));
    EXPECT_EQ(db.LoadElement(21)->GetForm(0).StrokeCount(), 0);
}

TEST_F(DatabaseFileTest, CompositionBeyond65535StrokesIsRefused)
{
    RawDatabaseFile f;
    f.elements.push_back({OneLineElement()});
    StrokeFormBytes many(10, 10);
    for (int i = 0; i < 255; ++i)
        many.Stroke(0, 0);
    f.elements.push_back({ElementRecord({many.Build()})});
    // 255 * 4^k strokes: level 4 would hold 255 * 256 = 65280, level 5 too many.
    for (std::uint16_t k = 1; k <= 5; ++k)
        f.elements.push_back({ElementRecord({ComposedFormBytes(
            10, 10, {{k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}, {k, 1, 0, 0, 10, 10}})})});
    FileCharacterDatabase db(Write(f));
    EXPECT_EQ(db.LoadElement(5)->GetForm(0).StrokeCount(), 65280);
    EXPECT_LOAD_ERROR(db.LoadElement(6), "Unable to load element");
}

TEST_F(DatabaseFileTest, AfterPreloadGlyphsAreReadFromTheFileAsPreloadSawThem)
{
    const RawDatabaseFile f = SmallFile();
    const std::string path = Write(f);
    FileCharacterDatabase db(path);
    db.Preload(nullptr);
    // The file's memory given back: the glyphs come from the open file, even once it is
    // removed from its folder (a package upgrade replacing it, say).
    std::filesystem::remove(path);
    auto first = db.LoadElement(0);
    ASSERT_EQ(first->FormCount(), 1);
    EXPECT_EQ(first->GetForm(0).GetStroke(0).Start(), (Point{10, 10}));
    EXPECT_TRUE(db.ElementExists(1));
    EXPECT_EQ(db.LoadElement(1)->GetForm(0).GetStroke(0).Start(), (Point{50, 0}));
    EXPECT_STREQ(db.LoadCharacter(0)->Meaning(), "one");
}

TEST_F(DatabaseFileTest, AGlyphChangedInTheFileAfterPreloadIsRefused)
{
    const RawDatabaseFile f = SmallFile();
    const Bytes bytes = f.Build();
    const std::string path = Write(bytes);
    FileCharacterDatabase db(path);
    db.Preload(nullptr);
    // The second element's record changed in place, as another program writing the file would.
    const Bytes second = f.elements[1].bytes;
    const auto at = std::search(bytes.begin(), bytes.end(), second.begin(), second.end());
    ASSERT_NE(at, bytes.end());
    {
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(at - bytes.begin()) + static_cast<std::streamoff>(second.size()) - 1);
        file.put(static_cast<char>(second.back() ^ 0x5A));
    }
    // Written later than the file was read (within one clock tick the system may give the
    // same modification time: set it as a writer a moment later would leave it).
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::seconds(1));
    // The file is no longer what Preload checked: its glyphs are refused, every one of them, as
    // an unreadable database is; the characters and categories held in memory still read.
    EXPECT_THROW(db.LoadElement(1), ZavorenCommon::DatabaseLoadException);
    EXPECT_THROW(db.LoadElement(0), ZavorenCommon::DatabaseLoadException);
    EXPECT_STREQ(db.LoadCharacter(0)->Meaning(), "one");
    EXPECT_EQ(db.LoadCategory(0)->Characters(), (std::vector<std::uint16_t>{0, 2}));
}
