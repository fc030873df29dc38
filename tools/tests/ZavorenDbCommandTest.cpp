// Runs the zavoren-db executable as a user would and checks its output and exit codes.

#include "FileCharacterDatabase.h"
#include "Flattening.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
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
    r = RunTool("write --db " + Standard + " --char 80 --canvas 0,0,298,298 --ink " + std::string(ZAVOREN_TOOLS_TEST_DATA)
        + "/kanjidic2-sample.xml");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("not a JSON array of strokes"), std::string::npos) << r.output;
    r = RunTool("write --db " + Standard + " --char 80 --canvas 0,0,298,298 --ink " + ink + " --frame");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.output.find("write: unknown option --frame"), std::string::npos) << r.output;
}
