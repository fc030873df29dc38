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

void RecordReview(LearnerSession& session, const ReviewSitting::Item& item, bool passed, int mistakes)
{
    std::optional<ProgressRecorder> recorder = RecorderFor(session, item.categoryId, std::nullopt);
    if (!recorder)
        return;
    recorder->Reviewed(item.id, passed, mistakes);
    if (!passed)
        session.SaveLearner(true);
}
