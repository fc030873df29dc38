// The lexicon reader on files its writer makes and on files it never would: every damage is a
// DatabaseLoadException with its message, never a crash or a read outside the file.

#include "Lexicon.h"
#include "DatabaseKey.h"
#include "DatabaseLoadException.h"
#include "LexiconFormat.h"
#include "LexiconWriter.h"
#include "LimitedChild.h"
#include "RawDatabaseFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <zlib.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <string>

using namespace testdb;
using Word = LexiconWriter::Word;
using Part = LexiconWriter::Part;

namespace {

constexpr std::uint64_t Key = 0x1234567890ABCDEFULL;

/// Three characters: 日 and 月 with words, 明 with words, parts (日 and 月, drawn by its strokes
/// 0-3 and 4-7) and a word per reading; the word 明日 is shared by 日 and 明.
Bytes SmallLexicon()
{
    LexiconWriter writer(Key);
    const Word tomorrow{"明日", "あす", "tomorrow; near future", true};
    writer.AddCharacter(
        U'日', {{"日", "ひ", "day; days", true}, tomorrow}, {}, Word{"日曜", "にちよう", "Sunday", true}, std::nullopt);
    writer.AddCharacter(U'月', {{"月", "つき", "moon; month", true}}, {}, std::nullopt, std::nullopt);
    writer.AddCharacter(U'明',
        {{"明るい", "あかるい", "light; well-lit", true}, tomorrow, {"明星", "みょうじょう", "Venus", false}},
        {{U'日', 0, 0x0F}, {U'月', 1, 0xF0}, {U'⺍', 0xFFFF, 0}}, Word{"説明", "せつめい", "explanation", true},
        Word{"明るい", "あかるい", "light; well-lit", true});
    return writer.Serialize();
}

std::string Text(std::string_view view)
{
    return std::string(view);
}

/// The message of what `action` throws, or "" when it does not.
std::string Thrown(const std::function<void()>& action)
{
    try {
        action();
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return e.what();
    }
    return "";
}

std::uint32_t Get32(const Bytes& b, std::size_t at)
{
    return b[at] | (b[at + 1] << 8) | (b[at + 2] << 16) | (std::uint32_t(b[at + 3]) << 24);
}

void Set32(Bytes& b, std::size_t at, std::uint32_t v)
{
    for (int k = 0; k < 4; ++k)
        b[at + k] = static_cast<std::uint8_t>(v >> (8 * k));
}

/// Makes the checksum right again after a change, as a careful forger would.
void Reseal(Bytes& b)
{
    Set32(b, 40, LexiconFormat::Checksum(b.data() + LexiconFormat::HeaderSize, b.size() - LexiconFormat::HeaderSize));
}

/// Where the tables start in a file made by the writer.
struct Layout {
    std::size_t characters, words, references, parts, text;
    explicit Layout(const Bytes& b)
    {
        characters = LexiconFormat::HeaderSize;
        words = characters + Get32(b, 12) * LexiconFormat::CharacterSize;
        references = words + Get32(b, 16) * LexiconFormat::WordSize;
        parts = references + Get32(b, 20) * LexiconFormat::ReferenceSize;
        text = parts + Get32(b, 24) * LexiconFormat::PartSize;
    }
};

const char* const Damaged = "The lexicon file is damaged";

} // namespace

TEST(LexiconTest, ReadsWhatTheWriterWrote)
{
    const Lexicon lexicon(SmallLexicon());
    EXPECT_EQ(lexicon.DatabaseKey(), Key);
    ASSERT_EQ(lexicon.CharacterCount(), 3u);
    EXPECT_EQ(lexicon.CodePoint(2), U'明');
    EXPECT_EQ(lexicon.CodePoint(3), 0u);
    EXPECT_EQ(lexicon.CharacterOf(U'月'), 1);
    EXPECT_EQ(lexicon.CharacterOf(U'火'), Lexicon::NoCharacter);

    const auto words = lexicon.Words(2);
    ASSERT_EQ(words.size(), 3u);
    EXPECT_EQ(Text(words[0].writing), "明るい");
    EXPECT_EQ(Text(words[0].reading), "あかるい");
    EXPECT_EQ(Text(words[0].meaning), "light; well-lit");
    EXPECT_TRUE(words[0].common);
    EXPECT_EQ(Text(words[1].writing), "明日");
    EXPECT_FALSE(words[2].common);
    EXPECT_EQ(Text(lexicon.Words(0)[1].meaning), "tomorrow; near future");
    EXPECT_TRUE(lexicon.Words(7).empty());

    const auto parts = lexicon.Parts(2);
    ASSERT_EQ(parts.size(), 3u);
    EXPECT_EQ(parts[0].codePoint, U'日');
    EXPECT_EQ(parts[0].characterId, 0);
    EXPECT_EQ(parts[0].strokes, 0x0Fu);
    EXPECT_EQ(parts[1].strokes, 0xF0u);
    EXPECT_EQ(parts[2].characterId, Lexicon::NoCharacter);
    EXPECT_TRUE(lexicon.Parts(0).empty());

    EXPECT_EQ(Text(lexicon.ReadingWord(2, Lexicon::Reading::On)->writing), "説明");
    EXPECT_EQ(Text(lexicon.ReadingWord(2, Lexicon::Reading::Kun)->reading), "あかるい");
    EXPECT_FALSE(lexicon.ReadingWord(1, Lexicon::Reading::On));
    EXPECT_FALSE(lexicon.ReadingWord(9, Lexicon::Reading::On));
}

