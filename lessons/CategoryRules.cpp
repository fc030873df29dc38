#include "CategoryRules.h"

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
    std::vector<std::uint16_t> sent;
    for (std::uint16_t code : dueFirst) {
        if (static_cast<int>(sent.size()) == RetestSize)
            break;
        if (!progress.IsLearned(code))
            continue;
        progress.MoveToUntested(code);
        sent.push_back(code);
    }
    for (int i = static_cast<int>(sent.size()); i < RetestSize; ++i) {
        const std::size_t count = progress.LearnedCount();
        if (count == 0)
            break;
        const auto index = static_cast<std::size_t>(static_cast<std::int64_t>(random.Next()) * count / 32768);
        const std::uint16_t code = progress.LearnedAt(index);
        progress.MoveToUntested(code);
        sent.push_back(code);
    }
    return sent;
}
