// Runs the zavoren-db executable as a user would and checks its output and exit codes.

#include "FileCharacterDatabase.h"
#include "Flattening.h"
#include "Lexicon.h"
#include "Utf8.h"
#include "WordsTest.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <sys/wait.h>

namespace {

struct Result {
    int exitCode = -1;
    std::string output; // standard output and standard error together
};

Result RunTool(const std::string& arguments)
{
    const std::string command = std::string(ZAVOREN_DB_TOOL) + " " + arguments + " 2>&1";
    Result r;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> buffer{};
    std::size_t n = 0;
    while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        r.output.append(buffer.data(), n);
    const int status = pclose(pipe);
    r.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return r;
}

const std::string Standard = ZAVOREN_STANDARD_DATABASE;

} // namespace

TEST(ZavorenDb, InfoValidatesTheStandardDatabase)
{
    const Result r = RunTool("info " + Standard);
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("categories: 8"), std::string::npos);
    EXPECT_NE(r.output.find("Grade 1: 80"), std::string::npos);
    EXPECT_NE(r.output.find("valid"), std::string::npos);
}

TEST(ZavorenDb, DumpJsonShowsCountsAndTexts)
{
    const Result r = RunTool("dump --json " + Standard);
    ASSERT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output.rfind("{\"counts\":{\"characters\":", 0), 0u);
    EXPECT_NE(r.output.find("\"name\":\"Grade 1\""), std::string::npos);
    EXPECT_NE(r.output.find("\"meaning\":\"water\""), std::string::npos);
    EXPECT_NE(r.output.find("\"type\":\"bezier\""), std::string::npos);
    const Result text = RunTool("dump " + Standard);
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_NE(text.output.find("category 0 \"Grade 1\" (80):"), std::string::npos);
}

TEST(ZavorenDb, ReaderFailuresReachStandardErrorWithTheirOwnText)
{
    const auto dir = std::filesystem::temp_directory_path() / ("zavoren-db-cli-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    // A header pointing at a dictionary beyond the end of the file.
    std::ofstream((dir / "broken").string(), std::ios::binary)
        << std::string("\xFF\xFF\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00", 12);
    Result r = RunTool("info " + (dir / "broken").string());
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("Unable to read dictionary"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("broken"), std::string::npos);
    r = RunTool("dump " + (dir / "missing").string());
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("Unable to open database"), std::string::npos);
    std::filesystem::remove_all(dir);
}

TEST(ZavorenDb, BadArgumentsGiveUsageAndNonZeroExit)
{
    EXPECT_EQ(RunTool("").exitCode, 2);
    EXPECT_EQ(RunTool("frobnicate").exitCode, 2);
    Result r = RunTool("build --kanjivg /nonexistent");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("--kanjidic"), std::string::npos);
    r = RunTool("build --kanjivg /nonexistent --kanjidic /nonexistent.xml --out /tmp/x --lang de");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("--lang"), std::string::npos);
    r = RunTool("build --kanjivg /nonexistent --kanjidic /nonexistent.xml --out /tmp/x");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("/nonexistent"), std::string::npos);
}

TEST(ZavorenDb, BuildWritesTheFileAndReportsLeftOutCharacters)
{
    const auto out = std::filesystem::temp_directory_path() / ("zavoren-db-sample-" + std::to_string(getpid()));
    const std::string data = ZAVOREN_TOOLS_TEST_DATA;
    const Result r = RunTool(
        "build --kanjivg " + data + "/kanjivg --kanjidic " + data + "/kanjidic2-sample.xml --out " + out.string());
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("Grade 1: 3 characters (1 left out: no KanjiVG strokes)"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("犬"), std::string::npos);
    EXPECT_EQ(RunTool("info " + out.string()).exitCode, 0);
    // Writing into a folder that does not exist fails cleanly.
    const Result bad = RunTool("build --kanjivg " + data + "/kanjivg --kanjidic " + data
        + "/kanjidic2-sample.xml --out /nonexistent-folder/database");
    EXPECT_NE(bad.exitCode, 0);
    EXPECT_NE(bad.output.find("cannot write"), std::string::npos);
    std::filesystem::remove(out);
}

