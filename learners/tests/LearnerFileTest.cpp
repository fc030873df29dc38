#include "LearnerFile.h"

#include "FileCharacterDatabase.h"
#include "StoreFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const auto Read = StoreFiles::ReadText;
const auto Write = StoreFiles::WriteText;

class LearnerFileTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_db = new FileCharacterDatabase(ZAVOREN_STANDARD_DATABASE);
        s_db->Preload(nullptr);
    }
    static void TearDownTestSuite()
    {
        delete s_db;
        s_db = nullptr;
    }
    void SetUp() override
    {
        m_dir = fs::temp_directory_path() / ("learner-file-" + std::to_string(::getpid()));
        fs::create_directories(m_dir);
    }
    void TearDown() override { fs::remove_all(m_dir); }

    User Anna()
    {
        User anna;
        anna.SetName("Anna");
        anna.GetProgress(0).AddLearned(3);
        anna.GetProgress(0).AddUntested(4);
        anna.GetProgress(2).AddLearned(300);
        anna.AddEvent({"2026-11-20T08:00:00+01:00", LearnerEvent::Lesson, 0, 3, -1});
        anna.AddEvent({"2026-11-20T08:05:00+01:00", LearnerEvent::Passed, 0, 3, 1});
        anna.AddEvent({"2026-11-21T09:00:00+01:00", LearnerEvent::Review, 2, 300, -1});
        return anna;
    }

    fs::path m_dir;
    static FileCharacterDatabase* s_db;
};

FileCharacterDatabase* LearnerFileTest::s_db = nullptr;

