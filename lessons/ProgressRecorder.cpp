#include "ProgressRecorder.h"

#include "CategoryRules.h"

std::vector<std::uint16_t> ProgressRecorder::TestCharacters() const
{
    std::vector<std::uint16_t> codes;
    for (std::size_t i = 0; i < m_progress.UntestedCount() && i < LessonSize; ++i)
        codes.push_back(m_progress.UntestedAt(i));
    return codes;
}

void ProgressRecorder::LessonFinished(const std::vector<std::uint16_t>& taught)
{
    for (std::uint16_t id : taught)
        m_progress.AddUntested(id);
}

void ProgressRecorder::TestTaken(const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed)
{
    for (std::uint16_t id : passed)
        m_progress.MoveToLearned(id);
    for (std::uint16_t id : failed)
        m_progress.RemoveUntested(id);
}
