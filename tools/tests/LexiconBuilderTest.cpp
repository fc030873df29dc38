// The lexicon builder on a small EDICT extract (EUC-JP, made for these tests) and on drawings
// in KanjiVG's shape: which words a character gets and in what order, the readings' words,
// the parts and their strokes.

#include "LexiconBuilder.h"
#include "DatabaseBuilder.h"
#include "DatabaseKey.h"
#include "Edict.h"
#include "FileCharacterDatabase.h"
#include "Lexicon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

const std::string Data = ZAVOREN_TOOLS_TEST_DATA;

/// The sample database (一 水 右 in Grade 1, 二 in Grade 2) with its lexicon.
struct Sample {
    BuildReport report;
    std::vector<std::uint8_t> database;
    std::vector<std::uint8_t> lexiconBytes;
    Sample()
    {
        BuildOptions o;
        o.kanjivgDir = Data + "/kanjivg";
        o.kanjidicPath = Data + "/kanjidic2-sample.xml.gz";
        database = BuildDatabase(o, report);
        lexiconBytes = BuildLexicon(
            report.built, report.databaseKey, ReadEdict(Data + "/edict-sample"), Data + "/kanjivg-parts");
    }
    std::uint16_t Id(char32_t c) const
    {
        for (std::size_t i = 0; i < report.built.size(); ++i)
            if (report.built[i].codePoint == c)
                return static_cast<std::uint16_t>(i);
        return 0xFFFF;
    }
};

std::vector<std::string> Writings(const Lexicon& lexicon, std::uint16_t id)
{
    std::vector<std::string> out;
    for (const LexiconWord& word : lexicon.Words(id))
        out.emplace_back(word.writing);
    return out;
}

const EdictEntry* Find(const std::vector<EdictEntry>& entries, const std::string& writing, const std::string& reading)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
        [&](const EdictEntry& e) { return e.writing == writing && e.reading == reading; });
    return found != entries.end() ? &*found : nullptr;
}

} // namespace

TEST(Edict, DecodesEucJpAndSkipsTheDescriptionLine)
{
    const std::vector<EdictEntry> entries = ReadEdict(Data + "/edict-sample");
    EXPECT_EQ(entries.front().writing, "一");
    // Two-byte kanji and kana, three-byte JIS X 0212 and half-width katakana all come out as
    // UTF-8.
    ASSERT_TRUE(Find(entries, "丂", "こう"));
    ASSERT_TRUE(Find(entries, "ｶﾀｶﾅ", "ｶﾀｶﾅ")); // written in kana: read as written
    EXPECT_EQ(Find(entries, "ｶﾀｶﾅ", "ｶﾀｶﾅ")->glosses.front(), "half-width katakana, two bytes each in EUC-JP");
    EXPECT_FALSE(
        std::any_of(entries.begin(), entries.end(), [](const EdictEntry& e) { return e.writing == "？？？"; }));
}

TEST(Edict, AnEntryWithSeveralWritingsGivesOneWordEach)
{
    const std::vector<EdictEntry> entries = ReadEdict(Data + "/edict-sample");
    const EdictEntry* hand = Find(entries, "右手", "みぎて");
    const EdictEntry* kana = Find(entries, "右て", "みぎて");
    ASSERT_TRUE(hand && kana);
    EXPECT_TRUE(hand->common && kana->common);
    EXPECT_EQ(kana->glosses, std::vector<std::string>{"right hand"});
}

TEST(Edict, OnlyItsOwnTagsAreTakenFromTheGlosses)
{
    EXPECT_EQ(WithoutTags("(n) (1) learning"), "learning");
    EXPECT_EQ(WithoutTags("(n-adv,n-t) (2) sun"), "sun");
    EXPECT_EQ(WithoutTags("{comp} (n) file"), "file");
    EXPECT_EQ(WithoutTags("(v2r-s,vt) to make"), "to make");
    EXPECT_EQ(WithoutTags("(in) debt"), "(in) debt");
    EXPECT_EQ(WithoutTags("(exp) (a) lot"), "(a) lot");
    EXPECT_EQ(WithoutTags("(legally) incorporated"), "(legally) incorporated");
    std::vector<EdictEntry> entries;
    ASSERT_TRUE(ParseEdictLine("人 [じん] /(suf) (1) -ian (e.g. Italian)/-ite/(P)/", entries));
    EXPECT_TRUE(entries.front().affix);
    EXPECT_TRUE(entries.front().common);
    EXPECT_EQ(WordMeaning(entries.front()), "-ian (e.g. Italian); -ite");
    EXPECT_FALSE(ParseEdictLine("no entry here", entries));
    EXPECT_EQ(entries.size(), 1u);
}