TEST(ZavorenDb, BuildWithEdictWritesTheLexiconBesideAndWordsPrintsIt)
{
    const auto dir = std::filesystem::temp_directory_path() / ("zavoren-db-words-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    const std::string data = ZAVOREN_TOOLS_TEST_DATA;
    const std::string database = (dir / "database").string();
    const std::string lexicon = (dir / "lexicon").string();
    const std::string sources
        = "build --kanjivg " + data + "/kanjivg --kanjidic " + data + "/kanjidic2-sample.xml --out " + database;
    const Result r = RunTool(sources + " --edict " + data + "/edict-sample --kanjivg-parts " + data + "/kanjivg-parts");
    ASSERT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("wrote " + lexicon), std::string::npos) << r.output;
    ASSERT_TRUE(std::filesystem::exists(lexicon));

    // 水 is id 1: its parts, then its words, one per line.
    const Result words = RunTool("words --db " + database + " --lexicon " + lexicon + " --char 1");
    EXPECT_EQ(words.exitCode, 0) << words.output;
    EXPECT_EQ(words.output,
        "parts\t亅 フ\n"
        "水\tみず\twater (esp. cool, fresh water, e.g. drinking water); fluid (esp. in an animal tissue)\n"
        "水曜\tすいよう\tWednesday\n"
        "一水\tいっすい\ta narrow stream\n"
        "水一\tみずいち\t(in) water one (a word made for the tests)\n");
    // 一 has words but no parts: an empty parts line, so that the format never changes.
    EXPECT_EQ(RunTool("words --db " + database + " --lexicon " + lexicon + " --char 0")
                  .output.rfind("parts\t\n一\tいち\tone; best\n", 0),
        0u);

    // What can go wrong: a character that is not there, a damaged or foreign lexicon, a missing
    // option, the lexicon's options without --edict, a dictionary that is not there.
    const Result missing = RunTool("words --db " + database + " --lexicon " + lexicon + " --char 9");
    EXPECT_NE(missing.exitCode, 0);
    EXPECT_NE(missing.output.find("no character 9"), std::string::npos) << missing.output;
    {
        std::fstream file(lexicon, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(60);
        file.put('\x7F');
    }
    const Result damaged = RunTool("words --db " + database + " --lexicon " + lexicon + " --char 1");
    EXPECT_NE(damaged.exitCode, 0);
    EXPECT_NE(damaged.output.find(lexicon + ": The lexicon file is damaged"), std::string::npos) << damaged.output;
    const Result absent = RunTool("words --db " + database + " --lexicon " + (dir / "none").string() + " --char 1");
    EXPECT_NE(absent.exitCode, 0);
    EXPECT_NE(absent.output.find("Unable to open lexicon"), std::string::npos) << absent.output;
    ASSERT_EQ(
        RunTool(sources + " --edict " + data + "/edict-sample --kanjivg-parts " + data + "/kanjivg-parts").exitCode, 0);
    const Result other = RunTool("words --db " + Standard + " --lexicon " + lexicon + " --char 1");
    EXPECT_NE(other.exitCode, 0);
    EXPECT_NE(other.output.find("The lexicon was made for another database"), std::string::npos) << other.output;
    EXPECT_NE(RunTool("words --db " + database + " --char 1").output.find("words needs --lexicon"), std::string::npos);
    EXPECT_NE(RunTool(sources + " --lexicon " + lexicon).output.find("go with --edict"), std::string::npos);
    const Result noDictionary = RunTool(sources + " --edict " + (dir / "none").string());
    EXPECT_NE(noDictionary.exitCode, 0);
    EXPECT_NE(noDictionary.output.find("cannot read the dictionary"), std::string::npos) << noDictionary.output;
    std::filesystem::remove_all(dir);
}

TEST(ZavorenDb, ScorePrintsTheCheckersScore)
{
    const auto dir = std::filesystem::temp_directory_path() / ("zavoren-db-score-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    // Ink that follows stroke 0 of character 0, flattened onto a 300 x 300 canvas.
    FileCharacterDatabase db(Standard);
    const auto element = db.LoadElement(db.LoadCharacter(0)->ElementId());
    const Form& form = element->GetForm(0);
    const auto ink = (dir / "ink.json").string();
    {
        std::ofstream out(ink);
        out << "[";
        const std::vector<Point> points = FlattenStroke(form.GetStroke(0));
        for (std::size_t i = 0; i < points.size(); ++i)
            out << (i ? "," : "") << "[" << points[i].x * 300 / form.Width() << "," << points[i].y * 300 / form.Height()
                << "]";
        out << "]";
    }
    Result r = RunTool("score --db " + Standard + " --char 0 --canvas 0,0,300,300 --stroke 0 --ink " + ink);
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_EQ(r.output, "1\naccepted\n");
    // The same ink judged as a later stroke of the character: refused, and why.
    r = RunTool("score --db " + Standard + " --char 0 --canvas 0,0,300,300 --stroke 2 --ink " + ink);
    EXPECT_NE(r.output.substr(0, 2), "1\n");
    EXPECT_NE(r.output.find("\nWrong "), std::string::npos) << r.output;
    r = RunTool("score --db " + Standard + " --char 0 --canvas 0,0,109,109 --stroke 1 --ink " + ink);
    EXPECT_EQ(r.output, "-1\nWrong place: this stroke belongs further up.\n");
    // Past the last stroke.
    r = RunTool("score --db " + Standard + " --char 0 --canvas 0,0,300,300 --stroke 60 --ink " + ink);
    EXPECT_EQ(r.output, "-1\nThe character is already complete.\n");
    std::ofstream(dir / "bad.json") << "[[1,2],[3]";
    r = RunTool(
        "score --db " + Standard + " --char 0 --canvas 0,0,109,109 --stroke 0 --ink " + (dir / "bad.json").string());
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("bad.json"), std::string::npos);
    r = RunTool("score --db " + Standard + " --char 0 --canvas 0,0,109 --stroke 0 --ink " + ink);
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("--canvas"), std::string::npos);
    r = RunTool("score --db " + Standard + " --char 99999 --canvas 0,0,109,109 --stroke 0 --ink " + ink);
    EXPECT_NE(r.exitCode, 0);
    r = RunTool(
        "score --db " + Standard + " --char 0 --canvas 0,0,109,109 --stroke 0 --ink " + (dir / "none").string());
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("cannot read"), std::string::npos);
    r = RunTool("score --db " + Standard + " --char 65000 --canvas 0,0,109,109 --stroke 0 --ink " + ink);
    EXPECT_NE(r.output.find("Character id out of range"), std::string::npos);
    std::filesystem::remove_all(dir);
}

