#include "LearnerStatistics.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

using Key = std::pair<std::uint16_t, std::uint16_t>; // category, character

bool Is(const LearnerEvent& e, const char* kind)
{
    return e.kind == kind;
}

/// Monday on or before `day` (1970-01-01, day 0, was a Thursday).
int MondayOf(int day)
{
    const int weekday = ((day % 7) + 7 + 3) % 7; // 0 = Monday
    return day - weekday;
}

} // namespace

LearnerStatistics::LearnerStatistics(
    const User& learner, std::vector<LearnerEvent> history, std::vector<std::uint16_t> categorySizes, int today)
    : m_learner(learner), m_history(std::move(history)), m_sizes(std::move(categorySizes)), m_today(today),
      m_firstDay(today)
{
    for (const LearnerEvent& e : m_history)
        if (const int day = EventDay(e.at); day >= 0)
            m_firstDay = std::min(m_firstDay, day);
}

std::vector<int> LearnerStatistics::LearnedPerDay(std::optional<std::uint16_t> category) const
{
    auto counts = [&](std::uint16_t id) { return !category || *category == id; };
    std::set<Key> learnedNow;
    for (const CategoryProgress& record : m_learner.Progress())
        if (counts(record.CategoryId()))
            for (std::uint16_t id : record.Learned())
                learnedNow.insert({record.CategoryId(), id});
    // Learned before the history began: learned now and never passed since, or first seen in
    // the history being forgotten or sent back.
    std::set<Key> seen, learned;
    for (const LearnerEvent& e : m_history) {
        const Key key{e.categoryId, e.id};
        if (!counts(e.categoryId) || seen.count(key))
            continue;
        if (Is(e, LearnerEvent::Passed) || Is(e, LearnerEvent::Forget) || Is(e, LearnerEvent::Retest))
            seen.insert(key);
        if (Is(e, LearnerEvent::Forget) || Is(e, LearnerEvent::Retest))
            learned.insert(key);
    }
    for (const Key& key : learnedNow)
        if (!seen.count(key))
            learned.insert(key);

    // In order of their days (a clock set back keeps the order within a day).
    std::vector<std::pair<int, const LearnerEvent*>> dated;
    for (const LearnerEvent& e : m_history)
        if (counts(e.categoryId))
            dated.emplace_back(std::max(m_firstDay, EventDay(e.at)), &e);
    std::stable_sort(
        dated.begin(), dated.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<int> perDay(static_cast<std::size_t>(m_today - m_firstDay + 1), 0);
    std::size_t next = 0;
    for (int day = m_firstDay; day <= m_today; ++day) {
        for (; next < dated.size() && dated[next].first <= day; ++next) {
            const LearnerEvent& e = *dated[next].second;
            if (Is(e, LearnerEvent::Passed))
                learned.insert({e.categoryId, e.id});
            else if (Is(e, LearnerEvent::Forget) || Is(e, LearnerEvent::Retest) || Is(e, LearnerEvent::Failed))
                learned.erase({e.categoryId, e.id});
        }
        perDay[static_cast<std::size_t>(day - m_firstDay)] = static_cast<int>(learned.size());
    }
    return perDay;
}

std::vector<LearnerStatistics::Week> LearnerStatistics::TestsPerWeek() const
{
    const int first = MondayOf(m_firstDay);
    std::vector<Week> weeks;
    for (int monday = first; monday <= m_today; monday += 7)
        weeks.push_back(Week{monday});
    for (const LearnerEvent& e : m_history) {
        const int day = EventDay(e.at);
        if (day < first || day > m_today)
            continue;
        Week& week = weeks[static_cast<std::size_t>((day - first) / 7)];
        if (Is(e, LearnerEvent::Passed))
            ++week.passed;
        else if (Is(e, LearnerEvent::Failed))
            ++week.failed;
    }
    return weeks;
}

std::vector<LearnerStatistics::CategoryCounts> LearnerStatistics::Categories() const
{
    std::vector<CategoryCounts> rows;
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        CategoryCounts row{static_cast<std::uint16_t>(i), 0, 0, m_sizes[i]};
        for (const CategoryProgress& record : m_learner.Progress())
            if (record.CategoryId() == i) {
                row.learned = record.Learned().size();
                row.untested = record.Untested().size();
            }
        rows.push_back(row);
    }
    return rows;
}

std::vector<LearnerStatistics::Trouble> LearnerStatistics::TroubleCharacters(std::size_t most) const
{
    std::map<Key, Trouble> found;
    for (const LearnerEvent& e : m_history) {
        const bool failed = Is(e, LearnerEvent::Failed);
        if (!failed && !Is(e, LearnerEvent::Passed))
            continue;
        Trouble& t = found.try_emplace({e.categoryId, e.id}, Trouble{e.categoryId, e.id, 0, 0}).first->second;
        t.mistakes += std::max(0, e.mistakes);
        t.failures += failed ? 1 : 0;
    }
    std::vector<Trouble> troubles;
    for (const auto& [key, t] : found) {
        if (t.mistakes + t.failures == 0)
            continue;
        bool listed = false;
        for (const CategoryProgress& record : m_learner.Progress())
            if (record.CategoryId() == key.first)
                listed = listed || record.IsLearned(key.second) || record.IsUntested(key.second);
        if (listed)
            troubles.push_back(t);
    }
    std::stable_sort(troubles.begin(), troubles.end(), [](const Trouble& a, const Trouble& b) {
        const int sa = a.mistakes + a.failures, sb = b.mistakes + b.failures;
        return sa != sb ? sa > sb : a.failures > b.failures;
    });
    if (troubles.size() > most)
        troubles.resize(most);
    return troubles;
}
