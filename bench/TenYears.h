#pragma once

// A learner who did a lesson and a test of five characters every evening for ten years: 3,650
// days, 36,500 events, the characters of the database in teaching order, over and over, about
// one test in seven failed and one answer in three with a mistake.

#include "CharacterDatabase.h"
#include "LearnerEvent.h"
#include "User.h"

#include <cstdint>
#include <utility>
#include <vector>

inline std::vector<LearnerEvent> TenYearsOfPractice(CharacterDatabase& database, User& learner)
{
    std::vector<std::pair<std::uint16_t, std::uint16_t>> taught; // category, character
    for (std::uint16_t c = 0; c < database.CategoryCount(); ++c)
        for (std::uint16_t id : database.LoadCategory(c)->Characters())
            taught.emplace_back(c, id);
    std::vector<LearnerEvent> events;
    const int first = DayOfDate(2016, 11, 23);
    for (int day = 0; day < 3650; ++day) {
        const std::string date = DayText(first + day);
        for (int k = 0; k < 5; ++k) {
            const auto [category, id] = taught[(static_cast<std::size_t>(day) * 5 + k) % taught.size()];
            events.push_back({date + "T18:00:00+01:00", LearnerEvent::Lesson, category, id, -1});
        }
        for (int k = 0; k < 5; ++k) {
            const auto [category, id] = taught[(static_cast<std::size_t>(day) * 5 + k) % taught.size()];
            const bool failed = (day * 5 + k) % 7 == 0;
            events.push_back({date + "T18:20:00+01:00", failed ? LearnerEvent::Failed : LearnerEvent::Passed, category,
                id, (day + k) % 3 == 0 ? 1 : 0});
            CategoryProgress& progress = learner.GetProgress(category);
            if (!failed && !progress.IsLearned(id))
                progress.AddLearned(id);
        }
    }
    return events;
}
