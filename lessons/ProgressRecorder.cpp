#include "ProgressRecorder.h"

#include "CategoryRules.h"

ProgressRecorder::ProgressRecorder(User& learner, std::uint16_t categoryId, EventClock clock, KeepEvents keep)
    : m_learner(&learner), m_categoryId(categoryId), m_clock(std::move(clock)), m_keep(std::move(keep))
{
    learner.GetProgress(categoryId); // the record exists from now on
}

std::vector<std::uint16_t> ProgressRecorder::TestCharacters() const
{
    const CategoryProgress& progress = Progress();
    std::vector<std::uint16_t> codes;
    for (std::size_t i = 0; i < progress.UntestedCount() && i < LessonSize; ++i)
        codes.push_back(progress.UntestedAt(i));
    return codes;
}

void ProgressRecorder::LessonFinished(const std::vector<std::uint16_t>& taught)
{
    for (std::uint16_t id : taught) {
        Progress().AddUntested(id);
        Record(LearnerEvent::Lesson, id);
    }
    Keep();
}

void ProgressRecorder::TestTaken(
    const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed, const MistakeCount& mistakes)
{
    for (std::uint16_t id : passed) {
        Progress().MoveToLearned(id);
        Record(LearnerEvent::Passed, id, mistakes ? mistakes(id) : 0);
    }
    for (std::uint16_t id : failed) {
        Progress().RemoveUntested(id);
        Record(LearnerEvent::Failed, id, mistakes ? mistakes(id) : 0);
    }
    Keep();
}

void ProgressRecorder::Reviewed(std::uint16_t code, bool passed, int mistakes)
{
    CategoryProgress& progress = Progress();
    // A character that Retest had sent back is reviewed here as well: it is taken off the
    // untested list either way.
    progress.RemoveUntested(code);
    if (!passed)
        progress.RemoveLearned(code);
    else if (!progress.IsLearned(code))
        progress.AddLearned(code);
    Record(passed ? LearnerEvent::Passed : LearnerEvent::Failed, code, mistakes);
    Keep();
}

std::vector<std::uint16_t> ProgressRecorder::Retest(Random15& random)
{
    const std::vector<std::uint16_t> sent = ::Retest(Progress(), random, m_dueFirst);
    for (std::uint16_t code : sent)
        Record(LearnerEvent::Retest, code);
    Keep();
    return sent;
}

std::vector<std::uint16_t> ProgressRecorder::Forget(const std::vector<std::uint16_t>& codes)
{
    CategoryProgress& progress = Progress();
    std::vector<std::uint16_t> forgotten;
    for (std::uint16_t code : codes) {
        if (!progress.IsLearned(code))
            continue;
        progress.RemoveLearned(code);
        forgotten.push_back(code);
        Record(LearnerEvent::Forget, code);
    }
    Keep();
    return forgotten;
}

void ProgressRecorder::LearnOne(std::uint16_t code)
{
    const CategoryProgress& progress = Progress();
    const bool taught = progress.IsLearned(code) || progress.IsUntested(code);
    Record(taught ? LearnerEvent::Review : LearnerEvent::Learn, code);
    Keep();
}

void ProgressRecorder::Record(const char* kind, std::uint16_t code, int mistakes)
{
    if (m_action.empty())
        m_actionTime = m_clock ? m_clock() : LocalTimeNow();
    m_action.push_back({m_actionTime, kind, m_categoryId, code, mistakes});
}

void ProgressRecorder::Keep()
{
    if (!m_action.empty() && m_keep)
        m_keep(*m_learner, m_action);
    m_action.clear();
}
