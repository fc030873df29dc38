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
