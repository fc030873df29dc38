#pragma once

#include "User.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a learner's history and progress add up to, for the progress view: characters learned
/// day by day, tests per week, each category's counts, and the characters that gave the most
/// trouble. Days are local dates as day numbers (EventDay).
class LearnerStatistics {
public:
    /// `learner`'s progress with their whole `history` (ConfigStore::History); `categorySizes`
    /// holds the number of characters of each category of the database; `today` is the day the
    /// charts end on.
    LearnerStatistics(
        const User& learner, std::vector<LearnerEvent> history, std::vector<std::uint16_t> categorySizes, int today);

    /// The first day of the charts: the day of the first event (today without any).
    int FirstDay() const { return m_firstDay; }
    int Today() const { return m_today; }

    /// Characters learned at the end of each day from FirstDay() to Today(), in every category or
    /// in one. Characters learned before the history began count from the first day.
    std::vector<int> LearnedPerDay(std::optional<std::uint16_t> category = std::nullopt) const;

    struct Week {
        int monday; ///< the day the week begins
        int passed = 0;
        int failed = 0;
    };
    /// Tests taken each week (Monday to Sunday), from the week of FirstDay() to this week.
    std::vector<Week> TestsPerWeek() const;

    struct CategoryCounts {
        std::uint16_t categoryId;
        std::size_t learned;
        std::size_t untested;
        std::size_t total;
    };
    /// Learned, untested and total characters of every category.
    std::vector<CategoryCounts> Categories() const;

    struct Trouble {
        std::uint16_t categoryId;
        std::uint16_t id;
        int mistakes; ///< questions answered with mistakes, over all its tests
        int failures; ///< tests failed
    };
    /// The learned or untested characters with mistakes or failures in tests, the most troubled
    /// first (mistakes and failures together, then failures), at most `most` of them.
    std::vector<Trouble> TroubleCharacters(std::size_t most) const;

private:
    const User& m_learner;
    std::vector<LearnerEvent> m_history;
    std::vector<std::uint16_t> m_sizes;
    int m_today;
    int m_firstDay;
};
