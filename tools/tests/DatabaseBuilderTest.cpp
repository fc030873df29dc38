#include "DatabaseBuilder.h"
#include "DatabaseInspector.h"
#include "FileCharacterDatabase.h"
#include "FormFormat.h"
#include "InkFile.h"
#include "KanjiDic.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

const std::string Data = ZAVOREN_TOOLS_TEST_DATA;

std::string TempPath(const std::string& name)
{
    return (std::filesystem::temp_directory_path() / ("zavoren-builder-" + std::to_string(getpid()) + "-" + name))
        .string();
}

std::unique_ptr<FileCharacterDatabase> BuildSample(BuildOptions options, BuildReport& report, const std::string& name)
{
    const auto bytes = BuildDatabase(options, report);
    const std::string path = TempPath(name);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return std::make_unique<FileCharacterDatabase>(path);
}

BuildOptions SampleOptions()
{
    BuildOptions o;
    o.kanjivgDir = Data + "/kanjivg";
    o.kanjidicPath = Data + "/kanjidic2-sample.xml.gz";
    return o;
}

} // namespace

TEST(JoinLimited, KeepsWholeItemsWithin255Bytes)
{
    EXPECT_EQ(JoinLimited({"a", "b"}, ", "), "a, b");
    EXPECT_EQ(JoinLimited({}, ", "), "");
    // 100 readings of three bytes each joined by a three-byte comma: cut after a whole reading.
    const std::vector<std::string> readings(100, "\xE3\x81\x82");
    const std::string joined = JoinLimited(readings, "\xE3\x80\x81");
    EXPECT_LE(joined.size(), 255u);
    EXPECT_EQ(joined.size() % 6, 3u);
    EXPECT_TRUE(IsValidUtf8(joined));
    EXPECT_EQ(JoinLimited({std::string(300, 'x'), "y"}, ","), "");
}

TEST(KanjiDic, ReadsGzippedAndPlainAlike)
{
    const auto gz = ReadKanjiDic(Data + "/kanjidic2-sample.xml.gz", "en");
    const auto plain = ReadKanjiDic(Data + "/kanjidic2-sample.xml", "en");
    ASSERT_EQ(gz.size(), 5u);
    EXPECT_EQ(plain.size(), gz.size());
    const KanjiDicEntry& water = gz.at(U'水');
    EXPECT_EQ(water.grade, 1);
    EXPECT_EQ(water.frequency, 223);
    EXPECT_EQ(water.onReadings, std::vector<std::string>{"スイ"});
    EXPECT_EQ(water.kunReadings, (std::vector<std::string>{"みず", "みず-"}));
    EXPECT_EQ(water.meanings, std::vector<std::string>{"water"});
    EXPECT_EQ(ReadKanjiDic(Data + "/kanjidic2-sample.xml", "fr").at(U'水').meanings, std::vector<std::string>{"eau"});
    // Without a French meaning, the English one.
    EXPECT_EQ(ReadKanjiDic(Data + "/kanjidic2-sample.xml", "fr").at(U'右').meanings, std::vector<std::string>{"right"});
    EXPECT_TRUE(ReadKanjiDic(Data + "/kanjidic2-sample.xml", "fr").at(U'二').meanings.empty());
    EXPECT_THROW(ReadKanjiDic(Data + "/missing.xml", "en"), KanjiDicError);
    EXPECT_THROW(ReadKanjiDic(Data + "/kanjivg/04e00.svg", "en"), KanjiDicError);
}

