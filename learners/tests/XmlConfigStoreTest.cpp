#include "XmlConfigStore.h"
#include "ConfigException.h"
#include "DatabaseLoadException.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "StoreFiles.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace fs = std::filesystem;
using ZavorenCommon::ConfigException;
using Ids = std::vector<std::uint16_t>;

namespace {

#define EXPECT_CONFIG_ERROR(statement, message)                                                                        \
    do {                                                                                                               \
        try {                                                                                                          \
            statement;                                                                                                 \
            ADD_FAILURE() << "expected ConfigException \"" << message << "\"";                                         \
        } catch (const ConfigException& e) {                                                                           \
            EXPECT_STREQ(e.what(), message);                                                                           \
        }                                                                                                              \
    } while (0)

using StoreFiles::ReadText;
using StoreFiles::WriteText;

/// A temporary folder with a database of five categories and a config.xml.
class StoreTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_dir = StoreFiles::MakeTemporaryFolder("zavoren-store");
        StoreFiles::WriteSmallDatabase(m_dir / "database", 5);
        m_database = std::make_unique<FileCharacterDatabase>((m_dir / "database").string());
        WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users/></Zavoren>\n");
    }
    void TearDown() override
    {
        fs::permissions(m_dir, fs::perms::owner_all, fs::perm_options::add);
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }
    fs::path Config() const { return m_dir / "config.xml"; }
    std::unique_ptr<XmlConfigStore> Open() { return std::make_unique<XmlConfigStore>(Config().string(), *m_database); }

    fs::path m_dir;
    std::unique_ptr<FileCharacterDatabase> m_database;
};

std::vector<std::string> Names(const ConfigStore& store)
{
    std::vector<std::string> names;
    for (std::uint16_t i = 0; i < store.UserCount(); ++i)
        names.push_back(store.UserName(i));
    return names;
}

using Strings = std::vector<std::string>;

} // namespace

TEST_F(StoreTest, MissingFile)
{
    fs::remove(Config());
    EXPECT_CONFIG_ERROR(Open(), "Config file does not exist. Try to reinstall Zavoren.");
}

TEST_F(StoreTest, ReadOnlyFile)
{
    fs::permissions(Config(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_CONFIG_ERROR(Open(), "Config file is ReadOnly. Check file attirbutes or reinstall Zavoren.");
}

TEST_F(StoreTest, MalformedFileIsReportedAndLeftUntouched)
{
    const std::string broken = "<Zavoren><Users><User name=\"Anna\"></Users>";
    WriteText(Config(), broken);
    EXPECT_CONFIG_ERROR(Open(), "Unable to load config");
    EXPECT_EQ(ReadText(Config()), broken);
    WriteText(Config(), "");
    EXPECT_CONFIG_ERROR(Open(), "Unable to load config");
    WriteText(Config(), "<Zavoren/>"); // no Users element
    EXPECT_CONFIG_ERROR(Open(), "Unable to load config");
}

TEST_F(StoreTest, UnreadableFile)
{
    fs::remove(Config());
    fs::create_directory(Config());
    EXPECT_CONFIG_ERROR(Open(), "Unable to load config");
}

TEST_F(StoreTest, DatabaseFailureBecomesAConfigExceptionWithItsMessage)
{
    auto broken = []() -> CharacterDatabase& { throw ZavorenCommon::DatabaseLoadException("Unable to open database"); };
    EXPECT_CONFIG_ERROR(XmlConfigStore(Config().string(), broken), "Unable to open database");
    // Asked for only once the file is known to be readable: a missing file says so first.
    fs::remove(Config());
    EXPECT_CONFIG_ERROR(
        XmlConfigStore(Config().string(), broken), "Config file does not exist. Try to reinstall Zavoren.");
}

TEST_F(StoreTest, AddLoadAndListLearners)
{
    auto store = Open();
    EXPECT_EQ(store->UserCount(), 0);
    EXPECT_EQ(store->CurrentUserName(), "");
    EXPECT_FALSE(store->AddUser(""));
    EXPECT_EQ(store->LoadUser(""), nullptr);
    EXPECT_TRUE(store->AddUser("Anna"));
    EXPECT_TRUE(store->AddUser("Ben"));
    EXPECT_FALSE(store->AddUser("Anna"));
    EXPECT_EQ(Names(*store), (Strings{"Anna", "Ben"}));
    EXPECT_EQ(store->CurrentUserName(), ""); // adding does not make current
    try {
        store->UserName(2);
        FAIL();
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "invalid vector<T> subscript");
    }
    // Written at once: a new store sees both.
    EXPECT_EQ(Names(*Open()), (Strings{"Anna", "Ben"}));
    auto anna = store->LoadUser("Anna");
    ASSERT_NE(anna, nullptr);
    EXPECT_STREQ(anna->Name(), "Anna");
    EXPECT_EQ(anna->ProgressCount(), 0u);
    EXPECT_EQ(store->CurrentUserName(), "Anna");
    EXPECT_EQ(store->LoadUser("Nobody"), nullptr);
}

TEST_F(StoreTest, LetterCaseMakesADifferentLearnerButTheSameCurrentOne)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    EXPECT_TRUE(store->AddUser("anna"));
    EXPECT_EQ(store->UserCount(), 2);
    ASSERT_NE(store->LoadUser("Anna"), nullptr);
    EXPECT_EQ(store->CurrentUserName(), "Anna");
    // "anna" counts as the current learner: loading does not rewrite currentUser.
    ASSERT_NE(store->LoadUser("anna"), nullptr);
    EXPECT_EQ(store->CurrentUserName(), "Anna");
    EXPECT_EQ(store->LoadUser("ANNA"), nullptr);
    // Deleting "anna" removes only that learner but clears the current one.
    EXPECT_TRUE(store->DeleteUser("anna"));
    EXPECT_EQ(Names(*store), Strings{"Anna"});
    EXPECT_EQ(store->CurrentUserName(), "");
    EXPECT_FALSE(store->DeleteUser("anna"));
}

