// Checks on the standard database built from the installed KanjiVG and KANJIDIC2.

#include "DatabaseBuilder.h"
#include "DatabaseInspector.h"
#include "FileCharacterDatabase.h"
#include "FormFormat.h"
#include "KanjiDic.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <unistd.h>

namespace {

FileCharacterDatabase& Standard()
{
    static FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
    static bool preloaded = (db.Preload(nullptr), true);
    (void)preloaded;
    return db;
}

std::uint16_t FindCharacter(const char* onReading, const char* meaning)
{
    FileCharacterDatabase& db = Standard();
    for (std::uint16_t id = 0; id < db.CharacterCount(); ++id) {
        auto c = db.LoadCharacter(id);
        if (c->Meaning() && c->OnReading() && std::string(c->Meaning()).rfind(meaning, 0) == 0
            && std::string(c->OnReading()).find(onReading) != std::string::npos)
            return id;
    }
    return 0xFFFF;
}

} // namespace

TEST(RealDatabase, CategorySizesMatchTheGradesThatHaveStrokes)
{
    const auto dictionary = ReadKanjiDic(ZAVOREN_KANJIDIC, "en");
    std::map<int, std::size_t> expected;
    for (const auto& [cp, entry] : dictionary) {
        if (!std::filesystem::exists(std::filesystem::path(ZAVOREN_KANJIVG_DIR) / ([&] {
                char name[16];
                std::snprintf(name, sizeof name, "%05x.svg", static_cast<unsigned>(cp));
                return std::string(name);
            }())))
            continue;
        const int category = entry.grade >= 1 && entry.grade <= 6 ? entry.grade - 1
            : entry.grade == 8                                    ? 6
            : entry.grade == 9 || entry.grade == 10               ? 7
                                                                  : -1;
        if (category >= 0)
            ++expected[category];
    }
    FileCharacterDatabase& db = Standard();
    ASSERT_EQ(db.CategoryCount(), 8);
    const char* names[]
        = {"Grade 1", "Grade 2", "Grade 3", "Grade 4", "Grade 5", "Grade 6", "Secondary school", "Jinmeiy\xC5\x8D"};
    std::size_t total = 0;
    for (int i = 0; i < 8; ++i) {
        auto category = db.LoadCategory(static_cast<std::uint16_t>(i));
        EXPECT_STREQ(category->Name(), names[i]);
        EXPECT_EQ(category->CharacterCount(), expected[i]) << names[i];
        total += category->CharacterCount();
    }
    EXPECT_EQ(db.LoadCategory(0)->CharacterCount(), 80u);
    EXPECT_EQ(total, db.CharacterCount());
}

TEST(RealDatabase, EveryCharacterHasStrokesAndSoundTexts)
{
    FileCharacterDatabase& db = Standard();
    EXPECT_TRUE(ValidateDatabase(db).empty());
    for (std::uint16_t id = 0; id < db.CharacterCount(); ++id) {
        ASSERT_TRUE(db.CharacterExists(id));
        auto c = db.LoadCharacter(id);
        EXPECT_GE(db.LoadElement(c->ElementId())->GetForm(0).StrokeCount(), 1) << id;
        for (const char* text : {c->OnReading(), c->KunReading(), c->Meaning()}) {
            if (!text)
                continue;
            EXPECT_LE(std::strlen(text), 255u) << id;
            EXPECT_TRUE(IsValidUtf8(text)) << id;
        }
    }
}

TEST(RealDatabase, WaterAndOne)
{
    FileCharacterDatabase& db = Standard();
    const std::uint16_t water = FindCharacter("スイ", "water");
    ASSERT_NE(water, 0xFFFF);
    auto c = db.LoadCharacter(water);
    EXPECT_NE(std::string(c->KunReading()).find("みず"), std::string::npos);
    EXPECT_EQ(db.LoadElement(c->ElementId())->GetForm(0).StrokeCount(), 4);
    const std::uint16_t one = FindCharacter("イチ", "one");
    ASSERT_NE(one, 0xFFFF);
    EXPECT_EQ(db.LoadElement(db.LoadCharacter(one)->ElementId())->GetForm(0).StrokeCount(), 1);
}

