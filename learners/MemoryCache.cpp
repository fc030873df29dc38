#include "MemoryCache.h"

#include "AtomicFile.h"

#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace {

constexpr char Magic[4] = {'Z', 'V', 'M', 'C'};
constexpr std::uint32_t Version = 1;
/// More entries than any database has characters: a count beyond it is damage.
constexpr std::uint32_t MostEntries = 65536;

std::uint64_t Checksum(const std::string& bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325ull;
    for (unsigned char c : bytes) {
        hash ^= c;
        hash *= 0x100000001b3ull;
    }
    return hash;
}

template<typename T> void Put(std::string& out, T value)
{
    char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    out.append(bytes, sizeof(T));
}

/// Reads values in order, bounds-checked.
class Reader {
public:
    explicit Reader(const std::string& bytes) : m_bytes(bytes) { }
    template<typename T> bool Get(T& value)
    {
        if (m_bytes.size() - m_at < sizeof(T))
            return false;
        std::memcpy(&value, m_bytes.data() + m_at, sizeof(T));
        m_at += sizeof(T);
        return true;
    }
    bool Text(std::string& text, std::size_t length)
    {
        if (m_bytes.size() - m_at < length)
            return false;
        text.assign(m_bytes, m_at, length);
        m_at += length;
        return true;
    }
    std::size_t At() const { return m_at; }

private:
    const std::string& m_bytes;
    std::size_t m_at = 0;
};

} // namespace

namespace MemoryCache {

Stamp StampOf(const std::string& historyPath)
{
    Stamp stamp;
    stamp.fill(-1);
    struct stat info { };
    if (::stat(historyPath.c_str(), &info) == 0) {
        stamp[0] = static_cast<long long>(info.st_ino);
        stamp[1] = static_cast<long long>(info.st_size);
        stamp[2] = static_cast<long long>(info.st_mtim.tv_sec) * 1000000000ll + info.st_mtim.tv_nsec;
    }
    if (::stat((historyPath + "-wal").c_str(), &info) == 0) {
        stamp[3] = static_cast<long long>(info.st_ino);
        stamp[4] = static_cast<long long>(info.st_size);
        stamp[5] = static_cast<long long>(info.st_mtim.tv_sec) * 1000000000ll + info.st_mtim.tv_nsec;
    }
    return stamp;
}

std::string PathFor(const std::string& historyPath)
{
    return historyPath + ".memories";
}

bool Write(const std::string& path, const Stamp& stamp, const std::string& learner, const LearnerMemories& memories)
{
    std::string bytes(Magic, sizeof Magic);
    Put(bytes, Version);
    for (long long value : stamp)
        Put(bytes, static_cast<std::int64_t>(value));
    Put(bytes, static_cast<std::uint32_t>(learner.size()));
    bytes += learner;
    Put(bytes, static_cast<std::int32_t>(memories.firstDay));
    Put(bytes, static_cast<std::uint32_t>(memories.memories.size()));
    for (const CharacterMemory& c : memories.memories) {
        Put(bytes, c.categoryId);
        Put(bytes, c.id);
        Put(bytes, c.memory.stability);
        Put(bytes, c.memory.difficulty);
        Put(bytes, static_cast<std::int32_t>(c.lastDay));
    }
    Put(bytes, Checksum(bytes));
    return ReplaceFileAtomically(path, bytes) == FileWrite::Written;
}

std::optional<LearnerMemories> Read(const std::string& path, const Stamp& stamp, const std::string& learner)
{
    if (stamp[0] < 0)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (bytes.size() < sizeof Magic + sizeof(std::uint64_t) || std::memcmp(bytes.data(), Magic, sizeof Magic) != 0)
        return std::nullopt;
    const std::string body = bytes.substr(0, bytes.size() - sizeof(std::uint64_t));
    std::uint64_t stored = 0;
    std::memcpy(&stored, bytes.data() + body.size(), sizeof stored);
    if (stored != Checksum(body))
        return std::nullopt;
    Reader read(body);
    char magic[4];
    for (char& c : magic)
        read.Get(c);
    std::uint32_t version = 0;
    if (!read.Get(version) || version != Version)
        return std::nullopt;
    for (long long expected : stamp) {
        std::int64_t value = 0;
        if (!read.Get(value) || value != expected)
            return std::nullopt;
    }
    std::uint32_t length = 0;
    std::string name;
    if (!read.Get(length) || !read.Text(name, length) || name != learner)
        return std::nullopt;
    LearnerMemories memories;
    std::int32_t firstDay = 0;
    std::uint32_t count = 0;
    if (!read.Get(firstDay) || !read.Get(count) || count > MostEntries)
        return std::nullopt;
    memories.firstDay = firstDay;
    memories.memories.reserve(count);
    for (std::uint32_t i = 0; i < count; ++i) {
        CharacterMemory c;
        std::int32_t lastDay = 0;
        if (!read.Get(c.categoryId) || !read.Get(c.id) || !read.Get(c.memory.stability)
            || !read.Get(c.memory.difficulty) || !read.Get(lastDay))
            return std::nullopt;
        // Only memories the model can have made.
        if (!std::isfinite(c.memory.stability) || c.memory.stability <= 0 || !std::isfinite(c.memory.difficulty)
            || c.memory.difficulty < 1 || c.memory.difficulty > 10)
            return std::nullopt;
        c.lastDay = lastDay;
        memories.memories.push_back(c);
    }
    if (read.At() != body.size())
        return std::nullopt;
    return memories;
}

} // namespace MemoryCache
