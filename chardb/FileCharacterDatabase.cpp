#include "FileCharacterDatabase.h"

#include "ByteReader.h"
#include "DatabaseLoadException.h"
#include "FormFormat.h"

#include <algorithm>

using ZavorenCommon::DatabaseLoadException;

namespace {

constexpr std::size_t HeaderSize = 12;
constexpr std::size_t EntrySize = 6;

std::uint32_t LittleU32(const std::uint8_t* p)
{
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8)
        | (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

std::uint16_t LittleU16(const std::uint8_t* p)
{
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

bool SeekTo(std::FILE* file, std::uint64_t offset)
{
    return fseeko(file, static_cast<off_t>(offset), SEEK_SET) == 0;
}

} // namespace

FileCharacterDatabase::FileCharacterDatabase(const std::string& path)
{
    m_file = std::fopen(path.c_str(), "rb");
    if (!m_file)
        throw DatabaseLoadException("Unable to open database");
    try {
        std::uint8_t header[HeaderSize];
        if (std::fread(header, HeaderSize, 1, m_file) != 1)
            throw DatabaseLoadException("Unable to read database header");
        m_elementDictionary = ReadDictionary(LittleU32(header));
        m_characterDictionary = ReadDictionary(LittleU32(header + 4));
        m_categoryDictionaryOffset = LittleU32(header + 8);
        m_categoryDictionary = ReadDictionary(m_categoryDictionaryOffset);
    } catch (...) {
        std::fclose(m_file);
        throw;
    }
}

FileCharacterDatabase::~FileCharacterDatabase()
{
    std::fclose(m_file);
}

std::vector<FileCharacterDatabase::DictionaryEntry> FileCharacterDatabase::ReadDictionary(std::uint32_t offset)
{
    std::uint8_t countBytes[2];
    if (!SeekTo(m_file, offset) || std::fread(countBytes, 2, 1, m_file) != 1)
        throw DatabaseLoadException("Unable to read dictionary");
    const std::uint16_t count = LittleU16(countBytes);
    std::vector<std::uint8_t> raw(std::size_t{count} * EntrySize);
    if (count > 0 && std::fread(raw.data(), EntrySize, count, m_file) != count)
        throw DatabaseLoadException("Unable to read dictionary");
    std::vector<DictionaryEntry> entries(count);
    for (std::size_t i = 0; i < count; ++i)
        entries[i] = {LittleU32(&raw[i * EntrySize]), LittleU16(&raw[i * EntrySize + 4])};
    return entries;
}

bool FileCharacterDatabase::ReadRecord(const DictionaryEntry& entry, std::vector<std::uint8_t>& buffer)
{
    // The record is read as one item of its size, so a record of size 0 never reads.
    buffer.resize(entry.size);
    return SeekTo(m_file, entry.offset) && std::fread(buffer.data(), entry.size, 1, m_file) == 1;
}

bool FileCharacterDatabase::CharacterExists(std::uint16_t id)
{
    if (id >= m_characterDictionary.size())
        return false;
    if (m_preloaded && id < m_characterCache.size())
        return m_characterCache[id] != nullptr;
    const DictionaryEntry& entry = m_characterDictionary[id];
    if (entry.offset == NoRecord)
        return false;
    std::vector<std::uint8_t> scratch;
    return ReadRecord(entry, scratch);
}

bool FileCharacterDatabase::ElementExists(std::uint16_t id)
{
    if (id >= m_elementDictionary.size())
        return false;
    if (m_preloaded && id < m_elementCache.size())
        return m_elementCache[id] != nullptr;
    // No hole test here: an offset of 0xFFFFFFFF simply fails to read.
    std::vector<std::uint8_t> scratch;
    return ReadRecord(m_elementDictionary[id], scratch);
}

std::unique_ptr<Character> FileCharacterDatabase::LoadCharacter(std::uint16_t id)
{
    if (id >= m_characterDictionary.size())
        throw DatabaseLoadException("Character id out of range");
    if (m_preloaded && id < m_characterCache.size()) {
        if (!m_characterCache[id])
            throw DatabaseLoadException("Character does not exist");
        return std::make_unique<Character>(*m_characterCache[id]);
    }
    const DictionaryEntry& entry = m_characterDictionary[id];
    if (entry.offset == NoRecord)
        throw DatabaseLoadException("Character does not exist");
    std::vector<std::uint8_t> record;
    if (!ReadRecord(entry, record))
        throw DatabaseLoadException("Unable to load character");
    ByteReader reader(record.data(), record.size(), "Unable to load character");
    auto character = std::make_unique<Character>();
    character->SetId(id);
    character->SetElementId(reader.U16());
    character->SetOnReading(reader.ShortString());
    character->SetKunReading(reader.ShortString());
    character->SetMeaning(reader.ShortString());
    return character;
}

std::unique_ptr<Element> FileCharacterDatabase::LoadElement(std::uint16_t id)
{
    if (id >= m_elementDictionary.size())
        throw DatabaseLoadException("Element id out of range");
    if (m_preloaded && id < m_elementCache.size()) {
        if (!m_elementCache[id])
            throw DatabaseLoadException("Element does not exist");
        return std::make_unique<Element>(*m_elementCache[id]);
    }
    if (!m_loading.empty()) {
        // Nested load of a placed element: refuse cycles and runaway nesting.
        if (std::find(m_loading.begin(), m_loading.end(), id) != m_loading.end()
            || m_loading.size() > MaxCompositionDepth)
            throw DatabaseLoadException("Unable to load element");
        if (auto found = m_composeMemo.find(id); found != m_composeMemo.end())
            return std::make_unique<Element>(found->second);
        auto element = ParseElement(id);
        m_composeMemo.emplace(id, *element);
        return element;
    }
    struct TopLevelLoad {
        FileCharacterDatabase& db;
        ~TopLevelLoad() { db.m_composeMemo.clear(); }
    } clearMemo{*this};
    return ParseElement(id);
}

std::unique_ptr<Element> FileCharacterDatabase::ParseElement(std::uint16_t id)
{
    std::vector<std::uint8_t> record;
    if (!ReadRecord(m_elementDictionary[id], record))
        throw DatabaseLoadException("Unable to load element");
    m_loading.push_back(id);
    struct PopOnExit {
        std::vector<std::uint16_t>& stack;
        ~PopOnExit() { stack.pop_back(); }
    } pop{m_loading};
    auto element = std::make_unique<Element>(id);
    ByteReader reader(record.data(), record.size(), "Unable to load element");
    ParseElementRecord(reader, *element, [this](std::uint16_t placed) { return LoadElement(placed); });
    return element;
}

std::unique_ptr<Category> FileCharacterDatabase::LoadCategory(std::uint16_t id)
{
    // Deliberately a strict greater-than: an id equal to the count reads the six bytes that
    // follow the last dictionary entry as if they were one more entry.
    if (id > m_categoryDictionary.size())
        throw DatabaseLoadException("No such category");
    DictionaryEntry entry;
    if (id < m_categoryDictionary.size()) {
        entry = m_categoryDictionary[id];
    } else {
        std::uint8_t raw[EntrySize];
        if (!SeekTo(m_file, std::uint64_t{m_categoryDictionaryOffset} + 2 + EntrySize * id)
            || std::fread(raw, EntrySize, 1, m_file) != 1)
            throw DatabaseLoadException("Unable to load category");
        entry = {LittleU32(raw), LittleU16(raw + 4)};
    }
    std::vector<std::uint8_t> record;
    if (!ReadRecord(entry, record))
        throw DatabaseLoadException("Unable to load category");
    ByteReader reader(record.data(), record.size(), "Unable to load category");
    auto category = std::make_unique<Category>();
    category->SetId(id);
    category->SetName(reader.ShortString());
    const std::uint16_t count = reader.U16();
    for (std::uint16_t i = 0; i < count; ++i)
        category->AppendCharacter(reader.U16());
    return category;
}

std::uint16_t FileCharacterDatabase::CharacterCount() const
{
    return static_cast<std::uint16_t>(m_characterDictionary.size());
}

std::uint16_t FileCharacterDatabase::ElementCount() const
{
    return static_cast<std::uint16_t>(m_elementDictionary.size());
}

std::uint16_t FileCharacterDatabase::CategoryCount() const
{
    return static_cast<std::uint16_t>(m_categoryDictionary.size());
}

void FileCharacterDatabase::Preload(DatabaseProgress* progress)
{
    // Preloading is meant to happen once per process; a second call keeps the caches as they
    // are rather than reading everything again.
    if (m_preloaded)
        return;
    // A preload that failed part-way left partial caches; start them afresh.
    m_characterCache.clear();
    m_elementCache.clear();
    const std::uint16_t characters = CharacterCount();
    const std::uint16_t elements = ElementCount();
    if (progress)
        progress->SetRange(0, std::uint32_t{characters} + elements);
    m_characterCache.reserve(characters);
    for (std::uint32_t id = 0; id < characters; ++id) {
        if (progress)
            progress->SetPosition(id);
        const auto cid = static_cast<std::uint16_t>(id);
        m_characterCache.push_back(CharacterExists(cid) ? LoadCharacter(cid) : nullptr);
    }
    m_elementCache.reserve(elements);
    for (std::uint32_t id = 0; id < elements; ++id) {
        if (progress)
            progress->SetPosition(std::uint32_t{characters} + id);
        const auto eid = static_cast<std::uint16_t>(id);
        m_elementCache.push_back(ElementExists(eid) ? LoadElement(eid) : nullptr);
    }
    m_preloaded = true;
}
