#pragma once

#include "LearnerEvent.h"
#include "MemoryModel.h"
#include "User.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

/// One character's memory after its last graded review.
struct CharacterMemory {
    std::uint16_t categoryId = 0;
    std::uint16_t id = 0;
    MemoryModel::Memory memory;
    int lastDay = 0; ///< the day of the last graded review (EventDay)
    bool operator==(const CharacterMemory&) const = default;
};

/// A learner's memories as the history leaves them, with the day the history began (-1 when it
/// has no event).
struct LearnerMemories {
    std::vector<CharacterMemory> memories;
    int firstDay = -1;
};

/// Folds a learner's history into the memory of each character: a test passed without mistakes
/// is the grade Good, passed with mistakes Hard, failed Again; a character written in a word
/// likewise (not written: Again); a Forget clears the character's memory; lessons, Learn, Review
/// and Retest are no grades. The memories do not depend on the
/// desired retention or the maximum interval, so they can be kept and read back as they are.
class MemoryLedger {
public:
    using Key = std::pair<std::uint16_t, std::uint16_t>; // category, character

    /// The grade an event gives, none for an event that is not a test.
    static std::optional<MemoryModel::Grade> GradeOf(const LearnerEvent& event);

    /// Takes one event, in the order of the history. Returns whether it changed a memory.
    bool Apply(const LearnerEvent& event);
    /// Starts from memories worked out before.
    void Load(const std::vector<CharacterMemory>& memories);

    std::vector<CharacterMemory> Memories() const;
    const CharacterMemory* Find(Key key) const;

    /// A whole history folded.
    static LearnerMemories Fold(const std::vector<LearnerEvent>& history);

private:
    MemoryModel m_model; // First and Next do not depend on its retention
    std::map<Key, CharacterMemory> m_memories;
};

/// When each learned character of a learner is due for review today, under a memory model's
/// desired retention and maximum interval. A learned character without a graded review (learned
/// before its history began) counts as passed Good on the history's first day, or today when
/// there is none.
class ReviewSchedule {
public:
    ReviewSchedule(const User& learner, const LearnerMemories& memories, const MemoryModel& model, int today);

    struct Review {
        std::uint16_t categoryId;
        std::uint16_t id;
        double recall; ///< the probability of recall today
        int dueDay; ///< the day it is due (today or before: due now)
        bool Due(int today) const { return dueDay <= today; }
    };

    int Today() const { return m_today; }
    /// Every learned character, by category and id.
    const std::vector<Review>& Reviews() const { return m_reviews; }
    /// The review of one learned character, none for one not learned.
    const Review* Find(std::uint16_t categoryId, std::uint16_t id) const;
    /// How many learned characters of the category are due today.
    int DueCount(std::uint16_t categoryId) const;
    /// How many learned characters are due today in all.
    int DueTotal() const;
    /// The category's due characters, the least likely to be recalled first.
    std::vector<std::uint16_t> DueFirst(std::uint16_t categoryId) const;
    /// Characters falling due on each of the `days` days from tomorrow (those due today or
    /// before are not among them).
    std::vector<int> DuePerDay(int days) const;

private:
    std::vector<Review> m_reviews;
    int m_today;
};
