// The history database against what a learner's computer does to it: the program killed at any
// moment of a commit, and files damaged on disk. Nothing committed is lost, nothing half is
// kept, and damage is always told and never written over.

#include "StoreWithHistory.h"

#include "FileCharacterDatabase.h"
#include "DriverProcess.h"
#include "StoreFiles.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace StoreFiles;

namespace {

class HistoryReliability : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_dir = MakeTemporaryFolder("zavoren-reliability");
    }
    void TearDown() override
    {
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }
    fs::path m_dir;
};

/// The last whole number line of the driver's output: the actions committed (0 for none).
long LastCommitted(const std::string& output)
{
    long last = 0;
    std::istringstream lines(output);
    std::string line;
    while (std::getline(lines, line))
        if (!lines.eof() || output.back() == '\n')
            last = std::stol(line);
    return last;
}

} // namespace

TEST_F(HistoryReliability, KilledAtAnyMomentEveryCommittedActionIsThereAndNothingHalf)
{
    const fs::path path = m_dir / "history.db";
    std::mt19937 random(20261123);
    long committedBefore = 0; // actions announced by earlier drivers
    int killedWithCommits = 0;
    for (int round = 0; round < 300; ++round) {
        int output = -1;
        const pid_t driver = StartDriver(HISTORY_KILL_DRIVER, path.string(), output);
        ASSERT_GT(driver, 0);
        // Every other round, once the driver has committed an action, within the next 3 ms: in
        // the middle of recording. The others at any moment of its first 25 ms: before the file
        // is open, while it is opened and checked, or recording.
        std::string announced;
        if (round % 2 == 0) {
            char c = 0;
            while (::read(output, &c, 1) == 1) {
                announced += c;
                if (c == '\n')
                    break;
            }
            ::usleep(std::uniform_int_distribution<useconds_t>(0, 3000)(random));
        } else {
            ::usleep(std::uniform_int_distribution<useconds_t>(0, 25000)(random));
        }
        ::kill(driver, SIGKILL);
        announced += ReadAll(output);
        int status = 0;
        ASSERT_EQ(::waitpid(driver, &status, 0), driver);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the driver stopped by itself: " << announced;
        const long committed = LastCommitted(announced);
        killedWithCommits += committed > 0;

        std::string error;
        auto store = HistoryStore::Open(path.string(), error);
        ASSERT_TRUE(store) << "round " << round << ": " << error;
        ASSERT_EQ(QueryValue(path, "PRAGMA integrity_check"), "ok") << "round " << round;
        std::vector<LearnerEvent> events;
        ASSERT_TRUE(store->Events("Anna", events, error)) << error;
        // Every announced action is there; at most one more, whose announcement the kill cut;
        // every action whole.
        const long actions = static_cast<long>(events.size() / 5);
        ASSERT_EQ(events.size() % 5, 0u) << "round " << round;
        ASSERT_GE(actions, committedBefore + committed) << "round " << round;
        ASSERT_LE(actions, committedBefore + committed + 1) << "round " << round;
        committedBefore = actions;
    }
    EXPECT_GE(killedWithCommits, 150); // every other kill came in the middle of recording
    std::printf("300 kills, %d in the middle of recording, %ld actions kept\n", killedWithCommits, committedBefore);
}

