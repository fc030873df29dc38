// Reviews every due character of the learner "Anna" in the folder DIR (config.xml, history.db
// and database, as the program keeps them), one after another, as the review page records
// them: a character whose id is a multiple of three is forgotten, the others remembered. After
// each answer is recorded it writes "id passed|failed" (one line) to standard output; when
// nothing is left it waits to be killed. The review reliability test kills it at random moments.

#include "FileCharacterDatabase.h"
#include "LearnerSession.h"
#include "SessionRecorder.h"
#include "StoreWithHistory.h"

#include <cstdio>
#include <string>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: review_kill_driver DIR\n");
        return 2;
    }
    const std::string dir = argv[1];
    try {
        FileCharacterDatabase database(dir + "/database");
        database.Preload(nullptr);
        StoreWithHistory store(dir + "/config.xml", database, dir + "/history.db");
        LearnerSession session(database, store, store.Histories(), [] { return std::string("2026-11-24T10:00:00+01:00"); });
        session.Open(store.LoadUser("Anna"));
        const std::optional<ReviewSchedule> reviews = session.Reviews();
        if (!reviews)
            return 1;
        for (const ReviewSitting::Item& item : ReviewSitting::DueList(*reviews, ReviewSitting::MaximumSize)) {
            const bool passed = item.id % 3 != 0;
            RecordReview(session, item, passed, passed ? 0 : 2);
            const std::string line = std::to_string(item.id) + (passed ? " passed\n" : " failed\n");
            if (::write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
                return 1;
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    for (;;)
        ::pause();
}
