#include "XmlConfigStore.h"
#include "StoreMessages.h"

#include "AtomicFile.h"
#include "ConfigException.h"
#include "DatabaseLoadException.h"
#include "TextRules.h"
#include "UserRecordXml.h"
#include "XmlText.h"

#include <array>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using ZavorenCommon::ConfigException;

namespace {

/// Deepest element nesting a learner file may have. The program writes six levels (the document
/// element, Users, User, Progress, Learned, Character); anything far deeper was not written by
/// it, and saving it back would indent each line by its depth.
constexpr unsigned MaxDepth = 64;

/// A temporary file of a save older than this belongs to no running save: a save takes
/// milliseconds, so such a file was left by a save that was killed before its rename.
constexpr auto StaleTemporaryAge = std::chrono::minutes(1);

/// The whole content of a regular file; false when it cannot be read.
bool ReadWholeFile(const std::string& path, std::string& text)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    return !file.bad();
}

/// What tells whether a file was changed: its inode, size and modification time.
std::array<long long, 4> FileStamp(const std::string& path)
{
    struct stat info { };
    if (::stat(path.c_str(), &info) != 0)
        return {-1, -1, -1, -1};
    return {static_cast<long long>(info.st_ino), static_cast<long long>(info.st_size),
        static_cast<long long>(info.st_mtim.tv_sec), static_cast<long long>(info.st_mtim.tv_nsec)};
}

/// True for the names that SaveFile gives its temporary files: the file's name, a dot and the
/// six letters or digits that mkstemp chose.
bool IsTemporaryName(const std::string& name, const std::string& fileName)
{
    if (name.size() != fileName.size() + 7 || name.compare(0, fileName.size(), fileName) != 0
        || name[fileName.size()] != '.')
        return false;
    for (std::size_t i = fileName.size() + 1; i < name.size(); ++i)
        if (!std::isalnum(static_cast<unsigned char>(name[i])))
            return false;
    return true;
}

/// Removes the temporary files that killed saves left beside `path`.
void RemoveStaleTemporaries(const std::filesystem::path& path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path target = fs::absolute(path, error);
    const std::string fileName = target.filename().string();
    const auto now = fs::file_time_type::clock::now();
    for (fs::directory_iterator it(target.parent_path(), error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        std::error_code ignored;
        if (!IsTemporaryName(name, fileName) || !it->is_regular_file(ignored) || it->is_symlink(ignored))
            continue;
        const auto written = fs::last_write_time(it->path(), ignored);
        if (!ignored && now - written > StaleTemporaryAge)
            fs::remove(it->path(), ignored);
    }
}

} // namespace

XmlConfigStore::XmlConfigStore(std::string path, CharacterDatabase& database)
    : XmlConfigStore(std::move(path), [&database]() -> CharacterDatabase& { return database; })
{
}

XmlConfigStore::XmlConfigStore(std::string path, DatabaseSource database) : m_path(std::move(path))
{
    try {
        Open(database);
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::LoadConfig);
    }
}

void XmlConfigStore::Open(const DatabaseSource& database)
{
    struct stat info { };
    if (::stat(m_path.c_str(), &info) != 0)
        throw ConfigException(StoreMessage::NoConfig);
    // Read-only: no write permission on the file at all, or none for this user.
    if ((info.st_mode & 0222) == 0 || ::access(m_path.c_str(), W_OK) != 0)
        throw ConfigException(StoreMessage::ReadOnlyConfig);
    const unsigned options = pugi::parse_default | pugi::parse_declaration | pugi::parse_comments;
    if (!S_ISREG(info.st_mode) || !ReadWholeFile(m_path, m_fileText)
        || !m_document.load_buffer(m_fileText.data(), m_fileText.size(), options) || !m_document.document_element()
        || !UsersNode())
        throw ConfigException(StoreMessage::LoadConfig);
    m_fileStamp = FileStamp(m_path);
    if (NestedAtLeast(m_document, static_cast<int>(MaxDepth)))
        throw ConfigException(StoreMessage::LoadConfig);
    // The document is written back as UTF-8 whatever it was read as; its declaration says so.
    for (pugi::xml_node node = m_document.first_child(); node; node = node.next_sibling())
        if (node.type() == pugi::node_declaration && node.attribute("encoding"))
            node.attribute("encoding") = "UTF-8";
    RemoveStaleTemporaries(m_path);
    try {
        m_database = &database();
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        throw ConfigException(e.what());
    }
    ReadUserList();
}

