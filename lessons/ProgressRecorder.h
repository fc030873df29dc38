#pragma once

#include "CategoryProgress.h"

#include <cstdint>
#include <vector>

/// The rules by which what a learner does in a category changes their progress there. The main
/// window reports each finished lesson and test; this class alone decides what it means.
class ProgressRecorder {
public:
    /// Records into the learner's progress in one category.
    explicit ProgressRecorder(CategoryProgress& progress) : m_progress(progress) { }

    /// The characters a test takes: the first few of the untested list, in order.
    std::vector<std::uint16_t> TestCharacters() const;
    /// A lesson finished: every character taught joins the untested list, in lesson order, as it
    /// is (a character already there is listed again).
    void LessonFinished(const std::vector<std::uint16_t>& taught);
    /// A test taken (to the end or not): a passed character becomes learned; a failed one counts
    /// as not learned again and leaves the untested list.
    void TestTaken(const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed);

private:
    CategoryProgress& m_progress;
};