namespace {
bool SameStrokes(const Form& a, const Form& b)
{
    if (a.Strokes().size() != b.Strokes().size())
        return false;
    for (std::size_t s = 0; s < a.Strokes().size(); ++s) {
        const Stroke& x = a.Strokes()[s];
        const Stroke& y = b.Strokes()[s];
        if (!(x.Start() == y.Start()) || x.Segments().size() != y.Segments().size())
            return false;
        for (std::size_t k = 0; k < x.Segments().size(); ++k) {
            const Segment& p = x.Segments()[k];
            const Segment& q = y.Segments()[k];
            if (p.Type() != q.Type() || !(p.P1() == q.P1()) || !(p.P2() == q.P2()) || !(p.P3() == q.P3()))
                return false;
        }
    }
    return true;
}
} // namespace

TEST(RealDatabase, EveryIdIsTheCharacterTheIdTableKeepsForIt)
{
    // Whichever KANJIDIC2 built it (Debian 12's, Debian 13's), each id holds the strokes of the
    // character the table in the repository names: learners' progress stays on its characters.
    const CharacterIdTable table = ReadCharacterIds(ZAVOREN_IDS_STANDARD);
    FileCharacterDatabase& db = Standard();
    ASSERT_GE(db.CharacterCount(), table.codePoints.size());
    std::size_t checked = 0;
    for (std::size_t id = 0; id < table.codePoints.size(); ++id) {
        const char32_t codePoint = table.codePoints[id];
        const auto cid = static_cast<std::uint16_t>(id);
        if (codePoint == 0) {
            EXPECT_FALSE(db.CharacterExists(cid)) << id;
            continue;
        }
        const std::optional<Form> glyph = LoadKanjiVgGlyph(ZAVOREN_KANJIVG_DIR, codePoint);
        ASSERT_TRUE(glyph) << Utf8(codePoint);
        ASSERT_TRUE(db.CharacterExists(cid)) << id << " " << Utf8(codePoint);
        const auto element = db.LoadElement(db.LoadCharacter(cid)->ElementId());
        EXPECT_TRUE(SameStrokes(element->GetForm(0), *glyph)) << id << " " << Utf8(codePoint);
        ++checked;
    }
    EXPECT_EQ(checked, 2898u);
}

TEST(RealDatabase, TheStandardOrderOfEveryCharacterIsWhatItWasBeforeTheOtherOrders)
{
    // The database built as it was before the other stroke orders were added, in memory: each
    // character's form 0 is the same bytes, and its other orders come after it.
    BuildOptions options;
    options.kanjivgDir = ZAVOREN_KANJIVG_DIR;
    options.kanjidicPath = ZAVOREN_KANJIDIC;
    options.ids = ReadCharacterIds(ZAVOREN_IDS_STANDARD);
    BuildReport report;
    const std::vector<std::uint8_t> bytes = BuildDatabase(options, report);
    const std::string path
        = (std::filesystem::temp_directory_path() / ("zavoren-before-orders-" + std::to_string(::getpid()))).string();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    FileCharacterDatabase before(path);
    std::filesystem::remove(path);
    FileCharacterDatabase& now = Standard();
    ASSERT_EQ(before.CharacterCount(), now.CharacterCount());
    std::size_t withOthers = 0;
    for (std::uint16_t id = 0; id < now.CharacterCount(); ++id) {
        if (!now.CharacterExists(id))
            continue;
        const auto a = before.LoadCharacter(id);
        const auto b = now.LoadCharacter(id);
        EXPECT_STREQ(a->Meaning(), b->Meaning());
        const auto formsBefore = before.LoadElement(a->ElementId());
        const auto formsNow = now.LoadElement(b->ElementId());
        ASSERT_EQ(formsBefore->FormCount(), 1);
        std::vector<std::uint8_t> x, y;
        EncodeStrokeForm(formsBefore->GetForm(0), x);
        EncodeStrokeForm(formsNow->GetForm(0), y);
        EXPECT_EQ(x, y) << id;
        for (std::uint8_t f = 1; f < formsNow->FormCount(); ++f)
            EXPECT_EQ(formsNow->GetForm(f).StrokeCount(), formsNow->GetForm(0).StrokeCount()) << id;
        withOthers += formsNow->FormCount() > 1;
    }
    EXPECT_EQ(withOthers, 191u);
    for (std::uint16_t c = 0; c < now.CategoryCount(); ++c)
        EXPECT_EQ(before.LoadCategory(c)->Characters(), now.LoadCategory(c)->Characters());
}
