// Files made to hurt the reader: compositions that multiply into gigabytes, things named
// "database" that are not files, files that change under an open reader. Each must end in one of
// the reader's own messages, quickly and in little memory.

#include "DatabaseLoadException.h"
#include "FileCharacterDatabase.h"
#include "LimitedChild.h"
#include "RawDatabaseFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace testdb;
using ZavorenCommon::DatabaseLoadException;

namespace {


/// The message of the DatabaseLoadException that `load` throws, or "" when it throws none.
template<typename Load> std::string LoadError(Load load)
{
    try {
        load();
    } catch (const DatabaseLoadException& e) {
        return e.what();
    }
    return "";
}

/// Element 1 holds 6 strokes of 255 segments (about 14 KB); element 2 has 255 forms placing
/// element 1 four times, and each element after it 16 forms placing four forms of the one before.
/// Without a limit, element 5 alone asks for about a gigabyte.
RawDatabaseFile MultiplyingCompositions()
{
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Build()})});
    StrokeFormBytes heavy(10, 10);
    for (int s = 0; s < 6; ++s) {
        heavy.Stroke(0, 0);
        for (int k = 0; k < 255; ++k)
            heavy.Line(static_cast<float>(k % 10), 1);
    }
    f.elements.push_back({ElementRecord({heavy.Build()})});
    for (std::uint16_t level = 1; level <= 4; ++level) {
        std::vector<Bytes> forms;
        for (int form = 0; form < (level == 1 ? 255 : 16); ++form) {
            const auto n = static_cast<std::uint8_t>(level == 1 ? 1 : 1 + form % 4);
            forms.push_back(ComposedFormBytes(10, 10,
                {{level, n, 0, 0, 10, 10}, {level, n, 0, 0, 10, 10}, {level, n, 0, 0, 10, 10},
                    {level, n, 0, 0, 10, 10}}));
        }
        f.elements.push_back({ElementRecord(forms)});
    }
    f.characters.push_back({CharacterRecord(5, "", "", "")});
    f.categories.push_back({CategoryRecord("Bomb", {0})});
    return f;
}


class HostileDatabaseTest : public ::testing::Test {
protected:
    std::string Write(const Bytes& bytes, const std::string& name = "database")
    {
        WriteFile(m_dir / name, bytes);
        return (m_dir / name).string();
    }
    TempDir m_dir;
};

} // namespace

TEST_F(HostileDatabaseTest, MultiplyingCompositionsAreRefusedInLittleMemory)
{
    const Bytes bytes = MultiplyingCompositions().Build();
    EXPECT_LT(bytes.size(), 32768u);
    const std::string path = Write(bytes);
    const int exitCode = InLimitedChild(rlim_t{384} << 20, [&] {
        FileCharacterDatabase db(path);
        bool ok = true;
        for (std::uint16_t id = 2; id <= 5; ++id)
            ok = ok && LoadError([&] { db.LoadElement(id); }) == "Unable to load element";
        ok = ok && LoadError([&] { db.Preload(nullptr); }) == "Unable to load element";
        return ok;
    });
    EXPECT_EQ(exitCode, 0) << "1: wrong message, 2: out of memory, 100+n: killed by signal n";
}

TEST_F(HostileDatabaseTest, CompositionsWithinTheBudgetStillLoad)
{
    // Element 2 has 20 forms of four placed copies of element 1 (1536 items each): 122,880
    // strokes and segments, inside the budget of one load.
    RawDatabaseFile f = MultiplyingCompositions();
    Bytes& level1 = f.elements[2].bytes;
    level1 = ElementRecord(std::vector<Bytes>(20,
        ComposedFormBytes(
            10, 10, {{1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}})));
    FileCharacterDatabase db(Write(f.Build()));
    const auto element = db.LoadElement(2);
    ASSERT_EQ(element->FormCount(), 20);
    EXPECT_EQ(element->GetForm(19).StrokeCount(), 24);
    EXPECT_EQ(element->GetForm(19).GetStroke(23).SegmentCount(), 255);
}

TEST_F(HostileDatabaseTest, PreloadKeepsAFixedBudgetForAllElements)
{
    // Element 2: 21 forms of 6,144 items = 129,024, just inside one load's budget; elements 3
    // onwards are copies of it. Seventeen of them pass what Preload keeps.
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Build()})});
    f.elements.push_back(MultiplyingCompositions().elements[1]);
    const Bytes big = ElementRecord(std::vector<Bytes>(21,
        ComposedFormBytes(
            10, 10, {{1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}, {1, 1, 0, 0, 10, 10}})));
    f.elements.push_back({big});
    const std::size_t count = FileCharacterDatabase::MaxPreloadItems / 129024 + 2;
    for (std::size_t i = 0; i < count; ++i)
        f.elements.push_back({big});
    FileCharacterDatabase db(Write(f.Build()));
    EXPECT_EQ(LoadError([&] { db.LoadElement(2); }), "");
    EXPECT_EQ(LoadError([&] { db.Preload(nullptr); }), "Unable to load element");
}

TEST_F(HostileDatabaseTest, AFifoIsRefusedWithoutBlocking)
{
    const std::string path = (m_dir / "database").string();
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    // In a child, so that a reader that blocks is ended by the alarm rather than hanging the test.
    const int exitCode = InLimitedChild(RLIM_INFINITY, [&] {
        ::alarm(5);
        return LoadError([&] { FileCharacterDatabase db(path); }) == "Unable to open database";
    });
    EXPECT_EQ(exitCode, 0) << "100+n: killed by signal n (" << SIGALRM << " is the alarm: it blocked)";
}