TEST_F(HistoryReliability, EveryDamagedCopyIsToldAndKeptAside)
{
    // A real history: three learners, ten years of one of them, written by the store itself.
    WriteSmallDatabase(m_dir / "database", 1);
    FileCharacterDatabase database((m_dir / "database").string());
    const fs::path config = m_dir / "config.xml";
    WriteText(config, "<Zavoren><Users><User name=\"Anna\"/><User name=\"Ben\"/><User name=\"Chie\"/></Users></Zavoren>");
    const fs::path original = m_dir / "original.db";
    {
        StoreWithHistory store(config.string(), database, original.string());
        for (const char* name : {"Anna", "Ben", "Chie"}) {
            auto learner = store.LoadUser(name);
            const int days = name[0] == 'A' ? 3650 : 200;
            for (int day = 0; day < days; ++day) {
                std::vector<LearnerEvent> events;
                for (std::uint16_t i = 0; i < 5; ++i)
                    events.push_back({DayText(16000 + day) + "T18:00:00+01:00", LearnerEvent::Passed, 0,
                        static_cast<std::uint16_t>((day * 5 + i) % 2136), i});
                store.Record(*learner, events);
            }
        }
        ASSERT_TRUE(store.TakeHistoryProblem().reason.empty());
    }
    const std::string pristine = ReadText(original);
    ASSERT_GT(pristine.size(), 100u * 4096);
    ASSERT_FALSE(fs::exists(m_dir / "original.db-wal")); // all in the file

    std::mt19937 random(1123);
    const fs::path copy = m_dir / "history.db";
    int told = 0, harmless = 0;
    for (int n = 0; n < 400; ++n) {
        std::string damaged = pristine;
        const char* how = "";
        switch (n % 4) {
        case 0: // cut short, as by a copy that stopped
            how = "truncated";
            damaged.resize(std::uniform_int_distribution<std::size_t>(1, pristine.size() - 1)(random));
            break;
        case 1: // bytes flipped here and there, as by failing storage
            how = "flipped";
            for (int i = std::uniform_int_distribution<int>(1, 16)(random); i > 0; --i)
                damaged[std::uniform_int_distribution<std::size_t>(0, damaged.size() - 1)(random)]
                    ^= static_cast<char>(std::uniform_int_distribution<int>(1, 255)(random));
            break;
        case 2: { // a whole page zeroed
            how = "zeroed page";
            const std::size_t pages = pristine.size() / 4096;
            const std::size_t page = std::uniform_int_distribution<std::size_t>(0, pages - 1)(random);
            std::fill_n(damaged.begin() + static_cast<std::ptrdiff_t>(page * 4096), 4096, '\0');
            break;
        }
        case 3: { // a page overwritten by another one, as by a misdirected write
            how = "page over page";
            const std::size_t pages = pristine.size() / 4096;
            const std::size_t from = std::uniform_int_distribution<std::size_t>(1, pages - 1)(random);
            const std::size_t to = std::uniform_int_distribution<std::size_t>(1, pages - 1)(random);
            damaged.replace(to * 4096, 4096, pristine, from * 4096, 4096);
            break;
        }
        }
        for (const auto& entry : fs::directory_iterator(m_dir))
            if (entry.path().filename().string().rfind("history.db", 0) == 0)
                fs::remove(entry.path());
        WriteText(copy, damaged);
        // What SQLite's full check says of the copy, on a copy of the copy.
        WriteText(m_dir / "judge.db", damaged);
        const std::string verdict = QueryValue(m_dir / "judge.db", "PRAGMA integrity_check(1)");
        fs::remove(m_dir / "judge.db");

        StoreWithHistory store(config.string(), database, copy.string());
        store.OpenHistory();
        for (const char* name : {"Anna", "Ben", "Chie"})
            store.History(*store.LoadUser(name));
        auto anna = store.LoadUser("Anna");
        store.Record(*anna, {{"2026-11-23T10:00:00+01:00", LearnerEvent::Lesson, 0, 1, -1}});
        const HistoryProblem problem = store.TakeHistoryProblem();
        if (problem.reason.empty()) {
            // Not told: then the damage was none that SQLite can find, and the event went in.
            EXPECT_EQ(verdict, "ok") << n << " " << how;
            EXPECT_TRUE(anna->History().empty()) << n << " " << how;
            ++harmless;
            continue;
        }
        ++told;
        // Told: the copy is aside, byte for byte as it was given, and the event waits in config.xml.
        ASSERT_FALSE(problem.keptAs.empty()) << n << " " << how << ": " << problem.reason;
        EXPECT_EQ(ReadText(problem.keptAs), damaged) << n << " " << how;
        EXPECT_EQ(anna->History().size(), 1u) << n << " " << how;
        fs::remove(problem.keptAs);
    }
    std::printf("400 damaged copies: %d told and kept aside, %d with damage SQLite finds none in\n", told, harmless);
    EXPECT_GT(told, 300);
}