TEST(DatabaseBuilder, CategoriesOrderAndTexts)
{
    BuildReport report;
    auto db = BuildSample(SampleOptions(), report, "sample");
    ASSERT_EQ(db->CategoryCount(), 8);
    auto grade1 = db->LoadCategory(0);
    EXPECT_STREQ(grade1->Name(), "Grade 1");
    // Ranked by frequency (一 2, 水 223), then unranked (右); 犬 has no strokes and is left out.
    ASSERT_EQ(grade1->Characters(), (std::vector<std::uint16_t>{0, 1, 2}));
    EXPECT_STREQ(db->LoadCharacter(0)->OnReading(), "イチ、イツ");
    EXPECT_STREQ(db->LoadCharacter(0)->KunReading(), "ひと-、ひと.つ");
    EXPECT_STREQ(db->LoadCharacter(0)->Meaning(), "one, one radical (no.1)");
    EXPECT_STREQ(db->LoadCharacter(1)->Meaning(), "water");
    EXPECT_EQ(db->LoadCharacter(2)->KunReading(), nullptr);
    EXPECT_EQ(db->LoadCategory(1)->Characters(), std::vector<std::uint16_t>{3});
    EXPECT_STREQ(db->LoadCategory(7)->Name(), "Jinmeiy\xC5\x8D");
    EXPECT_EQ(db->LoadCategory(6)->CharacterCount(), 0u);
    ASSERT_EQ(report.leftOut, std::vector<char32_t>{U'犬'});
    EXPECT_EQ(report.characters, 4u);
    // Each character has its own element whose first form is the KanjiVG glyph.
    auto water = db->LoadElement(db->LoadCharacter(1)->ElementId());
    EXPECT_EQ(water->GetForm(0).StrokeCount(), 4);
    EXPECT_EQ(water->GetForm(0).Width(), 109);
    EXPECT_EQ(water->GetForm(0).Height(), 109);
    EXPECT_TRUE(ValidateDatabase(*db).empty());
}

TEST(DatabaseBuilder, SameInputsGiveTheSameBytes)
{
    BuildReport a, b;
    EXPECT_EQ(BuildDatabase(SampleOptions(), a), BuildDatabase(SampleOptions(), b));
    BuildOptions all = SampleOptions();
    all.allKanji = true;
    EXPECT_EQ(BuildDatabase(all, a), BuildDatabase(all, b));
}

TEST(DatabaseBuilder, AllSetAddsOtherAndFrenchMeanings)
{
    BuildOptions o = SampleOptions();
    o.allKanji = true;
    o.language = "fr";
    BuildReport report;
    auto db = BuildSample(o, report, "all");
    ASSERT_EQ(db->CategoryCount(), 9);
    EXPECT_STREQ(db->LoadCategory(8)->Name(), "Other");
    EXPECT_EQ(db->LoadCategory(8)->CharacterCount(), 0u); // every sample glyph has a grade
    EXPECT_STREQ(db->LoadCharacter(1)->Meaning(), "eau");
}

TEST(DatabaseBuilder, BadInputsNameTheFile)
{
    BuildReport report;
    BuildOptions o = SampleOptions();
    o.kanjivgDir = Data + "/nowhere";
    try {
        BuildDatabase(o, report);
        FAIL();
    } catch (const BuildError& e) {
        EXPECT_NE(std::string(e.what()).find("nowhere"), std::string::npos);
    }
    const std::string dir = TempPath("badsvg");
    std::filesystem::create_directories(dir);
    std::ofstream(dir + "/06c34.svg") << "<svg><path d=\"M1,1 Q2,2 3,3\"/></svg>";
    o.kanjivgDir = dir;
    try {
        BuildDatabase(o, report);
        FAIL();
    } catch (const BuildError& e) {
        const std::string what = e.what();
        EXPECT_NE(what.find("06c34.svg"), std::string::npos);
        EXPECT_NE(what.find("水"), std::string::npos);
        EXPECT_NE(what.find("M1,1 Q2,2 3,3"), std::string::npos);
    }
    std::filesystem::remove_all(dir);
}

TEST(InkFile, ParsesPairsAndRefusesAnythingElse)
{
    const StrokePath ink = ParseInkJson(" [ [1, 2.5] , [-3e1,4] ] ");
    ASSERT_EQ(ink.Count(), 2u);
    EXPECT_EQ(ink.At(1), (Point{-30, 4}));
    EXPECT_EQ(ParseInkJson("[]").Count(), 0u);
    for (const char* bad : {"", "[", "[[1,2]", "[[1]]", "[[1,2],]", "{\"x\":1}", "[[1,2]] x", "[[a,b]]"})
        EXPECT_THROW(ParseInkJson(bad), InkFileError) << bad;
    EXPECT_THROW(ReadInkFile("/nonexistent/ink.json"), InkFileError);
}

