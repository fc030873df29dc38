#include "MemoryModel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LeastStability = 0.001;
constexpr double MostStability = 36500;

/// Rounded to eight decimals, as the reference implementation rounds every step, so that long
/// sequences of reviews agree with it.
double Round8(double value)
{
    return std::round(value * 1e8) / 1e8;
}

int Grade(MemoryModel::Grade grade)
{
    return static_cast<int>(grade);
}

} // namespace

MemoryModel::MemoryModel(double retention, int maximumInterval)
    : m_retention(std::clamp(retention, LowestRetention, HighestRetention)),
      m_maximumInterval(std::clamp(maximumInterval, ShortestMaximumInterval, LongestMaximumInterval))
{
    m_factor = Round8(std::exp(std::log(0.9) / Decay()) - 1);
    m_intervalModifier = Round8((std::pow(m_retention, 1 / Decay()) - 1) / m_factor);
}

double MemoryModel::InitialDifficulty(Grade grade) const
{
    const auto& w = DefaultWeights;
    return Round8(w[4] - std::exp((::Grade(grade) - 1) * w[5]) + 1);
}

MemoryModel::Memory MemoryModel::First(Grade grade) const
{
    const auto& w = DefaultWeights;
    return {std::max(w[static_cast<std::size_t>(::Grade(grade) - 1)], 0.1),
        std::clamp(InitialDifficulty(grade), 1.0, 10.0)};
}

MemoryModel::Memory MemoryModel::Next(const Memory& memory, int elapsedDays, Grade grade) const
{
    const auto& w = DefaultWeights;
    const double s = memory.stability;
    const double d = memory.difficulty;
    const int g = ::Grade(grade);
    double stability;
    if (elapsedDays <= 0) {
        // A second review on the same day: the short-term rule, under which a recall never
        // lowers the stability.
        const double increase = std::pow(s, -w[19]) * std::exp(w[17] * (g - 3 + w[18]));
        stability = Round8(std::clamp(s * (g >= 2 ? std::max(increase, 1.0) : increase), LeastStability, MostStability));
    } else {
        const double r = Recall(elapsedDays, s);
        if (grade == Grade::Again) {
            const double afterLapse = Round8(std::clamp(
                w[11] * std::pow(d, -w[12]) * (std::pow(s + 1, w[13]) - 1) * std::exp((1 - r) * w[14]), LeastStability,
                MostStability));
            stability = std::clamp(Round8(s / std::exp(w[17] * w[18])), LeastStability, afterLapse);
        } else {
            const double hardPenalty = grade == Grade::Hard ? w[15] : 1;
            const double easyBonus = grade == Grade::Easy ? w[16] : 1;
            stability = Round8(std::clamp(s
                    * (1 + std::exp(w[8]) * (11 - d) * std::pow(s, -w[9]) * (std::exp((1 - r) * w[10]) - 1)
                        * hardPenalty * easyBonus),
                LeastStability, MostStability));
        }
    }
    // Difficulty moves with the grade, less as it nears 10, and reverts a little towards the
    // difficulty of a first Easy.
    const double change = -w[6] * (g - 3);
    const double moved = d + Round8(change * (10 - d) / 9);
    const double difficulty = std::clamp(Round8(w[7] * InitialDifficulty(Grade::Easy) + (1 - w[7]) * moved), 1.0, 10.0);
    return {stability, difficulty};
}

double MemoryModel::Recall(int elapsedDays, double stability) const
{
    return Round8(std::pow(1 + m_factor * std::max(elapsedDays, 0) / stability, Decay()));
}

int MemoryModel::Interval(double stability) const
{
    const double days = std::round(stability * m_intervalModifier);
    return static_cast<int>(std::clamp(days, 1.0, static_cast<double>(m_maximumInterval)));
}
