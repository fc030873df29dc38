#pragma once

#include "CategoryProgress.h"
#include "LearnerEvent.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One learner: a name and a progress record per category touched, in the order added.
class User {
public:
    /// The name, or null when there is none.
    const char* Name() const { return m_name ? m_name->c_str() : nullptr; }
    /// Copies the name; an empty text leaves no name.
    void SetName(const std::string& name)
    {
        if (name.empty())
            m_name.reset();
        else
            m_name = name;
    }
    /// Number of progress records.
    std::size_t ProgressCount() const { return m_progress.size(); }
    /// The first record for the category, appended empty when there is none. The reference
    /// stays valid until the next record is appended.
    CategoryProgress& GetProgress(std::uint16_t categoryId);
    /// Appends a copy of the record, without looking for one of the same category.
    void AddProgress(const CategoryProgress& record) { m_progress.push_back(record); }
    /// All records in order.
    const std::vector<CategoryProgress>& Progress() const { return m_progress; }
    /// The events of the learner's history that are kept with this record in config.xml,
    /// oldest first: the whole history where there is no history database, otherwise only
    /// what could not be written to it (ConfigStore::History gives the whole).
    const std::vector<LearnerEvent>& History() const { return m_history; }
    /// Adds an event at the end of the history kept with the record.
    void AddEvent(LearnerEvent event) { m_history.push_back(std::move(event)); }
    /// Empties the history kept with the record (its events are kept elsewhere now).
    void ClearHistory() { m_history.clear(); }

private:
    std::vector<CategoryProgress> m_progress;
    std::vector<LearnerEvent> m_history;
    std::optional<std::string> m_name;
};
