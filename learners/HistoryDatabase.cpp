#include "HistoryDatabase.h"

#include "MemoryCache.h"

#include <chrono>
#include <filesystem>
#include <optional>

namespace {
std::string NameOf(const User& learner)
{
    return learner.Name() ? learner.Name() : "";
}
} // namespace

HistoryDatabase::HistoryDatabase(std::string path) : m_path(std::move(path))
{
    if (m_path.empty())
        m_state = State::InConfig;
}

HistoryDatabase::~HistoryDatabase()
{
    try {
        // The check's own connection closed first, so that the file is stamped as it stays.
        FinishCheck();
        m_alive.reset();
        // The learner the next start opens first: the store's current one.
        const std::string learner = m_store ? m_store->CurrentUserName() : m_lastRead.first;
        if (m_state != State::Open || learner.empty())
            return;
        LearnerMemories memories;
        std::string error;
        if (!m_histories->Memories(learner, memories, error))
            return;
        // Closed first: the journal goes back into the file, and the stamp is the closed file's.
        m_histories.reset();
        const MemoryCache::Stamp stamp = MemoryCache::StampOf(m_path);
        if (stamp[0] >= 0) // a database in a file, not in memory
            MemoryCache::Write(MemoryCache::PathFor(m_path), stamp, learner, memories);
    } catch (const std::exception&) {
        // Only a faster next start is lost.
    }
}

void HistoryDatabase::Attach(ConfigStore& store)
{
    m_store = &store;
    store.SetNameFreed([this](const std::string& name) { Forget(name); });
    if (m_state == State::InConfig)
        return;
    std::vector<KeptHistory> kept = store.KeptHistories();
    // Nothing to bring over: the database waits until it is needed.
    if (kept.empty())
        return;
    HistoryStore* histories = Histories();
    if (!histories)
        return;
    std::vector<HistoryStore::Kept> bringing;
    for (KeptHistory& history : kept)
        if (!history.events.empty())
            bringing.push_back({std::move(history.learner), std::move(history.events)});
    std::string error;
    if (!histories->BringOver(bringing, error)) {
        Failed(error);
        return;
    }
    // Committed: only now does the file lose them, written so with the next save.
    store.DropKeptHistories();
}

void HistoryDatabase::SetProblemListener(ProblemListener listener)
{
    m_listener = std::move(listener);
    if (m_listener && !m_untold.reason.empty())
        m_listener(std::exchange(m_untold, HistoryProblem{}));
}

HistoryStore* HistoryDatabase::Histories(bool checked)
{
    if (m_state == State::NotOpened) {
        std::string error;
        std::string keptAs;
        m_histories = HistoryStore::Open(m_path, error, &keptAs);
        if (m_histories)
            m_state = State::Open;
        else
            Failed(error, false, keptAs);
    }
    if (m_state == State::Open && checked) {
        FinishCheck();
        if (m_state == State::Open && !m_checked) {
            m_checked = true;
            std::string error;
            if (!m_histories->Check(error))
                Failed(error);
        }
    }
    return m_state == State::Open ? m_histories.get() : nullptr;
}

void HistoryDatabase::Failed(const std::string& reason, bool damagedFile, const std::string& keptAs)
{
    if (m_state == State::InConfig)
        return;
    const bool damaged = damagedFile || (m_histories && m_histories->LastFailureWasDamage());
    m_histories.reset();
    m_state = State::InConfig;
    HistoryProblem problem{reason, keptAs};
    // A file found damaged after it was opened is put aside as one found damaged at opening.
    if (damaged) {
        problem.keptAs = HistoryStore::PutAside(m_path);
        if (problem.keptAs.empty())
            problem.reason += " (the damaged file could not be put aside)";
    }
    if (m_listener)
        m_listener(problem);
    else
        m_untold = std::move(problem);
}

void HistoryDatabase::Record(User& learner, const std::vector<LearnerEvent>& events)
{
    if (events.empty())
        return;
    if (HistoryStore* histories = Histories()) {
        std::string error;
        if (histories->Record(NameOf(learner), events, error))
            return;
        Failed(error);
    }
    for (const LearnerEvent& event : events)
        learner.AddEvent(event);
}