TEST_F(StoreTest, ApostropheNamesMatchNobodyAndCannotChangeAQuery)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    ASSERT_TRUE(store->AddUser("Ben"));
    const std::string sneaky = "x' or '1'='1";
    EXPECT_EQ(store->LoadUser(sneaky), nullptr);
    EXPECT_FALSE(store->DeleteUser(sneaky));
    EXPECT_FALSE(store->AddUser(sneaky));
    EXPECT_EQ(store->LoadUser("O'Brien"), nullptr);
    EXPECT_FALSE(store->AddUser("O'Brien"));
    EXPECT_EQ(Names(*store), (Strings{"Anna", "Ben"}));
    EXPECT_EQ(Names(*Open()), (Strings{"Anna", "Ben"}));
    EXPECT_EQ(store->CurrentUserName(), "");
    // A learner whose name has an apostrophe in a file written by hand is listed but not found.
    WriteText(Config(), "<Z><Users><User name=\"O'Brien\"/></Users></Z>");
    auto other = Open();
    EXPECT_EQ(Names(*other), Strings{"O'Brien"});
    EXPECT_EQ(other->LoadUser("O'Brien"), nullptr);
    EXPECT_FALSE(other->DeleteUser("O'Brien"));
    // Double quotes and other text are fine.
    EXPECT_TRUE(store->AddUser("The \"Ace\" <&>"));
    EXPECT_NE(store->LoadUser("The \"Ace\" <&>"), nullptr);
}

TEST_F(StoreTest, DeletingTheCurrentLearnerLeavesAnEmptyCurrentUserAttribute)
{
    auto store = Open();
    store->AddUser("Anna");
    store->AddUser("Ben");
    store->LoadUser("Ben");
    EXPECT_TRUE(store->DeleteUser("Ben"));
    const std::string text = ReadText(Config());
    EXPECT_NE(text.find("currentUser=\"\""), std::string::npos) << text;
    EXPECT_EQ(text.find("Ben"), std::string::npos);
}

