#include "ReviewSchedule.h"

#include <algorithm>
#include <unordered_map>

std::optional<MemoryModel::Grade> MemoryLedger::GradeOf(const LearnerEvent& event)
{
    if (event.kind == LearnerEvent::Passed)
        return event.mistakes > 0 ? MemoryModel::Grade::Hard : MemoryModel::Grade::Good;
    if (event.kind == LearnerEvent::Failed)
        return MemoryModel::Grade::Again;
    // A character of a word: written without a hint Good, with hints Hard, not written Again.
    if (event.kind == LearnerEvent::Word)
        return event.mistakes < 0 ? MemoryModel::Grade::Again
                                  : (event.mistakes > 0 ? MemoryModel::Grade::Hard : MemoryModel::Grade::Good);
    return std::nullopt;
}

bool MemoryLedger::Apply(const LearnerEvent& event)
{
    const Key key{event.categoryId, event.id};
    if (event.kind == LearnerEvent::Forget)
        return m_memories.erase(key) > 0;
    const auto grade = GradeOf(event);
    const int day = EventDay(event.at);
    if (!grade || day < 0)
        return false;
    auto found = m_memories.find(key);
    if (found == m_memories.end()) {
        m_memories.emplace(key, CharacterMemory{key.first, key.second, m_model.First(*grade), day});
        return true;
    }
    CharacterMemory& c = found->second;
    // A review dated before the last one (a clock set back) counts as on the same day.
    c.memory = m_model.Next(c.memory, std::max(day - c.lastDay, 0), *grade);
    c.lastDay = std::max(day, c.lastDay);
    return true;
}

void MemoryLedger::Load(const std::vector<CharacterMemory>& memories)
{
    m_memories.clear();
    for (const CharacterMemory& c : memories)
        m_memories[{c.categoryId, c.id}] = c;
}

std::vector<CharacterMemory> MemoryLedger::Memories() const
{
    std::vector<CharacterMemory> out;
    out.reserve(m_memories.size());
    for (const auto& [key, c] : m_memories)
        out.push_back(c);
    return out;
}

const CharacterMemory* MemoryLedger::Find(Key key) const
{
    const auto found = m_memories.find(key);
    return found == m_memories.end() ? nullptr : &found->second;
}

LearnerMemories MemoryLedger::Fold(const std::vector<LearnerEvent>& history)
{
    MemoryLedger ledger;
    LearnerMemories result;
    for (const LearnerEvent& e : history) {
        ledger.Apply(e);
        if (const int day = EventDay(e.at); day >= 0 && (result.firstDay < 0 || day < result.firstDay))
            result.firstDay = day;
    }
    result.memories = ledger.Memories();
    return result;
}

ReviewSchedule::ReviewSchedule(
    const User& learner, const LearnerMemories& memories, const MemoryModel& model, int today)
    : m_today(today)
{
    // The memories by category and character, for a binary search per learned character.
    std::vector<const CharacterMemory*> known;
    known.reserve(memories.memories.size());
    for (const CharacterMemory& c : memories.memories)
        known.push_back(&c);
    auto key = [](const CharacterMemory* c) { return std::pair(c->categoryId, c->id); };
    if (!std::is_sorted(known.begin(), known.end(), [&](auto a, auto b) { return key(a) < key(b); }))
        std::sort(known.begin(), known.end(), [&](auto a, auto b) { return key(a) < key(b); });
    // A character a newer database teaches in another category keeps the memory it has under
    // the category it was learned in: the latest by id, for those not found under their own.
    std::unordered_map<std::uint16_t, const CharacterMemory*> byId;
    for (const CharacterMemory* c : known) {
        auto [at, added] = byId.emplace(c->id, c);
        if (!added && c->lastDay > at->second->lastDay)
            at->second = c;
    }
    const int firstDay = memories.firstDay >= 0 ? std::min(memories.firstDay, today) : today;
    const MemoryModel::Memory ungraded = model.First(MemoryModel::Grade::Good);
    for (const CategoryProgress& record : learner.Progress())
        for (std::uint16_t id : record.Learned()) {
            const auto wanted = std::pair(record.CategoryId(), id);
            const auto found = std::lower_bound(known.begin(), known.end(), wanted,
                [&](const CharacterMemory* c, const auto& k) { return key(c) < k; });
            const CharacterMemory* c = found != known.end() && key(*found) == wanted ? *found : nullptr;
            if (!c)
                if (const auto other = byId.find(id); other != byId.end())
                    c = other->second;
            const MemoryModel::Memory memory = c ? c->memory : ungraded;
            const int lastDay = c ? c->lastDay : firstDay;
            m_reviews.push_back({record.CategoryId(), id, model.Recall(today - lastDay, memory.stability),
                lastDay + model.Interval(memory.stability)});
        }
    std::sort(m_reviews.begin(), m_reviews.end(),
        [](const Review& a, const Review& b) { return std::pair(a.categoryId, a.id) < std::pair(b.categoryId, b.id); });
    // A character listed twice in the learned list is one character.
    m_reviews.erase(std::unique(m_reviews.begin(), m_reviews.end(),
                        [](const Review& a, const Review& b) { return a.categoryId == b.categoryId && a.id == b.id; }),
        m_reviews.end());
}

const ReviewSchedule::Review* ReviewSchedule::Find(std::uint16_t categoryId, std::uint16_t id) const
{
    const auto found = std::lower_bound(m_reviews.begin(), m_reviews.end(), std::pair(categoryId, id),
        [](const Review& r, const std::pair<std::uint16_t, std::uint16_t>& key) {
            return std::pair(r.categoryId, r.id) < key;
        });
    return found != m_reviews.end() && found->categoryId == categoryId && found->id == id ? &*found : nullptr;
}

int ReviewSchedule::DueCount(std::uint16_t categoryId) const
{
    return static_cast<int>(std::count_if(m_reviews.begin(), m_reviews.end(),
        [&](const Review& r) { return r.categoryId == categoryId && r.Due(m_today); }));
}

int ReviewSchedule::DueTotal() const
{
    return static_cast<int>(
        std::count_if(m_reviews.begin(), m_reviews.end(), [&](const Review& r) { return r.Due(m_today); }));
}

std::vector<std::uint16_t> ReviewSchedule::DueFirst(std::uint16_t categoryId) const
{
    std::vector<Review> due;
    for (const Review& r : m_reviews)
        if (r.categoryId == categoryId && r.Due(m_today))
            due.push_back(r);
    std::stable_sort(due.begin(), due.end(), [](const Review& a, const Review& b) { return a.recall < b.recall; });
    std::vector<std::uint16_t> ids;
    for (const Review& r : due)
        ids.push_back(r.id);
    return ids;
}

std::vector<int> ReviewSchedule::DuePerDay(int days) const
{
    std::vector<int> counts(static_cast<std::size_t>(std::max(days, 0)), 0);
    for (const Review& r : m_reviews) {
        const int offset = r.dueDay - m_today - 1;
        if (offset >= 0 && offset < days)
            ++counts[static_cast<std::size_t>(offset)];
    }
    return counts;
}
