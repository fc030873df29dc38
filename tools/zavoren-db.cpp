// zavoren-db: makes and inspects Zavoren! character databases.

#include "DatabaseBuilder.h"
#include "DatabaseInspector.h"
#include "DatabaseKey.h"
#include "DatabaseLoadException.h"
#include "Edict.h"
#include "FileCharacterDatabase.h"
#include "InkFile.h"
#include "InkRecognizer.h"
#include "InkSteadier.h"
#include "Lexicon.h"
#include "StrokeChecker.h"
#include "TextSearch.h"
#include "StrokeVerdict.h"
#include "WordsTest.h"
#include "WritingQuiz.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

const char* const Usage
    = "usage:\n"
      "  zavoren-db build --kanjivg DIR --kanjidic FILE --out PATH [--lang en|fr|es|pt] [--set standard|all]\n"
      "                   [--ids TABLE] [--write-ids TABLE] [--kanjivg-orders DIR]\n"
      "                   [--edict FILE [--kanjivg-parts DIR] [--lexicon PATH]]\n"
      "      with --edict also writes the lexicon (words and parts), by default \"lexicon\" beside PATH;\n"
      "      the parts come from the full KanjiVG SVGs in --kanjivg-parts (default: --kanjivg);\n"
      "      --ids gives each character the id the table keeps for it (a new one: the next free id),\n"
      "      --write-ids writes the ids of this build as a table;\n"
      "      --kanjivg-orders adds the other stroke orders of KanjiVG's full drawings (HEX-VtLst.svg...)\n"
      "      to each character's glyph, after the standard one\n"
      "  zavoren-db dump [--json] PATH\n"
      "  zavoren-db info PATH\n"
      "  zavoren-db score --db PATH --char ID --canvas X,Y,W,H --stroke K --ink FILE\n"
      "      prints the checker's score, then its verdict (\"accepted\" or why it was refused)\n"
      "  zavoren-db write --db PATH --char ID --canvas X,Y,W,H --ink FILE [--own-frame] [--variants] [--steady]\n"
      "      judges a JSON array of strokes one after another as a lesson does, one line each;\n"
      "      with --own-frame each stroke's place is judged in the learner's own character, with\n"
      "      --variants the other stroke orders are accepted, with --steady each stroke is steadied first\n"
      "  zavoren-db words --db PATH --lexicon PATH --char ID\n"
      "      prints the character's parts (\"parts<TAB>...\"), then its words (writing<TAB>reading<TAB>meaning)\n"
      "  zavoren-db words-test --db PATH --lexicon PATH --learned ID,ID,... --category N [--seed S]\n"
      "      prints the words (writing<TAB>reading<TAB>meaning) a words test of category N takes for a\n"
      "      learner who has learned those characters, drawn with seed S (default 1)\n"
      "  zavoren-db find --db PATH (--text TEXT | --ink FILE) [--model PATH] [--lexicon PATH]\n"
      "      prints the characters found (ID<TAB>character<TAB>ON<TAB>KUN<TAB>meaning), best first: every\n"
      "      match of the text (the character, a reading in kana, a word of the meaning), or the ten most\n"
      "      like the ink (strokes on the 298 px canvas, as write takes them); the lexicon beside the\n"
      "      database by default, Debian's Japanese Zinnia model by default\n";

int Fail(const std::string& message)
{
    std::cerr << "zavoren-db: " << message << '\n';
    return 1;
}

/// Splits "--name value" pairs; a flag without a value maps to "".
bool ParseOptions(const std::vector<std::string>& args, const std::vector<std::string>& withValue,
    std::map<std::string, std::string>& options, std::vector<std::string>& positional, std::string& error)
{
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg.rfind("--", 0) != 0) {
            positional.push_back(arg);
            continue;
        }
        if (std::find(withValue.begin(), withValue.end(), arg) != withValue.end()) {
            if (i + 1 >= args.size()) {
                error = arg + " needs a value";
                return false;
            }
            options[arg] = args[++i];
        } else {
            options[arg] = "";
        }
    }
    return true;
}

