#pragma once

#include <array>

/// How well a learner remembers a character, after FSRS-6 (the Free Spaced Repetition
/// Scheduler, sixth version): a memory is a stability (the days after which the probability of
/// recalling it has fallen to 90 %) and a difficulty (1 to 10); each graded review updates both
/// from the days since the review before, and the next review is due when the probability of
/// recall falls to the desired retention. Same-day reviews follow the model's short-term rule.
class MemoryModel {
public:
    /// How a review went: Again (forgotten), Hard (recalled with mistakes), Good, Easy.
    enum class Grade { Again = 1, Hard = 2, Good = 3, Easy = 4 };

    struct Memory {
        double stability = 0;
        double difficulty = 0;
        bool operator==(const Memory&) const = default;
    };

    /// The 21 published default weights of FSRS-6, as ts-fsrs 5.4.2 ("using FSRS-6.0") gives
    /// them; the last is the forgetting curve's decay.
    static constexpr std::array<double, 21> DefaultWeights = {0.212, 1.2931, 2.3065, 8.2956, 6.4133, 0.8334,
        3.0194, 0.001, 1.8722, 0.1666, 0.796, 1.4835, 0.0614, 0.2629, 1.6483, 0.6014, 1.8729, 0.5425, 0.0912, 0.0658,
        0.1542};
    static constexpr double DefaultRetention = 0.90;
    static constexpr int DefaultMaximumInterval = 365;
    /// The range offered to the learner.
    static constexpr double LowestRetention = 0.80;
    static constexpr double HighestRetention = 0.97;
    static constexpr int ShortestMaximumInterval = 30;
    static constexpr int LongestMaximumInterval = 3650;

    /// A model of the default weights scheduling for `retention` (clamped to the range offered)
    /// with intervals of at most `maximumInterval` days (likewise).
    explicit MemoryModel(
        double retention = DefaultRetention, int maximumInterval = DefaultMaximumInterval);

    double Retention() const { return m_retention; }
    int MaximumInterval() const { return m_maximumInterval; }

    /// The memory after the first review.
    Memory First(Grade grade) const;
    /// The memory after a review `elapsedDays` after the one that left `memory`.
    Memory Next(const Memory& memory, int elapsedDays, Grade grade) const;
    /// The probability of recall `elapsedDays` after the review that left a memory of this
    /// stability.
    double Recall(int elapsedDays, double stability) const;
    /// Days from a review that left a memory of this stability to the next one: when recall
    /// falls to the desired retention, at least 1, at most the maximum interval.
    int Interval(double stability) const;

private:
    double Decay() const { return -DefaultWeights[20]; }
    double InitialDifficulty(Grade grade) const;

    double m_retention;
    int m_maximumInterval;
    double m_factor; ///< of the forgetting curve: 0.9^(1 / decay) - 1
    double m_intervalModifier; ///< days of interval per day of stability at the desired retention
};