TEST_F(HostileDatabaseTest, AFolderOrADeviceIsNotADatabase)
{
    std::filesystem::create_directory(m_dir / "database");
    EXPECT_EQ(LoadError([&] { FileCharacterDatabase db((m_dir / "database").string()); }), "Unable to open database");
    EXPECT_EQ(LoadError([] { FileCharacterDatabase db("/dev/zero"); }), "Unable to open database");
}

TEST_F(HostileDatabaseTest, ALinkToADatabaseOpens)
{
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Build()})});
    f.characters.push_back({CharacterRecord(0, "イチ", "", "one")});
    const std::string target = Write(f.Build(), "real");
    std::filesystem::create_symlink(target, m_dir / "database");
    FileCharacterDatabase db((m_dir / "database").string());
    EXPECT_EQ(db.LoadCharacter(0)->ElementId(), 0);
}

TEST_F(HostileDatabaseTest, AFileThatShrinksAfterOpeningKeepsWhatWasRead)
{
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Build()})});
    f.characters.push_back({CharacterRecord(0, "イチ", "", "one")});
    f.categories.push_back({CategoryRecord("Grade 1", {0})});
    const std::string path = Write(f.Build());
    FileCharacterDatabase db(path);
    ASSERT_EQ(::truncate(path.c_str(), 5), 0);
    EXPECT_EQ(LoadError([&] { db.Preload(nullptr); }), "");
    EXPECT_EQ(db.LoadCategory(0)->Characters().size(), 1u);
}

TEST_F(HostileDatabaseTest, ALargeFileThatShrinksGivesOnlyTheReadersMessages)
{
    // A file past the in-memory size is read record by record; cutting it while open turns
    // every later read into the load message of its kind.
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Build()})});
    f.characters.push_back({CharacterRecord(0, "イチ", "", "one")});
    f.categories.push_back({CategoryRecord("Grade 1", {0})});
    const std::string path = Write(f.Build());
    ASSERT_EQ(::truncate(path.c_str(), static_cast<off_t>(FileCharacterDatabase::MaxInMemorySize + 4096)), 0);
    FileCharacterDatabase db(path);
    EXPECT_EQ(db.LoadCharacter(0)->ElementId(), 0);
    EXPECT_EQ(db.LoadElement(0)->GetForm(0).StrokeCount(), 1);
    ASSERT_EQ(::truncate(path.c_str(), 40), 0);
    EXPECT_FALSE(db.CharacterExists(0));
    EXPECT_FALSE(db.ElementExists(0));
    EXPECT_EQ(LoadError([&] { db.LoadCharacter(0); }), "Unable to load character");
    EXPECT_EQ(LoadError([&] { db.LoadElement(0); }), "Unable to load element");
    EXPECT_EQ(LoadError([&] { db.LoadCategory(0); }), "Unable to load category");
    EXPECT_EQ(LoadError([&] { db.LoadCategory(1); }), "Unable to load category");
}

TEST_F(HostileDatabaseTest, PreloadOfALargeFileKeepsWhatItRead)
{
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Line(2, 2).Build()})});
    f.characters.push_back({CharacterRecord(0, "イチ", "", "one")});
    const std::string path = Write(f.Build());
    ASSERT_EQ(::truncate(path.c_str(), static_cast<off_t>(FileCharacterDatabase::MaxInMemorySize + 4096)), 0);
    FileCharacterDatabase db(path);
    db.Preload(nullptr);
    ASSERT_EQ(::truncate(path.c_str(), 40), 0);
    EXPECT_TRUE(db.ElementExists(0));
    EXPECT_EQ(db.LoadElement(0)->GetForm(0).GetStroke(0).SegmentCount(), 2);
    EXPECT_EQ(db.LoadCharacter(0)->ElementId(), 0);
}

TEST_F(HostileDatabaseTest, PreloadedElementsAreTheElementsReadBeforePreloading)
{
    RawDatabaseFile f;
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(0, 0).Line(1, 1).Build()})});
    f.elements.push_back(
        {ElementRecord({StrokeFormBytes(100, 50).Stroke(1, 2).Bezier(3, 4, 5, 6, 7, 8).Move(9, 10).Build(),
            ComposedFormBytes(10, 10, {{2, 1, 0, 0, 5, 5}})})});
    f.elements.push_back({ElementRecord({StrokeFormBytes(10, 10).Stroke(3, 3).Line(4, 4).Build()})});
    f.elements.push_back({{}, true});
    const std::string small = Write(f.Build(), "small");
    FileCharacterDatabase plain(small);
    FileCharacterDatabase preloaded(small);
    preloaded.Preload(nullptr);
    for (std::uint16_t id = 0; id < 3; ++id) {
        const auto a = plain.LoadElement(id);
        const auto b = preloaded.LoadElement(id);
        ASSERT_EQ(a->FormCount(), b->FormCount());
        for (std::uint8_t form = 0; form < a->FormCount(); ++form) {
            const Form& x = a->GetForm(form);
            const Form& y = b->GetForm(form);
            ASSERT_EQ(x.StrokeCount(), y.StrokeCount());
            EXPECT_EQ(x.Width(), y.Width());
            for (std::uint16_t s = 0; s < x.StrokeCount(); ++s) {
                EXPECT_EQ(x.GetStroke(s).Start(), y.GetStroke(s).Start());
                ASSERT_EQ(x.GetStroke(s).SegmentCount(), y.GetStroke(s).SegmentCount());
                for (std::uint8_t k = 0; k < x.GetStroke(s).SegmentCount(); ++k)
                    EXPECT_EQ(x.GetStroke(s).GetSegment(k).P3(), y.GetStroke(s).GetSegment(k).P3());
            }
        }
    }
    EXPECT_FALSE(preloaded.ElementExists(3));
    EXPECT_EQ(LoadError([&] { preloaded.LoadElement(3); }), "Element does not exist");
}
