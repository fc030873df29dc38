#pragma once

#include "ReviewSchedule.h"

#include <cstdint>
#include <optional>
#include <vector>

/// One sitting of reviews: the characters due today from every category, the least likely to be
/// recalled first, asked one after the other, and what became of each. The review page asks the
/// questions and records the answers; this class keeps the list and the tally.
class ReviewSitting {
public:
    /// What a reviewed character's test showed.
    enum class Outcome { Remembered, RememberedWithMistakes, Forgotten };

    struct Item {
        std::uint16_t categoryId = 0;
        std::uint16_t id = 0;
        double recall = 0; ///< the probability of recall today
        bool operator==(const Item&) const = default;
    };

    /// Reviews in one sitting: the setting's bounds and default.
    static constexpr int MinimumSize = 10;
    static constexpr int MaximumSize = 500;
    static constexpr int DefaultSize = 50;

    /// The characters due in `reviews`, the least likely to be recalled first (then by category
    /// and id), at most `cap` of them.
    static std::vector<Item> DueList(const ReviewSchedule& reviews, std::size_t cap);
    /// The outcome by the test's rule: passed with no mistakes, passed with some, failed.
    static Outcome Judge(bool passed, int mistakes);

    ReviewSitting() = default;
    explicit ReviewSitting(std::vector<Item> items) : m_items(std::move(items)) { }

    const std::vector<Item>& Items() const { return m_items; }
    /// The character asked now; none once every one is answered.
    std::optional<Item> Current() const;
    /// How many are answered (also the index of the one asked).
    std::size_t AnsweredCount() const { return m_answered; }
    /// The character asked was answered with this outcome; the next one is asked.
    void Answer(Outcome outcome);

    int Remembered() const { return m_remembered; }
    int RememberedWithMistakes() const { return m_withMistakes; }
    /// The forgotten characters, in the order asked.
    const std::vector<Item>& Forgotten() const { return m_forgotten; }

private:
    std::vector<Item> m_items;
    std::size_t m_answered = 0;
    int m_remembered = 0;
    int m_withMistakes = 0;
    std::vector<Item> m_forgotten;
};
