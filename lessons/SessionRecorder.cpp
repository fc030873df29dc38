#include "SessionRecorder.h"

#include "LearnerSession.h"

std::optional<ProgressRecorder> RecorderFor(
    LearnerSession& session, std::uint16_t categoryId, const std::optional<ReviewSchedule>& reviews)
{
    User* learner = session.Learner();
    if (!learner)
        return std::nullopt;
    ProgressRecorder recorder(*learner, categoryId, session.Clock(),
        [&session](User& who, const std::vector<LearnerEvent>& events) { session.Record(who, events); });
    if (reviews)
        recorder.SetDueFirst(reviews->DueFirst(categoryId));
    return recorder;
}