pugi::xml_node XmlConfigStore::UsersNode() const
{
    return m_document.document_element().select_node("Users").node();
}

pugi::xml_node XmlConfigStore::FindUser(const std::string& name) const
{
    // The name is pasted into the query as a quoted literal: a name holding an apostrophe
    // would end the literal and change what the query asks, so such a name matches nobody.
    if (name.find('\'') != std::string::npos)
        return {};
    const std::string query = "User[@name='" + name + "']";
    try {
        return UsersNode().select_node(query.c_str()).node();
    } catch (const pugi::xpath_exception&) {
        return {};
    }
}

void XmlConfigStore::ReadUserList()
{
    m_userNames.clear();
    const pugi::xml_node users = UsersNode();
    m_currentUserName = users.attribute("currentUser").value();
    // Only element children are learners: whitespace, comments and text are not.
    for (pugi::xml_node child : users.children())
        if (child.type() == pugi::node_element)
            m_userNames.emplace_back(child.attribute("name").value());
}

std::unique_ptr<User> XmlConfigStore::LoadUser(const std::string& name)
{
    try {
        return ReadUser(name);
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::LoadConfig);
    }
}

std::unique_ptr<User> XmlConfigStore::ReadUser(const std::string& name)
{
    if (name.empty())
        return nullptr;
    const pugi::xml_node node = FindUser(name);
    if (!node)
        return nullptr;
    auto user = std::make_unique<User>();
    user->SetName(name);
    ReadUserRecord(node, *user);
    if (!EqualsIgnoringAsciiCase(m_currentUserName, name))
        SetCurrentUser(name);
    return user;
}

bool XmlConfigStore::AddUser(const std::string& name)
{
    try {
        // A name holding an apostrophe could never be found again: refuse it like a taken name.
        if (name.empty() || name.find('\'') != std::string::npos)
            return false;
        if (FindUser(name))
            return false;
        pugi::xml_node user = UsersNode().append_child("User");
        if (!user)
            return false;
        user.append_attribute("name") = name.c_str();
        m_userNames.push_back(name);
        // Events left under this name by a learner whose deletion could not reach the history
        // are not the new learner's.
        if (m_nameFreed)
            m_nameFreed(name);
        return SaveFile();
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::SaveConfig);
    }
}

bool XmlConfigStore::DeleteUser(const std::string& name)
{
    try {
        const pugi::xml_node node = FindUser(name);
        if (!node || !UsersNode().remove_child(node))
            return false;
        for (auto it = m_userNames.begin(); it != m_userNames.end(); ++it)
            if (*it == name) {
                m_userNames.erase(it);
                break;
            }
        if (EqualsIgnoringAsciiCase(m_currentUserName, name))
            SetCurrentUser("");
        const bool saved = SaveFile();
        // Their history goes with them, once the file no longer lists them: a failure there
        // leaves events that nobody can see, and adding a learner of that name clears them.
        if (m_nameFreed)
            m_nameFreed(name);
        return saved;
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::SaveConfig);
    }
}

bool XmlConfigStore::SaveUser(User& user)
{
    try {
        return WriteUser(user);
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::SaveConfig);
    }
}

