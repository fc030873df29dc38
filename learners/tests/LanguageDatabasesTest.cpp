// A learner's progress stays valid whichever language's database is linked.

#include "FileCharacterDatabase.h"
#include "LanguageDatabaseList.h"
#include "XmlConfigStore.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

TEST(LanguageDatabases, ALearnersProgressOpensWithEveryDatabase)
{
    const fs::path dir = fs::temp_directory_path() / ("language-databases-" + std::to_string(::getpid()));
    fs::create_directories(dir);
    const fs::path config = dir / "config.xml";
    std::ofstream(config) << "<?xml version=\"1.0\"?>\n<Zavoren><Users/></Zavoren>\n";
    std::vector<std::uint16_t> learned, untested;
    {
        FileCharacterDatabase english(ZAVOREN_STANDARD_DATABASE);
        english.Preload(nullptr);
        XmlConfigStore store(config.string(), english);
        ASSERT_TRUE(store.AddUser("Anna"));
        auto anna = store.LoadUser("Anna");
        learned = english.LoadCategory(0)->Characters();
        learned.resize(10);
        untested = english.LoadCategory(6)->Characters();
        untested.resize(3);
        for (std::uint16_t id : learned)
            anna->GetProgress(0).AddLearned(id);
        for (std::uint16_t id : untested)
            anna->GetProgress(6).AddUntested(id);
        ASSERT_TRUE(store.SaveUser(*anna));
    }
    for (const std::string& path : LanguageDatabases()) {
        SCOPED_TRACE(path);
        FileCharacterDatabase other(path);
        other.Preload(nullptr);
        XmlConfigStore store(config.string(), other);
        auto anna = store.LoadUser("Anna");
        ASSERT_TRUE(anna);
        EXPECT_EQ(anna->GetProgress(0).Learned(), learned);
        EXPECT_EQ(anna->GetProgress(6).Untested(), untested);
        for (std::uint16_t id : learned)
            EXPECT_TRUE(other.CharacterExists(id));
        EXPECT_TRUE(store.SaveUser(*anna));
    }
    fs::remove_all(dir);
}

} // namespace