/// Writes the file through a temporary beside it, so that it is whole or as it was; what went
/// wrong, or nothing.
std::string WriteWhole(const std::string& path, const std::vector<std::uint8_t>& bytes)
{
    const std::string temporary = path + ".tmp";
    {
        std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
        if (!file)
            return path + ": cannot write";
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file) {
            std::filesystem::remove(temporary);
            return path + ": cannot write (disk full?)";
        }
    }
    std::error_code ec;
    std::filesystem::rename(temporary, path, ec);
    if (ec) {
        std::filesystem::remove(temporary);
        return path + ": cannot write (" + ec.message() + ")";
    }
    return {};
}

int Build(const std::vector<std::string>& args)
{
    std::map<std::string, std::string> o;
    std::vector<std::string> positional;
    std::string error;
    const std::vector<std::string> names = {"--kanjivg", "--kanjidic", "--out", "--lang", "--set", "--edict",
        "--kanjivg-parts", "--lexicon", "--ids", "--write-ids", "--kanjivg-orders"};
    if (!ParseOptions(args, names, o, positional, error))
        return Fail(error);
    for (const auto& [name, value] : o)
        if (std::find(names.begin(), names.end(), name) == names.end())
            return Fail("build: unknown option " + name);
    if (!o.count("--edict") && (o.count("--kanjivg-parts") || o.count("--lexicon")))
        return Fail("--kanjivg-parts and --lexicon go with --edict");
    if (!positional.empty())
        return Fail("build: unexpected argument " + positional.front());
    if (!o.count("--kanjivg") || !o.count("--kanjidic") || !o.count("--out"))
        return Fail(std::string("build needs --kanjivg, --kanjidic and --out\n") + Usage);
    BuildOptions options;
    options.kanjivgDir = o["--kanjivg"];
    options.kanjidicPath = o["--kanjidic"];
    if (o.count("--lang")) {
        options.language = o["--lang"];
        if (options.language != "en" && options.language != "fr" && options.language != "es"
            && options.language != "pt")
            return Fail("--lang must be en, fr, es or pt");
    }
    if (o.count("--set")) {
        if (o["--set"] != "standard" && o["--set"] != "all")
            return Fail("--set must be standard or all");
        options.allKanji = o["--set"] == "all";
    }
    BuildReport report;
    std::vector<std::uint8_t> bytes;
    try {
        if (o.count("--ids"))
            options.ids = ReadCharacterIds(o["--ids"]);
        if (o.count("--kanjivg-orders"))
            options.ordersDir = o["--kanjivg-orders"];
        bytes = BuildDatabase(options, report);
    } catch (const BuildError& e) {
        return Fail(e.what());
    }
    // Read before anything is written, so that a bad dictionary leaves both files as they were.
    std::vector<std::uint8_t> lexicon;
    if (o.count("--edict")) {
        try {
            const std::vector<EdictEntry> entries = ReadEdict(o["--edict"]);
            lexicon = BuildLexicon(report.built, report.databaseKey, entries,
                o.count("--kanjivg-parts") ? o["--kanjivg-parts"] : o["--kanjivg"]);
        } catch (const EdictError& e) {
            return Fail(e.what());
        } catch (const BuildError& e) {
            return Fail(e.what());
        }
    }
    const std::string out = o["--out"];
    if (const std::string wrong = WriteWhole(out, bytes); !wrong.empty())
        return Fail(wrong);
    std::string lexiconPath;
    if (o.count("--edict")) {
        lexiconPath
            = o.count("--lexicon") ? o["--lexicon"] : (std::filesystem::path(out).parent_path() / "lexicon").string();
        if (const std::string wrong = WriteWhole(lexiconPath, lexicon); !wrong.empty())
            return Fail(wrong);
    }
    for (const auto& category : report.categories) {
        std::cout << category.name << ": " << category.characters << " characters";
        if (category.withoutStrokes)
            std::cout << " (" << category.withoutStrokes << " left out: no KanjiVG strokes)";
        std::cout << '\n';
    }
    std::cout << "characters: " << report.characters << ", left out: " << report.leftOut.size();
    if (!report.leftOut.empty()) {
        std::cout << " (";
        for (std::size_t i = 0; i < report.leftOut.size(); ++i)
            std::cout << (i ? " " : "") << Utf8(report.leftOut[i]);
        std::cout << ")";
    }
    if (o.count("--kanjivg-orders")) {
        std::cout << "\ncharacters with other stroke orders: " << report.withOtherOrders << " (" << report.otherOrders
                  << " orders)";
        if (!report.ordersLeftOut.empty())
            std::cout << "; left out for another stroke count: " << report.ordersLeftOut.size();
    }
    std::size_t kept = 0;
    for (char32_t codePoint : report.ids)
        kept += codePoint == 0;
    const std::size_t tableSize = options.ids.codePoints.size();
    if (o.count("--ids") && report.ids.size() > tableSize)
        std::cout << "\n"
                  << report.ids.size() - tableSize << " characters not in " << o["--ids"]
                  << " were given new ids: keep them with --write-ids";
    if (kept)
        std::cout << "\n" << kept << " ids kept for characters no longer in the data";
    if (o.count("--write-ids")) {
        try {
            WriteCharacterIds(o["--write-ids"], report.ids);
        } catch (const BuildError& e) {
            return Fail(e.what());
        }
    }
    std::cout << "\nwrote " << out << " (" << bytes.size() << " bytes)\n";
    if (!lexiconPath.empty())
        std::cout << "wrote " << lexiconPath << " (" << lexicon.size() << " bytes)\n";
    return 0;
}

