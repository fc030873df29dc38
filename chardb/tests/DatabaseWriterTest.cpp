// The writer of database files (for the tests and the builder) writes what the reader reads.

#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "RawDatabaseFile.h"

#include <gtest/gtest.h>

using namespace testdb;

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