TEST(ZavorenDb, WriteJudgesStrokesOneAfterAnotherAsALessonDoes)
{
    // country-beside.json: 国 (character 80 of the standard database) written beside the model,
    // 20 px right and 14 % small on a 298 px canvas, its eight strokes in order.
    const std::string ink = std::string(ZAVOREN_TOOLS_TEST_DATA) + "/country-beside.json";
    const std::string args = "write --db " + Standard + " --char 80 --canvas 0,0,298,298 --ink " + ink;
    // The checker alone refuses the first stroke for its place; the rest then come too early.
    Result r = RunTool(args);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output,
        "Wrong place: this stroke belongs further left.\n"
        "Wrong order: that is stroke 2. Write stroke 1 first.\n"
        "Wrong order: that is stroke 3. Write stroke 1 first.\n"
        "Wrong order: that is stroke 4. Write stroke 1 first.\n"
        "Wrong order: that is stroke 5. Write stroke 1 first.\n"
        "Wrong order: that is stroke 6. Write stroke 1 first.\n"
        "Wrong order: that is stroke 7. Write stroke 1 first.\n"
        "Wrong order: that is stroke 8. Write stroke 1 first.\n");
    // In the learner's own character every stroke is accepted.
    r = RunTool(args + " --own-frame");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "accepted\naccepted\naccepted\naccepted\naccepted\naccepted\naccepted\naccepted\n");
    // A file that is not an array of strokes is refused with where it went wrong.
    r = RunTool("write --db " + Standard + " --char 80 --canvas 0,0,298,298 --ink "
        + std::string(ZAVOREN_TOOLS_TEST_DATA) + "/kanjidic2-sample.xml");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("not a JSON array of strokes"), std::string::npos) << r.output;
    r = RunTool("write --db " + Standard + " --char 80 --canvas 0,0,298,298 --ink " + ink + " --frame");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("write: unknown option --frame"), std::string::npos) << r.output;
}

