// zavoren-sheet: writes a practice sheet of some characters as a PDF, without a display, for
// teachers who make many sheets. The same pages as the program's "Print practice sheet…".
//   zavoren-sheet --db PATH --chars ID,ID,... --out FILE.pdf [--paper a4|letter] [--boxes N]
//                 [--trace N] [--lexicon PATH] [--no-order]

#include "DatabaseKey.h"
#include "DatabaseLoadException.h"
#include "FileCharacterDatabase.h"
#include "Lexicon.h"
#include "PracticeSheet.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

const char* const Usage
    = "usage: zavoren-sheet --db PATH --chars ID,ID,... --out FILE.pdf [--paper a4|letter] [--boxes N]\n"
      "                     [--trace N] [--lexicon PATH] [--no-order]\n"
      "  writes a practice sheet of the characters (database ids) as a PDF: each character large with\n"
      "  its readings and meaning (and two common words from --lexicon), its stroke order, and a row\n"
      "  of N practice boxes (6 to 12, default 8), the first --trace (1 to 6, default 3) to trace\n";

int Fail(const std::string& message)
{
    std::fprintf(stderr, "zavoren-sheet: %s\n", message.c_str());
    return 1;
}

std::optional<long> Number(const std::string& text, long min, long max)
{
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos || text.size() > 9)
        return std::nullopt;
    const long value = std::stol(text);
    if (value < min || value > max)
        return std::nullopt;
    return value;
}

} // namespace

int main(int argc, char** argv)
{
    std::map<std::string, std::string> o;
    bool order = true;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            std::fputs(Usage, stdout);
            return 0;
        }
        if (arg == "--no-order") {
            order = false;
            continue;
        }
        static const char* const withValue[] = {"--db", "--chars", "--out", "--paper", "--boxes", "--trace", "--lexicon"};
        bool known = false;
        for (const char* name : withValue)
            known |= arg == name;
        if (!known)
            return Fail("unknown argument " + arg + "\n" + Usage);
        if (i + 1 >= argc)
            return Fail(arg + " needs a value");
        o[arg] = argv[++i];
    }
    for (const char* required : {"--db", "--chars", "--out"})
        if (!o.count(required))
            return Fail(std::string("needs ") + required + "\n" + Usage);
    SheetOptions options;
    options.strokeOrder = order;
    options.words = o.count("--lexicon") > 0;
    if (o.count("--paper")) {
        if (o["--paper"] != "a4" && o["--paper"] != "letter")
            return Fail("--paper must be a4 or letter");
        options.paper = o["--paper"] == "letter" ? Paper::Letter : Paper::A4;
    }
    if (o.count("--boxes")) {
        const auto boxes = Number(o["--boxes"], SheetOptions::MinimumBoxes, SheetOptions::MaximumBoxes);
        if (!boxes)
            return Fail("--boxes must be a number from 6 to 12");
        options.boxesPerRow = static_cast<int>(*boxes);
    }
    if (o.count("--trace")) {
        const auto trace = Number(o["--trace"], SheetOptions::MinimumTrace, SheetOptions::MaximumTrace);
        if (!trace)
            return Fail("--trace must be a number from 1 to 6");
        options.traceBoxes = static_cast<int>(*trace);
    }
    std::vector<std::uint16_t> ids;
    std::stringstream list(o["--chars"]);
    for (std::string item; std::getline(list, item, ',');) {
        const auto id = Number(item, 0, 0xFFFF);
        if (!id)
            return Fail("--chars must be character ids from 0 to 65535, separated by commas");
        ids.push_back(static_cast<std::uint16_t>(*id));
    }
    if (ids.empty())
        return Fail("--chars names no character");

    // No window is ever shown: the pages are drawn off screen, with or without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    try {
        FileCharacterDatabase database(o["--db"]);
        database.Preload(nullptr);
        std::optional<Lexicon> lexicon;
        if (o.count("--lexicon")) {
            try {
                lexicon.emplace(o["--lexicon"]);
                lexicon->CheckMadeFor(DatabaseKey::Of(database));
            } catch (const ZavorenCommon::DatabaseLoadException& e) {
                return Fail(o["--lexicon"] + ": " + e.what());
            }
        }
        QString error;
        std::vector<SheetCharacter> characters
            = PracticeSheet::Load(database, lexicon ? &*lexicon : nullptr, ids, error);
        if (characters.empty())
            return Fail(o["--db"] + ": " + error.toStdString());
        const PracticeSheet sheet(std::move(characters), options);
        if (!sheet.WritePdf(QString::fromLocal8Bit(o["--out"].c_str()), error))
            return Fail("cannot write " + o["--out"] + ": " + error.toStdString());
        std::printf("%s: %zu characters on %zu pages\n", o["--out"].c_str(), sheet.Characters().size(),
            sheet.Pages().size());
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        return Fail(o["--db"] + ": " + e.what());
    }
    return 0;
}