TEST_F(StoreTest, SavingWritesAProgressForEveryCategory)
{
    auto store = Open();
    store->AddUser("Anna");
    auto anna = store->LoadUser("Anna");
    anna->GetProgress(0).AddLearned(12);
    anna->GetProgress(0).AddLearned(40);
    anna->GetProgress(0).AddUntested(65535);
    CategoryProgress beyond;
    beyond.SetCategoryId(9);
    beyond.AddLearned(3);
    anna->AddProgress(beyond);
    EXPECT_TRUE(store->SaveUser(*anna));
    // The record in memory gained the empty categories too.
    EXPECT_EQ(anna->ProgressCount(), 6u);
    pugi::xml_document doc;
    ASSERT_TRUE(doc.load_file(Config().c_str()));
    const pugi::xml_node user = doc.document_element().child("Users").child("User");
    EXPECT_STREQ(doc.document_element().child("Users").attribute("currentUser").value(), "Anna");
    int n = 0;
    for (pugi::xml_node p : user.children("Progress")) {
        EXPECT_EQ(p.attribute("categoryId").as_int(), n);
        EXPECT_TRUE(p.child("Learned"));
        EXPECT_TRUE(p.child("Untested"));
        if (n > 0) {
            EXPECT_FALSE(p.child("Learned").first_child()) << n;
            EXPECT_FALSE(p.child("Untested").first_child()) << n;
        }
        ++n;
    }
    EXPECT_EQ(n, 5); // category 9 is beyond the database's count and is dropped
    auto again = Open()->LoadUser("Anna");
    EXPECT_EQ(again->GetProgress(0).Learned(), (Ids{12, 40}));
    EXPECT_EQ(again->GetProgress(0).Untested(), Ids{65535});
    EXPECT_EQ(again->ProgressCount(), 5u);
}

TEST_F(StoreTest, SavingAnUnknownLearnerAddsAnElementButNotAName)
{
    auto store = Open();
    User ghost;
    ghost.SetName("Ghost");
    EXPECT_TRUE(store->SaveUser(ghost));
    EXPECT_EQ(store->UserCount(), 0);
    EXPECT_EQ(Names(*Open()), Strings{"Ghost"});
}

TEST_F(StoreTest, IdsAreReadByTheRuntimeRules)
{
    WriteText(Config(),
        R"(<Z><Users currentUser="Anna"><User name="Anna"><Progress categoryId=" 2x">)"
        R"(<Learned><Character id="70000"/><Character id="-1"/><Character id="abc"/></Learned>)"
        R"(<Untested><Character id="7"/><Character id="7"/></Untested></Progress>)"
        R"(<Progress categoryId="3"/></User></Users></Z>)");
    auto store = Open();
    EXPECT_EQ(store->CurrentUserName(), "Anna");
    auto anna = store->LoadUser("Anna");
    ASSERT_EQ(anna->ProgressCount(), 2u);
    EXPECT_EQ(anna->Progress()[0].CategoryId(), 2);
    EXPECT_EQ(anna->Progress()[0].Learned(), (Ids{4464, 65535, 0}));
    EXPECT_EQ(anna->Progress()[0].Untested(), (Ids{7, 7}));
    // A Progress without Learned or Untested reads as empty lists.
    EXPECT_EQ(anna->Progress()[1].LearnedCount(), 0u);
    EXPECT_EQ(anna->Progress()[1].UntestedCount(), 0u);
}

TEST_F(StoreTest, FilesFromOtherToolsLoadTheSame)
{
    const std::string body
        = "<Zavoren>\n  <!-- learners -->\n  <Users currentUser=\"Ben\">\n    <User name=\"Anna\">\n"
          "      <Progress categoryId=\"0\"><Learned><Character id=\"3\"/></Learned><Untested/></Progress>\n"
          "    </User>\n    <!-- a comment between learners -->\n    <User name=\"Ben\"/>\n  </Users>\n</Zavoren>\n";
    auto crlf = [](std::string text) {
        std::string out;
        for (char c : text) {
            if (c == '\n')
                out += '\r';
            out += c;
        }
        return out;
    };
    const std::string variants[] = {
        body,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + body,
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n" + body,
        "\xEF\xBB\xBF" + body,
        crlf("<?xml version=\"1.0\"?>\n" + body),
    };
    for (const std::string& text : variants) {
        WriteText(Config(), text);
        auto store = Open();
        EXPECT_EQ(Names(*store), (Strings{"Anna", "Ben"}));
        EXPECT_EQ(store->CurrentUserName(), "Ben");
        auto anna = store->LoadUser("Anna");
        ASSERT_NE(anna, nullptr);
        EXPECT_EQ(anna->GetProgress(0).Learned(), Ids{3});
        // Saving keeps every learner and the comments.
        EXPECT_TRUE(store->SaveUser(*anna));
        EXPECT_EQ(Names(*Open()), (Strings{"Anna", "Ben"}));
        EXPECT_NE(ReadText(Config()).find("a comment between learners"), std::string::npos);
    }
}

