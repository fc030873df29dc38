#pragma once

#include "CharacterDatabase.h"
#include "ConfigStore.h"

#include <pugixml.hpp>

#include <array>
#include <functional>
#include <string>
#include <vector>

/// The learner store in `config.xml`: a document element holding `Users` (attribute
/// `currentUser`), one `User` per learner (attribute `name`) with one `Progress` per category
/// (`categoryId`) holding `Learned` and `Untested` lists of `Character` (`id`), then, for a learner
/// with a history, one `History` of `Event` elements (`at`, `kind`, `categoryId`, `id`, and
/// `mistakes` for tests): the history kept with the learner where it has no database of its
/// own (LearningHistory). Every change is saved at once, atomically: a failed save leaves the
/// previous file as it was. In a folder where no file can be created the file is rewritten in
/// place instead. Every failure, running out of memory included, is a ConfigException.
class XmlConfigStore : public ConfigStore {
public:
    /// Gives the database whose categories the learners' progress follows; asked for once the
    /// file has been found readable, and a DatabaseLoadException from it becomes a
    /// ConfigException with the same message.
    using DatabaseSource = std::function<CharacterDatabase&()>;

    /// Opens the file.
    XmlConfigStore(std::string path, DatabaseSource database);
    /// Opens the file; `database` supplies the category count.
    XmlConfigStore(std::string path, CharacterDatabase& database);

    std::unique_ptr<User> LoadUser(const std::string& name) override;
    bool AddUser(const std::string& name) override;
    bool DeleteUser(const std::string& name) override;
    bool SaveUser(User& user) override;
    std::uint16_t UserCount() const override;
    const std::string& UserName(std::uint16_t index) const override;
    const std::string& CurrentUserName() const override;
    std::vector<KeptHistory> KeptHistories() const override;
    void DropKeptHistories() override;
    void SetNameFreed(std::function<void(const std::string& name)> listener) override;

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

    pugi::xml_document m_document;
    std::vector<std::string> m_userNames;
    std::string m_currentUserName;
    CharacterDatabase* m_database = nullptr;
    std::string m_path;
    /// What the file held when it was read or last written, and how it was stamped then.
    std::string m_fileText;
    std::array<long long, 4> m_fileStamp{};

    std::function<void(const std::string& name)> m_nameFreed;
};