int Dump(const std::vector<std::string>& args)
{
    std::map<std::string, std::string> o;
    std::vector<std::string> positional;
    std::string error;
    ParseOptions(args, {}, o, positional, error);
    for (const auto& [name, value] : o)
        if (name != "--json")
            return Fail("dump: unknown option " + name);
    if (positional.size() != 1)
        return Fail(std::string("dump needs one database path\n") + Usage);
    try {
        FileCharacterDatabase database(positional[0]);
        DumpDatabase(database, std::cout, o.count("--json") > 0);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return Fail(positional[0] + ": " + e.what());
    } catch (const std::out_of_range&) {
        return Fail(positional[0] + ": a composed form names a form that does not exist");
    }
    return 0;
}

int Info(const std::vector<std::string>& args)
{
    if (args.size() != 1 || args[0].rfind("--", 0) == 0)
        return Fail(std::string("info needs one database path\n") + Usage);
    const std::string& path = args[0];
    try {
        FileCharacterDatabase database(path);
        std::error_code ec;
        const auto size = std::filesystem::file_size(path, ec);
        std::cout << "file: " << path << "\nsize: " << (ec ? 0 : size) << " bytes\n"
                  << "characters: " << database.CharacterCount() << "\nelements: " << database.ElementCount()
                  << "\ncategories: " << database.CategoryCount() << '\n';
        database.Preload(nullptr);
        std::size_t withOrders = 0, orders = 0;
        for (unsigned id = 0; id < database.CharacterCount(); ++id) {
            const auto cid = static_cast<std::uint16_t>(id);
            if (!database.CharacterExists(cid))
                continue;
            const auto element = database.LoadElement(database.LoadCharacter(cid)->ElementId());
            if (element->FormCount() > 1) {
                ++withOrders;
                orders += element->FormCount() - 1u;
            }
        }
        std::cout << "characters with other stroke orders: " << withOrders << " (" << orders << " orders)\n";
        for (unsigned id = 0; id < database.CategoryCount(); ++id) {
            const auto category = database.LoadCategory(static_cast<std::uint16_t>(id));
            std::cout << "  " << id << " " << (category->Name() ? category->Name() : "") << ": "
                      << category->CharacterCount() << '\n';
        }
        const std::vector<std::string> problems = ValidateDatabase(database);
        for (const std::string& p : problems)
            std::cout << "problem: " << p << '\n';
        if (!problems.empty()) {
            std::cerr << "zavoren-db: " << path << ": " << problems.size() << " problem(s) found\n";
            return 1;
        }
        std::cout << "valid\n";
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return Fail(path + ": " + e.what());
    } catch (const std::out_of_range&) {
        return Fail(path + ": a composed form names a form that does not exist");
    }
    return 0;
}

bool ParseNumber(const std::string& text, long min, long max, long& value)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    errno = 0;
    value = std::strtol(text.c_str(), &end, 10);
    return errno == 0 && *end == '\0' && value >= min && value <= max;
}

/// What `score` and `write` both take: a character of a database laid out on a canvas.
struct CharacterOnCanvas {
    std::string db;
    std::uint16_t id = 0;
    CanvasRect canvas;
    std::string ink;
    long stroke = 0;
};

