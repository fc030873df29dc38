#include "ReviewSitting.h"

#include <algorithm>
#include <tuple>

std::vector<ReviewSitting::Item> ReviewSitting::DueList(const ReviewSchedule& reviews, std::size_t cap)
{
    std::vector<Item> due;
    for (const ReviewSchedule::Review& r : reviews.Reviews())
        if (r.Due(reviews.Today()))
            due.push_back({r.categoryId, r.id, r.recall});
    const auto order = [](const Item& a, const Item& b) {
        return std::tie(a.recall, a.categoryId, a.id) < std::tie(b.recall, b.categoryId, b.id);
    };
    if (due.size() > cap) {
        std::partial_sort(due.begin(), due.begin() + static_cast<std::ptrdiff_t>(cap), due.end(), order);
        due.resize(cap);
    } else {
        std::sort(due.begin(), due.end(), order);
    }
    return due;
}

ReviewSitting::Outcome ReviewSitting::Judge(bool passed, int mistakes)
{
    if (!passed)
        return Outcome::Forgotten;
    return mistakes > 0 ? Outcome::RememberedWithMistakes : Outcome::Remembered;
}

std::optional<ReviewSitting::Item> ReviewSitting::Current() const
{
    if (m_answered >= m_items.size())
        return std::nullopt;
    return m_items[m_answered];
}

void ReviewSitting::Answer(Outcome outcome)
{
    const std::optional<Item> item = Current();
    if (!item)
        return;
    ++m_answered;
    switch (outcome) {
    case Outcome::Remembered: ++m_remembered; break;
    case Outcome::RememberedWithMistakes: ++m_withMistakes; break;
    case Outcome::Forgotten: m_forgotten.push_back(*item); break;
    }
}
