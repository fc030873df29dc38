#pragma once

#include "ReviewSchedule.h"
#include "User.h"

#include <functional>
#include <string>
#include <vector>

/// Why the learning history could not be kept in its database.
struct HistoryProblem {
    std::string reason; ///< what went wrong, as the database says it; empty: nothing did
    std::string keptAs; ///< where a damaged file was put aside, when it was
};

/// What the learners did, dated: every lesson, test, retest and forget, and the memory of each
/// character that follows from them. Failures are never thrown: a problem is told once, to the
/// listener, at the moment it happens, and the history goes on being kept with the learner's
/// record in config.xml.
class LearningHistory {
public:
    /// Told each problem once, when it happens.
    using ProblemListener = std::function<void(const HistoryProblem& problem)>;
    /// Runs a task on the thread that owns the history; may be called from another thread.
    using RunOnOwner = std::function<void(std::function<void()> task)>;

    virtual ~LearningHistory() = default;

    /// Keeps the events of one action of `learner` (a lesson's characters, a test's results),
    /// all or none, durably once this returns; where they cannot be kept in the database, with
    /// the learner's record (written with the next save).
    virtual void Record(User& learner, const std::vector<LearnerEvent>& events) = 0;
    /// The learner's whole history, oldest first.
    virtual std::vector<LearnerEvent> Events(const User& learner) = 0;
    /// Makes the events an imported `learner` carries their whole history; those the database
    /// took leave the record.
    virtual void Replace(User& learner) = 0;
    /// Removes every event of the learner of this name (deleted, or a new learner of the name).
    virtual void Forget(const std::string& learner) = 0;
    /// Each character's memory as the learner's whole history leaves it.
    virtual LearnerMemories Memories(const User& learner) = 0;
    /// Opens the history if it is not open yet and checks it whole in the background; what the
    /// check finds is told through `runOnOwner` as soon as it is over.
    virtual void OpenAndCheck(RunOnOwner runOnOwner) = 0;
    /// Who is told of problems (none: they wait until someone listens).
    virtual void SetProblemListener(ProblemListener listener) = 0;
};