TEST(Edict, AFileThatIsNotEucJpIsRefusedWithItsLine)
{
    const std::string path
        = (std::filesystem::temp_directory_path() / ("zavoren-edict-" + std::to_string(getpid()))).string();
    std::ofstream(path, std::ios::binary) << "header /x/\n水 [みず] /(n) water/\n\xFF\xFF [x] /bad/\n";
    try {
        ReadEdict(path);
        ADD_FAILURE() << "read a file that is not EUC-JP";
    } catch (const EdictError& e) {
        EXPECT_NE(std::string(e.what()).find("line 2: not EUC-JP text"), std::string::npos) << e.what();
    }
    std::filesystem::remove(path);
    EXPECT_THROW(ReadEdict(path), EdictError);
}

TEST(LexiconBuilder, CommonWordsFirstThenTheEarliestTaughtThenTheShortest)
{
    const Sample s;
    const Lexicon lexicon(s.lexiconBytes);
    // 一 alone (its second reading いつ is the same writing), 一つ: common with nothing else
    // to learn, shorter first; 一犬: common, but 犬 is not in the database; then the uncommon
    // ones: 一水 and 水一 (水 is Grade 1; then by writing), 一二 (二 is Grade 2), 一右二 (as late
    // as 一二, but longer).
    // ＡＢ一 is left out for its Latin letters.
    EXPECT_EQ(Writings(lexicon, s.Id(U'一')),
        (std::vector<std::string>{"一", "一つ", "一犬", "一水", "水一", "一二", "一右二"}));
    EXPECT_EQ(std::string(lexicon.Words(s.Id(U'一')).front().meaning), "one; best");
    EXPECT_EQ(std::string(lexicon.Words(s.Id(U'一')).front().reading), "いち");
    // 水 in its everyday reading (more senses than the abbreviation すい); 一水 before 水一,
    // the same in every rule but the writing.
    const auto water = lexicon.Words(s.Id(U'水'));
    EXPECT_EQ(Writings(lexicon, s.Id(U'水')), (std::vector<std::string>{"水", "水曜", "一水", "水一"}));
    EXPECT_EQ(std::string(water[0].reading), "みず");
    EXPECT_EQ(std::string(water[0].meaning),
        "water (esp. cool, fresh water, e.g. drinking water); fluid (esp. in an animal tissue)");
    EXPECT_TRUE(water[1].common);
    EXPECT_FALSE(water[2].common);
    EXPECT_EQ(std::string(water[3].meaning), "(in) water one (a word made for the tests)");
    EXPECT_EQ(Writings(lexicon, s.Id(U'右')), (std::vector<std::string>{"右", "右て", "右手", "一右二"}));
}