namespace {

/// The strokes of form `form` of character `id` of the standard database, flattened onto a
/// 298 px canvas, as an ink file of the test's own.
std::string InkOfForm(std::uint16_t id, std::uint8_t form, const std::string& name)
{
    FileCharacterDatabase database(Standard);
    const auto element = database.LoadElement(database.LoadCharacter(id)->ElementId());
    const Form& glyph = element->GetForm(form);
    std::string json = "[";
    for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
        json += k ? ",[" : "[";
        const std::vector<Point> points = FlattenStroke(glyph.GetStroke(k));
        for (std::size_t i = 0; i < points.size(); ++i) {
            char pair[64];
            std::snprintf(pair, sizeof pair, "%s[%.2f,%.2f]", i ? "," : "", points[i].x * 298 / glyph.Width(),
                points[i].y * 298 / glyph.Height());
            json += pair;
        }
        json += "]";
    }
    json += "]";
    const std::string path = (std::filesystem::temp_directory_path() / name).string();
    std::ofstream(path) << json;
    return path;
}

} // namespace

TEST(ZavorenDb, WriteAcceptsAnotherStrokeOrderWithVariants)
{
    // 王 (id 70) in the order KanjiVG records as 0738b-VtLst: its vertical stroke last.
    const std::string ink = InkOfForm(70, 1, "zavoren-king-vertical-last.json");
    const std::string args = "write --db " + Standard + " --char 70 --canvas 0,0,298,298 --ink " + ink;
    // Today the middle horizontal, drawn second, is the standard order's third stroke.
    Result r = RunTool(args);
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output.substr(0, r.output.find('\n', r.output.find('\n') + 1) + 1),
        "accepted\nWrong order: that is stroke 3. Write stroke 2 first.\n");
    r = RunTool(args + " --variants");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "accepted\naccepted in another stroke order\naccepted\naccepted\n");
    // Steadied, exact ink is judged as it is.
    r = RunTool(args + " --variants --steady");
    EXPECT_EQ(r.output, "accepted\naccepted in another stroke order\naccepted\naccepted\n");
    // The standard order is judged alike with the other orders or without.
    const std::string standard = InkOfForm(70, 0, "zavoren-king.json");
    const std::string plain = "write --db " + Standard + " --char 70 --canvas 0,0,298,298 --ink " + standard;
    EXPECT_EQ(RunTool(plain).output, "accepted\naccepted\naccepted\naccepted\n");
    EXPECT_EQ(RunTool(plain + " --variants").output, RunTool(plain).output);
    std::filesystem::remove(ink);
    std::filesystem::remove(standard);
}

