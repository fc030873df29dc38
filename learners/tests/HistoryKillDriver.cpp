// Records actions of five events into the history database at PATH, one after another, until it
// is killed; after each commit has returned it writes the number of actions committed so far
// (one line) to standard output. The reliability test kills it at random moments.

#include "HistoryStore.h"

#include <cstdio>
#include <string>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: history_kill_driver PATH\n");
        return 2;
    }
    std::string error;
    auto store = HistoryStore::Open(argv[1], error);
    if (!store) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    for (unsigned long action = 1;; ++action) {
        std::vector<LearnerEvent> events;
        for (std::uint16_t i = 0; i < 5; ++i)
            events.push_back({"2026-11-23T10:00:00+01:00", LearnerEvent::Passed, 0,
                static_cast<std::uint16_t>((action * 5 + i) % 2136), static_cast<int>(i)});
        if (!store->Record("Anna", events, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            return 1;
        }
        const std::string line = std::to_string(action) + "\n";
        if (::write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            return 1;
    }
}
