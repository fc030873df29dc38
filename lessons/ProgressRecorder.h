#pragma once

#include "LearnerEvent.h"
#include "Random15.h"
#include "User.h"

#include <cstdint>
#include <functional>
#include <vector>

/// The rules by which what a learner does in a category changes their progress there, and the
/// dated events each change adds to their history. The main window reports each finished lesson
/// and test, the category page its Forget and Retest; this class alone changes the record.
class ProgressRecorder {
public:
    /// Gives how many questions of a character a test answered with mistakes.
    using MistakeCount = std::function<int(std::uint16_t code)>;
    /// Keeps the events of one action of the learner, all together (ConfigStore::Record).
    using KeepEvents = std::function<void(User& learner, const std::vector<LearnerEvent>& events)>;

    /// Records into `learner`'s progress in category `categoryId`, dating events by `clock`;
    /// the events of each action go to `keep` at its end.
    ProgressRecorder(User& learner, std::uint16_t categoryId, EventClock clock, KeepEvents keep);

    /// The learner's record of the category (looked up on each use: the learner's list of
    /// records may grow meanwhile).
    CategoryProgress& Progress() const { return m_learner->GetProgress(m_categoryId); }
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
    /// A learned character reviewed as a test asks it: passed, it stays learned ("passed", with
    /// its mistakes); failed, it leaves the learned and untested lists, so that the next lesson
    /// of the category teaches it again ("failed"). One action: its event is kept at once.
    void Reviewed(std::uint16_t code, bool passed, int mistakes);
    /// Retest: five learned characters go back to the untested list, the due ones first (see
    /// SetDueFirst), then random ones (each draw over the list as it stands after the previous
    /// moves); each is a "retest" event. Returns them.
    std::vector<std::uint16_t> Retest(Random15& random);
    /// The category's characters due for review, the first to send back on Retest (none: all
    /// random).
    void SetDueFirst(std::vector<std::uint16_t> codes) { m_dueFirst = std::move(codes); }
    /// Forget: these characters leave the learned list; each that was learned is a "forget"
    /// event. Returns those that left it.
    std::vector<std::uint16_t> Forget(const std::vector<std::uint16_t>& codes);
    /// A lesson of this one character begins (Learn or Review on the category page): "review"
    /// for a character already learned or untested, "learn" for a new one.
    void LearnOne(std::uint16_t code);

private:
    /// Adds an event to the action's, all dated alike.
    void Record(const char* kind, std::uint16_t code, int mistakes = -1);
    /// Hands the action's events over to be kept.
    void Keep();

    User* m_learner; ///< never null: a pointer, so that a recorder can be assigned
    std::uint16_t m_categoryId;
    EventClock m_clock;
    KeepEvents m_keep;
    std::vector<std::uint16_t> m_dueFirst;
    std::vector<LearnerEvent> m_action;
    std::string m_actionTime;
};
