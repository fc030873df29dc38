#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "RawDatabaseFile.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace testdb;

namespace {

/// Runs a test inside a temporary current folder, as the program runs in its data folder.
class InTempFolder : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_previous = std::filesystem::current_path();
        std::filesystem::current_path(m_dir.Path());
        ReleaseDatabase();
    }
    void TearDown() override
    {
        ReleaseDatabase();
        std::filesystem::current_path(m_previous);
    }
    TempDir m_dir;
    std::filesystem::path m_previous;
};

} // namespace

TEST_F(InTempFolder, GetDatabaseOpensTheRelativeNameAndKeepsIt)
{
    try {
        GetDatabase();
        FAIL() << "no database in the folder";
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        EXPECT_STREQ(e.what(), "Unable to open database");
    }
    DatabaseWriter writer;
    Form form(109, 109);
    form.AppendStroke(Stroke(Point{1, 1}));
    writer.AddCharacter(writer.AddStrokeElement(form), "a", "b", "c");
    writer.AddCategory("Grade 1", {0});
    WriteFile("database", writer.Serialize());
    // The failed attempt left nothing behind: this call tries again.
    CharacterDatabase& first = GetDatabase();
    EXPECT_EQ(first.CharacterCount(), 1);
    EXPECT_EQ(&GetDatabase(), &first);
    ReleaseDatabase();
    std::filesystem::remove("database");
    EXPECT_THROW(GetDatabase(), ZavorenCommon::DatabaseLoadException);
}

TEST(DatabaseWriterTest, WritesWhatTheReaderReads)
{
    TempDir dir;
    DatabaseWriter writer;
    Form form(109, 109);
    Stroke stroke(Point{1, 2});
    stroke.AppendSegment(Segment(SegmentType::Line, {3, 4}));
    form.AppendStroke(stroke);
    const auto e = writer.AddStrokeElement(form);
    writer.AddCharacter(e, "スイ", "みず", "water");
    writer.AddCategory("Grade 1", {0});
    WriteFile(dir / "database", writer.Serialize());
    FileCharacterDatabase db((dir / "database").string());
    EXPECT_STREQ(db.LoadCharacter(0)->KunReading(), "みず");
    EXPECT_EQ(db.LoadElement(0)->GetForm(0).GetStroke(0).GetSegment(0).P1(), (Point{3, 4}));
    EXPECT_EQ(db.LoadCategory(0)->Characters(), std::vector<std::uint16_t>{0});
    EXPECT_THROW(writer.AddCharacter(0, std::string(256, 'x'), "", ""), std::length_error);
}