std::vector<LearnerEvent> HistoryDatabase::Events(const User& learner)
{
    std::vector<LearnerEvent> events;
    if (HistoryStore* histories = Histories()) {
        std::string error;
        if (!histories->Events(NameOf(learner), events, error)) {
            events.clear();
            Failed(error);
        }
    }
    // What could not go to the database comes after what did.
    events.insert(events.end(), learner.History().begin(), learner.History().end());
    return events;
}

void HistoryDatabase::Replace(User& learner)
{
    if (HistoryStore* histories = Histories()) {
        std::string error;
        if (histories->Replace(NameOf(learner), learner.History(), error))
            learner.ClearHistory();
        else
            Failed(error);
    }
}

void HistoryDatabase::Forget(const std::string& learner)
{
    if (HistoryStore* histories = Histories()) {
        std::string error;
        if (!histories->Forget(learner, error))
            Failed(error);
    }
}

void HistoryDatabase::OpenAndCheck(RunOnOwner runOnOwner)
{
    if (!Histories(false) || m_checked || m_checking.valid())
        return;
    // The check reads every page (tens of milliseconds for years of practice): on a connection
    // of its own, beside the one the program goes on using. Its end is told on the owner's
    // thread, where what it found is taken (the thread has ended by then, or is ending).
    std::weak_ptr<int> alive = m_alive;
    m_checking = std::async(std::launch::async, [this, alive, path = m_path, runOnOwner = std::move(runOnOwner)] {
        CheckOutcome outcome;
        if (auto checker = HistoryStore::Open(path, outcome.error)) {
            outcome.ok = checker->Check(outcome.error);
            outcome.damaged = !outcome.ok && checker->LastFailureWasDamage();
        }
        if (runOnOwner)
            runOnOwner([this, alive] {
                if (!alive.expired())
                    FinishCheck();
            });
        return outcome;
    });
}

void HistoryDatabase::FinishCheck()
{
    if (!m_checking.valid())
        return;
    const CheckOutcome outcome = m_checking.get();
    m_checked = true;
    if (!outcome.ok)
        Failed(outcome.error, outcome.damaged);
}

LearnerMemories HistoryDatabase::Memories(const User& learner)
{
    // Read before the file's full check, which waits until the first page is up: a read does
    // not spread damage, and a fault it meets is told like any other.
    LearnerMemories memories;
    const std::string name = NameOf(learner);
    // No file yet: no history to read, and none made only to read it.
    std::error_code missing;
    const bool none = m_state == State::NotOpened && !std::filesystem::exists(m_path, missing);
    // Not opened yet (at start): the memories kept at the last close, while they still hold.
    std::optional<LearnerMemories> kept;
    if (!none && m_state == State::NotOpened)
        kept = MemoryCache::Read(MemoryCache::PathFor(m_path), MemoryCache::StampOf(m_path), name);
    if (kept) {
        m_lastRead = {name, *kept};
        memories = std::move(*kept);
    } else if (HistoryStore* histories = none ? nullptr : Histories(false)) {
        std::string error;
        if (histories->Memories(name, memories, error)) {
            m_lastRead = {name, memories};
        } else {
            memories = {};
            Failed(error);
        }
    } else if (none) {
        m_lastRead = {name, {}};
    }
    // The database given up during the session: what it held when last read, with what the
    // session kept in config.xml since.
    if (m_state == State::InConfig && m_lastRead.first == name && !name.empty())
        memories = m_lastRead.second;
    if (learner.History().empty())
        return memories;
    // What could not go to the database follows what did.
    MemoryLedger ledger;
    ledger.Load(memories.memories);
    for (const LearnerEvent& e : learner.History()) {
        ledger.Apply(e);
        if (const int day = EventDay(e.at); day >= 0 && (memories.firstDay < 0 || day < memories.firstDay))
            memories.firstDay = day;
    }
    memories.memories = ledger.Memories();
    return memories;
}
