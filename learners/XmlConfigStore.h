#pragma once

#include "CharacterDatabase.h"
#include "ConfigStore.h"
#include "HistoryStore.h"

#include <pugixml.hpp>

#include <array>
#include <functional>
#include <future>
#include <string>
#include <vector>

/// The learner store in `config.xml`: a document element holding `Users` (attribute
/// `currentUser`), one `User` per learner (attribute `name`) with one `Progress` per category
/// (`categoryId`) holding `Learned` and `Untested` lists of `Character` (`id`), then, for a learner
/// with a history, one `History` of `Event` elements (`at`, `kind`, `categoryId`, `id`, and
/// `mistakes` for tests). Every change is
/// saved at once, atomically: a failed save leaves the previous file as it was. In a folder where
/// no file can be created the file is rewritten in place instead. Every failure, running out of
/// memory included, is a ConfigException.
///
/// Given a history database, the learners' histories live there instead: a file whose learners
/// still hold `History` elements has them brought over when it is opened, and the next save
/// writes the file without them. The database is opened when first needed. When it cannot be
/// kept (it cannot be created, is damaged, locked, or a write fails) the reason is told once
/// and the history is kept in config.xml as without a database for the rest of the session; the
/// next session brings it over.
class XmlConfigStore : public ConfigStore {
public:
    /// Gives the database whose categories the learners' progress follows; asked for once the
    /// file has been found readable, and a DatabaseLoadException from it becomes a
    /// ConfigException with the same message.
    using DatabaseSource = std::function<CharacterDatabase&()>;

    /// Opens the file; the history goes in the database at `historyPath`, or with the learners
    /// in the file when it is empty.
    XmlConfigStore(std::string path, DatabaseSource database, std::string historyPath = {});
    /// Opens the file; `database` supplies the category count.
    XmlConfigStore(std::string path, CharacterDatabase& database, std::string historyPath = {});
    /// Closes the history database and keeps the current learner's memories beside it
    /// (MemoryCache) for the next start.
    ~XmlConfigStore() override;

    std::unique_ptr<User> LoadUser(const std::string& name) override;
    bool AddUser(const std::string& name) override;
    bool DeleteUser(const std::string& name) override;
    bool SaveUser(User& user) override;
    std::uint16_t UserCount() const override;
    const std::string& UserName(std::uint16_t index) const override;
    const std::string& CurrentUserName() const override;
    void Record(User& learner, const std::vector<LearnerEvent>& events) override;
    std::vector<LearnerEvent> History(const User& learner) override;
    bool ImportUser(User& user) override;
    void OpenHistory() override;
    bool HistoryBeingChecked() override;
    HistoryProblem TakeHistoryProblem() override;
    LearnerMemories Memories(const User& learner) override;

    /// Re-reads the names of all learners and the current learner from the document.
    void ReadUserList();
    /// Records the current learner in the document (empty for none); written with the next save.
    void SetCurrentUser(const std::string& name);
    /// Writes the document over the file, atomically; throws "Unable to save config" on failure.
    bool SaveFile();

private:
    void Open(const DatabaseSource& database);
    std::unique_ptr<User> ReadUser(const std::string& name);
    bool WriteUser(User& user);
    bool RewriteInPlace(const std::string& text);
    pugi::xml_node UsersNode() const;
    /// The learner element of this name (the query "User[@name='NAME']"), or none.
    pugi::xml_node FindUser(const std::string& name) const;
    /// Brings the History elements of every learner over to the database, then drops them.
    void BringOverHistories();
    /// The database when it is open and kept; opened on first call, and checked whole first
    /// unless `checked` is false.
    HistoryStore* Histories(bool checked = true);
    /// The database failed: from now on the history stays in config.xml; tells why once. A
    /// `damaged` file (or one its connection found damaged) is put aside.
    void HistoryFailed(const std::string& reason, bool damaged = false);
    /// Takes the outcome of the full check running on its own thread, when it is over (or at
    /// once, waiting for it, when `wait`).
    void CollectCheck(bool wait);

    pugi::xml_document m_document;
    std::vector<std::string> m_userNames;
    std::string m_currentUserName;
    CharacterDatabase* m_database = nullptr;
    std::string m_path;
    /// What the file held when it was read or last written, and how it was stamped then.
    std::string m_fileText;
    std::array<long long, 4> m_fileStamp{};

    std::string m_historyPath;
    enum class HistoryState { NotOpened, Open, InConfig } m_historyState = HistoryState::NotOpened;
    std::unique_ptr<HistoryStore> m_histories;
    bool m_historyChecked = false;
    /// The full check, on a connection and a thread of its own.
    struct CheckOutcome {
        bool ok = false;
        bool damaged = false;
        std::string error;
    };
    std::future<CheckOutcome> m_checking;
    /// The memories last read for a learner, kept for when the database is given up.
    std::pair<std::string, LearnerMemories> m_lastRead;
    HistoryProblem m_historyProblem;
};