TEST_F(StoreTest, FailedSaveKeepsThePreviousFile)
{
    auto store = Open();
    for (const char* name : {"Anna", "Ben", "Chiyo"})
        ASSERT_TRUE(store->AddUser(name));
    const std::string before = ReadText(Config());
    // Let the next write stop part-way: a file-size limit below what the new file needs.
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit previousLimit{};
    getrlimit(RLIMIT_FSIZE, &previousLimit);
    rlimit limit = previousLimit;
    limit.rlim_cur = before.size() + 20;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    auto anna = store->LoadUser("Anna");
    for (std::uint16_t i = 0; i < 300; ++i)
        anna->GetProgress(0).AddLearned(i);
    EXPECT_CONFIG_ERROR(store->SaveUser(*anna), "Unable to save config");
    EXPECT_CONFIG_ERROR(store->AddUser("Dai"), "Unable to save config");
    setrlimit(RLIMIT_FSIZE, &previousLimit);
    std::signal(SIGXFSZ, previousHandler);
    EXPECT_EQ(ReadText(Config()), before);
    EXPECT_EQ(Names(*Open()), (Strings{"Anna", "Ben", "Chiyo"}));
    // No temporary files are left beside it.
    int files = 0;
    for (const auto& entry : fs::directory_iterator(m_dir))
        files += entry.path().filename().string().rfind("config.xml", 0) == 0;
    EXPECT_EQ(files, 1);
    // Once the disk has room again, the change in memory is saved.
    EXPECT_TRUE(store->SaveUser(*anna));
    EXPECT_EQ(Open()->LoadUser("Anna")->GetProgress(0).LearnedCount(), 300u);
}