/// Reads the options `names` of `command` (all required except `flags`), --db, --char and
/// --canvas among them; what is wrong, or nothing.
std::string ReadCharacterOptions(const char* command, const std::vector<std::string>& args,
    const std::vector<std::string>& names, const std::vector<std::string>& flags, CharacterOnCanvas& out,
    std::map<std::string, std::string>& o)
{
    std::vector<std::string> positional;
    std::string error;
    if (!ParseOptions(args, names, o, positional, error))
        return error;
    for (const auto& [name, value] : o)
        if (std::find(names.begin(), names.end(), name) == names.end()
            && std::find(flags.begin(), flags.end(), name) == flags.end())
            return std::string(command) + ": unknown option " + name;
    for (const std::string& name : names)
        if (!o.count(name))
            return std::string(command) + " needs " + name + "\n" + Usage;
    long id = 0;
    if (!ParseNumber(o["--char"], 0, 0xFFFF, id))
        return "--char must be a character id from 0 to 65535";
    if (o.count("--stroke") && !ParseNumber(o["--stroke"], 0, 0xFFFF, out.stroke))
        return "--stroke must be a stroke index from 0 to 65535";
    long rect[4];
    std::stringstream parts(o["--canvas"]);
    std::string part;
    int n = 0;
    while (std::getline(parts, part, ',')) {
        if (n == 4 || !ParseNumber(part, 0, 0xFFFF, rect[n]))
            return "--canvas must be X,Y,W,H in pixels (0 to 65535)";
        ++n;
    }
    if (n != 4 || rect[2] == 0 || rect[3] == 0)
        return "--canvas must be X,Y,W,H in pixels with a width and height above 0";
    out.db = o["--db"];
    out.id = static_cast<std::uint16_t>(id);
    out.canvas = CanvasRect{static_cast<std::uint16_t>(rect[0]), static_cast<std::uint16_t>(rect[1]),
        static_cast<std::uint16_t>(rect[2]), static_cast<std::uint16_t>(rect[3])};
    out.ink = o["--ink"];
    return {};
}

/// The verdict as `score` and `write` print it: "accepted", or why the stroke was refused.
std::string VerdictLine(const StrokeVerdict& verdict)
{
    if (verdict.kind == StrokeVerdict::Kind::Accepted)
        return verdict.otherOrder ? "accepted in another stroke order" : "accepted";
    return VerdictText(verdict);
}

/// Opens the database and hands `use` the character's glyph element; the exit code, after
/// saying what went wrong.
int WithGlyph(const CharacterOnCanvas& c, const std::function<void(std::unique_ptr<Element>)>& use)
{
    try {
        FileCharacterDatabase database(c.db);
        database.Preload(nullptr);
        use(database.LoadElement(database.LoadCharacter(c.id)->ElementId()));
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return Fail(c.db + ": " + e.what());
    } catch (const std::out_of_range&) {
        return Fail(c.db + ": the character's glyph has no form");
    }
    return 0;
}

int Score(const std::vector<std::string>& args)
{
    CharacterOnCanvas c;
    std::map<std::string, std::string> o;
    if (const std::string wrong
        = ReadCharacterOptions("score", args, {"--db", "--char", "--canvas", "--stroke", "--ink"}, {}, c, o);
        !wrong.empty())
        return Fail(wrong);
    StrokePath ink;
    try {
        ink = ReadInkFile(c.ink);
    } catch (const InkFileError& e) {
        return Fail(e.what());
    }
    return WithGlyph(c, [&](std::unique_ptr<Element> element) {
        const StrokeChecker checker(element->GetForm(0), c.canvas, StrokeChecker::PageSampleCount);
        const auto index = static_cast<std::uint16_t>(c.stroke);
        std::cout << checker.Score(ink, index) << '\n';
        // The verdict a learner would read, on a line of its own ("accepted" when it is).
        std::cout << VerdictLine(JudgeStroke(checker, ink, index)) << '\n';
    });
}

