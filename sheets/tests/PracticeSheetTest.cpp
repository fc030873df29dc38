// A practice sheet drawn and written: the traced boxes hold grey ink where the model's strokes
// are and the empty boxes none, the PDF's pages (counted and measured by poppler's pdfinfo) and
// its embedded font, and zavoren-sheet's output and errors.

#include "FileCharacterDatabase.h"
#include "Flattening.h"
#include "PracticeSheet.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <regex>
#include <sys/wait.h>

namespace {

CharacterDatabase& Database()
{
    static FileCharacterDatabase database(ZAVOREN_STANDARD_DATABASE);
    static const bool loaded = (database.Preload(nullptr), true);
    (void)loaded;
    return database;
}

std::vector<std::uint16_t> Grade1()
{
    const auto category = Database().LoadCategory(0);
    return category->Characters();
}

struct Result {
    int exitCode = -1;
    std::string output;
};

Result RunCommand(const std::string& command)
{
    Result r;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    std::array<char, 4096> buffer{};
    for (std::size_t n; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
        r.output.append(buffer.data(), n);
    const int status = pclose(pipe);
    r.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return r;
}

/// pdfinfo's pages and page size in points.
struct PdfInfo {
    int pages = 0;
    double width = 0;
    double height = 0;
};
PdfInfo Info(const QString& path)
{
    const Result r = RunCommand("pdfinfo '" + path.toStdString() + "'");
    EXPECT_EQ(r.exitCode, 0) << "pdfinfo (poppler-utils) reads the file: " << r.output;
    PdfInfo info;
    std::smatch m;
    if (std::regex_search(r.output, m, std::regex(R"(Pages:\s+(\d+))")))
        info.pages = std::stoi(m[1]);
    if (std::regex_search(r.output, m, std::regex(R"(Page size:\s+([\d.]+) x ([\d.]+) pts)"))) {
        info.width = std::stod(m[1]);
        info.height = std::stod(m[2]);
    }
    return info;
}

std::string Ids(const std::vector<std::uint16_t>& ids)
{
    std::string list;
    for (std::uint16_t id : ids)
        list += (list.empty() ? "" : ",") + std::to_string(id);
    return list;
}

} // namespace

TEST(PracticeSheet, TracedBoxesHoldGreyInkOnTheModelsStrokesAndEmptyBoxesNone)
{
    QString error;
    const std::vector<std::uint16_t> grade1 = Grade1();
    const std::vector<std::uint16_t> six(grade1.begin(), grade1.begin() + 6);
    SheetOptions options;
    options.traceBoxes = 3;
    const PracticeSheet sheet(PracticeSheet::Load(Database(), nullptr, six, error), options);
    ASSERT_EQ(sheet.Characters().size(), 6u);
    const int width = 1654; // 200 dots to the inch
    const QImage page = sheet.PageImage(0, width);
    const double scale = width / SheetLayout::PaperSize(Paper::A4).width;
    auto inked = [&](double x, double y) {
        const QColor c = page.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
        return c.red() < 245 || c.green() < 245 || c.blue() < 245;
    };
    for (const SheetBlock& block : sheet.Pages().front().blocks) {
        const Form& form = sheet.Characters()[block.item].glyph->GetForm(0);
        for (std::size_t i = 0; i < block.boxes.size(); ++i) {
            const SheetRect& box = block.boxes[i];
            const double inset = box.width * 0.08;
            int on = 0, sampled = 0;
            for (std::uint16_t k = 0; k < form.StrokeCount(); ++k)
                for (const Point& p : FlattenStroke(form.GetStroke(k))) {
                    const double x = box.x + inset + p.x * (box.width - 2 * inset) / form.Width();
                    const double y = box.y + inset + p.y * (box.height - 2 * inset) / form.Height();
                    // Away from the dashed cross and the border, which every box has.
                    const double cx = box.x + box.width / 2, cy = box.y + box.height / 2;
                    if (std::abs(x - cx) < 0.6 || std::abs(y - cy) < 0.6 || x - box.x < 0.6 || box.Right() - x < 0.6
                        || y - box.y < 0.6 || box.Bottom() - y < 0.6)
                        continue;
                    ++sampled;
                    on += inked(x, y);
                    if (static_cast<int>(i) < block.traceBoxes) {
                        // Light grey, not the ink of the large character.
                        const QColor c = page.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
                        EXPECT_GT(c.red(), 120) << "box " << i;
                    }
                }
            ASSERT_GT(sampled, 5);
            if (static_cast<int>(i) < block.traceBoxes)
                EXPECT_GE(on, sampled * 9 / 10) << "character " << block.item << ", box " << i;
            else
                EXPECT_EQ(on, 0) << "character " << block.item << ", box " << i;
        }
        // The large character is drawn dark.
        const Point start = form.GetStroke(0).Start();
        const double inset = block.glyph.width * 0.08;
        const QColor c = page.pixelColor(
            static_cast<int>((block.glyph.x + inset + start.x * (block.glyph.width - 2 * inset) / form.Width()) * scale),
            static_cast<int>((block.glyph.y + inset + start.y * (block.glyph.height - 2 * inset) / form.Height()) * scale));
        EXPECT_LT(c.red(), 100);
    }
}

TEST(PracticeSheet, TheWholeOfGradeOneAsAPdfOfA4OrLetterPages)
{
    QTemporaryDir dir;
    QString error;
    const std::vector<SheetCharacter> characters = PracticeSheet::Load(Database(), nullptr, Grade1(), error);
    for (Paper paper : {Paper::A4, Paper::Letter}) {
        SheetOptions options;
        options.paper = paper;
        const PracticeSheet sheet(characters, options);
        const QString path = dir.filePath(paper == Paper::A4 ? QStringLiteral("a4.pdf") : QStringLiteral("letter.pdf"));
        ASSERT_TRUE(sheet.WritePdf(path, error)) << error.toStdString();
        const PdfInfo info = Info(path);
        EXPECT_EQ(info.pages, static_cast<int>(sheet.Pages().size()));
        EXPECT_NEAR(info.width, paper == Paper::A4 ? 595.28 : 612, 1);
        EXPECT_NEAR(info.height, paper == Paper::A4 ? 841.89 : 792, 1);
        EXPECT_LE(QFile(path).size(), 2 * 1024 * 1024);
        // The Japanese and Latin texts' font travels with the file.
        const Result fonts = RunCommand("pdffonts '" + path.toStdString() + "'");
        EXPECT_TRUE(std::regex_search(fonts.output, std::regex(R"(\n\S+\s+.*\s+yes\s+(yes|no)\s+(yes|no))")))
            << fonts.output;
        EXPECT_EQ(fonts.output.find(" no  no  "), std::string::npos) << fonts.output;
    }
}

TEST(PracticeSheet, AnUnknownCharacterOrAPathThatCannotBeWrittenLeavesNoFile)
{
    QString error;
    EXPECT_TRUE(PracticeSheet::Load(Database(), nullptr, {Grade1()[0], 65000}, error).empty());
    EXPECT_EQ(error, QStringLiteral("no character 65000 in the database"));
    const PracticeSheet sheet(PracticeSheet::Load(Database(), nullptr, {Grade1()[0]}, error), SheetOptions{});
    const QString path = QStringLiteral("/no-such-zavoren-folder/sheet.pdf");
    EXPECT_FALSE(sheet.WritePdf(path, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(QFile::exists(path));
}

TEST(ZavorenSheet, WritesThePdfAndRefusesWhatItCannotDo)
{
    QTemporaryDir dir;
    const std::string out = dir.filePath(QStringLiteral("grade1.pdf")).toStdString();
    const std::string base = std::string(ZAVOREN_SHEET_TOOL) + " --db " + ZAVOREN_STANDARD_DATABASE;
    Result r = RunCommand(base + " --chars " + Ids(Grade1()) + " --out " + out + " --lexicon " + ZAVOREN_STANDARD_LEXICON
        + " --paper letter --boxes 10 --trace 2");
    ASSERT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("80 characters on "), std::string::npos) << r.output;
    const PdfInfo info = Info(QString::fromStdString(out));
    EXPECT_NEAR(info.width, 612, 1);
    EXPECT_GT(info.pages, 10);

    const std::string missing = dir.filePath(QStringLiteral("missing.pdf")).toStdString();
    r = RunCommand(base + " --chars 1,65000 --out " + missing);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("no character 65000"), std::string::npos) << r.output;
    EXPECT_FALSE(QFile::exists(QString::fromStdString(missing)));

    r = RunCommand(base + " --chars 1 --out /no-such-zavoren-folder/sheet.pdf");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("cannot write /no-such-zavoren-folder/sheet.pdf"), std::string::npos) << r.output;

    r = RunCommand(base + " --chars 1 --out " + missing + " --boxes 20");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("--boxes must be a number from 6 to 12"), std::string::npos) << r.output;
    EXPECT_FALSE(QFile::exists(QString::fromStdString(missing)));
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
