#include "ReadingJudge.h"

void ReadingJudge::Start(
    std::string on, std::string kun, std::vector<std::string> onChoices, std::vector<std::string> kunChoices)
{
    m_sets[0] = {std::move(on), std::move(onChoices)};
    m_sets[1] = {std::move(kun), std::move(kunChoices)};
    m_perfect = true;
}

ReadingJudge::Outcome ReadingJudge::Pick(Set set, std::size_t index)
{
    SetState& state = m_sets[set == Set::On ? 0 : 1];
    if (state.right || index >= state.choices.size())
        return Outcome::Ignored;
    state.selected = static_cast<int>(index);
    state.right = state.choices[index] == state.answer;
    if (!state.right) {
        m_perfect = false;
        return Outcome::Wrong;
    }
    return Outcome::Right;
}
