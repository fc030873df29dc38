#pragma once

#include "LearnerEvent.h"
#include "User.h"

#include <cstdint>
#include <functional>
#include <vector>

/// The rules by which what a learner does in a category changes their progress there, and the
/// dated events each change adds to their history. The main window reports each finished lesson,
/// test and change on the category page; this class alone decides what it means.
class ProgressRecorder {
public:
    /// Gives how many questions of a character a test answered with mistakes.
    using MistakeCount = std::function<int(std::uint16_t code)>;

    /// Records into `learner`'s progress in category `categoryId`, dating events by `clock`.
    ProgressRecorder(User& learner, std::uint16_t categoryId, EventClock clock);

    /// The characters a test takes: the first few of the untested list, in order.
    std::vector<std::uint16_t> TestCharacters() const;
    /// A lesson finished: every character taught joins the untested list, in lesson order, as it
    /// is (a character already there is listed again); each is a "lesson" event.
    void LessonFinished(const std::vector<std::uint16_t>& taught);
    /// A test taken (to the end or not): a passed character becomes learned; a failed one counts
    /// as not learned again and leaves the untested list. Events "passed" and "failed", with
    /// each character's mistakes.
    void TestTaken(const std::vector<std::uint16_t>& passed, const std::vector<std::uint16_t>& failed,
        const MistakeCount& mistakes);
    /// The category page sent these learned characters back for testing.
    void Retested(const std::vector<std::uint16_t>& codes);
    /// The category page removed these characters from the learned ones.
    void Forgotten(const std::vector<std::uint16_t>& codes);
    /// A lesson of this one character begins (Learn or Review on the category page): "review"
    /// for a character already learned or untested, "learn" for a new one.
    void LearnOne(std::uint16_t code);

private:
    void Record(const char* kind, std::uint16_t code, int mistakes = -1);

    User& m_learner;
    CategoryProgress& m_progress;
    std::uint16_t m_categoryId;
    EventClock m_clock;
};
