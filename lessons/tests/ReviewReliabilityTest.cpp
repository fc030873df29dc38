// A review sitting killed at any moment: every answer it had recorded is in the history, a
// forgotten character stays out of the learned list in config.xml, and both files open.

#include "DriverProcess.h"
#include "StoreFiles.h"
#include "StoreWithHistory.h"

#include "FileCharacterDatabase.h"
#include "HistoryStore.h"

#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <random>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace StoreFiles;

namespace {

constexpr int Characters = 60;

/// Anna learned every character of the one category 30 days ago: all are due.
void WriteLearner(const fs::path& dir)
{
    std::string learned;
    for (int id = 0; id < Characters; ++id)
        learned += "<Character id=\"" + std::to_string(id) + "\"/>";
    WriteText(dir / "config.xml",
        "<Zavoren><Users currentUser=\"Anna\"><User name=\"Anna\"><Progress categoryId=\"0\"><Learned>" + learned
            + "</Learned><Untested/></Progress></User></Users></Zavoren>");
    std::vector<LearnerEvent> events;
    for (int id = 0; id < Characters; ++id)
        events.push_back({DayText(EventDay("2026-11-24T10:00:00+01:00") - 30) + "T10:00:00+01:00",
            LearnerEvent::Passed, 0, static_cast<std::uint16_t>(id), 0});
    std::string error;
    auto history = HistoryStore::Open((dir / "history.db").string(), error);
    ASSERT_TRUE(history) << error;
    ASSERT_TRUE(history->Record("Anna", events, error)) << error;
}

/// Reads whole lines until `count` have come (or the pipe ends).
std::string ReadLines(int fd, int count)
{
    std::string text;
    char c = 0;
    for (int lines = 0; lines < count && ::read(fd, &c, 1) == 1;) {
        text += c;
        lines += c == '\n';
    }
    return text;
}

} // namespace

TEST(ReviewReliability, KilledAtAnyMomentNothingAnsweredIsLost)
{
    std::mt19937 random(20261124);
    int killedInTheMiddle = 0;
    for (int round = 0; round < 40; ++round) {
        const fs::path dir = MakeTemporaryFolder("zavoren-review-kill");
        WriteSmallDatabase(dir / "database", 1, Characters);
        WriteLearner(dir);
        int output = -1;
        const pid_t driver = StartDriver(REVIEW_KILL_DRIVER, dir.string(), output);
        ASSERT_GT(driver, 0);
        // After a few answers, within the next 3 ms: in the middle of recording the next one.
        std::string announced = ReadLines(output, std::uniform_int_distribution<int>(1, 30)(random));
        ::usleep(std::uniform_int_distribution<useconds_t>(0, 3000)(random));
        ::kill(driver, SIGKILL);
        announced += ReadAll(output);
        int status = 0;
        ASSERT_EQ(::waitpid(driver, &status, 0), driver);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the driver stopped by itself: " << announced;

        // What the driver said it had recorded, whole lines only.
        std::map<int, bool> answered;
        std::istringstream lines(announced);
        for (std::string line; std::getline(lines, line);)
            if (!lines.eof() || announced.back() == '\n') {
                const auto space = line.find(' ');
                answered[std::stoi(line.substr(0, space))] = line.substr(space + 1) == "passed";
            }
        ASSERT_FALSE(answered.empty());
        killedInTheMiddle += answered.size() < static_cast<std::size_t>(Characters);

        FileCharacterDatabase database((dir / "database").string());
        database.Preload(nullptr);
        StoreWithHistory store((dir / "config.xml").string(), database, (dir / "history.db").string());
        const auto anna = store.LoadUser("Anna");
        ASSERT_TRUE(anna) << "round " << round;
        const std::vector<LearnerEvent> events = store.History(*anna);
        std::map<int, std::string> recorded;
        for (std::size_t i = Characters; i < events.size(); ++i)
            recorded[events[i].id] = events[i].kind;
        EXPECT_TRUE(store.TakeHistoryProblem().reason.empty()) << "round " << round;
        // Every announced answer is there, with its outcome; at most one more, whose line the
        // kill cut.
        ASSERT_GE(recorded.size(), answered.size()) << "round " << round;
        ASSERT_LE(recorded.size(), answered.size() + 1) << "round " << round;
        for (const auto& [id, passed] : answered) {
            ASSERT_EQ(recorded[id], passed ? LearnerEvent::Passed : LearnerEvent::Failed) << "round " << round;
            // A forgotten character is not learned again after the kill; a remembered one is.
            EXPECT_EQ(anna->GetProgress(0).IsLearned(static_cast<std::uint16_t>(id)), passed)
                << "round " << round << ", character " << id;
        }
        std::error_code ec;
        fs::remove_all(dir, ec);
    }
    EXPECT_GE(killedInTheMiddle, 30);
}