TEST(LexiconTest, AWordUsedByTwoCharactersIsWrittenOnce)
{
    const Bytes bytes = SmallLexicon();
    // 日, 明日, 日曜, 月, 明るい, 明星, 説明: seven words for nine uses.
    EXPECT_EQ(Get32(bytes, 16), 7u);
    EXPECT_EQ(Get32(bytes, 20), 6u);
}

TEST(LexiconTest, TheSameCharactersGiveTheSameBytes)
{
    EXPECT_EQ(SmallLexicon(), SmallLexicon());
}

TEST(LexiconTest, OnlyTheDatabaseItWasMadeForIsAccepted)
{
    const Lexicon lexicon(SmallLexicon());
    EXPECT_EQ(Thrown([&] { lexicon.CheckMadeFor(Key); }), "");
    EXPECT_EQ(Thrown([&] { lexicon.CheckMadeFor(Key + 1); }), "The lexicon was made for another database");
}

TEST(LexiconTest, AnEmptyLexiconIsOne)
{
    const Lexicon lexicon(LexiconWriter(Key).Serialize());
    EXPECT_EQ(lexicon.CharacterCount(), 0u);
    EXPECT_TRUE(lexicon.Words(0).empty());
}

TEST(LexiconTest, MissingFoldersFifosAndDevicesAreNotOpened)
{
    TempDir dir;
    EXPECT_EQ(Thrown([&] { Lexicon((dir / "lexicon").string()); }), "Unable to open lexicon");
    std::filesystem::create_directory(dir / "folder");
    EXPECT_EQ(Thrown([&] { Lexicon((dir / "folder").string()); }), "Unable to open lexicon");
    const std::string fifo = (dir / "fifo").string();
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(Thrown([&] { Lexicon{fifo}; }), "Unable to open lexicon");
    EXPECT_EQ(Thrown([] { Lexicon(std::string("/dev/zero")); }), "Unable to open lexicon");
    WriteFile(dir / "lexicon", SmallLexicon());
    EXPECT_EQ(Thrown([&] { EXPECT_EQ(Lexicon((dir / "lexicon").string()).CharacterCount(), 3u); }), "");
}

TEST(LexiconTest, EveryTruncationIsDamage)
{
    const Bytes whole = SmallLexicon();
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(
            Thrown([&] { Lexicon(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))); }), Damaged)
            << size;
    Bytes longer = whole;
    longer.push_back(0);
    EXPECT_EQ(Thrown([&] { Lexicon{longer}; }), Damaged);
}

TEST(LexiconTest, EveryFlippedByteIsFoundAtOpeningOrByTheKey)
{
    const Bytes whole = SmallLexicon();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        Bytes flipped = whole;
        flipped[at] ^= 0x20;
        const std::string thrown = Thrown([&] { Lexicon(flipped).CheckMadeFor(Key); });
        // The key is the one field outside the checksum: a changed key is a foreign lexicon.
        if (at >= 32 && at < 40)
            EXPECT_EQ(thrown, "The lexicon was made for another database") << at;
        else
            EXPECT_EQ(thrown, Damaged) << at;
    }
}