namespace {

/// The sample dictionary with `from` replaced by `to`, in a file of the test's own.
std::string EditedSample(const std::string& name, const std::string& from, const std::string& to)
{
    std::ifstream in(Data + "/kanjidic2-sample.xml");
    std::string text((std::istreambuf_iterator<char>(in)), {});
    const std::size_t at = text.find(from);
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
    const std::string path = TempPath(name);
    std::ofstream(path) << text;
    return path;
}

} // namespace

TEST(CharacterIds, KnownCharactersKeepTheirIdsAndNewOnesTakeTheNext)
{
    CharacterIdTable table;
    table.codePoints = {U'一', U'水', U'右', U'二'};
    // Met in another order (a newer dictionary's teaching order): the ids are the table's.
    EXPECT_EQ(AssignCharacterIds(table, {U'二', U'水', U'一', U'右'}), table.codePoints);
    // A new character takes the next free id; one gone keeps its id, empty.
    EXPECT_EQ(AssignCharacterIds(table, {U'犬', U'一', U'二', U'水'}),
        (std::vector<char32_t>{U'一', U'水', 0, U'二', U'犬'}));
    // The last ones gone: the database ends with the last id given.
    EXPECT_EQ(AssignCharacterIds(table, {U'水', U'一'}), (std::vector<char32_t>{U'一', U'水'}));
    // No table: ids in the order met.
    EXPECT_EQ(AssignCharacterIds({}, {U'水', U'一'}), (std::vector<char32_t>{U'水', U'一'}));
}

TEST(CharacterIds, TheTableIsReadAsWrittenAndAMalformedOneIsNamed)
{
    const std::string path = TempPath("ids.txt");
    WriteCharacterIds(path, {U'日', 0, U'一'});
    EXPECT_EQ(ReadCharacterIds(path).codePoints, (std::vector<char32_t>{U'日', 0, U'一'}));
    std::ofstream(path) << "# ids\n65e5 \xE6\x97\xA5\n4e00\n65e5\n";
    try {
        ReadCharacterIds(path);
        FAIL() << "a character given two ids was read";
    } catch (const BuildError& e) {
        EXPECT_NE(std::string(e.what()).find("line 4"), std::string::npos) << e.what();
    }
    std::ofstream(path) << "4e00\nwater\n";
    EXPECT_THROW(ReadCharacterIds(path), BuildError);
    EXPECT_THROW(ReadCharacterIds(TempPath("missing-ids.txt")), BuildError);
}