TEST(ZavorenDb, WordsTestTakesFiveWordsOfLearnedKanjiForEverySeed)
{
    // A learner who has learned all of Grade 1 and Grade 2; a words test of Grade 2.
    FileCharacterDatabase database(Standard);
    database.Preload(nullptr);
    const Lexicon lexicon(ZAVOREN_STANDARD_LEXICON);
    std::set<std::uint16_t> learned, grade2;
    for (std::uint16_t category : {0, 1}) {
        const auto members = database.LoadCategory(category);
        for (std::uint16_t id : members->Characters()) {
            learned.insert(id);
            if (category == 1)
                grade2.insert(id);
        }
    }
    std::string list;
    for (std::uint16_t id : learned)
        list += (list.empty() ? "" : ",") + std::to_string(id);
    const std::string base = "words-test --db " + Standard + " --lexicon " + ZAVOREN_STANDARD_LEXICON + " --learned "
        + list + " --category 1 --seed ";
    std::set<std::string> seen;
    for (int seed = 1; seed <= 100; ++seed) {
        const Result r = RunTool(base + std::to_string(seed));
        ASSERT_EQ(r.exitCode, 0) << r.output;
        std::istringstream lines(r.output);
        std::set<std::string> writings;
        for (std::string line; std::getline(lines, line);) {
            const std::string writing = line.substr(0, line.find('\t'));
            ASSERT_EQ(std::count(line.begin(), line.end(), '\t'), 2) << line;
            EXPECT_TRUE(writings.insert(writing).second) << "twice: " << writing;
            bool fromGrade2 = false;
            for (char32_t c : CodePointsOf(writing)) {
                if (WordsTest::IsKana(c))
                    continue;
                const std::uint16_t id = lexicon.CharacterOf(c);
                EXPECT_TRUE(learned.count(id)) << writing << " has a character not learned";
                fromGrade2 |= grade2.count(id) > 0;
            }
            EXPECT_TRUE(fromGrade2) << writing;
            seen.insert(writing);
        }
        EXPECT_EQ(writings.size(), 5u) << "seed " << seed;
    }
    // The seeds draw many different words.
    EXPECT_GT(seen.size(), 200u);

    const Result unknown = RunTool(base.substr(0, base.find(" --category")) + " --category 99");
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_NE(unknown.output.find("no category 99"), std::string::npos) << unknown.output;
    const Result bad = RunTool("words-test --db " + Standard + " --lexicon " + ZAVOREN_STANDARD_LEXICON
        + " --learned 1,two --category 1");
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_NE(bad.output.find("--learned must be character ids"), std::string::npos) << bad.output;
}

TEST(ZavorenDb, FindListsCharactersByTextAndByRecordedInk)
{
    const std::string db = "find --db " + Standard + " --lexicon " + ZAVOREN_STANDARD_LEXICON;
    // みず: 水 first, each line ID, character, ON, KUN, meaning.
    Result r = RunTool(db + " --text みず");
    ASSERT_EQ(r.exitCode, 0) << r.output;
    std::istringstream lines(r.output);
    std::string first;
    std::getline(lines, first);
    EXPECT_EQ(first, "43\t水\tスイ\tみず、みず-\twater");
    // 水 written freehand (a recorded ink file), and 国 written beside the model: first of ten.
    r = RunTool(db + " --ink " + ZAVOREN_TOOLS_TEST_DATA + "/water-freehand.json");
    ASSERT_EQ(r.exitCode, 0) << r.output;
    EXPECT_EQ(r.output.substr(0, r.output.find('\t')), "43");
    EXPECT_EQ(std::count(r.output.begin(), r.output.end(), '\n'), 10);
    r = RunTool(db + " --ink " + ZAVOREN_TOOLS_TEST_DATA + "/country-beside.json");
    EXPECT_EQ(r.output.substr(0, r.output.find('\t')), "80") << r.output;
    // Without the model (a model file that is not one), the tool says so.
    r = RunTool(db + " --ink " + ZAVOREN_TOOLS_TEST_DATA + "/water-freehand.json --model " + Standard);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find(Standard + ": "), std::string::npos) << r.output;
    // Neither or both of --text and --ink; an ink file that is not one.
    r = RunTool(db);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("find needs either --text or --ink"), std::string::npos) << r.output;
    r = RunTool(db + " --text a --ink x.json");
    EXPECT_EQ(r.exitCode, 1);
    r = RunTool(db + " --ink " + Standard);
    EXPECT_EQ(r.exitCode, 1);
    // An empty result for a text nothing matches.
    r = RunTool(db + " --text zzzqx");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_TRUE(r.output.empty()) << r.output;
}