bool XmlConfigStore::WriteUser(User& user)
{
    const std::string name = user.Name() ? user.Name() : "";
    pugi::xml_node node = FindUser(name);
    if (node) {
        while (node.first_child())
            node.remove_child(node.first_child());
    } else {
        // Deliberately not added to the cached names: only AddUser and ReadUserList fill them.
        node = UsersNode().append_child("User");
        node.append_attribute("name") = name.c_str();
    }
    WriteUserRecord(node, user, m_database->CategoryCount(), user.History());
    return SaveFile();
}

std::uint16_t XmlConfigStore::UserCount() const
{
    return static_cast<std::uint16_t>(m_userNames.size());
}

const std::string& XmlConfigStore::UserName(std::uint16_t index) const
{
    if (index >= m_userNames.size())
        throw std::out_of_range("invalid vector<T> subscript");
    return m_userNames[index];
}

const std::string& XmlConfigStore::CurrentUserName() const
{
    return m_currentUserName;
}

void XmlConfigStore::SetCurrentUser(const std::string& name)
{
    pugi::xml_node users = UsersNode();
    pugi::xml_attribute current = users.attribute("currentUser");
    if (!current)
        current = users.append_attribute("currentUser");
    current = name.c_str();
    m_currentUserName = name;
}

bool XmlConfigStore::SaveFile()
{
    std::string text;
    try {
        text = DocumentText(m_document, m_fileText.size() + m_fileText.size() / 16);
    } catch (const std::bad_alloc&) {
        throw ConfigException(StoreMessage::SaveConfig);
    }

    // The very text the file holds, untouched since: nothing to write (closing without a change
    // leaves the disk alone).
    if (text == m_fileText && FileStamp(m_path) == m_fileStamp)
        return true;
    // Write a sibling file, make it durable, then rename it over the old one: a failure at any
    // point leaves the previous config.xml complete.
    switch (ReplaceFileAtomically(m_path, text)) {
    case FileWrite::Written:
        m_fileText = std::move(text);
        m_fileStamp = FileStamp(m_path);
        return true;
    case FileWrite::NoRights:
        // A folder the learner may not create files in, holding a file they may write: rewrite
        // the file itself, as saving did before files were replaced atomically.
        RewriteInPlace(text);
        m_fileText = std::move(text);
        m_fileStamp = FileStamp(m_path);
        return true;
    case FileWrite::Failed: break;
    }
    throw ConfigException(StoreMessage::SaveConfig);
}

bool XmlConfigStore::RewriteInPlace(const std::string& text)
{
    const int fd = ::open(m_path.c_str(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        throw ConfigException(StoreMessage::SaveConfig);
    // Keep what the file held, to put it back if the new text cannot be written whole.
    std::string previous;
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            ::close(fd);
            throw ConfigException(StoreMessage::SaveConfig);
        }
        if (n == 0)
            break;
        previous.append(buffer, static_cast<std::size_t>(n));
    }
    auto replace = [fd](const std::string& content) {
        return ::ftruncate(fd, 0) == 0 && ::lseek(fd, 0, SEEK_SET) == 0 && WriteAll(fd, content) && ::fsync(fd) == 0;
    };
    const bool written = replace(text);
    if (!written)
        replace(previous);
    const bool closed = ::close(fd) == 0;
    if (!written || !closed)
        throw ConfigException(StoreMessage::SaveConfig);
    return true;
}

std::vector<KeptHistory> XmlConfigStore::KeptHistories() const
{
    std::vector<KeptHistory> kept;
    for (pugi::xml_node user : UsersNode().children("User"))
        for (pugi::xml_node history : user.children("History"))
            kept.push_back({user.attribute("name").value(), ReadHistory(history)});
    return kept;
}

void XmlConfigStore::DropKeptHistories()
{
    for (pugi::xml_node user : UsersNode().children("User"))
        while (pugi::xml_node history = user.child("History"))
            user.remove_child(history);
}

void XmlConfigStore::SetNameFreed(std::function<void(const std::string& name)> listener)
{
    m_nameFreed = std::move(listener);
}
