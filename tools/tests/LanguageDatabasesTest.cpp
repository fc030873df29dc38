// The builder's databases with meanings in other languages hold the same characters,
// categories and readings as the English one, so that a learner's progress stays valid
// whichever is linked.

#include "FileCharacterDatabase.h"
#include "LanguageDatabaseList.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string Text(const char* text)
{
    return text ? text : "";
}

TEST(LanguageDatabases, HoldTheSameCharactersAndReadings)
{
    FileCharacterDatabase english(ZAVOREN_STANDARD_DATABASE);
    english.Preload(nullptr);
    const auto paths = LanguageDatabases();
    ASSERT_EQ(paths.size(), 3u); // French, Spanish, Portuguese
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        FileCharacterDatabase other(path);
        other.Preload(nullptr);
        ASSERT_EQ(other.CharacterCount(), english.CharacterCount());
        ASSERT_EQ(other.CategoryCount(), english.CategoryCount());
        for (std::uint16_t c = 0; c < english.CategoryCount(); ++c)
            EXPECT_EQ(other.LoadCategory(c)->Characters(), english.LoadCategory(c)->Characters());
        int otherMeanings = 0;
        for (std::uint16_t id = 0; id < english.CharacterCount(); ++id) {
            const auto a = english.LoadCharacter(id);
            const auto b = other.LoadCharacter(id);
            ASSERT_EQ(Text(a->OnReading()), Text(b->OnReading())) << id;
            ASSERT_EQ(Text(a->KunReading()), Text(b->KunReading())) << id;
            ASSERT_EQ(a->ElementId(), b->ElementId());
            otherMeanings += Text(a->Meaning()) != Text(b->Meaning()) ? 1 : 0;
        }
        EXPECT_GT(otherMeanings, 1000); // the meanings are in the other language
    }
}

} // namespace