TEST(LexiconBuilder, AtMostEightWordsOfTheBest)
{
    std::vector<EdictEntry> entries;
    // Ten uncommon words and ten common ones, 水の, 水のの … one of each length.
    for (int i = 0; i < 20; ++i) {
        std::string writing = "水";
        for (int k = 0; k <= i % 10; ++k)
            writing += "の";
        entries.push_back(EdictEntry{writing, "みず", {"w"}, i >= 10, false});
    }
    const std::vector<LexiconCharacter> characters{{U'水', 0, 0, {"スイ"}, {"みず"}, 4}};
    std::vector<std::size_t> all(entries.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    const auto words = ChooseWords(characters, 0, entries, all, 8);
    ASSERT_EQ(words.size(), 8u);
    EXPECT_TRUE(std::all_of(words.begin(), words.end(), [](const LexiconWriter::Word& w) { return w.common; }));
    EXPECT_EQ(words.front().writing, "水の");
}

TEST(LexiconBuilder, EachReadingGetsACommonWordThatShowsIt)
{
    const Sample s;
    const Lexicon lexicon(s.lexiconBytes);
    // イチ doubled in 一犬 いっけん; ひと.つ whole in 一つ; スイ in the compound 水曜 (an ON reading
    // is not shown by the character alone); みず in 水 itself.
    EXPECT_EQ(std::string(lexicon.ReadingWord(s.Id(U'一'), Lexicon::Reading::On)->writing), "一犬");
    EXPECT_EQ(std::string(lexicon.ReadingWord(s.Id(U'一'), Lexicon::Reading::Kun)->writing), "一つ");
    EXPECT_EQ(std::string(lexicon.ReadingWord(s.Id(U'水'), Lexicon::Reading::On)->writing), "水曜");
    EXPECT_EQ(std::string(lexicon.ReadingWord(s.Id(U'水'), Lexicon::Reading::Kun)->writing), "水");
    // 右 ウ: no common word reads it so; no KUN reading at all.
    EXPECT_FALSE(lexicon.ReadingWord(s.Id(U'右'), Lexicon::Reading::On));
    EXPECT_FALSE(lexicon.ReadingWord(s.Id(U'右'), Lexicon::Reading::Kun));
}

TEST(LexiconBuilder, PartsInDrawingOrderWithTheirStrokes)
{
    const Sample s;
    const Lexicon lexicon(s.lexiconBytes);
    // 水: 亅 split in two (strokes 1 and 4), フ found inside a group that names nothing; the
    // loose stroke and the group naming 水 itself are not parts.
    const auto water = lexicon.Parts(s.Id(U'水'));
    ASSERT_EQ(water.size(), 2u);
    EXPECT_EQ(water[0].codePoint, U'亅');
    EXPECT_EQ(water[0].strokes, 0b1001u);
    EXPECT_EQ(water[0].characterId, Lexicon::NoCharacter);
    EXPECT_EQ(water[1].codePoint, U'フ');
    EXPECT_EQ(water[1].strokes, 0b0010u);
    // 右, KanjiVG's own drawing: 口, its last three strokes.
    const auto right = lexicon.Parts(s.Id(U'右'));
    ASSERT_EQ(right.size(), 1u);
    EXPECT_EQ(right[0].codePoint, U'口');
    EXPECT_EQ(right[0].strokes, 0b11100u);
    // 二: 一 opens 一; 丁 is not in the database but is a form of 一 there. Its drawing has three
    // strokes where the database's has two: the strokes are not told.
    const auto two = lexicon.Parts(s.Id(U'二'));
    ASSERT_EQ(two.size(), 2u);
    EXPECT_EQ(two[0].characterId, s.Id(U'一'));
    EXPECT_EQ(two[1].codePoint, U'丁');
    EXPECT_EQ(two[1].characterId, s.Id(U'一'));
    EXPECT_EQ(two[0].strokes, 0u);
    // 一 has no drawing in the folder: no parts.
    EXPECT_TRUE(lexicon.Parts(s.Id(U'一')).empty());
}

TEST(LexiconBuilder, MadeForItsDatabaseAndTheSameEachTime)
{
    const Sample first;
    const Sample second;
    EXPECT_EQ(first.lexiconBytes, second.lexiconBytes);
    const std::string path
        = (std::filesystem::temp_directory_path() / ("zavoren-lexdb-" + std::to_string(getpid()))).string();
    std::ofstream(path, std::ios::binary)
        .write(
            reinterpret_cast<const char*>(first.database.data()), static_cast<std::streamsize>(first.database.size()));
    FileCharacterDatabase database(path);
    database.Preload(nullptr);
    const Lexicon lexicon(first.lexiconBytes);
    EXPECT_NO_THROW(lexicon.CheckMadeFor(DatabaseKey::Of(database)));
    EXPECT_EQ(lexicon.CharacterCount(), database.CharacterCount());
    std::filesystem::remove(path);
}