int Write(const std::vector<std::string>& args)
{
    CharacterOnCanvas c;
    std::map<std::string, std::string> o;
    if (const std::string wrong = ReadCharacterOptions(
            "write", args, {"--db", "--char", "--canvas", "--ink"}, {"--own-frame", "--variants", "--steady"}, c, o);
        !wrong.empty())
        return Fail(wrong);
    std::vector<StrokePath> strokes;
    try {
        strokes = ReadInkStrokesFile(c.ink);
    } catch (const InkFileError& e) {
        return Fail(e.what());
    }
    return WithGlyph(c, [&](std::unique_ptr<Element> element) {
        // One stroke after another, as the lesson page judges them: a kept stroke joins the
        // learner's character and the next stroke is expected; a refused one is wiped.
        WritingQuiz quiz;
        quiz.SetOwnFrame(o.count("--own-frame") > 0);
        quiz.SetOtherOrders(o.count("--variants") > 0);
        quiz.Start(std::move(element), c.canvas);
        for (const StrokePath& drawn : strokes) {
            // Steadied as the page steadies a stroke with "Steady my ink" on.
            const StrokePath ink = o.count("--steady") ? InkSteadier::Steady(drawn) : drawn;
            const StrokeVerdict verdict = quiz.Judge(ink);
            std::cout << VerdictLine(verdict) << '\n';
            if (verdict.kind == StrokeVerdict::Kind::Accepted)
                quiz.StrokeKept(ink);
            else
                quiz.StrokeRefused();
        }
    });
}

/// Reads the options of `command`: each of `names` takes a value, those of `required` must be
/// given, nothing else may be. An empty string, or the message to fail with.
std::string CommandOptions(const std::string& command, const std::vector<std::string>& args,
    const std::vector<std::string>& names, const std::vector<std::string>& required,
    std::map<std::string, std::string>& o)
{
    std::vector<std::string> positional;
    std::string error;
    if (!ParseOptions(args, names, o, positional, error))
        return error;
    for (const auto& [name, value] : o)
        if (std::find(names.begin(), names.end(), name) == names.end())
            return command + ": unknown option " + name;
    if (!positional.empty())
        return command + ": unexpected argument " + positional.front();
    for (const std::string& name : required)
        if (!o.count(name))
            return command + " needs " + name + "\n" + Usage;
    return {};
}

/// Opens the database and the lexicon made for it and hands them to `use`; their errors name
/// the file.
int WithLexicon(const std::string& databasePath, const std::string& lexiconPath,
    const std::function<int(FileCharacterDatabase&, const Lexicon&)>& use)
{
    try {
        FileCharacterDatabase database(databasePath);
        database.Preload(nullptr);
        try {
            const Lexicon lexicon(lexiconPath);
            lexicon.CheckMadeFor(DatabaseKey::Of(database));
            return use(database, lexicon);
        } catch (const ZavorenCommon::DatabaseLoadException& e) {
            return Fail(lexiconPath + ": " + e.what());
        }
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return Fail(databasePath + ": " + e.what());
    }
}

int Words(const std::vector<std::string>& args)
{
    std::map<std::string, std::string> o;
    const std::vector<std::string> names = {"--db", "--lexicon", "--char"};
    if (const std::string error = CommandOptions("words", args, names, names, o); !error.empty())
        return Fail(error);
    long id = 0;
    if (!ParseNumber(o["--char"], 0, 0xFFFF, id))
        return Fail("--char must be a character id from 0 to 65535");
    return WithLexicon(o["--db"], o["--lexicon"], [&](FileCharacterDatabase& database, const Lexicon& lexicon) {
        if (!database.CharacterExists(static_cast<std::uint16_t>(id)))
            return Fail(o["--db"] + ": no character " + std::to_string(id));
        std::cout << "parts\t";
        const std::vector<LexiconPart> parts = lexicon.Parts(static_cast<std::uint16_t>(id));
        for (std::size_t i = 0; i < parts.size(); ++i)
            std::cout << (i ? " " : "") << Utf8(parts[i].codePoint);
        std::cout << '\n';
        for (const LexiconWord& word : lexicon.Words(static_cast<std::uint16_t>(id)))
            std::cout << word.writing << '\t' << word.reading << '\t' << word.meaning << '\n';
        return 0;
    });
}