TEST_F(StoreTest, SaveKeepsTheFilePermissions)
{
    fs::permissions(Config(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    auto store = Open();
    store->AddUser("Anna");
    EXPECT_EQ(fs::status(Config()).permissions() & fs::perms::all,
        fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(StoreTest, SingletonOpensConfigXmlInTheCurrentFolder)
{
    const fs::path previous = fs::current_path();
    fs::current_path(m_dir);
    ReleaseDataStores();
    WriteText("config.xml", "<Z><Users currentUser=\"Anna\"><User name=\"Anna\"/></Users></Z>");
    ConfigStore& store = GetConfigStore();
    EXPECT_EQ(&GetConfigStore(), &store);
    EXPECT_EQ(store.CurrentUserName(), "Anna");
    ReleaseDataStores();
    fs::remove("config.xml");
    EXPECT_THROW(GetConfigStore(), ConfigException);
    WriteText("config.xml", "<Z><Users/></Z>");
    EXPECT_EQ(GetConfigStore().UserCount(), 0); // the failed attempt left nothing behind
    ReleaseDataStores();
    fs::current_path(previous);
}

namespace {

/// Runs `body` in a child process, as an ordinary user when the tests run as root (root may
/// write into any folder, so folder permissions mean nothing to it); the child's exit code.
template<typename Body> int InChild(Body body)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(60);
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
            ::_exit(90);
        try {
            ::_exit(body());
        } catch (const ConfigException& e) {
            std::fprintf(stderr, "ConfigException: %s\n", e.what());
            ::_exit(91);
        } catch (...) {
            ::_exit(92);
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

std::size_t CountFilesStartingWith(const fs::path& dir, const std::string& prefix)
{
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(dir))
        count += entry.path().filename().string().rfind(prefix, 0) == 0;
    return count;
}

ino_t Inode(const fs::path& path)
{
    struct stat info { };
    ::stat(path.c_str(), &info);
    return info.st_ino;
}

} // namespace

TEST_F(StoreTest, ALatin1FileKeepsItsNamesOverManySaves)
{
    WriteText(Config(),
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<Zavoren><Users><User name=\"Zo\xEB\"/></Users></Zavoren>\n");
    for (int round = 0; round < 3; ++round) {
        auto store = Open();
        ASSERT_EQ(Names(*store), (Strings{"Zo\xC3\xAB"})) << "round " << round;
        auto zoe = store->LoadUser("Zo\xC3\xAB");
        ASSERT_NE(zoe, nullptr);
        EXPECT_TRUE(store->SaveUser(*zoe));
        const std::string text = ReadText(Config());
        // Written as UTF-8, and the declaration says so.
        EXPECT_NE(text.find("encoding=\"UTF-8\""), std::string::npos) << text;
        EXPECT_EQ(text.find("ISO-8859-1"), std::string::npos);
        EXPECT_NE(text.find("name=\"Zo\xC3\xAB\""), std::string::npos);
    }
}

TEST_F(StoreTest, AUtf8FileKeepsItsNamesOverManySaves)
{
    const std::string name = "Zo\xC3\xAB \xE5\xAD\xA6";
    WriteText(Config(),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Zavoren><Users><User name=\"" + name
            + "\"/></Users></Zavoren>\n");
    for (int round = 0; round < 3; ++round) {
        auto store = Open();
        ASSERT_EQ(Names(*store), (Strings{name})) << "round " << round;
        EXPECT_TRUE(store->SaveUser(*store->LoadUser(name)));
        EXPECT_NE(ReadText(Config()).find("name=\"" + name + "\""), std::string::npos);
    }
}

TEST_F(StoreTest, AFolderWithoutWriteRightsGetsTheFileRewrittenInPlace)
{
    fs::permissions(Config(), fs::perms::all, fs::perm_options::add);
    fs::permissions(m_dir,
        fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec | fs::perms::others_read
            | fs::perms::others_exec);
    const ino_t before = Inode(Config());
    const int exitCode = InChild([&] {
        auto store = Open();
        if (!store->AddUser("Anna"))
            return 1;
        auto anna = store->LoadUser("Anna");
        anna->GetProgress(0).AddLearned(7);
        return store->SaveUser(*anna) ? 0 : 2;
    });
    ASSERT_EQ(exitCode, 0);
    EXPECT_EQ(Inode(Config()), before); // the same file, rewritten
    EXPECT_EQ(Open()->LoadUser("Anna")->GetProgress(0).Learned(), Ids{7});
    EXPECT_EQ(CountFilesStartingWith(m_dir, "config.xml"), 1u);
}

TEST_F(StoreTest, AWritableFolderStillReplacesTheFileAtomically)
{
    const ino_t before = Inode(Config());
    EXPECT_TRUE(Open()->AddUser("Anna"));
    EXPECT_NE(Inode(Config()), before); // a new file renamed over the old one
}

TEST_F(StoreTest, AFailedRewriteInPlaceReportsAndKeepsTheOldText)
{
    ASSERT_TRUE(Open()->AddUser("Anna"));
    const std::string before = ReadText(Config());
    fs::permissions(Config(), fs::perms::all, fs::perm_options::add);
    fs::permissions(m_dir,
        fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec | fs::perms::others_read
            | fs::perms::others_exec);
    const int exitCode = InChild([&] {
        auto store = Open();
        auto anna = store->LoadUser("Anna");
        for (std::uint16_t i = 0; i < 300; ++i)
            anna->GetProgress(0).AddLearned(i);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{before.size() + 20, RLIM_INFINITY};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        try {
            store->SaveUser(*anna);
        } catch (const ConfigException& e) {
            return std::string(e.what()) == "Unable to save config" ? 0 : 1;
        }
        return 2;
    });
    ASSERT_EQ(exitCode, 0);
    EXPECT_EQ(ReadText(Config()), before);
}

TEST_F(StoreTest, TemporaryFilesOfKilledSavesAreRemovedAtOpen)
{
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(2);
    auto make = [&](const std::string& name, bool stale) {
        WriteText(m_dir / name, "partial");
        if (stale)
            fs::last_write_time(m_dir / name, old);
    };
    make("config.xml.ABC123", true);
    make("config.xml.zZ9yY8", true);
    make("config.xml.NEW123", false); // a save running right now
    make("config.xml.bak", true); // not a name a save makes
    make("config.xml.ABCDEFG", true);
    make("config.xml.AB-123", true);
    make("other.xml.ABC123", true);
    fs::create_directory(m_dir / "config.xml.DIR123");
    fs::last_write_time(m_dir / "config.xml.DIR123", old);
    Open();
    EXPECT_FALSE(fs::exists(m_dir / "config.xml.ABC123"));
    EXPECT_FALSE(fs::exists(m_dir / "config.xml.zZ9yY8"));
    for (const char* kept : {"config.xml.NEW123", "config.xml.bak", "config.xml.ABCDEFG", "config.xml.AB-123",
             "other.xml.ABC123", "config.xml.DIR123", "config.xml"})
        EXPECT_TRUE(fs::exists(m_dir / kept)) << kept;
}

TEST_F(StoreTest, DeeplyNestedDocumentsAreRefused)
{
    auto nested = [](int levels) {
        std::string text = "<Zavoren><Users/>";
        for (int i = 0; i < levels; ++i)
            text += "<a>";
        for (int i = 0; i < levels; ++i)
            text += "</a>";
        return text + "</Zavoren>";
    };
    WriteText(Config(), nested(60));
    EXPECT_TRUE(Open()->AddUser("Anna")); // as deep as a file may be
    for (int levels : {64, 10000, 1000000}) {
        const std::string text = nested(levels);
        WriteText(Config(), text);
        EXPECT_CONFIG_ERROR(Open(), "Unable to load config");
        EXPECT_EQ(ReadText(Config()).size(), text.size());
    }
}

TEST_F(StoreTest, RunningOutOfMemoryIsAConfigException)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "AddressSanitizer reserves more address space than any limit here";
#else
    // Many learners, each with progress; then opens, loads and saves under ever tighter limits
    // of the address space. Each attempt succeeds or fails with the store's own message.
    std::string text = "<Zavoren><Users>";
    for (int i = 0; i < 20000; ++i)
        text += "<User name=\"L" + std::to_string(i)
            + "\"><Progress categoryId=\"0\"><Learned><Character id=\"1\"/></Learned></Progress></User>";
    WriteText(Config(), text + "</Users></Zavoren>");
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t base = static_cast<rlim_t>(pages) * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
    for (rlim_t extra = 1u << 20; extra <= (64u << 20); extra *= 2) {
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit limit{base + extra, base + extra};
            ::setrlimit(RLIMIT_AS, &limit);
            try {
                auto store = Open();
                auto user = store->LoadUser("L19999");
                for (std::uint16_t i = 0; i < 2000; ++i)
                    user->GetProgress(1).AddLearned(i);
                store->SaveUser(*user);
            } catch (const ConfigException&) {
            } catch (...) {
                ::_exit(1);
            }
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "limit +" << (extra >> 20) << " MB";
    }
#endif
}

TEST_F(StoreTest, ASaveThatChangesNothingLeavesTheFileAlone)
{
    WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"/></Users></Zavoren>\n");
    {
        auto store = Open();
        auto anna = store->LoadUser("Anna");
        ASSERT_TRUE(store->SaveUser(*anna)); // the record gains its Progress elements: written
    }
    struct stat before { };
    ASSERT_EQ(::stat(Config().c_str(), &before), 0);
    const std::string text = ReadText(Config());
    {
        auto store = Open();
        auto anna = store->LoadUser("Anna");
        ASSERT_TRUE(store->SaveUser(*anna)); // the same record: nothing to write
        struct stat after { };
        ASSERT_EQ(::stat(Config().c_str(), &after), 0);
        EXPECT_EQ(after.st_ino, before.st_ino);
        EXPECT_EQ(ReadText(Config()), text);
        // Changed by someone else since it was read: written again, as always.
        WriteText(Config(), text + "\n");
        ASSERT_TRUE(store->SaveUser(*anna));
        EXPECT_EQ(ReadText(Config()), text);
        // A change of the learner's is written.
        anna->GetProgress(0).AddLearned(5);
        ASSERT_TRUE(store->SaveUser(*anna));
        EXPECT_NE(ReadText(Config()), text);
    }
}

TEST_F(StoreTest, HistoryOfEveryKindRoundTrips)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    anna->GetProgress(0).AddLearned(3);
    const std::vector<LearnerEvent> events{
        {"2026-11-20T08:00:00+01:00", LearnerEvent::Lesson, 0, 3, -1},
        {"2026-11-20T08:05:00+01:00", LearnerEvent::Passed, 0, 3, 0},
        {"2026-11-21T19:30:00-05:00", LearnerEvent::Failed, 2, 65535, 3},
        {"2026-11-21T19:31:00+00:00", LearnerEvent::Retest, 0, 3, -1},
        {"2026-11-21T19:32:00+00:00", LearnerEvent::Forget, 0, 3, -1},
        {"2026-11-22T07:00:00+09:00", LearnerEvent::Learn, 4, 12, -1},
        {"2026-11-22T07:10:00+09:00", LearnerEvent::Review, 4, 13, -1},
    };
    for (const LearnerEvent& e : events)
        anna->AddEvent(e);
    ASSERT_TRUE(store->SaveUser(*anna));
    const auto again = Open()->LoadUser("Anna");
    EXPECT_EQ(again->History(), events);
    EXPECT_EQ(again->GetProgress(0).Learned(), Ids{3});
    // History follows the Progress elements, inside the learner's element.
    const std::string text = ReadText(Config());
    EXPECT_LT(text.rfind("<Progress"), text.find("<History>"));
    EXPECT_NE(text.find("<Event at=\"2026-11-21T19:30:00-05:00\" kind=\"failed\" categoryId=\"2\" id=\"65535\" "
                        "mistakes=\"3\" />"),
        std::string::npos)
        << text;
    // Saved again, nothing is lost or doubled.
    ASSERT_TRUE(store->SaveUser(*again));
    EXPECT_EQ(Open()->LoadUser("Anna")->History().size(), events.size());
}

TEST_F(StoreTest, TheHistoryLeavesTheProgressElementsAsTheyWere)
{
    // The same learner saved with and without history: taking the History element away gives
    // the very same file, so a reader that knows nothing of it finds the same progress.
    auto save = [&](bool withHistory) {
        WriteText(Config(), "<?xml version=\"1.0\"?>\n<Zavoren><Users/></Zavoren>\n");
        auto store = Open();
        EXPECT_TRUE(store->AddUser("Anna"));
        auto anna = store->LoadUser("Anna");
        anna->GetProgress(0).AddLearned(3);
        anna->GetProgress(0).AddUntested(4);
        anna->GetProgress(5).AddLearned(900);
        if (withHistory) {
            anna->AddEvent({"2026-11-20T08:00:00+01:00", LearnerEvent::Lesson, 0, 4, -1});
            anna->AddEvent({"2026-11-20T08:05:00+01:00", LearnerEvent::Passed, 0, 3, 1});
        }
        EXPECT_TRUE(store->SaveUser(*anna));
        return ReadText(Config());
    };
    const std::string plain = save(false);
    std::string withHistory = save(true);
    const auto begin = withHistory.find("<History>");
    const auto end = withHistory.find("</History>");
    ASSERT_NE(begin, std::string::npos);
    ASSERT_NE(end, std::string::npos);
    // The element and the line it stands on.
    const auto lineStart = withHistory.rfind('\n', begin) + 1;
    withHistory.erase(lineStart, withHistory.find('\n', end) + 1 - lineStart);
    EXPECT_EQ(withHistory, plain);
}

TEST_F(StoreTest, AFileWithoutHistoryLoadsAnEmptyOneAndIsWrittenAsBefore)
{
    WriteText(Config(),
        "<Zavoren><Users><User name=\"Anna\"><Progress categoryId=\"0\"><Learned><Character "
        "id=\"5\"/></Learned><Untested/></Progress></User></Users></Zavoren>");
    auto store = Open();
    auto anna = store->LoadUser("Anna");
    EXPECT_TRUE(anna->History().empty());
    ASSERT_TRUE(store->SaveUser(*anna));
    EXPECT_EQ(ReadText(Config()).find("History"), std::string::npos);
    EXPECT_EQ(Open()->LoadUser("Anna")->GetProgress(0).Learned(), Ids{5});
}

TEST_F(StoreTest, EventsShareWhatTheyLeaveOutWithTheEventBefore)
{
    auto store = Open();
    ASSERT_TRUE(store->AddUser("Anna"));
    auto anna = store->LoadUser("Anna");
    const std::vector<LearnerEvent> events{
        {"2026-11-20T08:00:00+01:00", LearnerEvent::Lesson, 1, 3, -1},
        {"2026-11-20T08:00:00+01:00", LearnerEvent::Lesson, 1, 4, -1},
        {"2026-11-20T08:05:00+01:00", LearnerEvent::Passed, 1, 3, 0},
        {"2026-11-20T08:05:00+01:00", LearnerEvent::Failed, 1, 4, 2},
        {"2026-11-20T08:05:00+01:00", LearnerEvent::Failed, 0, 4, 1},
    };
    for (const LearnerEvent& e : events)
        anna->AddEvent(e);
    ASSERT_TRUE(store->SaveUser(*anna));
    const std::string text = ReadText(Config());
    // Only what differs from the event before is written.
    EXPECT_NE(text.find("<Event at=\"2026-11-20T08:00:00+01:00\" kind=\"lesson\" categoryId=\"1\" id=\"3\" />"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("<Event id=\"4\" />"), std::string::npos) << text;
    EXPECT_NE(text.find("<Event at=\"2026-11-20T08:05:00+01:00\" kind=\"passed\" id=\"3\" mistakes=\"0\" />"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("<Event kind=\"failed\" id=\"4\" mistakes=\"2\" />"), std::string::npos) << text;
    EXPECT_NE(text.find("<Event categoryId=\"0\" id=\"4\" mistakes=\"1\" />"), std::string::npos) << text;
    EXPECT_EQ(Open()->LoadUser("Anna")->History(), events);
}

TEST_F(StoreTest, JunkInsideHistoryIsSkippedUnknownKindsAreKept)
{
    WriteText(Config(),
        "<Zavoren><Users><User name=\"Anna\"><Progress categoryId=\"0\"><Learned/><Untested/></Progress><History>"
        "<Event at=\"2026-11-22T09:00:00+01:00\" categoryId=\"0\" id=\"3\"/>"
        "<Event at=\"2026-11-22T09:00:00+01:00\" kind=\"lesson\" categoryId=\"0\" id=\"4\"/>"
        "<Event at=\"yesterday\" kind=\"lesson\" categoryId=\"0\" id=\"5\"/>"
        "<Event at=\"2026-11-22T09:00:00+01:00\" kind=\"lesson\" categoryId=\"-1\" id=\"5\"/>"
        "<Event at=\"2026-11-22T09:00:00+01:00\" kind=\"lesson\" categoryId=\"0\" id=\"70000\"/>"
        "<Event at=\"2026-11-22T09:00:00+01:00\" kind=\"passed\" categoryId=\"0\" id=\"5\" mistakes=\"x\"/>"
        "<Note>text</Note>plain text<!-- a comment -->"
        "<Event at=\"2026-11-22T10:00:00+01:00\" kind=\"streak\" categoryId=\"1\" id=\"6\"/>"
        "</History></User></Users></Zavoren>");
    auto store = Open();
    auto anna = store->LoadUser("Anna");
    ASSERT_EQ(anna->History().size(), 2u);
    EXPECT_EQ(anna->History()[0].id, 4);
    EXPECT_EQ(anna->History()[1].kind, "streak"); // a kind of a newer program, kept
    ASSERT_TRUE(store->SaveUser(*anna));
    const std::string text = ReadText(Config());
    EXPECT_NE(text.find("kind=\"streak\""), std::string::npos);
    EXPECT_EQ(text.find("yesterday"), std::string::npos); // malformed: dropped
    EXPECT_EQ(Open()->LoadUser("Anna")->History(), anna->History());
}