TEST_F(LearnerFileTest, ALearnerComesBackAsTheyWereExported)
{
    User anna = Anna();
    const fs::path path = m_dir / "anna.xml";
    ASSERT_TRUE(LearnerFile::Export(path.string(), anna, anna.History(), s_db->CategoryCount()));
    const std::string text = Read(path);
    EXPECT_EQ(text.rfind("<?xml", 0), 0u); // an XML file, declared as such
    EXPECT_NE(text.find("<ZavorenLearner version=\"1\" categories=\"" + std::to_string(s_db->CategoryCount()) + "\">"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("<User name=\"Anna\">"), std::string::npos);
    const LearnerFile::Imported back = LearnerFile::Import(path.string(), *s_db);
    ASSERT_EQ(back.problem, LearnerFile::Problem::None);
    ASSERT_TRUE(back.learner);
    EXPECT_STREQ(back.learner->Name(), "Anna");
    EXPECT_EQ(back.learner->History(), anna.History());
    EXPECT_EQ(back.learner->ProgressCount(), s_db->CategoryCount());
    for (std::uint16_t i = 0; i < s_db->CategoryCount(); ++i) {
        EXPECT_EQ(back.learner->GetProgress(i).Learned(), anna.GetProgress(i).Learned());
        EXPECT_EQ(back.learner->GetProgress(i).Untested(), anna.GetProgress(i).Untested());
    }
}

TEST_F(LearnerFileTest, AFailedExportLeavesThePreviousFileWhole)
{
    User anna = Anna();
    EXPECT_FALSE(LearnerFile::Export((m_dir / "no-such-folder" / "anna.xml").string(), anna, anna.History(), s_db->CategoryCount()));
    const fs::path path = m_dir / "anna.xml";
    Write(path, "before");
    // A folder in place of the file: the rename fails, the folder stays as it was.
    const fs::path folder = m_dir / "folder.xml";
    fs::create_directories(folder / "inside");
    EXPECT_FALSE(LearnerFile::Export(folder.string(), anna, anna.History(), s_db->CategoryCount()));
    EXPECT_TRUE(fs::is_directory(folder / "inside"));
    EXPECT_EQ(Read(path), "before");
    for (const auto& entry : fs::directory_iterator(m_dir)) // no temporary left behind
        EXPECT_TRUE(entry.path() == path || entry.path() == folder) << entry.path();
}

TEST_F(LearnerFileTest, OtherFilesAreNotExports)
{
    const fs::path path = m_dir / "other.xml";
    EXPECT_EQ(LearnerFile::Import((m_dir / "missing.xml").string(), *s_db).problem, LearnerFile::Problem::CannotRead);
    EXPECT_EQ(LearnerFile::Import(m_dir.string(), *s_db).problem, LearnerFile::Problem::CannotRead); // a folder
    for (const char* text : {"just some text", "", "\x89PNG\r\n\x1a\n",
             "<Zavoren><Users><User name=\"Anna\"/></Users></Zavoren>", // a config.xml, not an export
             "<ZavorenLearner version=\"2\" categories=\"8\"><User name=\"Anna\"/></ZavorenLearner>"}) {
        Write(path, text);
        const auto imported = LearnerFile::Import(path.string(), *s_db);
        EXPECT_EQ(imported.problem, LearnerFile::Problem::NotAnExport) << text;
        EXPECT_FALSE(imported.learner);
    }
}

TEST_F(LearnerFileTest, DamagedExportsAreRefused)
{
    User anna = Anna();
    const fs::path good = m_dir / "anna.xml";
    ASSERT_TRUE(LearnerFile::Export(good.string(), anna, anna.History(), s_db->CategoryCount()));
    const std::string text = Read(good);
    const std::string categories = std::to_string(s_db->CategoryCount());
    const fs::path path = m_dir / "damaged.xml";
    const std::vector<std::string> damaged{
        text.substr(0, text.size() / 2), // cut off
        "<ZavorenLearner version=\"1\" categories=\"" + categories + "\"/>", // no learner
        "<ZavorenLearner version=\"1\" categories=\"" + categories + "\"><User/></ZavorenLearner>", // no name
        "<ZavorenLearner version=\"1\" categories=\"" + categories + "\"><User name=\"A'nn\"/></ZavorenLearner>",
        "<ZavorenLearner version=\"1\"><User name=\"Anna\"/></ZavorenLearner>", // categories unknown
        "<ZavorenLearner version=\"1\" categories=\"" + categories
            + "\"><User name=\"Anna\"><Progress categoryId=\"0\"><Learned><Character id=\"65000\"/></Learned>"
              "</Progress></User></ZavorenLearner>", // no such character
        "<ZavorenLearner version=\"1\" categories=\"" + categories
            + "\"><User name=\"Anna\"><Progress categoryId=\"x\"/></User></ZavorenLearner>",
        "<ZavorenLearner version=\"1\" categories=\"" + categories + "\"><User name=\"Anna\">" + std::string(40, '\0')
            + "</User></ZavorenLearner>",
    };
    for (const std::string& bad : damaged) {
        Write(path, bad);
        const auto imported = LearnerFile::Import(path.string(), *s_db);
        EXPECT_EQ(imported.problem, LearnerFile::Problem::Damaged) << bad;
        EXPECT_FALSE(imported.learner);
    }
    std::string deep = "<ZavorenLearner version=\"1\" categories=\"" + categories + "\"><User name=\"Anna\">";
    for (int i = 0; i < 40; ++i)
        deep += "<a>";
    Write(path, deep + "</User></ZavorenLearner>");
    EXPECT_NE(LearnerFile::Import(path.string(), *s_db).problem, LearnerFile::Problem::None);
}

TEST_F(LearnerFileTest, AnExportOfADatabaseWithOtherCategoriesIsRefused)
{
    User anna = Anna();
    const fs::path path = m_dir / "anna.xml";
    ASSERT_TRUE(LearnerFile::Export(path.string(), anna, anna.History(), 3)); // a smaller database
    const auto imported = LearnerFile::Import(path.string(), *s_db);
    EXPECT_EQ(imported.problem, LearnerFile::Problem::OtherDatabase);
    EXPECT_EQ(imported.fileCategories, 3);
    EXPECT_FALSE(imported.learner);
}

} // namespace
