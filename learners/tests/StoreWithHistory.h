#pragma once

// A learner store with its learning history beside it, as the program pairs them: the history
// database brings over what config.xml holds and forgets the learners the store deletes. Its
// problems are collected to be taken one at a time, in the order they were told.

#include "HistoryDatabase.h"
#include "XmlConfigStore.h"

#include <deque>

class StoreWithHistory : public XmlConfigStore {
public:
    /// The store at `path`, its history in the database at `historyPath` (empty: in config.xml).
    StoreWithHistory(std::string path, CharacterDatabase& database, std::string historyPath = {})
        : XmlConfigStore(std::move(path), database), m_history(std::move(historyPath))
    {
        m_history.SetProblemListener([this](const HistoryProblem& problem) { m_told.push_back(problem); });
        m_history.Attach(*this);
    }

    HistoryDatabase& Histories() { return m_history; }
    void Record(User& learner, const std::vector<LearnerEvent>& events) { m_history.Record(learner, events); }
    std::vector<LearnerEvent> History(const User& learner) { return m_history.Events(learner); }
    LearnerMemories Memories(const User& learner) { return m_history.Memories(learner); }
    /// Opens the history and starts its check, whose end is taken by FinishCheck or the next use.
    void OpenHistory() { m_history.OpenAndCheck({}); }
    void FinishCheck() { m_history.FinishCheck(); }
    /// Writes an imported learner's record with the history it carries, as an import does.
    bool ImportUser(User& learner)
    {
        m_history.Replace(learner);
        return SaveUser(learner);
    }
    /// The oldest problem told and not yet taken; an empty reason when none is left.
    HistoryProblem TakeHistoryProblem()
    {
        if (m_told.empty())
            return {};
        HistoryProblem problem = m_told.front();
        m_told.pop_front();
        return problem;
    }
    /// How many problems were told and not yet taken.
    std::size_t ProblemsTold() const { return m_told.size(); }

private:
    std::deque<HistoryProblem> m_told;
    HistoryDatabase m_history;
};