int WordsTestCommand(const std::vector<std::string>& args)
{
    std::map<std::string, std::string> o;
    if (const std::string error = CommandOptions("words-test", args, {"--db", "--lexicon", "--learned", "--category", "--seed"},
            {"--db", "--lexicon", "--learned", "--category"}, o);
        !error.empty())
        return Fail(error);
    long category = 0, seed = 1;
    if (!ParseNumber(o["--category"], 0, 0xFFFF, category))
        return Fail("--category must be a category id from 0 to 65535");
    if (o.count("--seed") && !ParseNumber(o["--seed"], 0, 0xFFFFFFFFL, seed))
        return Fail("--seed must be a number from 0 to 4294967295");
    std::vector<std::uint16_t> learned;
    std::stringstream list(o["--learned"]);
    for (std::string item; std::getline(list, item, ',');) {
        long id = 0;
        if (!ParseNumber(item, 0, 0xFFFF, id))
            return Fail("--learned must be character ids from 0 to 65535, separated by commas");
        learned.push_back(static_cast<std::uint16_t>(id));
    }
    return WithLexicon(o["--db"], o["--lexicon"], [&](FileCharacterDatabase& database, const Lexicon& lexicon) {
        if (category >= database.CategoryCount())
            return Fail(o["--db"] + ": no category " + std::to_string(category));
        std::sort(learned.begin(), learned.end());
        const auto isLearned = [&](std::uint16_t id) { return std::binary_search(learned.begin(), learned.end(), id); };
        // The category's learned characters in its teaching order.
        std::vector<std::uint16_t> categoryLearned;
        const auto members = database.LoadCategory(static_cast<std::uint16_t>(category));
        for (std::uint16_t id : members->Characters())
            if (isLearned(id))
                categoryLearned.push_back(id);
        Random15 random(static_cast<std::uint32_t>(seed));
        for (const WordQuestion& word :
            WordsTest::Choose(WordsTest::Eligible(lexicon, categoryLearned, isLearned), random, {}))
            std::cout << word.writing << '\t' << word.reading << '\t' << word.meaning << '\n';
        return 0;
    });
}

int Find(const std::vector<std::string>& args)
{
    std::map<std::string, std::string> o;
    if (const std::string error
        = CommandOptions("find", args, {"--db", "--text", "--ink", "--model", "--lexicon"}, {"--db"}, o);
        !error.empty())
        return Fail(error);
    if (o.count("--text") == o.count("--ink"))
        return Fail("find needs either --text or --ink\n" + std::string(Usage));
    std::vector<StrokePath> strokes;
    if (o.count("--ink")) {
        try {
            strokes = ReadInkStrokesFile(o["--ink"]);
        } catch (const InkFileError& e) {
            return Fail(e.what());
        }
    }
    const std::string lexiconPath = o.count("--lexicon")
        ? o["--lexicon"]
        : (std::filesystem::path(o["--db"]).parent_path() / "lexicon").string();
    return WithLexicon(o["--db"], lexiconPath, [&](FileCharacterDatabase& database, const Lexicon& lexicon) {
        std::vector<std::uint16_t> found;
        if (o.count("--text")) {
            for (const TextSearch::Result& r : TextSearch(database, &lexicon).Find(o["--text"]))
                found.push_back(r.id);
        } else {
            InkRecognizer recognizer(database, lexicon);
            std::string error;
            const std::string model = o.count("--model") ? o["--model"] : InkRecognizer::DefaultModel;
            if (!recognizer.LoadModel(model, error))
                return Fail(model + ": " + error);
            for (const InkRecognizer::Candidate& c : recognizer.Recognize(strokes, 10))
                found.push_back(c.id);
        }
        for (std::uint16_t id : found) {
            const auto character = database.LoadCharacter(id);
            auto text = [](const char* t) { return std::string(t ? t : ""); };
            std::cout << id << '\t' << Utf8(lexicon.CodePoint(id)) << '\t' << text(character->OnReading()) << '\t'
                      << text(character->KunReading()) << '\t' << text(character->Meaning()) << '\n';
        }
        return 0;
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << Usage;
        return 2;
    }
    const std::string command = argv[1];
    const std::vector<std::string> args(argv + 2, argv + argc);
    if (command == "build")
        return Build(args);
    if (command == "dump")
        return Dump(args);
    if (command == "info")
        return Info(args);
    if (command == "score")
        return Score(args);
    if (command == "write")
        return Write(args);
    if (command == "words")
        return Words(args);
    if (command == "words-test")
        return WordsTestCommand(args);
    if (command == "find")
        return Find(args);
    if (command == "--help" || command == "-h" || command == "help") {
        std::cout << Usage;
        return 0;
    }
    std::cerr << "zavoren-db: unknown command " << command << '\n' << Usage;
    return 2;
}
