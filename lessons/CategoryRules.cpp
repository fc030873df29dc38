#include "CategoryRules.h"

#include <algorithm>

CategoryControlState DecideCategoryControls(
    std::size_t categorySize, const CategoryProgress& progress, bool firstSelectedIsLearned)
{
    CategoryControlState s;
    const std::size_t untested = progress.UntestedCount();
    const std::size_t learned = progress.LearnedCount();
    s.forgetEnabled = firstSelectedIsLearned;
    s.testEnabled = untested > 0;
    s.retestEnabled = learned >= 5 && untested < 5;
    // Kept as a 16-bit difference, as the page always computed it.
    const auto left = static_cast<std::uint16_t>(categorySize - untested - learned);
    s.lessonEnabled = untested < MaxUntested && left != 0;
    s.testIsDefault = untested > 0;
    return s;
}

std::vector<std::uint16_t> PickLessonCharacters(const std::vector<std::uint16_t>& categoryCodes,
    const CategoryProgress& progress, std::size_t stripCount, std::size_t max)
{
    std::vector<std::uint16_t> taken;
    for (std::uint16_t code : categoryCodes) {
        if (taken.size() >= max || stripCount + taken.size() >= MaxUntested)
            break;
        if (progress.IsLearned(code) || progress.IsUntested(code))
            continue;
        taken.push_back(code);
    }
    return taken;
}

std::vector<std::uint16_t> Retest(
    CategoryProgress& progress, Random15& random, const std::vector<std::uint16_t>& dueFirst)
{
    // The due ones leave the learned list first, so that the draws are over the others.
    std::vector<std::uint16_t> due;
    for (std::uint16_t code : dueFirst) {
        if (static_cast<int>(due.size()) == RetestSize)
            break;
        if (!progress.IsLearned(code) || std::find(due.begin(), due.end(), code) != due.end())
            continue;
        progress.RemoveLearned(code);
        due.push_back(code);
    }
    std::vector<std::uint16_t> drawn;
    for (int i = static_cast<int>(due.size()); i < RetestSize; ++i) {
        const std::size_t count = progress.LearnedCount();
        if (count == 0)
            break;
        const auto index = static_cast<std::size_t>(static_cast<std::int64_t>(random.Next()) * count / 32768);
        const std::uint16_t code = progress.LearnedAt(index);
        progress.MoveToUntested(code);
        drawn.push_back(code);
    }
    // Then to the front of the untested list, the first of them first: they are tested first.
    for (auto it = due.rbegin(); it != due.rend(); ++it) {
        progress.AddLearned(*it);
        progress.MoveToUntested(*it);
    }
    due.insert(due.end(), drawn.begin(), drawn.end());
    return due;
}
