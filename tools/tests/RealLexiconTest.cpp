// The lexicon made beside the standard database from EDICT and KanjiVG: the words and parts a
// learner will see, and one lexicon serving the database in every language.

#include "DatabaseBuilder.h"
#include "DatabaseKey.h"
#include "FileCharacterDatabase.h"
#include "LanguageDatabaseList.h"
#include "Lexicon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

struct Standard {
    Standard() : database(ZAVOREN_STANDARD_DATABASE), lexicon(std::string(ZAVOREN_STANDARD_LEXICON))
    {
        database.Preload(nullptr);
    }
    bool HasWord(char32_t c, const std::string& writing) const
    {
        const auto words = lexicon.Words(lexicon.CharacterOf(c));
        return std::any_of(words.begin(), words.end(), [&](const LexiconWord& w) { return w.writing == writing; });
    }
    FileCharacterDatabase database;
    Lexicon lexicon;
};

} // namespace

TEST(RealLexicon, WordsAndPartsALearnerMeetsFirst)
{
    const Standard s;
    EXPECT_TRUE(s.HasWord(U'学', "大学"));
    EXPECT_TRUE(s.HasWord(U'校', "学校"));
    const auto parts = s.lexicon.Parts(s.lexicon.CharacterOf(U'明'));
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(parts[0].codePoint, U'日');
    EXPECT_EQ(parts[1].codePoint, U'月');
    // Both are characters of the database, and 日's strokes are the first four of 明.
    EXPECT_EQ(parts[0].characterId, s.lexicon.CharacterOf(U'日'));
    EXPECT_EQ(parts[1].characterId, s.lexicon.CharacterOf(U'月'));
    EXPECT_EQ(parts[0].strokes, 0x0Fu);
    EXPECT_EQ(parts[1].strokes, 0xF0u);
    // 学 in the reading test: a compound for がく, 学ぶ for まな.ぶ.
    EXPECT_EQ(std::string(s.lexicon.ReadingWord(s.lexicon.CharacterOf(U'学'), Lexicon::Reading::Kun)->writing), "学ぶ");
    const auto on = s.lexicon.ReadingWord(s.lexicon.CharacterOf(U'学'), Lexicon::Reading::On);
    ASSERT_TRUE(on);
    EXPECT_NE(std::string(on->reading).find("が"), std::string::npos);
}

TEST(RealLexicon, EveryCharacterOfTheDatabaseInItsOrderAndMostWithWords)
{
    Standard s;
    EXPECT_NO_THROW(s.lexicon.CheckMadeFor(DatabaseKey::Of(s.database)));
    ASSERT_EQ(s.lexicon.CharacterCount(), s.database.CharacterCount());
    std::size_t withWords = 0, withReadingWord = 0;
    for (std::uint16_t id = 0; id < s.lexicon.CharacterCount(); ++id) {
        const auto words = s.lexicon.Words(id);
        EXPECT_LE(words.size(), 8u);
        withWords += !words.empty();
        withReadingWord += s.lexicon.ReadingWord(id, Lexicon::Reading::On).has_value();
        // The character is in each of its words.
        const std::string character = Utf8(s.lexicon.CodePoint(id));
        for (const LexiconWord& word : words)
            EXPECT_NE(word.writing.find(character), std::string_view::npos) << word.writing;
    }
    // Every Grade 1 to 6 character is in some EDICT word; a few rare name characters are not.
    EXPECT_GT(withWords, s.lexicon.CharacterCount() * 95 / 100);
    EXPECT_GT(withReadingWord, s.lexicon.CharacterCount() / 2);
    for (std::uint16_t c = 0; c < 6; ++c) {
        const auto category = s.database.LoadCategory(c);
        for (std::uint16_t id : category->Characters())
            EXPECT_FALSE(s.lexicon.Words(id).empty()) << id;
    }
}

TEST(RealLexicon, SmallerThanAMegabyte)
{
    EXPECT_LT(std::filesystem::file_size(ZAVOREN_STANDARD_LEXICON), 1u << 20);
}

TEST(RealLexicon, ServesTheDatabaseInEveryLanguage)
{
    const Lexicon lexicon{std::string(ZAVOREN_STANDARD_LEXICON)};
    for (const std::string& path : LanguageDatabases()) {
        SCOPED_TRACE(path);
        FileCharacterDatabase other(path);
        other.Preload(nullptr);
        EXPECT_NO_THROW(lexicon.CheckMadeFor(DatabaseKey::Of(other)));
    }
    FileCharacterDatabase all(ZAVOREN_ALL_DATABASE);
    all.Preload(nullptr);
    EXPECT_THROW(lexicon.CheckMadeFor(DatabaseKey::Of(all)), ZavorenCommon::DatabaseLoadException);
}