TEST(DatabaseBuilder, ACharacterKeepsItsIdWhenANewerDictionaryMovesOrDropsOthers)
{
    BuildReport first;
    auto before = BuildSample(SampleOptions(), first, "ids-before");
    CharacterIdTable table;
    table.codePoints = first.ids;
    ASSERT_EQ(table.codePoints, (std::vector<char32_t>{U'一', U'水', U'右', U'二'}));

    // 水 moves to Grade 2 and, ranked first there, would come before 二; 右 leaves the data.
    BuildOptions newer = SampleOptions();
    newer.kanjidicPath
        = EditedSample("kanjidic-newer.xml", "<grade>1</grade><stroke_count>4</stroke_count><freq>223</freq>",
            "<grade>2</grade><stroke_count>4</stroke_count><freq>3</freq>");
    const std::string without = EditedSample("kanjidic-without.xml", "<literal>\xE5\x8F\xB3</literal>",
        "<literal>\xE5\xB7\xA6</literal>"); // 右 becomes 左, which has no strokes here
    newer.ids = table;
    BuildReport report;
    auto after = BuildSample(newer, report, "ids-after");
    EXPECT_EQ(report.ids, table.codePoints);
    EXPECT_EQ(after->LoadCategory(0)->Characters(), (std::vector<std::uint16_t>{0, 2}));
    EXPECT_EQ(after->LoadCategory(1)->Characters(), (std::vector<std::uint16_t>{1, 3})); // 水 first, by rank
    // The same strokes under the same id.
    for (std::uint16_t id = 0; id < 4; ++id)
        EXPECT_EQ(after->LoadElement(after->LoadCharacter(id)->ElementId())->GetForm(0).StrokeCount(),
            before->LoadElement(before->LoadCharacter(id)->ElementId())->GetForm(0).StrokeCount());

    BuildOptions gone = SampleOptions();
    gone.kanjidicPath = without;
    gone.ids = table;
    BuildReport goneReport;
    auto third = BuildSample(gone, goneReport, "ids-gone");
    EXPECT_EQ(goneReport.ids, (std::vector<char32_t>{U'一', U'水', 0, U'二'}));
    EXPECT_EQ(third->CharacterCount(), 4);
    EXPECT_EQ(third->LoadCategory(1)->Characters(), std::vector<std::uint16_t>{3}); // 二 keeps id 3
    EXPECT_FALSE(third->CharacterExists(2)); // kept with no record, in no category
    EXPECT_EQ(goneReport.built.size(), 4u);
    EXPECT_EQ(goneReport.built[2].codePoint, 0u);
    EXPECT_TRUE(ValidateDatabase(*third).empty());
}

TEST(DatabaseBuilder, OtherStrokeOrdersBecomeFurtherFormsAfterTheStandardOne)
{
    EXPECT_TRUE(IsStrokeOrderSuffix("VtLst"));
    EXPECT_TRUE(IsStrokeOrderSuffix("HzFstRiLe"));
    for (const char* style : {"Kaisho", "KaishoVtLst", "Hyougai", "Jinmei", "Insatsu", "", "Vt-3"})
        EXPECT_FALSE(IsStrokeOrderSuffix(style)) << style;

    BuildReport plainReport;
    const auto plain = BuildDatabase(SampleOptions(), plainReport);
    BuildOptions options = SampleOptions();
    options.ordersDir = Data + "/kanjivg-orders";
    BuildReport report;
    auto db = BuildSample(options, report, "orders");
    // 水 (id 1) has its other order; 一's drawing of two strokes is another shape, and the
    // Kaisho drawings are other styles: left out.
    EXPECT_EQ(report.withOtherOrders, 1u);
    EXPECT_EQ(report.otherOrders, 1u);
    EXPECT_EQ(report.ordersLeftOut, std::vector<std::string>{"04e00-HzFst.svg"});
    auto water = db->LoadElement(db->LoadCharacter(1)->ElementId());
    ASSERT_EQ(water->FormCount(), 2);
    const Form& other = water->GetForm(1);
    EXPECT_EQ(other.Width(), 109);
    ASSERT_EQ(other.StrokeCount(), 4);
    // In the order its ids number the strokes, not the document's: the vertical last.
    EXPECT_EQ(other.GetStroke(0).Start(), (Point{20, 40}));
    EXPECT_EQ(other.GetStroke(3).Start(), (Point{54, 14}));
    // Form 0 and everything else as without the other orders.
    BuildReport again;
    auto without = BuildSample(SampleOptions(), again, "orders-without");
    for (std::uint16_t id = 0; id < without->CharacterCount(); ++id) {
        const auto a = without->LoadElement(without->LoadCharacter(id)->ElementId());
        const auto b = db->LoadElement(db->LoadCharacter(id)->ElementId());
        std::vector<std::uint8_t> bytesA, bytesB;
        EncodeStrokeForm(a->GetForm(0), bytesA);
        EncodeStrokeForm(b->GetForm(0), bytesB);
        EXPECT_EQ(bytesA, bytesB) << id;
    }
    EXPECT_EQ(BuildDatabase(options, again), BuildDatabase(options, report)); // the same bytes again
    EXPECT_NE(BuildDatabase(options, again), plain);
    EXPECT_TRUE(ValidateDatabase(*db).empty());
}