TEST(LexiconTest, ForgedTablesWithARightChecksumAreRefused)
{
    const Bytes whole = SmallLexicon();
    const Layout at(whole);
    auto refused = [&](const std::function<void(Bytes&)>& forge) {
        Bytes b = whole;
        forge(b);
        Reseal(b);
        return Thrown([&] { Lexicon{b}; }) == Damaged;
    };
    EXPECT_FALSE(refused([](Bytes&) {})); // the resealing itself changes nothing
    // A character: a code point that is not one, words past the references, more than eight
    // words, parts past the table, a reading word past the words, a reserved field used.
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.characters, 0xD800); }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.characters, 0x110000); }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.characters + 4, 5); }));
    EXPECT_TRUE(refused([&](Bytes& b) { b[at.characters + 8] = 9; }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, 2 * 24 + at.characters + 12, 1); }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.characters + 16, 7); }));
    EXPECT_TRUE(refused([&](Bytes& b) { b[at.characters + 10] = 1; }));
    // Two characters with one code point.
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.characters + 24, U'日'); }));
    // A word: its texts past the text, an empty writing.
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.words, 1000); }));
    EXPECT_TRUE(refused([&](Bytes& b) { b[at.words + 4] = 0; }));
    EXPECT_TRUE(refused([&](Bytes& b) { b[at.words + 7] = 0x7F; }));
    // A reference past the words; a part naming a character past the count or a bad code point.
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.references, 7); }));
    EXPECT_TRUE(refused([&](Bytes& b) { b[at.parts + 4] = 3; }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, at.parts, 0); }));
    // The header: more characters than a database has, a text that claims to unpack to more
    // than the file can hold, another version.
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, 12, 0x10000); }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, 28, 0xFFFFFFFF); }));
    EXPECT_TRUE(refused([&](Bytes& b) { Set32(b, 8, 2); }));
}

TEST(LexiconTest, TextThatIsNotUtf8OrDoesNotUnpackIsDamage)
{
    LexiconWriter bad(Key);
    bad.AddCharacter(U'日', {{"\xE6\x97", "ひ", "day", true}}, {}, std::nullopt, std::nullopt);
    EXPECT_EQ(Thrown([&] { Lexicon(bad.Serialize()); }), Damaged);
    LexiconWriter overlong(Key);
    overlong.AddCharacter(U'日', {{"\xC0\xAF", "ひ", "day", true}}, {}, std::nullopt, std::nullopt);
    EXPECT_EQ(Thrown([&] { Lexicon(overlong.Serialize()); }), Damaged);

    // A text stream whose bytes are right for the checksum but not for zlib.
    Bytes b = SmallLexicon();
    const Layout at(b);
    b[at.text + 5] ^= 0xFF;
    Reseal(b);
    EXPECT_EQ(Thrown([&] { Lexicon{b}; }), Damaged);
    // The stream unpacks to fewer bytes than the header says.
    b = SmallLexicon();
    Set32(b, 28, Get32(b, 28) + 1);
    Reseal(b);
    EXPECT_EQ(Thrown([&] { Lexicon{b}; }), Damaged);
}

/// This process's address space in bytes (its VmSize), so that a child can be given a little more.
rlim_t AddressSpace()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmSize:", 0) == 0)
            return static_cast<rlim_t>(std::stoull(line.substr(7))) * 1024;
    return RLIM_INFINITY;
}

TEST(LexiconTest, ATextClaimingMoreThanZlibCanPackIsRefusedBeforeItsRoomIsTaken)
{
    // 60 MiB claimed for a stream of a few hundred bytes: within the file size limit, far past
    // what zlib packs so small. Given 32 MiB more than it has, the reader must find the lie
    // before making room for the claim (the room would fail as "Unable to open lexicon").
    Bytes b = SmallLexicon();
    Set32(b, 28, 60u << 20);
    Reseal(b);
    const int exitCode = InLimitedChild(AddressSpace() + (rlim_t{32} << 20),
        [&] { return Thrown([&] { Lexicon{b}; }) == Damaged; });
    EXPECT_EQ(exitCode, 0) << "1: refused for another reason (the room was asked for first)";
}

TEST(LexiconTest, TheDatabaseKeyFollowsTheReadingsAndTheirOrder)
{
    DatabaseKey a;
    a.Add("ニチ", "ひ");
    a.Add("ゲツ", "つき");
    DatabaseKey same;
    same.Add("ニチ", "ひ");
    same.Add("ゲツ", "つき");
    DatabaseKey swapped;
    swapped.Add("ゲツ", "つき");
    swapped.Add("ニチ", "ひ");
    DatabaseKey moved;
    moved.Add("ニチひ", "");
    moved.Add("ゲツ", "つき");
    DatabaseKey fewer;
    fewer.Add("ニチ", "ひ");
    EXPECT_EQ(a.Value(), same.Value());
    EXPECT_NE(a.Value(), swapped.Value());
    EXPECT_NE(a.Value(), moved.Value());
    EXPECT_NE(a.Value(), fewer.Value());
}
