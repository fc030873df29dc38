#pragma once

#include "CategoryProgress.h"
#include "Random15.h"

#include <cstdint>
#include <vector>

/// Lessons never bring the untested characters of a category above this many.
inline constexpr std::size_t MaxUntested = 10;
/// Characters a lesson from the Lesson button takes at most.
inline constexpr std::size_t LessonSize = 5;
/// Characters a retest sends back for testing.
inline constexpr int RetestSize = 5;

/// What the category page enables, decided from the category and the learner's lists.
struct CategoryControlState {
    bool forgetEnabled = false;
    bool testEnabled = false;
    bool retestEnabled = false;
    bool lessonEnabled = false; ///< also the "Learn" menu item
    bool testIsDefault = false; ///< otherwise Lesson is the default button
};

/// `firstSelectedIsLearned`: the grid has a selection whose first cell is in "Learned Kanji".
CategoryControlState DecideCategoryControls(
    std::size_t categorySize, const CategoryProgress& progress, bool firstSelectedIsLearned);

/// The characters of a lesson: the category's codes in order, skipping learned and untested
/// ones, stopping at `max` or when the strip's count plus those taken reaches 10.
std::vector<std::uint16_t> PickLessonCharacters(const std::vector<std::uint16_t>& categoryCodes,
    const CategoryProgress& progress, std::size_t stripCount, std::size_t max);

/// Sends five learned characters back to the untested list. Without `dueFirst`: five drawn at
/// random, each draw over the learned list as it stands after the previous moves, each put in
/// front of the untested list. With it: its learned characters (at most five) first, and random
/// ones drawn from the others up to five; the due ones end in front of the untested list in the
/// order of `dueFirst`, so that they are tested first. Returns the due ones, then the drawn ones
/// in the order drawn.
std::vector<std::uint16_t> Retest(
    CategoryProgress& progress, Random15& random, const std::vector<std::uint16_t>& dueFirst = {});
