#include "ProgressRecorder.h"

#include "CategoryRules.h"

ProgressRecorder::ProgressRecorder(User& learner, std::uint16_t categoryId, EventClock clock)
    : m_learner(learner), m_progress(learner.GetProgress(categoryId)), m_categoryId(categoryId),
      m_clock(std::move(clock))
{
}

std::vector<std::uint16_t> ProgressRecorder::TestCharacters() const
{
    std::vector<std::uint16_t> codes;
    for (std::size_t i = 0; i < m_progress.UntestedCount() && i < LessonSize; ++i)
        codes.push_back(m_progress.UntestedAt(i));
    return codes;
}

void ProgressRecorder::LessonFinished(const std::vector<std::uint16_t>& taught)
{
    for (std::uint16_t id : taught) {
        m_progress.AddUntested(id);
        Record(LearnerEvent::Lesson, id);
    }
}

void ProgressRecorder::TestTaken(
    const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed, const MistakeCount& mistakes)
{
    for (std::uint16_t id : passed) {
        m_progress.MoveToLearned(id);
        Record(LearnerEvent::Passed, id, mistakes ? mistakes(id) : 0);
    }
    for (std::uint16_t id : failed) {
        m_progress.RemoveUntested(id);
        Record(LearnerEvent::Failed, id, mistakes ? mistakes(id) : 0);
    }
}

void ProgressRecorder::Retested(const std::vector<std::uint16_t>& codes)
{
    for (std::uint16_t id : codes)
        Record(LearnerEvent::Retest, id);
}

void ProgressRecorder::Forgotten(const std::vector<std::uint16_t>& codes)
{
    for (std::uint16_t id : codes)
        Record(LearnerEvent::Forget, id);
}

void ProgressRecorder::LearnOne(std::uint16_t code)
{
    const bool taught = m_progress.IsLearned(code) || m_progress.IsUntested(code);
    Record(taught ? LearnerEvent::Review : LearnerEvent::Learn, code);
}

void ProgressRecorder::Record(const char* kind, std::uint16_t code, int mistakes)
{
    m_learner.AddEvent({m_clock ? m_clock() : LocalTimeNow(), kind, m_categoryId, code, mistakes});
}
